#pragma once

#include <QWidget>

class AppState;
class QStackedWidget;
class SettingsDeletedAccounts;
class SettingsGeneralPage;
class SettingsNavigation;
class SettingsPage;
class SettingsSyncSection;

// All choices of the person, on a few pages. Each is stored and takes effect as it is made.
class SettingsScreen : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsScreen(AppState *appState, QWidget *parent = nullptr); // not owned

    void refresh(); // the deleted accounts and the state of the sync

Q_SIGNALS:
    void deletedAccountRestored(); // or a backup was imported: rows of any kind may have come

public Q_SLOTS:
    void onCategoryChanged(int row);
    void onThemeChanged(int index);
    void onFontScaleChanged(int index);
    void onWeekStartChanged(int index);
    void onLanguageChanged(int index);
    void onRegisterOrderChanged(bool checked);
    void onTwoLineModeChanged(bool checked);
    void restoreSelectedAccount();

private:
    SettingsPage *buildGeneralPage();
    SettingsPage *buildRegisterPage();
    SettingsPage *buildDataPage();
    void applyTheme();
    bool restoreWithRows(const QString &accountId);
    void restoreRowsOf(const QString &accountId);
    void tellRestoreFailed();

    AppState *m_appState;
    SettingsNavigation *m_navigation;
    QStackedWidget *m_pages;
    SettingsGeneralPage *m_general = nullptr;
    SettingsSyncSection *m_sync = nullptr;
    SettingsDeletedAccounts *m_deleted = nullptr;
};
