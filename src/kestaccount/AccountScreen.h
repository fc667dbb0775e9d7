#pragma once

#include <QTimer>
#include <QWidget>

class QListWidget;
class QStackedWidget;

namespace KestAccount {

class AccountPage;
class Client;
class DevicesPage;
class GroupPage;
class PageLabel;
class ProfilePage;
class SecurityPage;

// The window in which a signed-in user manages the account. It is made once, kept and shown again;
// it stores nothing, each tab is rebuilt from what the services answer.
class AccountScreen : public QWidget
{
    Q_OBJECT

public:
    enum class Tab { Profile, Group, Devices, Security, Privacy };
    Q_ENUM(Tab)

    explicit AccountScreen(Client *client, QWidget *parent = nullptr); // not owned; loads nothing

    void showTab(Tab tab);
    void refresh(); // asks the services for everything; a tab shows its old content until then

Q_SIGNALS:
    void logoutRequested(); // the account is scheduled for deletion

protected:
    void changeEvent(QEvent *event) override;

private:
    AccountPage *createProfileTab();
    AccountPage *createGroupTab();
    AccountPage *createDevicesTab();
    AccountPage *createSecurityTab();
    AccountPage *createPrivacyTab();
    void addPage(AccountPage *page, const QString &name);
    void refreshProfile();
    void refreshGroup();
    void refreshDevices();
    void refreshSessions();
    void showError(const QString &text);
    void showSuccess(const QString &text);
    void showStatus(const QString &text, const QString &style, int durationMs);
    void styleNavigation();
    void takeFont();
    void fitToFont();

    Client *m_client;
    QListWidget *m_navigation;
    QStackedWidget *m_pages;
    PageLabel *m_statusLabel;
    ProfilePage *m_profilePage = nullptr;
    GroupPage *m_groupPage = nullptr;
    DevicesPage *m_devicesPage = nullptr;
    SecurityPage *m_securityPage = nullptr;
    QTimer m_statusTimer{this}; // one: a newer message also gets its whole time
};

} // namespace KestAccount
