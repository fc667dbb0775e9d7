#include "shell/AccountListRow.h"

#include "core/Money.h"
#include "data/Account.h"
#include "register/AccountTypeName.h"
#include "shell/theme/BalanceLabel.h"
#include "shell/theme/ElidedLabel.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MaterialIcon.h"
#include "shell/theme/PlainWords.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QChar typeGlyph(AccountType type)
{
    switch (type) {
    case AccountType::Checking:
        return u'\uE84F';
    case AccountType::Savings:
        return u'\uE2EB';
    case AccountType::CreditCard:
        return u'\uE870';
    case AccountType::Cash:
        return u'\uE57D';
    case AccountType::Investment:
        return u'\uE8E5';
    case AccountType::Other:
        break;
    }
    return u'\uE850';
}

QLabel *iconLabel(AccountType type)
{
    auto *label = new QLabel(typeGlyph(type));
    label->setObjectName(u"iconLabel"_s);
    label->setAccessibleName(AccountTypeName::of(type)); // the glyph is no letter of any script
    label->setFixedSize(24, 24);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(iconFont(22));
    label->setStyleSheet(u"color: #4DB6AC;"_s);
    return label;
}

QLabel *elidedLabel(const QString &objectName, const QString &text, int fontRole)
{
    auto *label = new ElidedLabel;
    label->setObjectName(objectName);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    applyFontRole(label, fontRole);
    label->setFullText(text);
    return label;
}

QLabel *nameLabel(const QString &name)
{
    QLabel *label = elidedLabel(u"nameLabel"_s, name, FontRole::BodyMedium);
    label->setStyleSheet(u"color: #FFFFFF;"_s);
    label->setToolTip(toolTipWords(name));
    return label;
}

QLabel *balanceLabel(qint64 balance, Currency currency)
{
    auto *label = new BalanceLabel(formatMoney(balance, currency));
    label->setObjectName(u"balanceLabel"_s);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setStyleSheet(balance >= 0 ? u"color: #66BB6A;"_s : u"color: #FF8A80;"_s);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    applyFontRole(label, FontRole::Monospace);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(label->text()) + 4);
    return label;
}

} // namespace

AccountListRow::AccountListRow(const Account &account, qint64 balance, QWidget *parent)
    : QWidget(parent)
{
    auto *kindLabel = elidedLabel(u"kindLabel"_s, describe(account), FontRole::Caption);
    kindLabel->setStyleSheet(u"color: #8FAF9F;"_s);

    auto *firstLine = new QHBoxLayout;
    firstLine->setSpacing(8);
    firstLine->addWidget(nameLabel(account.name), 1, Qt::AlignVCenter);
    firstLine->addWidget(balanceLabel(balance, account.currency), 0, Qt::AlignVCenter);

    auto *lines = new QVBoxLayout;
    lines->setSpacing(3);
    lines->addLayout(firstLine);
    lines->addWidget(kindLabel);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(6, 8, 8, 8);
    row->setSpacing(8);
    row->addWidget(iconLabel(account.account_type));
    row->addLayout(lines, 1);
}

QString AccountListRow::describe(const Account &account)
{
    const QString place = account.institution.isEmpty() ? AccountTypeName::of(account.account_type)
                                                        : account.institution;
    if (account.account_number_last4.isEmpty())
        return place;
    return place + u"  ·  *%1"_s.arg(account.account_number_last4);
}
