#include "kestaccount/PersonRow.h"

#include "kestaccount/AvatarLabel.h"
#include "kestaccount/PageLabel.h"

#include <QAbstractButton>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kRowMargin = 4;
constexpr int kLineGap = 2;

QString firstOf(const QString &name, const QString &email, const QString &fallback)
{
    if (!name.isEmpty())
        return name;
    return email.isEmpty() ? fallback : email;
}

} // namespace

PersonRow::PersonRow(const QString &name, const QString &email, const QString &fallback,
                     QWidget *parent)
    : QWidget(parent)
    , m_primaryText(firstOf(name, email, fallback))
    , m_layout(new QHBoxLayout(this))
{
    auto *nameLabel = new PageLabel(m_primaryText, 0, QFont::Medium);
    nameLabel->setObjectName(u"nameLabel"_s);
    nameLabel->wrapWords();
    auto *lines = new QVBoxLayout;
    lines->setSpacing(kLineGap);
    lines->addWidget(nameLabel);
    if (!email.isEmpty() && email != m_primaryText) {
        PageLabel *emailLabel = PageLabel::muted(email, -1);
        emailLabel->setObjectName(u"emailLabel"_s);
        lines->addWidget(emailLabel);
    }
    m_layout->setContentsMargins(0, kRowMargin, 0, kRowMargin);
    m_layout->addWidget(new AvatarLabel(name, email));
    m_layout->addLayout(lines, 1);
}

void PersonRow::addButton(QAbstractButton *button)
{
    button->setAccessibleDescription(m_primaryText);
    m_layout->addWidget(button);
}

} // namespace KestAccount
