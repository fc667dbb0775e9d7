#include "register/RegisterHeader.h"

#include "core/Money.h"
#include "data/Account.h"
#include "shell/theme/BalanceLabel.h"
#include "shell/theme/ElidedLabel.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString subtitleOf(const Account &account)
{
    const QString &number = account.account_number_last4;
    if (account.institution.isEmpty() || number.isEmpty())
        return account.institution;
    return u"%1  ·  *%2"_s.arg(account.institution, number);
}

} // namespace

RegisterHeader::RegisterHeader(QWidget *parent)
    : QWidget(parent)
    , m_titleLabel(new ElidedLabel(this))
    , m_balanceLabel(new BalanceLabel(this))
    , m_reconcileButton(new QPushButton(tr("Reconcile"), this))
    , m_subtitleLabel(new QLabel(this))
{
    m_titleLabel->setObjectName(u"titleLabel"_s);
    applyFontRole(m_titleLabel, FontRole::Title);
    m_balanceLabel->setObjectName(u"balanceLabel"_s);
    m_balanceLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    applyFontRole(m_balanceLabel, FontRole::Heading);
    m_reconcileButton->setObjectName(u"reconcileButton"_s);
    m_reconcileButton->setFocusPolicy(Qt::ClickFocus);
    connect(m_reconcileButton, &QPushButton::clicked, this, &RegisterHeader::reconcileClicked);
    m_subtitleLabel->setObjectName(u"subtitleLabel"_s);
    m_subtitleLabel->setTextFormat(Qt::PlainText); // a bank's name is a person's words
    m_subtitleLabel->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
    applyFontRole(m_subtitleLabel, FontRole::Caption);

    auto *firstLine = new QHBoxLayout;
    firstLine->setSpacing(16);
    firstLine->addWidget(m_titleLabel);
    firstLine->addStretch();
    firstLine->addWidget(m_balanceLabel);
    firstLine->addWidget(m_reconcileButton);
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addLayout(firstLine);
    lines->addWidget(m_subtitleLabel);
}

void RegisterHeader::showAccount(const Account &account, qint64 balance)
{
    m_titleLabel->setFullText(account.name);
    const QString subtitle = subtitleOf(account);
    m_subtitleLabel->setText(subtitle);
    m_subtitleLabel->setVisible(!subtitle.isEmpty());
    m_balanceLabel->setText(formatMoney(balance, account.currency));
    const QColor color = balance < 0 ? negativeColor() : positiveColor();
    m_balanceLabel->setStyleSheet(u"color: %1;"_s.arg(color.name()));
}
