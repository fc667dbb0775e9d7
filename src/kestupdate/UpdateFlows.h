#pragma once

#include "kestupdate/Config.h"

#include <QPointer>
#include <QWidget>

#include <functional>

namespace KestUpdate {

// How a flow speaks to its caller's status bar. Each may be empty.
struct ProgressCallbacks
{
    std::function<void(const QString &message)> showProgress{}; // at the start; it lasts
    std::function<void()> clearProgress{}; // the flow has come to an end
    std::function<void(const QString &message, int timeoutMs)> showMessage{};
};

// Each flow ends with a dialog or a message. When the parent has gone by then, no dialog opens.
void runUpdateCheck(const Config &config, const QString &appName, QPointer<QWidget> parent,
                    const ProgressCallbacks &callbacks);
void showReleaseNotes(const Config &config, const QString &appName, QPointer<QWidget> parent,
                      const ProgressCallbacks &callbacks);
void showWhatsNew(const Config &config, const QString &appName,
                  QPointer<QWidget> parent); // silent without notes

} // namespace KestUpdate
