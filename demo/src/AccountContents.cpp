#include "Account.h"
#include "Json.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace demo {

// Fills a fresh account with people, chats, histories and stickers. Everything is
// derived from fixed seeds, so every start shows the same account.
class AccountBuilder
{
public:
    explicit AccountBuilder(Account &account)
        : a(account)
    {}

    void build(const QString &firstName, const QString &phone);

private:
    qint64 person(qint64 id, const QString &first, const QString &last, Presence presence, int minutesAgo, bool contact,
                  bool photo, const QString &username = {});
    DemoChat &privateChat(qint64 userID, bool archived = false);
    DemoChat &groupChat(ChatKind kind, qint64 groupID, const QString &title, int members, bool photo,
                        bool archived = false);
    // Appends a message `minutesAgo` before now; messages must be added oldest first.
    DemoMessage &add(DemoChat &chat, qint64 sender, int minutesAgo, const QJsonObject &content);
    void fillTalk(DemoChat &chat, const std::vector<qint64> &people, int count, int fromMinutes, int toMinutes);
    void markRead(DemoChat &chat, int unread);
    void addStickers();
    // More chats, up to `total`, with a few messages each: a large account.
    void addCrowd(int total);
    QJsonObject media(FileRecipe recipe, const QString &folder, const QString &name, int seed);
    unsigned next()
    {
        m_random = m_random * 1103515245u + 12345u;
        return (m_random >> 16) & 0x7fff;
    }

    Account &a;
    unsigned m_random = 20240611u;
    int m_seed = 1;
};

namespace {

const char16_t *const kLines[] = {
    u"Hi! How are you doing? :)",
    u"All good here, busy week though",
    u"Did you see the new release notes? https://qt.io/blog",
    u"Haha, that's great :D",
    u"Let's meet tomorrow at 10?",
    u"Sounds good 👍",
    u"I'll bring the coffee ☕",
    u"Can you send me the slides?",
    u"Sure, give me a minute",
    u"Thanks a lot! <3",
    u"The weather is lovely today 🌞",
    u"I'm running a bit late, sorry :(",
    u"No worries ;)",
    u"Check this out: github.com/qt/qtbase",
    u"What do you think about the design?",
    u"Looks clean, I like the colours",
    u"Dinner on Friday?",
    u"Yes! Italian or Thai?",
    u"Thai, definitely 🍜",
    u"Good night 🌙",
    u"Morning! Ready for the hike?",
    u"Almost, packing snacks",
    u"Happy birthday!!! 🎉🎂",
    u"Thank you so much :)",
    u"Call me when you're free",
    u"Will do",
    u"The build is green again ✅",
    u"Finally :D",
    u"Have you read the book yet?",
    u"Halfway through, no spoilers please!",
};

// A span of formatted text, found by the first occurrence of `part` in `text`.
QJsonObject entity(const QString &text, const QString &part, const QJsonObject &type)
{
    return object("textEntity", {{"offset", int(text.indexOf(part))}, {"length", int(part.size())}, {"type", type}});
}

QJsonObject formattedContent(const QString &text, const QJsonArray &entities)
{
    return object("messageText", {{"text", formattedText(text, entities)},
                                  {"link_preview", QJsonValue::Null},
                                  {"link_preview_options", QJsonValue::Null}});
}

// What the helper shows of formatted text: every style, and a secret on a line of
// its own.
QJsonObject styledHelperText()
{
    const QString text = u"Messages can be bold, italic, underlined or struck through.\n"
                         u"And a secret, hidden until you click it:\n"
                         u"The butler did it"_s;
    return formattedContent(text, {entity(text, u"bold"_s, object("textEntityTypeBold")),
                                   entity(text, u"italic"_s, object("textEntityTypeItalic")),
                                   entity(text, u"underlined"_s, object("textEntityTypeUnderline")),
                                   entity(text, u"struck through"_s, object("textEntityTypeStrikethrough")),
                                   entity(text, u"The butler did it"_s, object("textEntityTypeSpoiler"))});
}

// Code with its language, a link under a text, a mention and a hashtag.
QJsonObject codeSample()
{
    const QString text = u"A minimal main for a Qt Quick app:\n"
                         u"int main(int argc, char *argv[])\n{\n    QGuiApplication app(argc, argv);\n"
                         u"    return app.exec();\n}"_s;
    return formattedContent(text, {entity(text, text.mid(text.indexOf(u"int main"_s)),
                                          object("textEntityTypePreCode", {{"language", u"cpp"_s}}))});
}

QJsonObject linkSample()
{
    const QString text = u"The Qt 6 docs cover it; ask @emma_w. #qt6"_s;
    return formattedContent(
        text, {entity(text, u"Qt 6 docs"_s, object("textEntityTypeTextUrl", {{"url", u"https://doc.qt.io/qt-6/"_s}})),
               entity(text, u"@emma_w"_s, object("textEntityTypeMention")),
               entity(text, u"#qt6"_s, object("textEntityTypeHashtag"))});
}

// A block quote and a name that stands for a user (who has no username to mention).
QJsonObject quoteSample(qint64 userID)
{
    const QString text = u"Henry said it last year:\n"
                         u"Start before eight, the clouds come in at noon.\n"
                         u"Still true!"_s;
    return formattedContent(text, {entity(text, u"Henry"_s, object("textEntityTypeMentionName", {{"user_id", userID}})),
                                   entity(text, u"Start before eight, the clouds come in at noon.\n"_s,
                                          object("textEntityTypeBlockQuote"))});
}

} // namespace

