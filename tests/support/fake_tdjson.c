/* A stand-in for TDLib's JSON library, for tests of the loader and the channel.
 * It records what is sent, answers "close" as TDLib does, and hands out events
 * that the test pushes. Built without td_send and td_receive (FAKE_TDJSON_PARTIAL)
 * it is a library that lacks entry points. */

#include <pthread.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#define CAPACITY 256

static pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
static pthread_cond_t arrived = PTHREAD_COND_INITIALIZER;
static char *sent[CAPACITY];
static int sent_count;
static char *events[CAPACITY];
static int event_head, event_tail;
static char *last_event;
static int next_client_id = 1;

int td_create_client_id(void)
{
    pthread_mutex_lock(&mutex);
    int id = next_client_id++;
    pthread_mutex_unlock(&mutex);
    return id;
}

const char *td_execute(const char *request)
{
    (void)request;
    return "{\"@type\":\"ok\"}";
}

void fake_push_event(const char *event)
{
    pthread_mutex_lock(&mutex);
    if (event_tail - event_head < CAPACITY) {
        events[event_tail % CAPACITY] = strdup(event);
        event_tail++;
        pthread_cond_signal(&arrived);
    }
    pthread_mutex_unlock(&mutex);
}

int fake_sent_count(void)
{
    pthread_mutex_lock(&mutex);
    int count = sent_count;
    pthread_mutex_unlock(&mutex);
    return count;
}

const char *fake_sent_at(int index)
{
    pthread_mutex_lock(&mutex);
    const char *request = index >= 0 && index < sent_count ? sent[index] : NULL;
    pthread_mutex_unlock(&mutex);
    return request;
}

void fake_reset(void)
{
    pthread_mutex_lock(&mutex);
    for (int i = 0; i < sent_count; ++i)
        free(sent[i]);
    sent_count = 0;
    pthread_mutex_unlock(&mutex);
}

#ifndef FAKE_TDJSON_PARTIAL
void td_send(int client_id, const char *request)
{
    (void)client_id;
    pthread_mutex_lock(&mutex);
    if (sent_count < CAPACITY)
        sent[sent_count++] = strdup(request);
    pthread_mutex_unlock(&mutex);
    if (strstr(request, "\"@type\":\"close\"")) {
        fake_push_event("{\"@type\":\"updateAuthorizationState\",\"authorization_state\":"
                        "{\"@type\":\"authorizationStateClosing\"}}");
        fake_push_event("{\"@type\":\"updateAuthorizationState\",\"authorization_state\":"
                        "{\"@type\":\"authorizationStateClosed\"}}");
    }
}

const char *td_receive(double timeout)
{
    struct timespec deadline;
    clock_gettime(CLOCK_REALTIME, &deadline);
    long nanoseconds = deadline.tv_nsec + (long)((timeout - (long)timeout) * 1e9);
    deadline.tv_sec += (time_t)timeout + nanoseconds / 1000000000L;
    deadline.tv_nsec = nanoseconds % 1000000000L;

    pthread_mutex_lock(&mutex);
    while (event_head == event_tail) {
        if (pthread_cond_timedwait(&arrived, &mutex, &deadline) != 0)
            break;
    }
    free(last_event);
    last_event = NULL;
    if (event_head != event_tail) {
        last_event = events[event_head % CAPACITY];
        event_head++;
    }
    pthread_mutex_unlock(&mutex);
    return last_event;
}
#endif

int fake_pending_count(void)
{
    pthread_mutex_lock(&mutex);
    int count = event_tail - event_head;
    pthread_mutex_unlock(&mutex);
    return count;
}
