#include "kestupdate/WhatsNewDialog.h"

#include "kestupdate/HeadingLabel.h"
#include "kestupdate/NotesView.h"
#include "kestupdate/WebAddress.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace KestUpdate {

WhatsNewDialog::WhatsNewDialog(const QString &markdown, const QString &version,
                               const QString &currentVersion, const QString &appName,
                               QWidget *parent, const QUrl &downloadUrl)
    : QDialog(parent)
    , m_notesView(new NotesView)
    , m_downloadUrl(downloadUrl)
{
    setObjectName(u"whatsNewDialog"_s);
    setWindowTitle(tr("What's New in %1 %2").arg(appName, version));
    resize(520, 420);
    m_notesView->showNotes(markdown);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new HeadingLabel(tr("What's new in %1 %2").arg(appName, version), 2));
    layout->addWidget(m_notesView, 1);
    layout->addLayout(buildBottomRow(version, currentVersion));
    // A button that a box gets before it has a window is left out of the chain.
    auto *download = findChild<QPushButton *>(u"downloadButton"_s);
    auto *close = findChild<QPushButton *>(u"closeButton"_s);
    setTabOrder(m_notesView, download ? download : close);
    if (download)
        setTabOrder(download, close);
}

QLayout *WhatsNewDialog::buildBottomRow(const QString &version, const QString &currentVersion)
{
    auto *running = new QLabel(tr("You are running version %1").arg(currentVersion));
    running->setObjectName(u"runningVersionLabel"_s);
    running->setTextFormat(Qt::PlainText);
    running->setStyleSheet(u"color: gray; font-size: 11px;"_s);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *close = buttons->button(QDialogButtonBox::Close);
    close->setObjectName(u"closeButton"_s);
    close->setIcon({}); // some styles have one that is black on every palette
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (isWebAddress(m_downloadUrl)) {
        QPushButton *download =
            buttons->addButton(tr("Download %1").arg(version), QDialogButtonBox::AcceptRole);
        download->setObjectName(u"downloadButton"_s);
        connect(download, &QPushButton::clicked, this, [this] {
            openDownload(m_downloadUrl);
            accept();
        });
    }
    auto *row = new QHBoxLayout;
    row->addWidget(running);
    row->addStretch();
    row->addWidget(buttons);
    return row;
}

} // namespace KestUpdate
