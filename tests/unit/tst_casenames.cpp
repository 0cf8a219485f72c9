// The names the replay scripts and the stored preferences use for the model's
// enumerations come from the keys: renaming a key must show up here first.

#include "session/ModelNames.h"
#include "session/SoundManager.h"
#include "session/Step.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Every key of E in order, as the scripts write it, read both ways.
template<typename E> void checkNames(const QStringList &names)
{
    const QMetaEnum meta = QMetaEnum::fromType<E>();
    QCOMPARE(meta.keyCount(), names.size());
    for (int i = 0; i < meta.keyCount(); ++i) {
        const auto value = E(meta.value(i));
        QCOMPARE(caseName(value), names.at(i));
        QCOMPARE(caseFromName<E>(names.at(i)), std::optional(value));
    }
}

} // namespace

class CaseNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreTheScriptsNames()
    {
        checkNames<MessageDeliveryState>({u"none"_s, u"sending"_s, u"sent"_s, u"read"_s});
        checkNames<MessageMediaKind>({u"photo"_s, u"sticker"_s, u"video"_s, u"animation"_s, u"voice"_s, u"audio"_s});
        checkNames<StickerFormat>({u"webp"_s, u"animated"_s, u"video"_s});
        checkNames<AvatarColor>({u"teal"_s, u"blue"_s});
        checkNames<PendingAttachmentKind>({u"photo"_s, u"document"_s});
        checkNames<Step::Case>({u"password"_s, u"unavailable"_s, u"idle"_s, u"starting"_s, u"phoneNumber"_s,
                                u"verificationCode"_s, u"ready"_s});
        checkNames<SoundPack>({u"crystal"_s, u"gentle"_s, u"classic"_s, u"playful"_s});
    }

    void noMediaHasNoName()
    {
        QCOMPARE(caseName(std::optional<MessageMediaKind>()), QString());
        QCOMPARE(caseName(std::optional(MessageMediaKind::Voice)), u"voice"_s);
    }

    void otherTextsNameNothing()
    {
        // Only the exact name: not the key itself, nor another case, nor nothing.
        QCOMPARE(caseFromName<MessageDeliveryState>(u"Sending"_s), std::nullopt);
        QCOMPARE(caseFromName<StickerFormat>(u"WEBP"_s), std::nullopt);
        QCOMPARE(caseFromName<StickerFormat>(u"gif"_s), std::nullopt);
        QCOMPARE(caseFromName<Step::Case>(u"phonenumber"_s), std::nullopt);
        QCOMPARE(caseFromName<SoundPack>(QString()), std::nullopt);
        QCOMPARE(caseName(StickerFormat(7)), QString());
    }
};

QTEST_GUILESS_MAIN(CaseNamesTest)
#include "tst_casenames.moc"
