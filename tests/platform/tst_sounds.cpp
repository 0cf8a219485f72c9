// The sounds the build generates, and playing them in the helper process, also where
// there is no audio device.

#include "../support/ChildProcesses.h"
#include "bundle/AppBundle.h"
#include "platform/linux/GeneratedSoundPlayer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

const QStringList names{
    u"Tink"_s, u"Glass"_s, u"Ping"_s,  u"Hero"_s,   u"Basso"_s,     u"Pop"_s,    u"Purr"_s,
    u"Blow"_s, u"Funk"_s,  u"Morse"_s, u"Sosumi"_s, u"Submarine"_s, u"Bottle"_s, u"Frog"_s,
};

struct Wave {
    int channels = 0;
    int sampleRate = 0;
    int bitsPerSample = 0;
    QByteArray data;
};

quint32 readUInt32(const QByteArray &bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

quint16 readUInt16(const QByteArray &bytes, qsizetype at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

// Reads an uncompressed PCM WAV file; none when its chunks are not that.
std::optional<Wave> readWave(const QByteArray &bytes)
{
    if (bytes.size() < 12 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE")
        return std::nullopt;
    if (readUInt32(bytes, 4) != static_cast<quint32>(bytes.size() - 8))
        return std::nullopt;
    Wave wave;
    bool hasFormat = false;
    for (qsizetype at = 12; at + 8 <= bytes.size();) {
        const QByteArray id = bytes.mid(at, 4);
        const qsizetype size = readUInt32(bytes, at + 4);
        if (at + 8 + size > bytes.size())
            return std::nullopt;
        if (id == "fmt ") {
            if (size < 16 || readUInt16(bytes, at + 8) != 1)
                return std::nullopt;
            wave.channels = readUInt16(bytes, at + 10);
            wave.sampleRate = static_cast<int>(readUInt32(bytes, at + 12));
            wave.bitsPerSample = readUInt16(bytes, at + 22);
            hasFormat = true;
        } else if (id == "data") {
            wave.data = bytes.mid(at + 8, size);
        }
        at += 8 + size + (size % 2);
    }
    if (!hasFormat || wave.data.isEmpty())
        return std::nullopt;
    return wave;
}

QList<qint64> helperProcesses()
{
    return ChildProcesses::named("vost-sound-pla");
}

QByteArrayList threadNames()
{
    QByteArrayList threads;
    const QStringList tasks = QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &task : tasks) {
        QFile command(u"/proc/self/task/%1/comm"_s.arg(task));
        if (command.open(QIODevice::ReadOnly))
            threads.append(command.readAll().trimmed());
    }
    return threads;
}

} // namespace

class SoundsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // No sound server to talk to: what a machine without an audio device looks like.
        qputenv("PULSE_SERVER", "unix:/nonexistent/vost-test-pulse");
    }

    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void generatedSoundsAreShortAudibleAndDistinct()
    {
        QCOMPARE(GeneratedSoundPlayer::soundNames(), names);
        QList<QByteArray> samples;
        for (const QString &name : names) {
            QFile file(AppBundle::main().resourcePath(u"sounds/"_s + name + u".wav"_s));
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
            const std::optional<Wave> wave = readWave(file.readAll());
            QVERIFY2(wave, qPrintable(name));
            QCOMPARE(wave->bitsPerSample, 16);
            QVERIFY(wave->channels >= 1 && wave->sampleRate >= 8000);

            const qsizetype frames = wave->data.size() / (2 * wave->channels);
            const double seconds = static_cast<double>(frames) / wave->sampleRate;
            QVERIFY2(seconds > 0.03 && seconds < 0.5, qPrintable(name + u' ' + QString::number(seconds)));

            int peak = 0;
            for (qsizetype at = 0; at + 1 < wave->data.size(); at += 2)
                peak = std::max(peak, std::abs(int(qFromLittleEndian<qint16>(wave->data.constData() + at))));
            QVERIFY2(peak > 8000, qPrintable(name));
            samples.append(wave->data);
        }
        for (qsizetype i = 0; i < samples.size(); ++i) {
            for (qsizetype j = i + 1; j < samples.size(); ++j)
                QVERIFY2(samples[i] != samples[j], qPrintable(names[i] + u" = "_s + names[j]));
        }
    }

    void onlyOurNamesFindAFile()
    {
        const GeneratedSoundPlayer player;
        QCOMPARE(player.soundFile(u"Frog"_s), AppBundle::main().resourcePath(u"sounds/Frog.wav"_s));
        for (const QString &name : {u""_s, u"Beep"_s, u"frog"_s, u"../Info"_s, u"Frog.wav"_s})
            QVERIFY2(!player.soundFile(name), qPrintable(name));
        QVERIFY(!GeneratedSoundPlayer(u"/nonexistent"_s).soundFile(u"Frog"_s));
    }

    // Sounds play in the helper, which ends a little after the last one: the audio
    // system (the sound server's threads among it) never starts in this process.
    void soundsPlayInAHelperThatEndsAfterThem()
    {
        GeneratedSoundPlayer player;
        player.setLingerInterval(std::chrono::milliseconds(200));
        player.play(u"Glass"_s);
        QVERIFY(player.isRunning());
        QCOMPARE(helperProcesses().size(), 1);
        player.play(u"Frog"_s);
        QCOMPARE(helperProcesses().size(), 1);
        QTRY_VERIFY(!player.isRunning());
        QTRY_VERIFY(helperProcesses().isEmpty());
        player.play(u"Beep"_s); // no such sound: nothing to start for
        QVERIFY(!player.isRunning());
        player.play(u"Ping"_s);
        QVERIFY(player.isRunning());
        QVERIFY(!threadNames().contains("threaded-ml"));
    }

    // Whatever comes down its input, the helper plays what it can and ends with it.
    void theHelperTakesAnyInput()
    {
        const QString program = AppBundle::main().helperProgram(u"vost-sound-player"_s).value_or(QString());
        QProcess helper;
        helper.setProcessChannelMode(QProcess::ForwardedChannels);
        helper.start(program, {});
        QVERIFY(helper.waitForStarted());
        const QByteArray sound = AppBundle::main().resourcePath(u"sounds/Glass.wav"_s).toUtf8();
        helper.write(QByteArray(100'000, 'x') + '\n');
        static const char junk[] = "\0\xff\xfe\n\n/nonexistent/Glass.wav\n/tmp\n";
        helper.write(QByteArray(junk, sizeof junk - 1));
        helper.write(sound + '\n' + sound); // the last line unfinished
        helper.closeWriteChannel();
        QVERIFY(helper.waitForFinished(10'000));
        QCOMPARE(helper.exitStatus(), QProcess::NormalExit);
        QCOMPARE(helper.exitCode(), 0);
    }

    void playingWithoutAudioDeviceIsSilent()
    {
        auto player = makeSystemSoundPlayer();
        player->play(u"Beep"_s);
        player->play(QString());
        for (const QString &name : names)
            player->play(name);
        player->play(u"Glass"_s);
        QTest::qWait(300);
        player.reset();
    }
};

QTEST_MAIN(SoundsTest)
#include "tst_sounds.moc"
