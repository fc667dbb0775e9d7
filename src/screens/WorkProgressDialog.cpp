#include "screens/WorkProgressDialog.h"

#include <QCloseEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMinimumWidth = 340; // pixels; room for the title
}

WorkProgressDialog::WorkProgressDialog(const QString &text, int delay, QWidget *parent)
    : QProgressDialog(text, {}, 0, 0, parent)
{
    setObjectName(u"workProgress"_s);
    setWindowTitle(parent->window()->windowTitle());
    setWindowModality(Qt::ApplicationModal); // each progress lets events through
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setCancelButton(nullptr);
    setAutoReset(false); // the last record is read before the last one is stored
    setMinimumWidth(kMinimumWidth);
    setMinimumDuration(delay);
    setValue(0); // the delay counts from here
}

void WorkProgressDialog::showProgress(int done, int total)
{
    setMaximum(total);
    setValue(done);
}

// The base class would hide itself here, and with it what keeps the other windows from hearing.
void WorkProgressDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
}
