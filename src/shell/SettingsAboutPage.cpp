#include "shell/SettingsAboutPage.h"

#include "core/Deployment.h"
#include "shell/SettingsSections.h"
#include "shell/theme/FontRoles.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel *makeText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

SettingsAboutPage::SettingsAboutPage()
    : SettingsPage(tr("About"))
{
    QLabel *name = makeText(tr("Kestrelwood Pursewell"));
    applyFontRole(name, FontRole::Title);
    column()->addWidget(name);
    column()->addWidget(makeText(tr("Version %1").arg(QCoreApplication::applicationVersion())));
    column()->addWidget(
        makeText(tr("A digital pursewell register for tracking household finances.")));
    column()->addWidget(makeDivider());
    column()->addWidget(makeSection(tr("Links")));
    column()->addWidget(makeLink(u"productLink"_s, tr("Website"), kProductUrl));
    column()->addWidget(makeLink(u"sourceLink"_s, tr("Source code"), kSourceUrl));
    column()->addWidget(
        makeHelpText(tr("This application uses the Qt framework under the LGPL v3 license.")));
    column()->addWidget(makeHelpText(
        tr("Its icons are from the Material Icons font, under the Apache License 2.0.")));
}
