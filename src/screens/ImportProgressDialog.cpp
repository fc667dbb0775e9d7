#include "screens/ImportProgressDialog.h"

#include <QCloseEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMinimumWidth = 340; // pixels; room for the title
}

ImportProgressDialog::ImportProgressDialog(const QString &text, int delay, QWidget *parent)
    : QProgressDialog(text, {}, 0, 0, parent)
{
    setObjectName(u"importProgress"_s);
    setWindowTitle(parent->windowTitle());
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setCancelButton(nullptr);
    setAutoReset(false); // the last record is read before the last one is stored
    setMinimumWidth(kMinimumWidth);
    setMinimumDuration(delay);
}

// The base class would hide itself here, and with it what keeps the other windows from hearing.
void ImportProgressDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
}
