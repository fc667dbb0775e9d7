#include "shell/SettingsDeletedAccounts.h"

#include "data/AccountRepository.h"
#include "shell/SettingsSections.h"

#include <QFrame>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int kMaxListHeight = 120;
}

SettingsDeletedAccounts::SettingsDeletedAccounts(AccountRepository *accounts, QWidget *parent)
    : QWidget(parent)
    , m_accounts(accounts)
    , m_list(new QListWidget)
    , m_restoreButton(new QPushButton(tr("Restore Selected")))
{
    setObjectName(u"deletedAccounts"_s);
    m_list->setObjectName(u"deletedAccountList"_s);
    m_list->setAccessibleName(tr("Deleted Accounts"));
    m_list->setMaximumHeight(kMaxListHeight);
    m_restoreButton->setObjectName(u"restoreButton"_s);
    // The keys that enter the list make an item current without showing which.
    connect(m_list, &QListWidget::currentItemChanged, this, [](QListWidgetItem *item) {
        if (item)
            item->setSelected(true);
    });
    connect(m_list, &QListWidget::itemSelectionChanged, this,
            &SettingsDeletedAccounts::updateRestoreButton);
    connect(m_restoreButton, &QPushButton::clicked, this,
            &SettingsDeletedAccounts::restoreRequested);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeDivider());
    column->addWidget(
        makeSection(tr("Deleted Accounts"), tr("Accounts you've deleted can be restored here.")));
    column->addWidget(m_list);
    column->addWidget(m_restoreButton, 0, Qt::AlignLeft);
    hide();
}

void SettingsDeletedAccounts::reload()
{
    const QString selected = selectedId();
    m_list->clear();
    m_restoreButton->setEnabled(false); // clearing tells of no change
    const QList<Account> accounts = m_accounts->listDeleted();
    for (const Account &account : accounts) {
        auto *item = new QListWidgetItem(account.name, m_list);
        item->setData(Qt::UserRole, account.id);
        if (account.id == selected)
            m_list->setCurrentItem(item);
    }
    setVisible(!accounts.isEmpty());
}

void SettingsDeletedAccounts::updateRestoreButton()
{
    m_restoreButton->setEnabled(!selectedId().isEmpty());
}

QString SettingsDeletedAccounts::selectedId() const
{
    const QList<QListWidgetItem *> selected = m_list->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->data(Qt::UserRole).toString();
}