void AccountBuilder::build(const QString &firstName, const QString &phone)
{
    const int now = a.m_now;
    a.users[a.m_selfID] =
        DemoUser{a.m_selfID, firstName, u"Demo"_s, {}, phone, Presence::Online, now, false, false, 0, 0};
    person(777000, u"Telegram"_s, {}, Presence::Recently, 0, false, true);
    a.m_botID = person(5000000001, u"Vost Helper"_s, {}, Presence::Online, 0, false, true, u"vost_demo_bot"_s);
    a.users[a.m_botID].isBot = true;
    const qint64 emma = person(200000101, u"Emma"_s, u"Wilson"_s, Presence::Online, 0, true, true, u"emma_w"_s);
    const qint64 liam = person(200000102, u"Liam"_s, u"Chen"_s, Presence::Offline, 190, true, true);
    const qint64 olivia = person(200000103, u"Olivia"_s, u"Martinez"_s, Presence::Online, 0, true, true);
    const qint64 noah = person(200000104, u"Noah"_s, u"Kim"_s, Presence::Recently, 0, true, false);
    const qint64 ava = person(200000105, u"Ava"_s, u"Johnson"_s, Presence::Offline, 1500, true, true);
    const qint64 lucas = person(200000106, u"Lucas"_s, u"Brown"_s, Presence::Online, 0, true, false);
    const qint64 sophia = person(200000107, u"Sophia"_s, u"Davis"_s, Presence::Offline, 20, true, true);
    const qint64 james = person(200000108, u"James"_s, u"Wilson"_s, Presence::Recently, 0, true, false);
    const qint64 isabella = person(200000109, u"Isabella"_s, u"Garcia"_s, Presence::Online, 0, true, true);
    const qint64 ethan = person(200000110, u"Ethan"_s, u"Moore"_s, Presence::Offline, 3000, true, false);
    const qint64 mia = person(200000111, u"Mia"_s, u"Taylor"_s, Presence::Offline, 45, true, true);
    const qint64 henry = person(200000112, u"Henry"_s, u"Clark"_s, Presence::Offline, 600, false, true);
    const qint64 grace = person(200000113, u"Grace"_s, u"Lee"_s, Presence::Online, 0, false, true);
    const qint64 daniel = person(200000114, u"Daniel"_s, u"Young"_s, Presence::Recently, 0, false, false);
    person(200000115, u"Chloe"_s, u"Hall"_s, Presence::Offline, 300, true, true, u"chloe_hall"_s);
    person(200000116, u"Oliver"_s, u"King"_s, Presence::Online, 0, true, false, u"oliver_king"_s);
    a.users[200000115].phone = u"15550123"_s;
    a.users[200000116].phone = u"15550124"_s;
    const qint64 me = a.m_selfID;
    addStickers();

    // The bot, pinned first.
    DemoChat &bot = privateChat(a.m_botID);
    bot.pinIndex = 1;
    add(bot, a.m_botID, 2000,
        a.textContent(u"Welcome to the Vost demo account! Everything here is simulated "
                      u"on your computer. Send me a message and I will answer :)"_s));
    add(bot, a.m_botID, 1995, styledHelperText());
    add(bot, me, 1990, a.textContent(u"Hello bot"_s));
    add(bot, a.m_botID, 1989, a.textContent(u"Hello! Try sending a photo, a sticker or just some text."_s));
    markRead(bot, 0);

    // Emma: the long history with every kind of content.
    DemoChat &e = privateChat(emma);
    e.pinIndex = 2;
    fillTalk(e, {emma, me}, 200, 60 * 24 * 60, 400);
    // The first message says what no other does: a search finds it alone, at the start.
    e.messages.begin()->second.content = a.textContent(u"So nice to meet you at the lighthouse museum yesterday!"_s);
    add(e, emma, 390, a.photoContent(m_seed++, 1280, 960, u"Sunset at the lake 🌅"_s));
    const qint64 albumID = a.newAlbumID();
    for (int i = 0; i < 3; ++i) {
        DemoMessage &m = add(e, emma, 385, a.photoContent(m_seed++, 1024, 768, i == 0 ? u"Trip album"_s : QString()));
        m.albumID = albumID;
    }
    add(e, me, 380, media(FileRecipe::Video, u"videos"_s, u"clip.gif"_s, m_seed++));
    add(e, emma, 370, media(FileRecipe::Animation, u"animations"_s, u"dance.gif"_s, m_seed++));
    add(e, emma, 360, media(FileRecipe::Voice, u"voice"_s, u"voice_note.oga"_s, m_seed++));
    add(e, me, 350, media(FileRecipe::Audio, u"music"_s, u"demo_tune.wav"_s, m_seed++));
    add(e, emma, 340, media(FileRecipe::Pdf, u"documents"_s, u"Itinerary.pdf"_s, m_seed++));
    add(e, emma, 330, media(FileRecipe::Photo, u"documents"_s, u"scan.png"_s, m_seed++));
    add(e, me, 320, a.stickerContent(a.stickerSets[0].stickers[0]));
    add(e, emma, 310, a.stickerContent(a.stickerSets[1].stickers[1]));
    add(e, emma, 300,
        object("messageLocation",
               {{"location",
                 object("location", {{"latitude", 51.5007}, {"longitude", -0.1246}, {"horizontal_accuracy", 0.0}})}}));
    add(e, me, 290,
        object("messageContact", {{"contact", object("contact", {{"phone_number", u"15550123"_s},
                                                                 {"first_name", u"Chloe"_s},
                                                                 {"last_name", u"Hall"_s},
                                                                 {"vcard", QString()},
                                                                 {"user_id", 200000115}})}}));
    add(e, emma, 280,
        object("messageCall", {{"unique_id", int64String(88001)},
                               {"is_video", false},
                               {"discard_reason", object("callDiscardReasonHungUp")},
                               {"duration", 312}}));
    add(e, me, 270,
        object("messageDice", {{"initial_state", QJsonValue::Null},
                               {"final_state", QJsonValue::Null},
                               {"emoji", u"🎲"_s},
                               {"value", 5},
                               {"success_animation_frame_number", 0}}));
    // Persian written right to left, with a Latin name and digits running left to right inside it.
    add(e, emma, 65,
        a.textContent(u"سلام! عکس‌های سفر را در Vost گذاشتم و قرار ما ساعت 19:30 در "
                      u"کافه‌ی کنار دریاچه است، میز شماره ۱۲. تا آن موقع می‌بینمت."_s));
    DemoMessage &question = add(e, emma, 60, a.textContent(u"Are we still on for tonight? :)"_s));
    question.reactions = {{u"❤️"_s, 0, 1, true}, {{}, 5368324170671202286LL, 1, false}};
    DemoMessage &answer = add(e, me, 55, a.textContent(u"Of course! See you at 7 🍕"_s));
    answer.replyTo = question.id;
    answer.reactions = {{u"👍"_s, 0, 1, false}, {u"🔥"_s, 0, 1, false}};
    markRead(e, 0);
    e.lastReadOutbox = answer.id;

    DemoChat &family = groupChat(ChatKind::BasicGroup, 3001, u"Family"_s, 5, true);
    family.pinIndex = 3;
    fillTalk(family, {ava, lucas, me, mia}, 40, 9000, 25);
    const qint64 familyAlbum = a.newAlbumID();
    for (int i = 0; i < 2; ++i)
        add(family, mia, 20, a.photoContent(m_seed++, 960, 1280, {})).albumID = familyAlbum;
    add(family, lucas, 15, a.textContent(u"Grandma loved the photos! <3"_s));
    markRead(family, 3);

    DemoChat &l = privateChat(liam);
    fillTalk(l, {liam, me}, 30, 20000, 130);
    const qint64 liamAlbum = a.newAlbumID();
    for (int i = 0; i < 4; ++i)
        add(l, me, 120, a.photoContent(m_seed++, 1200, 800, i == 0 ? u"From the conference"_s : QString())).albumID =
            liamAlbum;
    add(l, liam, 110, a.textContent(u"Nice shots! The second one is my favourite"_s));
    add(l, me, 100, a.textContent(u"Thanks :)"_s));
    markRead(l, 0);
    l.lastReadOutbox = l.messages.rbegin()->first;

    DemoChat &o = privateChat(olivia);
    fillTalk(o, {olivia, me}, 25, 15000, 200);
    add(o, olivia, 190, a.stickerContent(a.stickerSets[1].stickers[0]));
    add(o, me, 185, a.stickerContent(a.stickerSets[0].stickers[3]));
    add(o, olivia, 180, media(FileRecipe::Voice, u"voice"_s, u"voice_olivia.oga"_s, m_seed++));
    add(o, olivia, 170, a.textContent(u"Listen to this :D"_s));
    markRead(o, 2);

    DemoChat &n = privateChat(noah);
    fillTalk(n, {noah, me}, 20, 30000, 260);
    add(n, noah, 250, media(FileRecipe::Pdf, u"documents"_s, u"Quarterly report.pdf"_s, m_seed++));
    add(n, noah, 245, media(FileRecipe::Photo, u"documents"_s, u"whiteboard.jpg"_s, m_seed++));
    add(n, me, 240, media(FileRecipe::Text, u"documents"_s, u"notes.txt"_s, m_seed++));
    markRead(n, 0);
    n.lastReadOutbox = n.messages.rbegin()->first;

    DemoChat &hikers = groupChat(ChatKind::BasicGroup, 3002, u"Weekend Hikers"_s, 8, true);
    fillTalk(hikers, {henry, grace, daniel, me, liam}, 35, 12000, 300);
    add(hikers, grace, 295, quoteSample(henry));
    QJsonArray options;
    const QString choices[] = {u"Saturday"_s, u"Sunday"_s, u"Both!"_s};
    const int votes[] = {3, 1, 2};
    for (int i = 0; i < 3; ++i)
        options.append(object("pollOption", {{"id", QString::number(i)},
                                             {"text", formattedText(choices[i])},
                                             {"media", QJsonValue::Null},
                                             {"voter_count", votes[i]},
                                             {"vote_percentage", votes[i] * 100 / 6},
                                             {"recent_voter_ids", QJsonArray{}},
                                             {"is_chosen", false},
                                             {"is_being_chosen", false},
                                             {"author", QJsonValue::Null},
                                             {"addition_date", 0}}));
    add(hikers, grace, 290,
        object("messagePoll", {{"poll", object("poll", {{"id", int64String(6100001)},
                                                        {"question", formattedText(u"Which day for the ridge walk?"_s)},
                                                        {"options", options},
                                                        {"total_voter_count", 6},
                                                        {"recent_voter_ids", QJsonArray{}},
                                                        {"can_get_voters", false},
                                                        {"can_see_results", true},
                                                        {"is_anonymous", true},
                                                        {"allows_multiple_answers", false},
                                                        {"allows_revoting", true},
                                                        {"members_only", false},
                                                        {"country_codes", QJsonArray{}},
                                                        {"option_order", QJsonArray{}},
                                                        {"type", object("pollTypeRegular")},
                                                        {"open_period", 0},
                                                        {"close_date", 0},
                                                        {"is_closed", false},
                                                        {"vote_restriction_reason", QJsonValue::Null}})},
                               {"description", formattedText({})},
                               {"media", QJsonValue::Null},
                               {"can_add_option", false}}));
    add(hikers, henry, 280,
        object("messageLocation",
               {{"location",
                 object("location", {{"latitude", 46.5586}, {"longitude", 7.9826}, {"horizontal_accuracy", 0.0}})}}));
    // More unread than a screen holds: the chat opens at its "Unread messages" line.
    markRead(hikers, 8);

    DemoChat &qt = groupChat(ChatKind::Supergroup, 4001, u"Qt Developers"_s, 1840, true);
    qt.muted = true;
    fillTalk(qt, {henry, grace, daniel, noah, me}, 60, 8000, 70);
    add(qt, daniel, 68, codeSample());
    add(qt, noah, 67, linkSample());
    add(qt, grace, 65, a.textContent(u"Docs for QImage: https://doc.qt.io/qt-6/qimage.html"_s));
    markRead(qt, 3);

    DemoChat &photos = groupChat(ChatKind::Channel, 4002, u"Daily Photo"_s, 12400, true);
    for (int i = 0; i < 18; ++i) {
        DemoMessage &m = add(photos, 0, 60 * 24 * (18 - i) + 500,
                             a.photoContent(m_seed++, 1280, 853, u"Photo of the day #%1"_s.arg(i + 1)));
        m.views = 1200 + int(next() % 4000);
        m.reactions = {{u"❤️"_s, 0, int(20 + next() % 80), false}, {u"👍"_s, 0, int(5 + next() % 30), false}};
    }
    markRead(photos, 1);

    DemoChat &design = groupChat(ChatKind::Supergroup, 4003, u"Design Team"_s, 9, false);
    fillTalk(design, {grace, isabella, me, sophia}, 30, 6000, 520);
    design.messages.rbegin()->second.reactions = {{u"🎉"_s, 0, 3, true}, {{}, 5368324170671202286LL, 2, false}};
    markRead(design, 0);

    DemoChat &lu = privateChat(lucas);
    fillTalk(lu, {lucas, me}, 12, 9000, 700);
    markRead(lu, 0);
    lu.markedUnread = true;

    DemoChat &so = privateChat(sophia);
    fillTalk(so, {sophia, me}, 14, 8000, 900);
    markRead(so, 0);
    so.draft = u"I was thinking we could"_s;

    DemoChat &ja = privateChat(james);
    fillTalk(ja, {james, me}, 8, 7000, 1300);
    add(ja, james, 1250,
        object("messageCall", {{"unique_id", int64String(88002)},
                               {"is_video", true},
                               {"discard_reason", object("callDiscardReasonMissed")},
                               {"duration", 0}}));
    add(ja, me, 1240,
        object("messageCall", {{"unique_id", int64String(88003)},
                               {"is_video", false},
                               {"discard_reason", object("callDiscardReasonHungUp")},
                               {"duration", 95}}));
    markRead(ja, 0);

    DemoChat &is = privateChat(isabella);
    fillTalk(is, {isabella, me}, 16, 9000, 1500);
    add(is, isabella, 1450, media(FileRecipe::Video, u"videos"_s, u"beach.gif"_s, m_seed++));
    add(is, isabella, 1440, media(FileRecipe::Animation, u"animations"_s, u"cat.gif"_s, m_seed++));
    markRead(is, 1);

    DemoChat &et = privateChat(ethan);
    fillTalk(et, {ethan, me}, 10, 20000, 3000);
    add(et, ethan, 2900, media(FileRecipe::Audio, u"music"_s, u"evening_song.wav"_s, m_seed++));
    markRead(et, 0);

    DemoChat &av = privateChat(ava);
    fillTalk(av, {ava, me}, 10, 20000, 4000);
    add(av, me, 3900, a.textContent(u"Did you get my message?"_s));
    markRead(av, 0);
    av.lastReadOutbox = std::prev(av.messages.end(), 2)->first;

    DemoChat &sc = groupChat(ChatKind::Secret, 7001, u"Mia Taylor"_s, 2, false);
    sc.userID = mia;
    sc.photoSmall = a.users[mia].photoSmall;
    sc.photoBig = a.users[mia].photoBig;
    add(sc, mia, 5000, a.textContent(u"This chat is end-to-end encrypted 🔒"_s));
    add(sc, me, 4990, a.textContent(u"Secret plans for the party ;)"_s));
    markRead(sc, 0);

    DemoChat &tg = privateChat(777000);
    add(tg, 777000, 60 * 24 * 30, a.textContent(u"Login code: 22222. Do not give this code to anyone."_s));
    markRead(tg, 0);

    DemoChat &books = groupChat(ChatKind::Supergroup, 4004, u"Book Club"_s, 230, true);
    books.muted = true;
    fillTalk(books, {grace, henry, ava, daniel}, 45, 30000, 1700);
    add(books, daniel, 1650,
        object("messageDice", {{"initial_state", QJsonValue::Null},
                               {"final_state", QJsonValue::Null},
                               {"emoji", u"🎯"_s},
                               {"value", 6},
                               {"success_animation_frame_number", 0}}));
    markRead(books, 9);

    DemoChat &he = privateChat(henry);
    add(he, henry, 5200, a.textContent(u"Hey, this is Henry from the hiking group"_s));
    DemoMessage &forwarded = add(he, me, 5100, a.textContent(u"Which day for the ridge walk?"_s));
    forwarded.forwardedFromUser = grace;
    forwarded.forwardDate = a.m_now - 5200 * 60;
    markRead(he, 0);

    // The archive.
    DemoChat &news = groupChat(ChatKind::Channel, 4005, u"Tech News"_s, 84000, true, true);
    news.muted = true;
    for (int i = 0; i < 25; ++i)
        add(news, 0, 60 * (25 - i) * 7,
            a.textContent(u"Tech headline %1: new frameworks, faster builds and fewer bugs. "
                          u"Read more at https://example.org/news/%1"_s.arg(i + 1)))
            .views = 5000 + int(next() % 9000);
    markRead(news, 6);
    DemoChat &classmates = groupChat(ChatKind::BasicGroup, 3003, u"Old Classmates"_s, 23, false, true);
    fillTalk(classmates, {henry, daniel, grace, me}, 20, 90000, 10000);
    markRead(classmates, 0);
    DemoChat &running = groupChat(ChatKind::Supergroup, 4006, u"Running Club"_s, 64, true, true);
    fillTalk(running, {grace, lucas, daniel}, 15, 40000, 2500);
    markRead(running, 2);
    DemoChat &deals = groupChat(ChatKind::Channel, 4007, u"Crypto Deals"_s, 230000, false, true);
    deals.muted = true;
    for (int i = 0; i < 5; ++i)
        add(deals, 0, 60 * 24 * (5 - i), a.textContent(u"🚀 Deal number %1 — too good to be true"_s.arg(i)));
    markRead(deals, 5);
    DemoChat &mi = privateChat(mia, true);
    fillTalk(mi, {mia, me}, 12, 60000, 20000);
    markRead(mi, 0);

    bool sized = false;
    const int wanted = qEnvironmentVariable("VOST_DEMO_CHATS").toInt(&sized);
    if (sized)
        addCrowd(std::min(wanted, 100000));
}

