#include "kestupdate/UpdateDialog.h"

#include "kestupdate/HeadingLabel.h"
#include "kestupdate/NotesView.h"
#include "kestupdate/ReleaseNotesFetcher.h"
#include "kestupdate/WebAddress.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace KestUpdate {

namespace {

constexpr int kNotesHeight = 150;
constexpr QSize kSizeWithNotes{520, 420};

} // namespace

UpdateDialog::UpdateDialog(const Artifact &artifact, const QString &currentVersion,
                           const QString &appName, QWidget *parent)
    : QDialog(parent)
    , m_downloadUrl(artifact.url)
{
    setObjectName(u"updateDialog"_s);
    setModal(true);
    setWindowTitle(tr("Update available"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new HeadingLabel(tr("A new version of %1 is available.").arg(appName), 1));
    auto *versions = new QLabel(
        tr("You have version %1. The latest version is %2.").arg(currentVersion, artifact.version));
    versions->setObjectName(u"versionsLabel"_s);
    versions->setTextFormat(Qt::PlainText);
    versions->setWordWrap(true);
    layout->addWidget(versions);
    if (artifact.releaseNotesUrl.isValid())
        loadNotes(artifact.releaseNotesUrl);
    layout->addWidget(buildButtons(!artifact.mandatory));
    if (m_notesView)
        resize(kSizeWithNotes);
}

void UpdateDialog::loadNotes(const QUrl &url)
{
    m_notesView = new NotesView;
    m_notesView->setPlaceholderText(tr("Loading release notes…"));
    m_notesView->setMinimumHeight(kNotesHeight);
    layout()->addWidget(m_notesView);
    auto *fetcher = new ReleaseNotesFetcher(url, u"update-dialog"_s, this);
    connect(fetcher, &ReleaseNotesFetcher::notesReady, this, &UpdateDialog::onNotesReady);
    connect(fetcher, &ReleaseNotesFetcher::notesUnavailable, this,
            [this] { onNotesReady(tr("*Release notes are not available for this version.*")); });
    fetcher->fetch();
}

QDialogButtonBox *UpdateDialog::buildButtons(bool mayWait)
{
    auto *buttons = new QDialogButtonBox;
    QPushButton *download = buttons->addButton(tr("Download"), QDialogButtonBox::AcceptRole);
    download->setObjectName(u"downloadButton"_s);
    download->setDefault(true);
    if (mayWait)
        buttons->addButton(tr("Later"), QDialogButtonBox::RejectRole)
            ->setObjectName(u"laterButton"_s);
    connect(buttons, &QDialogButtonBox::accepted, this, &UpdateDialog::onDownloadClicked);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void UpdateDialog::onNotesReady(const QString &markdown)
{
    if (m_notesView)
        m_notesView->showNotes(markdown);
}

void UpdateDialog::onDownloadClicked()
{
    openDownload(m_downloadUrl);
    accept();
}

} // namespace KestUpdate
