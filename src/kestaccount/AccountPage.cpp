#include "kestaccount/AccountPage.h"

#include "kestaccount/PageContent.h"
#include "kestaccount/PageLabel.h"
#include "kestaccount/PageRow.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kPageMargin = 20;

QScrollArea *scrollAreaOf(QWidget *widget)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    // Tab goes to its buttons, and it scrolls to them; a page that does not fit may hold more.
    area->setFocusPolicy(Qt::NoFocus);
    QObject::connect(area->verticalScrollBar(), &QScrollBar::rangeChanged, area,
                     [area](int, int maximum) {
                         area->setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus);
                     });
    area->setWidgetResizable(true);
    area->setWidget(widget);
    return area;
}

} // namespace

AccountPage::AccountPage(const QString &title, QWidget *parent)
    : QWidget(parent)
{
    auto *titleLabel = new PageLabel(title, 4, QFont::DemiBold);
    titleLabel->setObjectName(u"pageTitle"_s);
    auto *holder = new QWidget;
    m_holder = new QVBoxLayout(holder);
    m_holder->setContentsMargins(0, 0, 0, 0);
    m_holder->addStretch(1); // below the content, which keeps its height

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, 0);
    layout->addWidget(titleLabel);
    layout->addWidget(scrollAreaOf(holder), 1);
}

void AccountPage::setContent(PageContent *content)
{
    const QWidget *focus = window()->focusWidget(); // also while another window is active
    const bool hadFocus = m_content && focus && m_content->isAncestorOf(focus);
    const QString focusName = hadFocus ? focus->objectName() : QString();
    if (m_content) {
        m_holder->removeWidget(m_content);
        m_content->hide();
        m_content->deleteLater();
    }
    m_content = content;
    m_holder->insertWidget(0, m_content);
    if (hadFocus)
        moveFocus(focusName);
}

// Never to a button of a row: it may belong to another row than the one that had the focus, and the
// next press would revoke or remove what nobody pointed at.
void AccountPage::moveFocus(const QString &objectName)
{
    QWidget *next = this; // whose proxy leads back to the list of pages
    for (QPushButton *button : m_content->findChildren<QPushButton *>()) {
        if (qobject_cast<PageRow *>(button->parentWidget()))
            continue;
        if (next == this || button->objectName() == objectName)
            next = button;
    }
    next->setFocus(Qt::OtherFocusReason);
}

} // namespace KestAccount