void AccountBuilder::addCrowd(int total)
{
    static const char16_t *const firstNames[] = {u"Ada",   u"Ben",   u"Cleo", u"Dev",  u"Elif", u"Finn", u"Gia",
                                                 u"Hugo",  u"Ines",  u"Jon",  u"Kira", u"Leo",  u"Maya", u"Nico",
                                                 u"Omar",  u"Pia",   u"Quinn", u"Rosa", u"Sami", u"Tess", u"Ugo",
                                                 u"Vera",  u"Wes",   u"Xena", u"Yuki", u"Zane"};
    static const char16_t *const lastNames[] = {u"Abbott", u"Brandt", u"Costa", u"Dumas",  u"Eriksen", u"Fischer",
                                                u"Garcia", u"Haddad", u"Ito",   u"Jensen", u"Kowalski", u"Larsen",
                                                u"Moreau", u"Novak",  u"Okafor", u"Petrov", u"Rossi",   u"Silva",
                                                u"Tanaka", u"Varga"};
    static const char16_t *const topics[] = {u"Climbing", u"Board Games", u"Photography", u"Gardening", u"Chess",
                                             u"Cycling",  u"Jazz",        u"Baking",      u"Astronomy", u"Film"};
    const qint64 me = a.m_selfID;
    const int first = int(std::size(firstNames));
    const int last = int(std::size(lastNames));
    for (int i = 0; int(a.chats.size()) < total; ++i) {
        // Newer chats first in time, spread over a year; every third has unread messages.
        const int newest = 600 + i * 97 % (60 * 24 * 365);
        if (i % 4 == 3) {
            DemoChat &group = groupChat(i % 8 == 3 ? ChatKind::Supergroup : ChatKind::BasicGroup, 100000 + i,
                                        QString::fromUtf16(topics[i % std::size(topics)]) + u' ' + QString::number(i),
                                        3 + i % 200, i % 3 == 0);
            const qint64 a1 = 300000000 + ((i + 1) % 2000), a2 = 300000000 + ((i + 7) % 2000);
            for (const qint64 id : {a1, a2}) {
                if (!a.users.contains(id))
                    person(id, QString::fromUtf16(firstNames[id % first]), QString::fromUtf16(lastNames[id / first % last]),
                           Presence::Recently, 0, false, false);
            }
            fillTalk(group, {a1, a2, me}, 4, newest + 600, newest);
            markRead(group, i % 3 == 0 ? 1 + i % 5 : 0);
        } else {
            const qint64 id = 300000000 + i;
            person(id, QString::fromUtf16(firstNames[i % first]), QString::fromUtf16(lastNames[i / first % last]),
                   i % 5 == 0 ? Presence::Online : Presence::Offline, 60 + i % 5000, i % 2 == 0, i % 3 == 0);
            DemoChat &chat = privateChat(id);
            fillTalk(chat, {id, me}, 3, newest + 300, newest);
            markRead(chat, i % 3 == 0 ? 1 : 0);
        }
    }
}

