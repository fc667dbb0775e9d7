#include "kestaccount/AccountScreen.h"

#include "kestaccount/Client.h"
#include "kestaccount/DevicesPage.h"
#include "kestaccount/GroupPage.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/PrivacyPage.h"
#include "kestaccount/ProfilePage.h"
#include "kestaccount/SecurityPage.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kNavigationWidth = 180;
constexpr int kNavigationPadding = 2 * (8 + 12); // by its style: around the list and each row
constexpr int kStatusHeight = 24;
constexpr int kStatusPadding = 4;
constexpr int kErrorMs = 4000;
constexpr int kSuccessMs = 3000;

} // namespace

AccountScreen::AccountScreen(Client *client, QWidget *parent)
    : QWidget(parent)
    , m_client(client)
    , m_navigation(new QListWidget)
    , m_pages(new QStackedWidget)
    , m_statusLabel(new PageLabel({}, -1))
{
    m_navigation->setObjectName(u"navigation"_s);
    m_navigation->setAccessibleName(tr("Kestrelwood Account"));
    m_navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pages->setObjectName(u"pages"_s);
    m_statusLabel->setObjectName(u"statusLabel"_s);
    // A long name in a message must not widen the window.
    m_statusLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_statusTimer.setObjectName(u"statusTimer"_s);
    m_statusTimer.setSingleShot(true);
    connect(&m_statusTimer, &QTimer::timeout, m_statusLabel, &QLabel::clear);

    auto *right = new QVBoxLayout;
    right->addWidget(m_pages, 1);
    right->addWidget(m_statusLabel);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_navigation);
    layout->addLayout(right, 1);

    addPage(createProfileTab(), tr("Profile"));
    addPage(createGroupTab(), tr("Group"));
    addPage(createDevicesTab(), tr("Devices"));
    addPage(createSecurityTab(), tr("Security"));
    addPage(createPrivacyTab(), tr("Data & Privacy"));
    connect(m_navigation, &QListWidget::currentRowChanged, m_pages,
            &QStackedWidget::setCurrentIndex);
    showTab(Tab::Profile);
    styleNavigation();
    fitToFont();
}

AccountPage *AccountScreen::createProfileTab()
{
    return m_profilePage = new ProfilePage(m_client);
}

AccountPage *AccountScreen::createGroupTab()
{
    return m_groupPage = new GroupPage(m_client);
}

AccountPage *AccountScreen::createDevicesTab()
{
    return m_devicesPage = new DevicesPage(m_client);
}

AccountPage *AccountScreen::createSecurityTab()
{
    return m_securityPage = new SecurityPage(m_client);
}

AccountPage *AccountScreen::createPrivacyTab()
{
    auto *page = new PrivacyPage(m_client);
    connect(page, &PrivacyPage::deletionScheduled, this, &AccountScreen::logoutRequested);
    return page;
}

void AccountScreen::addPage(AccountPage *page, const QString &name)
{
    connect(page, &AccountPage::succeeded, this, &AccountScreen::showSuccess);
    connect(page, &AccountPage::failed, this, &AccountScreen::showError);
    page->setFocusProxy(m_navigation);
    m_navigation->addItem(name);
    m_pages->addWidget(page);
}

void AccountScreen::showTab(Tab tab)
{
    m_navigation->setCurrentRow(static_cast<int>(tab));
    m_pages->setCurrentIndex(static_cast<int>(tab));
}

void AccountScreen::refresh()
{
    refreshProfile();
    refreshGroup();
    refreshDevices();
    refreshSessions();
}

void AccountScreen::refreshProfile()
{
    m_profilePage->refresh();
}

void AccountScreen::refreshGroup()
{
    m_groupPage->refresh();
}

void AccountScreen::refreshDevices()
{
    m_devicesPage->refresh();
}

void AccountScreen::refreshSessions()
{
    m_securityPage->refresh();
}

void AccountScreen::showError(const QString &text)
{
    showStatus(text, u"color: #C62828; padding: 4px;"_s, kErrorMs);
}

void AccountScreen::showSuccess(const QString &text)
{
    showStatus(text, u"color: #2E7D32; padding: 4px;"_s, kSuccessMs);
}

void AccountScreen::showStatus(const QString &text, const QString &style, int durationMs)
{
    m_statusLabel->setStyleSheet(style);
    m_statusLabel->setText(text);
    m_statusTimer.start(durationMs);
}

void AccountScreen::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        styleNavigation();
        // A style sheet takes what it wants of the palette when it is set.
        for (QPushButton *button : m_pages->findChildren<QPushButton *>()) {
            if (!button->styleSheet().isEmpty())
                button->setStyleSheet(button->styleSheet());
        }
    } else if (event->type() == QEvent::FontChange) {
        takeFont();
    }
}

void AccountScreen::styleNavigation()
{
    const auto color = [this](QPalette::ColorRole role) { return palette().color(role).name(); };
    m_navigation->setStyleSheet(
        u"QListWidget {  background: %1; border: none; padding: 12px 8px;}"
        "QListWidget::item {  padding: 8px 12px; border-radius: 6px;}"
        "QListWidget::item:selected {  background: %2; color: %3;}"
        "QListWidget::item:hover:!selected {  background: %4;}"
        "QListWidget:focus {  border-right: 2px solid %2; "
        "padding-right: 6px;}"_s.arg(color(QPalette::AlternateBase), color(QPalette::Highlight),
                                     color(QPalette::HighlightedText), color(QPalette::Button)));
}

void AccountScreen::takeFont()
{
    const QList<PageLabel *> labels = findChildren<PageLabel *>();
    for (PageLabel *label : labels)
        label->takeFont();
    fitToFont();
}

// Larger than designed only for a font whose letters would be cut.
void AccountScreen::fitToFont()
{
    int widest = 0;
    for (int row = 0; row < m_navigation->count(); ++row)
        widest = std::max(widest,
                          m_navigation->fontMetrics().horizontalAdvance(
                              m_navigation->item(row)->text() + u"  "_s));
    m_navigation->setFixedWidth(std::max(kNavigationWidth, widest + kNavigationPadding));
    m_statusLabel->setFixedHeight(
        std::max(kStatusHeight, m_statusLabel->fontMetrics().height() + 2 * kStatusPadding));
}

} // namespace KestAccount
