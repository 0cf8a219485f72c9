#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QTextStream(stderr) << "Vost's tray client is not built yet: this build has the TDLib bridge and the "
                           "session core only.\nTry tools/vost-replay (see docs/replay.md) to drive a session.\n";
    return 2;
}
