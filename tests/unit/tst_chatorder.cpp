// The chat list's order against a plain reference: the session moves chats in its
// index one by one after a few changes and sorts it again after many, so the list
// is read after batches of both sizes while chats come, move, leave and return.

#include "../support/ModelRecords.h"
#include "session/TelegramSession.h"

#include <QJsonDocument>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

struct Place {
    qint64 order = 0; // 0: in no list
    bool archived = false;
};

QByteArray json(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject position(qint64 order, bool archived)
{
    return {{"@type"_L1, u"chatPosition"_s},
            {"list"_L1, QJsonObject{{"@type"_L1, archived ? u"chatListArchive"_s : u"chatListMain"_s}}},
            {"order"_L1, QString::number(order)},
            {"is_pinned"_L1, false}};
}

QByteArray newChat(qint64 id, const Place &place)
{
    QJsonArray positions;
    if (place.order > 0)
        positions.append(position(place.order, place.archived));
    return json({{"@type"_L1, u"updateNewChat"_s},
                 {"chat"_L1, QJsonObject{{"@type"_L1, u"chat"_s},
                                         {"id"_L1, id},
                                         {"title"_L1, u"Chat %1"_s.arg(id)},
                                         {"type"_L1, QJsonObject{{"@type"_L1, u"chatTypeBasicGroup"_s}}},
                                         {"positions"_L1, positions}}}});
}

QByteArray moveChat(qint64 id, const Place &place)
{
    return json({{"@type"_L1, u"updateChatPosition"_s},
                 {"chat_id"_L1, id},
                 {"position"_L1, position(place.order, place.archived)}});
}

// Larger order first, then the larger chat ID.
QStringList expectedOrder(const std::map<qint64, Place> &places)
{
    std::vector<std::pair<qint64, qint64>> listed;
    for (const auto &[id, place] : places) {
        if (place.order > 0)
            listed.emplace_back(place.order, id);
    }
    std::sort(listed.begin(), listed.end(), std::greater<>());
    QStringList ids;
    for (const auto &[order, id] : listed)
        ids.append(QString::number(id));
    return ids;
}

} // namespace

class ChatOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void orderHoldsAcrossSmallAndLargeBatches_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed : {1u, 2u, 3u, 4u})
            QTest::addRow("seed %u", seed) << seed;
    }

    void orderHoldsAcrossSmallAndLargeBatches()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        TelegramSession session([](const QString &, const TdObject &) {});
        std::map<qint64, Place> places;
        // Few distinct orders, so that ties between chats are common.
        const auto randomPlace = [&random] {
            return Place{random.bounded(4) == 0 ? 0 : qint64(random.bounded(1, 40)), random.bounded(5) == 0};
        };
        for (int round = 0; round < 60; ++round) {
            // Batches from a single change up to well past a hundred.
            const int changes = random.bounded(3) == 0 ? int(random.bounded(65, 160)) : int(random.bounded(1, 12));
            for (int change = 0; change < changes; ++change) {
                // Negative IDs too, as groups and channels have.
                const qint64 id = qint64(random.bounded(1, 120)) * (random.bounded(2) == 0 ? 1 : -1);
                const Place place = randomPlace();
                if (!places.contains(id)) {
                    session.handleResponse(newChat(id, place));
                } else {
                    // A chat leaves the archive by a zero order there before it enters the main list.
                    const Place before = places[id];
                    if (before.order > 0 && before.archived != place.archived)
                        session.handleResponse(moveChat(id, {0, before.archived}));
                    session.handleResponse(moveChat(id, place.order > 0 ? place : Place{0, before.archived}));
                }
                places[id] = place;
            }
            QCOMPARE(chatIDs(session.chats()), expectedOrder(places));
        }
    }
};

QTEST_GUILESS_MAIN(ChatOrderTest)
#include "tst_chatorder.moc"
