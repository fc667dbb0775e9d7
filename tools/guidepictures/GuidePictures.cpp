#include "GuidePictures.h"

#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/TransactionRepository.h"
#include "register/AmountBox.h"
#include "register/RegisterScreen.h"
#include "register/SplitEditorDialog.h"
#include "screens/ReportPeriods.h"
#include "services/SampleDataService.h"
#include "shell/theme/ThemeManager.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDebug>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QTabBar>
#include <QTableView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDotsPerInch = 96; // one of the window's pixels is one of the page's dots
constexpr int kTurns = 20; // of the event loop; what is put off is put off by one or two

void settle()
{
    for (int turn = 0; turn < kTurns; ++turn)
        QCoreApplication::processEvents();
}

// Whole points each way, so that no edge of the page is half a dot.
void setUpPage(QPdfWriter *pdf, QSize window)
{
    const auto points = [](int dots) { return (dots + 3) / 4 * 3; };
    pdf->setResolution(kDotsPerInch);
    pdf->setPageSize(QPageSize(QSize(points(window.width()), points(window.height())), QString(),
                               QPageSize::ExactMatch));
    pdf->setPageMargins({});
}

// No table shows a part of a row: it would be painted beyond the table's edge.
void fit(QWidget *window, QSize size)
{
    window->resize(size);
    settle();
    for (const QTableView *table : window->findChildren<QTableView *>()) {
        if (!table->isVisible() || !table->model()->rowCount())
            continue;
        const int rowHeight = table->rowHeight(0);
        const int missing = rowHeight - table->viewport()->height() % rowHeight;
        window->resize(window->width(), window->height() + missing);
        settle();
    }
}

// Each widget by itself, and clipped here to what its parents leave of it: painting a page, Qt
// clips the children of a window in the wrong place.
void paint(QPainter *painter, QWidget *widget, QRect visible)
{
    QPicture picture;
    widget->render(&picture, {}, {},
                   widget->isWindow() ? QWidget::DrawWindowBackground : QWidget::RenderFlags());
    painter->save();
    painter->setClipRect(visible);
    painter->drawPicture(0, 0, picture);
    painter->restore();
    for (QObject *child : widget->children()) {
        auto *inner = qobject_cast<QWidget *>(child);
        if (!inner || inner->isWindow() || !inner->isVisible())
            continue;
        painter->save();
        painter->translate(inner->pos());
        paint(painter, inner, visible.translated(-inner->pos()) & inner->rect());
        painter->restore();
    }
}

} // namespace

GuidePictures::GuidePictures(const QString &folder)
    : m_folder(folder)
{
}

bool GuidePictures::drawAll()
{
    return openHousehold() && drawRegister() && drawSplit() && drawRecurring()
        && drawReconciliation() && drawReports() && drawPreferences();
}

bool GuidePictures::openHousehold()
{
    if (!m_state.initialize())
        return false;
    // Of yesterday, so that something is due today.
    SampleDataService(m_state.database(), nullptr, [] {
        return QDate::currentDate().addDays(-1);
    }).loadSampleData();
    m_state.themeManager()->setTheme(ThemeManager::Light);
    m_window = new MainWindow(&m_state); // lives until the process ends, as in the program
    m_window->show();
    m_window->selectAccount(m_state.accounts()->listActive().constFirst().id);
    return true;
}

bool GuidePictures::drawRegister()
{
    fit(m_window, {1500, 540});
    m_window->findChild<RegisterScreen *>(u"registerScreen"_s)->goToInsertionRow();
    return save(m_window, u"register"_s);
}

bool GuidePictures::drawSplit()
{
    QList<SplitLine> lines;
    const auto add = [&](const QString &category, qint64 amount, const QString &memo) {
        SplitLine line{.amount = amount, .memo = memo};
        if (const auto found = m_state.categories()->findByName(category))
            line.category_id = found->id;
        lines << line;
    };
    add(u"Groceries"_s, -6120, u"the week"_s);
    add(u"Pets"_s, -1840, u"cat food"_s);
    add(u"Gifts"_s, -1515, u"birthday card"_s);
    SplitEditorDialog dialog(&m_state, -9475, lines, m_window);
    dialog.show();
    fit(&dialog, {640, 360});
    return save(&dialog, u"split"_s);
}

bool GuidePictures::drawRecurring()
{
    return save(openFromMenu(u"recurringAction"_s, u"recurringScreen"_s, {760, 320}),
                u"recurring"_s);
}

bool GuidePictures::drawReconciliation()
{
    QWidget *window = openFromMenu(u"reconcileAction"_s, u"reconciliationScreen"_s, {900, 380});
    if (window)
        AmountBox::show(window->findChild<QDoubleSpinBox *>(u"statementBalance"_s), bankBalance());
    return save(window, u"reconcile"_s);
}

qint64 GuidePictures::bankBalance() const
{
    const Account account = m_state.accounts()->listActive().constFirst();
    qint64 balance = account.starting_balance;
    const QList<Transaction> rows = m_state.transactions()->listByAccount(account.id);
    for (const Transaction &row : rows)
        balance += row.cleared ? row.amount : 0;
    const auto next =
        std::find_if(rows.begin(), rows.end(), [](const Transaction &row) { return !row.cleared; });
    return next == rows.end() ? balance : balance + next->amount;
}

bool GuidePictures::drawReports()
{
    QWidget *window = openFromMenu(u"reportsAction"_s, u"reportsScreen"_s, {1020, 430});
    if (window) {
        window->findChild<QComboBox *>(u"periodCombo"_s)
            ->setCurrentIndex(ReportPeriods::Last90Days);
        // The tab in front reaches out of the bar, to be cut off where the page begins.
        window->findChild<QTabBar *>()->lower();
    }
    return save(window, u"reports"_s);
}

bool GuidePictures::drawPreferences()
{
    return save(openFromMenu(u"preferencesAction"_s, u"settingsScreen"_s, {620, 320}),
                u"preferences"_s);
}

QWidget *GuidePictures::openFromMenu(const QString &action, const QString &name, QSize size) const
{
    if (auto *entry = m_window->findChild<QAction *>(action))
        entry->trigger();
    auto *window = m_window->findChild<QWidget *>(name);
    if (window)
        fit(window, size);
    return window;
}

bool GuidePictures::save(QWidget *window, const QString &name) const
{
    if (!window) {
        qWarning() << "there is no window for" << name;
        return false;
    }
    settle();
    QPdfWriter pdf(u"%1/%2.pdf"_s.arg(m_folder, name));
    setUpPage(&pdf, window->size());
    QPainter painter;
    if (!painter.begin(&pdf)) {
        qWarning() << "cannot write" << name << "into" << m_folder;
        return false;
    }
    painter.fillRect(painter.viewport(), window->palette().window());
    paint(&painter, window, window->rect());
    if (window != m_window)
        window->hide();
    return painter.end();
}
