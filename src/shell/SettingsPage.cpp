#include "shell/SettingsPage.h"

#include "shell/SettingsSections.h"
#include "shell/theme/FontRoles.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int kMargin = 14;
constexpr int kGap = 10;
}

SettingsPage::SettingsPage(const QString &heading, const QString &description)
    : m_column(new QVBoxLayout)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // it follows the focus of what is on it
    auto *title = new QLabel(heading);
    applyFontRole(title, FontRole::Heading);
    auto *content = new QWidget;
    auto *outer = new QVBoxLayout(content);
    outer->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    outer->setSpacing(kGap);
    outer->addWidget(title);
    if (!description.isEmpty())
        outer->addWidget(makeHelpText(description));
    m_column->setSpacing(kGap);
    outer->addLayout(m_column);
    outer->addStretch();
    setWidget(content);
}
