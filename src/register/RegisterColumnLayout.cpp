#include "register/RegisterColumnLayout.h"

#include "core/state/AppState.h"
#include "data/PreferencesRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterModel.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/ThemeManager.h"

#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDefaultWidths[RegisterColumn::kCount] = {130, 60,  250, 180, 180,
                                                        100, 100, 35,  110}; // pixels, at 100 %

QString widthKey(int column)
{
    return u"register/colWidth/%1"_s.arg(column);
}

QString hiddenKey(int column)
{
    return u"register/colHidden/%1"_s.arg(column);
}

// Without a date or a balance the grid would be no register.
bool alwaysShown(int column)
{
    return column == RegisterColumn::Date || column == RegisterColumn::Balance;
}

bool storedHidden(int column)
{
    return !alwaysShown(column) && QSettings().value(hiddenKey(column), false).toBool();
}

} // namespace

RegisterColumnLayout::RegisterColumnLayout(AppState *appState, QTableView *view,
                                           RegisterModel *model, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_view(view)
    , m_model(model)
{
    connect(view->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { storeWidth(column, width); });
    connect(model, &RegisterModel::sortChanged, this, [](int column, Qt::SortOrder order) {
        QSettings settings;
        settings.setValue(u"register/sortColumn"_s, column);
        settings.setValue(u"register/sortOrder"_s, static_cast<int>(order));
    });
    connect(appState->preferences(), &PreferencesRepository::changed, this,
            [this](const QString &key) {
                if (key != u"registerNewestFirst"_s)
                    return;
                const bool newestFirst = m_appState->preferences()->getBool(key, false);
                m_view->sortByColumn(RegisterColumn::Date,
                                     newestFirst ? Qt::DescendingOrder : Qt::AscendingOrder);
            });
    connect(appState->themeManager(), &ThemeManager::fontScaleChanged, this,
            &RegisterColumnLayout::applyWidths);
    apply();
}

// A column that was never drawn wider or narrower by hand goes with the font.
void RegisterColumnLayout::applyWidths()
{
    const QSettings settings;
    m_restoring = true;
    for (int column = 0; column < RegisterColumn::kCount; ++column) {
        const int usual = kDefaultWidths[column] * std::max(100, fontScale()) / 100;
        m_view->setColumnWidth(column, settings.value(widthKey(column), usual).toInt());
    }
    m_restoring = false;
}

void RegisterColumnLayout::storeWidth(int column, int width)
{
    // Hiding a column reports a width of zero; that is no width to come back to.
    if (!m_restoring && width > 0)
        QSettings().setValue(widthKey(column), width);
}

void RegisterColumnLayout::apply()
{
    const QSettings settings;
    applyWidths();
    m_restoring = true;
    for (int column = 0; column < RegisterColumn::kCount; ++column)
        m_view->setColumnHidden(column, storedHidden(column));
    m_restoring = false;
    setTwoLineMode(m_twoLineMode);

    if (!settings.contains(u"register/sortColumn"_s)) {
        const bool newestFirst =
            m_appState->preferences()->getBool(u"registerNewestFirst"_s, false);
        m_view->sortByColumn(RegisterColumn::Date,
                             newestFirst ? Qt::DescendingOrder : Qt::AscendingOrder);
        return;
    }
    const int column = settings.value(u"register/sortColumn"_s, 0).toInt();
    const int order = settings.value(u"register/sortOrder"_s, 0).toInt();
    m_view->sortByColumn(column < 0 || column >= RegisterColumn::kCount ? 0 : column,
                         order == Qt::DescendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void RegisterColumnLayout::reset()
{
    QSettings().remove(u"register"_s);
    apply();
}

void RegisterColumnLayout::setTwoLineMode(bool enabled)
{
    m_twoLineMode = enabled;
    m_restoring = true;
    m_view->setColumnHidden(RegisterColumn::Memo, enabled || storedHidden(RegisterColumn::Memo));
    m_restoring = false;
}

void RegisterColumnLayout::setColumnShown(int column, bool shown)
{
    m_restoring = true; // the width that comes back is not one drawn by hand
    m_view->setColumnHidden(column, !shown);
    m_restoring = false;
    QSettings().setValue(hiddenKey(column), !shown);
}

void RegisterColumnLayout::showHeaderMenu(QPoint position)
{
    QMenu menu(m_view);
    menu.setObjectName(u"registerHeaderMenu"_s);
    menu.addSection(tr("Show columns"));
    for (int column = 0; column < RegisterColumn::kCount; ++column) {
        QAction *action = menu.addAction(m_model->headerData(column, Qt::Horizontal).toString());
        action->setCheckable(true);
        action->setChecked(!m_view->isColumnHidden(column));
        action->setEnabled(!alwaysShown(column)
                           && !(m_twoLineMode && column == RegisterColumn::Memo));
        connect(action, &QAction::toggled, this,
                [this, column](bool shown) { setColumnShown(column, shown); });
    }
    menu.addSeparator();
    connect(menu.addAction(tr("Reset register layout")), &QAction::triggered, this,
            &RegisterColumnLayout::reset);
    menu.exec(m_view->horizontalHeader()->mapToGlobal(position));
}
