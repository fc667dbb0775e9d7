#pragma once

#include <QDialog>
#include <QUrl>

namespace KestUpdate {

class NotesView;

// Shows the notes of a release, with a download button if it has an address to download it from.
class WhatsNewDialog : public QDialog
{
    Q_OBJECT

public:
    // Without a web address no download is offered.
    WhatsNewDialog(const QString &markdown, const QString &version, const QString &currentVersion,
                   const QString &appName, QWidget *parent = nullptr, const QUrl &downloadUrl = {});

private:
    QLayout *buildBottomRow(const QString &version, const QString &currentVersion);

    NotesView *m_notesView;
    QUrl m_downloadUrl; // invalid: none
};

} // namespace KestUpdate
