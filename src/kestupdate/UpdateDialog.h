#pragma once

#include "kestupdate/Manifest.h"

#include <QDialog>

class QDialogButtonBox;

namespace KestUpdate {

class NotesView;

// Offers a newer release: its notes, and a button that opens its address in the browser.
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    UpdateDialog(const Artifact &artifact, const QString &currentVersion, const QString &appName,
                 QWidget *parent = nullptr);

public Q_SLOTS:
    void onDownloadClicked();
    void onNotesReady(const QString &markdown);

private:
    void loadNotes(const QUrl &url);
    QDialogButtonBox *buildButtons(bool mayWait);

    QUrl m_downloadUrl;
    NotesView *m_notesView = nullptr; // absent when there are no notes to load
};

} // namespace KestUpdate
