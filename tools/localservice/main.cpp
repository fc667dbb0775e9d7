#include "LocalService.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

// Serves until it is told to end (SIGTERM, SIGINT). Prints its address on a line of its own as soon
// as it answers.
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"The program's services on this machine, for trying out."_s);
    parser.addHelpOption();
    const QCommandLineOption port(u"port"_s, u"Port to listen on; any free one by default."_s,
                                  u"number"_s, u"0"_s);
    const QCommandLineOption database(u"database"_s, u"SQLite file; in memory by default."_s,
                                      u"file"_s, u":memory:"_s);
    const QCommandLineOption tokenLife(u"token-life"_s, u"Seconds that an access token lives."_s,
                                       u"seconds"_s, u"3600"_s);
    const QCommandLineOption files(u"files"_s, u"Folder to serve below /downloads."_s, u"folder"_s);
    parser.addOptions({port, database, tokenLife, files});
    parser.process(application);

    // Blocked before the service's threads start, so that none of them is ended in its work.
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGTERM);
    sigaddset(&endings, SIGINT);
    pthread_sigmask(SIG_BLOCK, &endings, nullptr);

    LocalService service(parser.value(database));
    service.setTokenLife(parser.value(tokenLife).toInt());
    if (parser.isSet(files) && !service.serveFiles(parser.value(files))) {
        std::fputs("There is no folder to serve.\n", stderr);
        return 1;
    }
    if (!service.start(parser.value(port).toInt())) {
        std::fputs("The port is taken.\n", stderr);
        return 1;
    }
    std::printf("%s\n", qPrintable(service.address()));
    std::fflush(stdout);
    int ending = 0;
    sigwait(&endings, &ending);
    return 0;
}