qint64 AccountBuilder::person(qint64 id, const QString &first, const QString &last, Presence presence, int minutesAgo,
                              bool contact, bool photo, const QString &username)
{
    DemoUser u;
    u.id = id;
    u.firstName = first;
    u.lastName = last;
    u.username = username;
    u.phone = id == 777000 ? u"42777"_s : u"1555%1"_s.arg(id % 10000, 4, 10, QChar(u'0'));
    u.presence = presence;
    u.wasOnline = a.m_now - minutesAgo * 60;
    u.isContact = contact;
    if (photo) {
        u.photoSmall = a.newFile(FileRecipe::Avatar, u"profile_photos"_s, u"%1_small.jpg"_s.arg(id), 160, 160,
                                 int(id % 100000), 6000);
        u.photoBig = a.newFile(FileRecipe::Avatar, u"profile_photos"_s, u"%1_big.jpg"_s.arg(id), 640, 640,
                               int(id % 100000), 40000);
    }
    a.users[id] = u;
    return id;
}

DemoChat &AccountBuilder::privateChat(qint64 userID, bool archived)
{
    const DemoUser &u = a.users[userID];
    DemoChat chat;
    chat.id = userID;
    chat.kind = ChatKind::Private;
    chat.userID = userID;
    chat.title = u.lastName.isEmpty() ? u.firstName : u.firstName + u' ' + u.lastName;
    chat.photoSmall = u.photoSmall;
    chat.photoBig = u.photoBig;
    chat.archived = archived;
    chat.memberCount = 2;
    a.chats[chat.id] = chat;
    return a.chats[chat.id];
}

