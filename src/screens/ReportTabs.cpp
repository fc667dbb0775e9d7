#include "screens/ReportTabs.h"

#include <QStyleOptionTab>
#include <QTabBar>

namespace {

// Broken at the blank that makes the lines shortest; a single word stays as it is.
QString inTwoLines(const QString &title, const QFontMetrics &metrics)
{
    QString best = title;
    for (qsizetype blank = title.indexOf(u' '); blank >= 0;
         blank = title.indexOf(u' ', blank + 1)) {
        QString lines = title;
        lines[blank] = u'\n';
        if (metrics.size(0, lines).width() < metrics.size(0, best).width())
            best = lines;
    }
    return best;
}

class TwoLineTabBar : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int index) const override
    {
        const QFontMetrics metrics = fontMetrics();
        const QString title = tabText(index);
        return QTabBar::tabSizeHint(index) - metrics.size(0, title)
            + metrics.size(0, inTwoLines(title, metrics));
    }

    void initStyleOption(QStyleOptionTab *option, int index) const override
    {
        QTabBar::initStyleOption(option, index);
        option->text = inTwoLines(tabText(index), fontMetrics());
    }
};

} // namespace

ReportTabs::ReportTabs(QWidget *parent)
    : QTabWidget(parent)
{
    auto *bar = new TwoLineTabBar(this);
    bar->setDrawBase(false); // as the bar that it replaces
    setTabBar(bar);
}
