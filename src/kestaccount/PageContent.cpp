#include "kestaccount/PageContent.h"

#include "kestaccount/PageLabel.h"
#include "kestaccount/PageRow.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kSectionGap = 8;

} // namespace

PageContent::PageContent(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void PageContent::addSection(const QString &title, const QString &description)
{
    auto *titleLabel = new PageLabel(title, 1, QFont::Medium);
    titleLabel->wrapWords(); // a group's name may be long
    titleLabel->setObjectName(u"sectionTitle"_s);
    m_layout->addWidget(titleLabel);
    if (description.isEmpty())
        return;
    auto *descriptionLabel = new PageLabel(description, -2);
    descriptionLabel->wrapWords();
    descriptionLabel->setObjectName(u"sectionDescription"_s);
    descriptionLabel->setContentsMargins(0, 0, 0, kSectionGap);
    m_layout->addWidget(descriptionLabel);
}

void PageContent::addSeparator()
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setForegroundRole(QPalette::Mid);
    line->setFrameShadow(QFrame::Plain);
    m_layout->addSpacing(kSectionGap);
    m_layout->addWidget(line);
    m_layout->addSpacing(kSectionGap);
}

void PageContent::addLabel(QLabel *label)
{
    m_layout->addWidget(label);
}

void PageContent::addRow(PageRow *row)
{
    m_layout->addWidget(row);
}

QPushButton *PageContent::addButton(const QString &text, const QString &objectName)
{
    auto *button = new QPushButton(text);
    button->setObjectName(objectName);
    m_layout->addWidget(button, 0, Qt::AlignLeft);
    return button;
}

} // namespace KestAccount