DemoChat &AccountBuilder::groupChat(ChatKind kind, qint64 groupID, const QString &title, int members, bool photo,
                                    bool archived)
{
    DemoChat chat;
    chat.kind = kind;
    chat.groupID = groupID;
    chat.id = kind == ChatKind::BasicGroup ? -groupID
              : kind == ChatKind::Secret   ? -2000000000000LL + groupID
                                           : -1000000000000LL - groupID;
    chat.title = title;
    chat.archived = archived;
    chat.memberCount = members;
    if (photo) {
        chat.photoSmall = a.newFile(FileRecipe::Avatar, u"profile_photos"_s, u"chat%1_small.jpg"_s.arg(groupID), 160,
                                    160, int(groupID), 6000);
        chat.photoBig = a.newFile(FileRecipe::Avatar, u"profile_photos"_s, u"chat%1_big.jpg"_s.arg(groupID), 640, 640,
                                  int(groupID), 40000);
    }
    a.chats[chat.id] = chat;
    return a.chats[chat.id];
}

DemoMessage &AccountBuilder::add(DemoChat &chat, qint64 sender, int minutesAgo, const QJsonObject &content)
{
    DemoMessage m;
    m.chatID = chat.id;
    m.id = a.nextServerMessageID(chat);
    m.senderUserID = sender;
    m.outgoing = sender == a.m_selfID;
    m.date = a.m_now - minutesAgo * 60 - int(next() % 50);
    if (!chat.messages.empty())
        m.date = std::max(m.date, chat.messages.rbegin()->second.date + 1);
    m.content = content;
    return chat.messages[m.id] = m;
}

