#include "shell/StatusBar.h"

#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QLabel>
#include <QProgressBar>

using namespace Qt::StringLiterals;

StatusBar::StatusBar(QWidget *parent)
    : QStatusBar(parent)
    , m_syncStatusLabel(addLabel(u"syncStatusLabel"_s))
    , m_accountCountLabel(addLabel(u"accountCountLabel"_s))
    , m_recurringDueLabel(addLabel(u"recurringDueLabel"_s))
    , m_progressLabel(addLabel(u"progressLabel"_s))
    , m_progressBar(new QProgressBar(this))
{
    setStyleSheet(u"QStatusBar {  padding: 2px 4px;}QStatusBar::item { border: none; }"_s);
    m_syncStatusLabel->setText(tr("Offline"));
    m_progressBar->setObjectName(u"progressBar"_s);
    m_progressBar->setRange(0, 0); // busy: an update cannot tell how far it is
    m_progressBar->setTextVisible(false);
    m_progressBar->setMaximumSize(100, 14);

    addWidget(m_accountCountLabel);
    addWidget(m_recurringDueLabel);
    addPermanentWidget(m_progressLabel);
    addPermanentWidget(m_progressBar);
    addPermanentWidget(m_syncStatusLabel);
    connect(this, &QStatusBar::messageChanged, this, &StatusBar::updateRecurringDue);
    updateRecurringDue();
    clearProgress();
}

QLabel *StatusBar::addLabel(const QString &name)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    applyFontRole(label, FontRole::Body);
    return label;
}

void StatusBar::setAccountCount(int count)
{
    m_accountCountLabel->setText(tr("%n account(s)", nullptr, count));
}

void StatusBar::setRecurringDueCount(int count)
{
    m_recurringDueLabel->setText(count > 0 ? tr("  •  %n recurring due", nullptr, count)
                                           : QString());
    colorRecurringDue();
    updateRecurringDue();
}

// A label shown by hand during a message would be drawn across it.
void StatusBar::updateRecurringDue()
{
    m_recurringDueLabel->setVisible(!m_recurringDueLabel->text().isEmpty()
                                    && currentMessage().isEmpty());
}

void StatusBar::setSyncStatus(const QString &text)
{
    m_syncStatusLabel->setText(text);
}

void StatusBar::showProgress(const QString &text)
{
    m_progressLabel->setText(text);
    m_progressLabel->show();
    m_progressBar->show();
}

void StatusBar::clearProgress()
{
    m_progressLabel->hide();
    m_progressBar->hide();
}

void StatusBar::showTimedMessage(const QString &text, int timeoutMs)
{
    clearProgress();
    showMessage(text, timeoutMs);
}

void StatusBar::applyThemeColors()
{
    const QString style = u"color: %1;"_s.arg(isDarkPalette() ? u"#8FAF9F"_s : u"#2A3D33"_s);
    m_syncStatusLabel->setStyleSheet(style);
    m_accountCountLabel->setStyleSheet(style);
    colorRecurringDue();
}

void StatusBar::colorRecurringDue()
{
    m_recurringDueLabel->setStyleSheet(
        u"color: %1; font-weight: bold;"_s.arg(isDarkPalette() ? u"#FFA726"_s : u"#E65100"_s));
}
