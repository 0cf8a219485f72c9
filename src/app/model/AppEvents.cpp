#include "AppEvents.h"

AppEvents &AppEvents::shared()
{
    static AppEvents events;
    return events;
}