void AccountBuilder::fillTalk(DemoChat &chat, const std::vector<qint64> &people, int count, int fromMinutes,
                              int toMinutes)
{
    const int lineCount = int(std::size(kLines));
    for (int i = 0; i < count; ++i) {
        const int minutesAgo = fromMinutes - (fromMinutes - toMinutes) * i / std::max(1, count - 1);
        const qint64 sender = people[next() % people.size()];
        DemoMessage &m = add(chat, sender, minutesAgo, a.textContent(QString::fromUtf16(kLines[next() % lineCount])));
        if (i > 3 && next() % 9 == 0)
            m.replyTo = std::prev(chat.messages.end(), 2 + int(next() % 3))->first;
        if (next() % 11 == 0)
            m.reactions = {{QStringList{u"👍"_s, u"❤️"_s, u"😂"_s, u"🔥"_s}.at(int(next() % 4)), 0, 1, false}};
    }
}

void AccountBuilder::markRead(DemoChat &chat, int unread)
{
    // Leaves the newest `unread` incoming messages unread; the user's own messages count as read.
    chat.lastReadInbox = 0;
    int seen = 0;
    for (auto it = chat.messages.rbegin(); it != chat.messages.rend(); ++it) {
        if (!it->second.outgoing && seen++ == unread) {
            chat.lastReadInbox = it->first;
            break;
        }
    }
    if (seen <= unread)
        chat.lastReadInbox = 0;
    chat.lastReadOutbox = chat.messages.empty() ? 0 : chat.messages.rbegin()->first;
}

