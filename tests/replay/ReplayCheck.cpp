// Runs one replay script through vost-replay and compares what it prints with the
// script's {"expect": LINE} lines, in order. In expected values the string
// "<any>" matches any value. A line {"options": [...]} gives the driver's options;
// "@FAKE_BUNDLE@" in them stands for the fake TDLib bundle.
//
// Lines go to the driver one at a time, as a program answering it would send them:
// the string "$last:KEY" in a line becomes the value of KEY in the "@extra" of the
// latest request that carried one (a generated identifier, say), and "$last:result"
// the latest {"result": VALUE} printed.

#include "JsonMatch.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QTextStream err(stderr);
    const QStringList args = application.arguments();
    if (args.size() < 3) {
        err << "usage: replay-check VOST_REPLAY SCRIPT [FAKE_BUNDLE]\n";
        return 2;
    }
    QFile script(args.at(2));
    if (!script.open(QIODevice::ReadOnly)) {
        err << "cannot read " << args.at(2) << '\n';
        return 2;
    }
    const QByteArray input = script.readAll();

    QStringList options;
    QList<QJsonValue> expected;
    for (const QByteArray &line : input.split('\n')) {
        // Lines that are not JSON objects are input for the driver (to test its errors).
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (object.contains("expect"_L1))
            expected.append(object.value("expect"_L1));
        for (const QJsonValue &option : object.value("options"_L1).toArray())
            options.append(option.toString().replace("@FAKE_BUNDLE@"_L1, args.value(3)));
    }

    QProcess replay;
    replay.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    replay.start(args.at(1), options);
    if (!replay.waitForStarted()) {
        err << "vost-replay did not start\n";
        return 1;
    }
    QList<QJsonValue> actual;
    QHash<QString, QJsonValue> lastExtra;
    QByteArray pending;
    // Reads printed lines up to the echo of marker.
    const auto readUntil = [&](const QString &marker) {
        while (true) {
            const qsizetype end = pending.indexOf('\n');
            if (end < 0) {
                if (!replay.waitForReadyRead(60000))
                    return false;
                pending += replay.readAllStandardOutput();
                continue;
            }
            const QJsonObject line = QJsonDocument::fromJson(pending.left(end)).object();
            pending.remove(0, end + 1);
            if (line.value("echo"_L1).toString() == marker)
                return true;
            const QJsonObject extra = line.value("request"_L1).toObject().value("@extra"_L1).toObject();
            for (auto it = extra.begin(); it != extra.end(); ++it)
                lastExtra.insert(it.key(), it.value());
            if (line.contains("result"_L1))
                lastExtra.insert(u"result"_s, line.value("result"_L1));
            actual.append(line);
        }
    };
    int number = 0;
    for (QByteArray line : input.split('\n')) {
        if (line.trimmed().isEmpty())
            continue;
        for (auto it = lastExtra.begin(); it != lastExtra.end(); ++it) {
            const QByteArray placeholder = "\"$last:" + it.key().toUtf8() + '"';
            const QByteArray value = QJsonDocument(QJsonArray{it.value()}).toJson(QJsonDocument::Compact);
            line.replace(placeholder, value.mid(1, value.size() - 2));
        }
        const QString marker = u"#line %1"_s.arg(++number);
        replay.write(line + "\n{\"echo\":\"" + marker.toUtf8() + "\"}\n");
        if (!readUntil(marker)) {
            err << "vost-replay stopped answering at line " << number << '\n';
            return 1;
        }
    }
    replay.closeWriteChannel();
    if (!replay.waitForFinished(60000) || replay.exitStatus() != QProcess::NormalExit || replay.exitCode() != 0) {
        err << "vost-replay did not finish cleanly\n";
        return 1;
    }
    pending += replay.readAllStandardOutput();
    for (const QByteArray &line : pending.split('\n')) {
        if (!line.isEmpty())
            actual.append(QJsonDocument::fromJson(line).object());
    }

    bool same = actual.size() == expected.size();
    for (qsizetype i = 0; same && i < actual.size(); ++i)
        same = jsonMatches(expected.at(i), actual.at(i));
    if (same)
        return 0;
    err << "expected and printed lines differ (expected | printed):\n";
    for (qsizetype i = 0; i < std::max(actual.size(), expected.size()); ++i) {
        const QString e = i < expected.size() ? compactJson(expected.at(i)) : u"-"_s;
        const QString a = i < actual.size() ? compactJson(actual.at(i)) : u"-"_s;
        const bool lineMatches = i < expected.size() && i < actual.size() && jsonMatches(expected.at(i), actual.at(i));
        err << (lineMatches ? "  " : "! ") << e << "\n  | " << a << '\n';
    }
    return 1;
}
