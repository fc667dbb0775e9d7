// Draws the pictures of the user guide: pursewell-guide-pictures <folder>

#include "GuidePictures.h"

#include "core/program/Application.h"

#include <QTemporaryDir>

#include <cstdio>

namespace {

// Nothing of the person who runs it is read or touched, nor does anything reach the network.
void stayOnStage(const QTemporaryDir &stage)
{
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "PURSEWELL_DATA_DIR"})
        qputenv(variable, stage.path().toUtf8());
    for (const char *variable :
         {"AUTH_BASE_URL", "ACCOUNT_API_URL", "SYNC_API_URL", "UPDATE_BASE_URL"})
        qputenv(variable, "http://127.0.0.1:9/"); // where nobody answers
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: pursewell-guide-pictures <folder>\n", stderr);
        return 2;
    }
    const QTemporaryDir stage;
    stayOnStage(stage);
    Application application(argc, argv);
    return GuidePictures(QString::fromLocal8Bit(argv[1])).drawAll() ? 0 : 1;
}
