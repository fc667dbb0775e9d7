#pragma once

#include "sync/SyncEngine.h"

#include <QPointer>
#include <QWidget>

class AppState;
class QLabel;
class QPushButton;

// Who is signed in, how the sync stands, and the two buttons that start a pass.
class SettingsSyncSection : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsSyncSection(AppState *appState, QWidget *parent = nullptr); // not owned

    void refresh(); // leaves the buttons of a pass that runs as they are

Q_SIGNALS:
    void passEnded(); // of a pass that a button here asked for

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *buildButtons();
    void showState();
    QString stateLine() const; // rich text
    QString userName() const;
    QString lastSyncLine() const;
    void askForUser();

    void syncNow();
    void confirmFullSync();
    void runFullSync();
    void markAllPending();
    void awaitPass();
    void disable(QPushButton *button);
    void onStateChanged(SyncEngine::SyncState state);

    AppState *m_appState;
    QLabel *m_statusLabel = nullptr;
    QLabel *m_lastSyncLabel = nullptr;
    QWidget *m_buttonRow = nullptr;
    QPushButton *m_syncNowButton = nullptr;
    QPushButton *m_fullSyncButton = nullptr;
    QMetaObject::Connection m_passConnection{}; // for the one pass that is waited for
    QPointer<QWidget> m_focusAfterPass{}; // the button that had the focus before
    QPointer<QWidget> m_focusMeanwhile{}; // what has it for want of that button
    bool m_isAsking = false; // for the user
};
