#include "register/RegisterFooter.h"

#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

using namespace Qt::StringLiterals;

RegisterFooter::RegisterFooter(const QString &keyHints, QWidget *parent)
    : QWidget(parent)
    , m_messageLabel(makeLabel(u"messageLabel"_s, mutedColor().name()))
{
    QLabel *hint = makeLabel(u"hintLabel"_s, u"#5A7A6E"_s);
    hint->setText(keyHints);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_messageLabel);
    row->addStretch();
    row->addWidget(hint);
}

QLabel *RegisterFooter::makeLabel(const QString &objectName, const QString &color)
{
    auto *label = new QLabel(this);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(u"color: %1; padding: 2px 4px;"_s.arg(color));
    applyFontRole(label, FontRole::Body);
    return label;
}

void RegisterFooter::showMessage(const QString &text, int milliseconds)
{
    m_messageLabel->setText(text);
    QTimer::singleShot(milliseconds, m_messageLabel, &QLabel::clear);
}
