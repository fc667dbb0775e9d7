#include "kestaccount/PageRow.h"

#include "kestaccount/PageLabel.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kRowMargin = 6;
constexpr int kLineGap = 2;

} // namespace

PageRow::PageRow(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_lines(new QVBoxLayout)
{
    m_layout->setContentsMargins(0, kRowMargin, 0, kRowMargin);
    m_lines->setSpacing(kLineGap);
    m_layout->addLayout(m_lines, 1);
}

void PageRow::addLine(QLabel *label)
{
    m_lines->addWidget(label);
}

void PageRow::addBadge(const QString &text, const QString &color)
{
    auto *badge = new PageLabel(text);
    badge->setObjectName(u"badge"_s);
    badge->setStyleSheet(u"color: %1;"_s.arg(color));
    m_layout->addWidget(badge);
}

QPushButton *PageRow::addButton(const QString &text, const QString &objectName,
                                const QString &subject)
{
    auto *button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setAccessibleDescription(subject);
    m_layout->addWidget(button);
    return button;
}

} // namespace KestAccount