QJsonObject AccountBuilder::media(FileRecipe recipe, const QString &folder, const QString &name, int seed)
{
    switch (recipe) {
    case FileRecipe::Video: {
        const int fileID = a.newFile(recipe, folder, name, 320, 240, seed, 90000);
        return object("messageVideo", {{"video", object("video", {{"duration", 3},
                                                                  {"width", 320},
                                                                  {"height", 240},
                                                                  {"file_name", name},
                                                                  {"mime_type", u"image/gif"_s},
                                                                  {"has_stickers", false},
                                                                  {"supports_streaming", false},
                                                                  {"minithumbnail", QJsonValue::Null},
                                                                  {"thumbnail", QJsonValue::Null},
                                                                  {"video", a.fileRef(fileID)}})},
                                       {"alternative_videos", QJsonArray{}},
                                       {"storyboards", QJsonArray{}},
                                       {"cover", QJsonValue::Null},
                                       {"start_timestamp", 0},
                                       {"caption", formattedText(u"Short clip"_s)},
                                       {"show_caption_above_media", false},
                                       {"has_spoiler", false},
                                       {"is_secret", false}});
    }
    case FileRecipe::Animation: {
        const int fileID = a.newFile(recipe, folder, name, 240, 240, seed, 60000);
        return object("messageAnimation", {{"animation", object("animation", {{"duration", 2},
                                                                              {"width", 240},
                                                                              {"height", 240},
                                                                              {"file_name", name},
                                                                              {"mime_type", u"image/gif"_s},
                                                                              {"has_stickers", false},
                                                                              {"minithumbnail", QJsonValue::Null},
                                                                              {"thumbnail", QJsonValue::Null},
                                                                              {"animation", a.fileRef(fileID)}})},
                                           {"caption", formattedText({})},
                                           {"show_caption_above_media", false},
                                           {"has_spoiler", false},
                                           {"is_secret", false}});
    }
    case FileRecipe::Voice: {
        const int fileID = a.newFile(recipe, folder, name, 0, 0, seed, 64000);
        return object(
            "messageVoiceNote",
            {{"voice_note", object("voiceNote", {{"duration", 4},
                                                 {"waveform", u"AAAAABAgMEBQYHCAkKCwwNDg8PDw4NDAsKCQgHBgUEAwIBAA=="_s},
                                                 {"mime_type", u"audio/wav"_s},
                                                 {"speech_recognition_result", QJsonValue::Null},
                                                 {"voice", a.fileRef(fileID)}})},
             {"caption", formattedText({})},
             {"is_listened", false}});
    }
    case FileRecipe::Audio: {
        const int fileID = a.newFile(recipe, folder, name, 0, 0, seed, 160000);
        return object("messageAudio", {{"audio", object("audio", {{"duration", 5},
                                                                  {"title", u"Demo Tune"_s},
                                                                  {"performer", u"The Sine Waves"_s},
                                                                  {"file_name", name},
                                                                  {"mime_type", u"audio/wav"_s},
                                                                  {"album_cover_minithumbnail", QJsonValue::Null},
                                                                  {"album_cover_thumbnail", QJsonValue::Null},
                                                                  {"external_album_covers", QJsonArray{}},
                                                                  {"audio", a.fileRef(fileID)}})},
                                       {"caption", formattedText({})}});
    }
    default:
        break;
    }
    // Documents: a PDF, a text file or an image sent as a file.
    const bool image = recipe == FileRecipe::Photo;
    const QString mime = recipe == FileRecipe::Pdf    ? u"application/pdf"_s
                         : recipe == FileRecipe::Text ? u"text/plain"_s
                         : name.endsWith(u".png"_s)   ? u"image/png"_s
                                                      : u"image/jpeg"_s;
    const int fileID = a.newFile(recipe, folder, name, image ? 1200 : 0, image ? 900 : 0, seed, 0);
    // A document card shows the size before the download: it must be what arrives.
    DemoFile &file = a.files.at(fileID);
    file.size = makeBytes(file).size();
    return object("messageDocument", {{"document", object("document", {{"file_name", name},
                                                                       {"mime_type", mime},
                                                                       {"minithumbnail", QJsonValue::Null},
                                                                       {"thumbnail", QJsonValue::Null},
                                                                       {"document", a.fileRef(fileID)}})},
                                      {"caption", formattedText({})}});
}

