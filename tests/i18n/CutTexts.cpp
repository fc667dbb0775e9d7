#include "i18n/CutTexts.h"

#include "screens/QifMappingForm.h"
#include "shell/theme/ElidedLabel.h"

#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

QString cutText(const QString &text, int needed, int given)
{
    return text.isEmpty() || needed <= given
        ? QString()
        : u"\"%1\" needs %2 and has %3"_s.arg(text).arg(needed).arg(given);
}

QString cutLabel(const QLabel *label)
{
    if (label->text().isEmpty() || qobject_cast<const ElidedLabel *>(label))
        return {};
    const int height =
        label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    const int width =
        label->wordWrap() ? label->minimumSizeHint().width() : label->sizeHint().width();
    const QString cut = cutText(label->text(), width, label->width());
    return cut.isEmpty() ? cutText(label->text(), height, label->height()) : cut;
}

// With too little room the bar cuts its tabs or scrolls them.
QString cutTab(const QTabBar *bar)
{
    return cutText(u"all tabs"_s, bar->sizeHint().width(), bar->width());
}

// What the style leaves of the section for its text.
int roomInSection(const QHeaderView *header, int section)
{
    QStyleOptionHeader option;
    option.initFrom(header);
    option.orientation = Qt::Horizontal;
    option.rect = QRect(0, 0, header->sectionSize(section), header->height());
    if (header->isSortIndicatorShown() && header->sortIndicatorSection() == section)
        option.sortIndicator = QStyleOptionHeader::SortDown;
    return header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header).width();
}

QString cutSection(const QHeaderView *header)
{
    if (header->orientation() != Qt::Horizontal)
        return {};
    QFont font = header->font();
    font.setBold(header->highlightSections()); // while a cell of the column is selected
    const QFontMetrics metrics(font);
    for (int section = 0; section < header->count(); ++section) {
        const QString text = header->model()->headerData(section, Qt::Horizontal).toString();
        if (header->isSectionHidden(section))
            continue;
        const QString cut =
            cutText(text, metrics.horizontalAdvance(text), roomInSection(header, section));
        if (!cut.isEmpty())
            return cut;
    }
    return {};
}

// Accounts, categories and the columns of a file bear names of a person's choice.
bool isOurs(const QComboBox *combo, int item)
{
    static const QRegularExpression named(u"account|category|mapping|[a-z]Column|^$"_s);
    const QString data = combo->itemData(item).toString();
    return !named.match(combo->objectName()).hasMatch() || data.isEmpty() || data == kSkipSource;
}

QString cutItem(const QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = combo->isEditable();
    const int room =
        combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .width();
    for (int item = 0; item < combo->count(); ++item) {
        const QString text = combo->itemText(item);
        const QString cut = cutText(text, combo->fontMetrics().horizontalAdvance(text), room);
        if (!cut.isEmpty() && isOurs(combo, item))
            return cut;
    }
    return {};
}

// The pages of a window; other lists hold names of a person's choice.
QString cutPage(const QListWidget *list)
{
    return list->objectName() == "navigation"_L1
        ? cutText(u"all pages"_s, list->sizeHintForColumn(0), list->viewport()->width())
        : QString();
}

// The hint of an empty field, and the date or the amount of a box.
QString cutLine(const QLineEdit *edit)
{
    const bool box = qobject_cast<const QAbstractSpinBox *>(edit->parentWidget());
    const QString text = box ? edit->displayText() : edit->placeholderText();
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.lineWidth = edit->hasFrame()
        ? edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit)
        : 0;
    const int room =
        edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).width();
    return cutText(text, edit->fontMetrics().horizontalAdvance(text), room);
}

// The text of a button that shows its icon alone is read out.
bool showsText(const QAbstractButton *button)
{
    const auto *tool = qobject_cast<const QToolButton *>(button);
    return !tool || tool->icon().isNull() || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
}

QString cutIn(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return cutLabel(label);
    if (const auto *bar = qobject_cast<const QTabBar *>(widget))
        return cutTab(bar);
    if (const auto *header = qobject_cast<const QHeaderView *>(widget))
        return cutSection(header);
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return cutItem(combo);
    if (const auto *list = qobject_cast<const QListWidget *>(widget))
        return cutPage(list);
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return cutLine(edit);
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        return cutText(box->title(), box->minimumSizeHint().width(), box->width());
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button && showsText(button)
        ? cutText(button->text(), button->sizeHint().width(), button->width())
        : QString();
}

} // namespace

QStringList cutTexts(const QWidget *window)
{
    QStringList cuts;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        const QString cut = cutIn(widget);
        if (!cut.isEmpty())
            cuts << u"%1 %2: %3"_s.arg(QLatin1StringView(widget->metaObject()->className()),
                                       widget->objectName(), cut);
    }
    const QSize least = window->minimumSizeHint();
    const QSize screen = window->screen()->availableSize();
    if (least.width() > screen.width() || least.height() > screen.height())
        cuts << u"needs %1x%2, more than a screen"_s.arg(least.width()).arg(least.height());
    return cuts;
}