void AccountBuilder::addStickers()
{
    const struct {
        qint64 id;
        const char16_t *title;
        const char16_t *name;
        bool animated;
        bool installed;
        const char16_t *emoji;
    } sets[] = {
        {7100000000000000001LL, u"Demo Shapes", u"DemoShapes", false, true, u"😀 😍 👍 🎉 ⭐ 💙 🌈 🍀"},
        {7100000000000000002LL, u"Bouncy Dots", u"BouncyDots", true, true, u"😄 😎 🥳 😴 🤔 👋"},
        {7100000000000000003LL, u"Weather", u"DemoWeather", false, true, u"☀️ 🌧 ⛄ 🌪 🌈 🌙"},
        {7100000000000000004LL, u"Fruit Bowl", u"FruitBowl", false, false, u"🍎 🍌 🍇 🍓 🍊"},
        {7100000000000000005LL, u"Spinners", u"DemoSpinners", true, false, u"🌀 💫 ✨ 🔄"},
        {7100000000000000006LL, u"Hearts", u"DemoHearts", false, false, u"❤️ 💚 💜 🧡 💛"},
        {7100000000000000007LL, u"Purring Cats", u"PurringCats", false, false, u"😺 😸 😻 🙀"},
    };
    int setIndex = 0;
    for (const auto &info : sets) {
        DemoStickerSet set;
        set.id = info.id;
        set.title = QString::fromUtf16(info.title);
        set.name = QString::fromUtf16(info.name);
        set.installed = info.installed;
        set.official = setIndex == 0;
        const QStringList emojis = QString::fromUtf16(info.emoji).split(u' ');
        for (int i = 0; i < emojis.size(); ++i) {
            DemoSticker s;
            s.id = 8200000000000000000LL + setIndex * 100 + i;
            s.setID = set.id;
            s.emoji = emojis[i];
            s.animated = info.animated;
            const int seed = setIndex * 100 + i;
            s.fileID =
                info.animated
                    ? a.newFile(FileRecipe::StickerTgs, u"stickers"_s, u"%1.tgs"_s.arg(s.id), 512, 512, seed, 2500)
                    : a.newFile(FileRecipe::StickerWebp, u"stickers"_s, u"%1.webp"_s.arg(s.id), 512, 512, seed, 30000);
            a.stickers[s.id] = s;
            set.stickers.push_back(s.id);
        }
        if (!set.installed)
            a.trendingSets.push_back(set.id);
        a.stickerSets.push_back(set);
        ++setIndex;
    }
    a.recentStickers = {a.stickerSets[1].stickers[0], a.stickerSets[0].stickers[2], a.stickerSets[0].stickers[0],
                        a.stickerSets[2].stickers[4]};
}

Account::Account(qint64 selfID, const QString &firstName, const QString &phone, int now)
    : m_selfID(selfID)
    , m_now(now)
{
    AccountBuilder(*this).build(firstName, phone);
}

} // namespace demo
