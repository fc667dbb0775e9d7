#include "shell/Contrast.h"
#include "shell/EveryWindow.h"
#include "shell/theme/ButtonStyles.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/IndicatorStyle.h"
#include "shell/theme/ThemeManager.h"
#include "support/TestSupport.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostTabs = 80; // no window has more controls
constexpr int kTabsInATable = 10; // before it lets Tab go on
constexpr int kMostRows = 40; // of a table
constexpr int kFocusPixels = 12; // of a text cursor, or more of a frame

QString spokenName(QObject *object)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(object);
    return interface ? interface->text(QAccessible::Name).trimmed() : QString();
}

// What a person works with, as opposed to the parts that such a control is made of.
bool isControl(const QWidget *widget)
{
    const auto is = [widget](auto... types) { return (widget->inherits(types) || ...); };
    if (!is("QAbstractButton", "QLineEdit", "QComboBox", "QAbstractItemView", "QAbstractSpinBox",
            "QTabBar", "QPlainTextEdit", "QTextEdit")
        || is("QHeaderView", "QTableCornerButton"))
        return false;
    for (const QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        for (const char *whole : {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QTabBar"}) {
            if (above->inherits(whole))
                return false;
        }
    }
    return true;
}

template <typename Type = QWidget> QList<Type *> shownIn(const QWidget *window)
{
    QList<Type *> shown = window->findChildren<Type *>();
    shown.removeIf([window](const Type *widget) {
        return !widget->isVisible() || widget->window() != window || !widget->isEnabled();
    });
    return shown;
}

QString nameOf(const QWidget *widget)
{
    return u"%1 \"%2\""_s.arg(QLatin1StringView(widget->metaObject()->className()),
                              widget->objectName());
}

bool takesNoTab(const QWidget *widget)
{
    // The sidebar has the keys Alt+1 to Alt+0 and the Account menu, the button has Ctrl+R: Tab
    // belongs to the grid, from cell to cell.
    return widget->objectName() == "accountList"_L1 || widget->objectName() == "reconcileButton"_L1;
}

// Tab comes to one of the radio buttons that exclude each other, and the arrows to the others.
bool isReached(const QWidget *control, const QList<QPointer<QWidget>> &reached)
{
    return std::any_of(
        reached.cbegin(), reached.cend(), [control](const QPointer<QWidget> &focused) {
            return focused
                && (focused == control || control->isAncestorOf(focused)
                    || (control->inherits("QRadioButton") && focused->inherits("QRadioButton")
                        && focused->parentWidget() == control->parentWidget()));
        });
}

QImage pictureOf(QWidget *window)
{
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QRect placeOf(const QWidget *widget, const QWidget *window)
{
    return {widget->mapTo(window, QPoint()), widget->size()};
}

// The most common colour. The shades of a gradient count together: its edge is of one colour.
QColor groundOf(const QRect &area, const QImage &picture)
{
    constexpr QRgb kShade = 0xFFE0E0E0;
    QHash<QRgb, int> counts;
    QRgb most = picture.pixel(area.topLeft());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb color = picture.pixel(x, y);
            if (++counts[color & kShade] > counts.value(most & kShade))
                most = color;
        }
    }
    return most;
}

// Those that can be told from the ground around them.
int changedPixels(const QImage &before, const QImage &after, const QRect &area)
{
    const QColor ground = groundOf(area, after);
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor color = after.pixelColor(x, y);
            const QColor was = before.pixelColor(x, y);
            if (color != was
                && std::max(contrast(color, ground), contrast(color, was)) >= kLargeContrast)
                ++count;
        }
    }
    return count;
}

// The colours that a style or a rich text names after a word.
QList<QColor> colorsIn(const QString &text, const QString &word)
{
    QList<QColor> colors;
    const QRegularExpression named(word + u": (#[0-9A-Fa-f]{6})"_s);
    for (const QRegularExpressionMatch &match : named.globalMatch(text))
        colors << QColor(match.captured(1));
    return colors;
}

double neededFor(const QFont &font)
{
    const bool bold = font.weight() >= QFont::DemiBold;
    return font.pointSize() >= (bold ? 14 : 18) ? kLargeContrast : kTextContrast;
}

} // namespace

// Whether the program can be used without a mouse, and by those who see it badly or not at all.
class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyWindow_data();
    void everyWindow();
    void statesOfAStyleCanBeRead();

private:
    void reportFaults();
    void fault(const QString &window, const QString &text) { m_faults << window + u": "_s + text; }
    void lookAtNames(const QString &name, QWidget *window);
    void lookAtLabels(const QString &name, QWidget *window);
    void walk(const QString &name, QWidget *window);
    void lookAtTexts(const QString &name, QWidget *window);
    void lookAtCells(const QString &name, const QAbstractItemView *view);

    QStringList m_faults;
};

void AccessibilityTest::initTestCase()
{
    QApplication::setStyle(new IndicatorStyle);
    QFont font = QApplication::font();
    font.setPointSize(10); // as on most desktops
    QApplication::setFont(font);
}

void AccessibilityTest::everyWindow_data()
{
    QTest::addColumn<ThemeManager::Theme>("theme");
    QTest::newRow("light") << ThemeManager::Light;
    QTest::newRow("dark") << ThemeManager::Dark;
}

void AccessibilityTest::everyWindow()
{
    QFETCH(ThemeManager::Theme, theme);
    m_faults.clear();
    EveryWindow windows([this](const QString &name, QWidget *window) {
        lookAtNames(name, window);
        lookAtTexts(name, window);
        walk(name, window); // last: it leaves its traces
    });
    windows.shell().state()->themeManager()->setTheme(theme);
    windows.visitAll();
    reportFaults();
}

// One by one: a failing check shows only the beginning of a long text.
void AccessibilityTest::reportFaults()
{
    m_faults.removeAll(QString());
    m_faults.removeDuplicates();
    for (const QString &fault : std::as_const(m_faults))
        qCritical().noquote() << fault;
    QVERIFY(m_faults.isEmpty());
}

void AccessibilityTest::lookAtNames(const QString &name, QWidget *window)
{
    for (QWidget *widget : shownIn(window)) {
        if (isControl(widget) && spokenName(widget).isEmpty())
            fault(name, nameOf(widget) + u" has no name"_s);
    }
    for (const QListView *list : shownIn<QListView>(window)) {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if ((index.data(Qt::AccessibleTextRole).toString() + index.data().toString()).isEmpty())
                fault(name, u"row %1 of %2 has no name"_s.arg(QString::number(row), nameOf(list)));
        }
    }
    lookAtLabels(name, window);
}

void AccessibilityTest::lookAtLabels(const QString &name, QWidget *window)
{
    for (QLabel *label : shownIn<QLabel>(window)) {
        const QWidget *field = label->buddy();
        const bool namesField = field
            && (field->focusPolicy() != Qt::NoFocus || field->inherits("QLabel")
                || !field->isEnabled());
        const bool isHeading = label->property(kFontRoleProperty).toInt() >= FontRole::Subheading;
        if (label->text().endsWith(u':') && !isHeading && !namesField)
            fault(name, u"\"%1\" names no field"_s.arg(label->text()));
        for (const QChar letter : spokenName(label)) {
            if (letter.category() == QChar::Other_PrivateUse)
                fault(name, nameOf(label) + u" would be spelled as a glyph"_s);
        }
    }
}

// Presses Tab until it leads to nothing new, and looks at what changes in the control it comes to.
void AccessibilityTest::walk(const QString &name, QWidget *window)
{
    QList<QPointer<QWidget>> reached; // the editors of a grid come and go
    const QPointer<QWidget> first = QApplication::focusWidget();
    QImage before = pictureOf(window);
    for (int tabs = 0, stale = 0; tabs < kMostTabs && stale < kTabsInATable; ++tabs) {
        QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
        QWidget *focused = QApplication::focusWidget();
        if (!focused)
            break;
        const QImage after = pictureOf(window);
        stale = reached.contains(focused) ? stale + 1 : 0;
        if (stale == 0) {
            reached << focused;
            if (spokenName(focused).isEmpty())
                fault(name, nameOf(focused) + u" has the focus and no name"_s);
            const QRect place = placeOf(focused, window) & after.rect() & before.rect();
            const int changed = changedPixels(before, after, place);
            if (tabs > 0 && changed < kFocusPixels)
                fault(name,
                      u"%1 shows its focus in %2 pixels"_s.arg(nameOf(focused),
                                                               QString::number(changed)));
        }
        before = after;
    }
    for (QWidget *widget : shownIn(window)) {
        if (isControl(widget) && !takesNoTab(widget) && !isReached(widget, reached))
            fault(name, u"Tab does not come to "_s + nameOf(widget));
    }
    if (first)
        first->setFocus(); // closes the editor of a grid
}

void AccessibilityTest::lookAtTexts(const QString &name, QWidget *window)
{
    const QImage picture = pictureOf(window);
    const auto look = [&](const QWidget *widget, const QString &text) {
        if (text.trimmed().isEmpty())
            return;
        const bool isSign = widget->font().family() == "Material Icons"_L1;
        QList<QColor> colors = colorsIn(text, u"color"_s);
        colors << widget->palette().color(widget->foregroundRole());
        for (const QColor &color : std::as_const(colors))
            m_faults << contrastFault(u"%1: %2 \"%3\""_s.arg(name, nameOf(widget), text), color,
                                      groundOf(placeOf(widget, window) & picture.rect(), picture),
                                      isSign ? kLargeContrast : neededFor(widget->font()));
    };
    for (const QLabel *label : shownIn<QLabel>(window))
        look(label, label->text());
    for (const QAbstractButton *button : shownIn<QAbstractButton>(window))
        look(button, button->text());
    for (const QAbstractItemView *view : shownIn<QAbstractItemView>(window)) {
        if (isControl(view) && view->objectName() != "accountList"_L1) // its rows are labels
            lookAtCells(name, view);
    }
}

void AccessibilityTest::lookAtCells(const QString &name, const QAbstractItemView *view)
{
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < std::min(model->rowCount(), kMostRows); ++row) {
        const QPalette::ColorRole base =
            view->alternatingRowColors() && row % 2 ? QPalette::AlternateBase : QPalette::Base;
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            const QVariant text = index.data(Qt::ForegroundRole);
            const QVariant ground = index.data(Qt::BackgroundRole);
            const QPalette &palette = view->palette();
            m_faults << contrastFault(
                u"%1: row %2, column %3"_s.arg(name, QString::number(row), QString::number(column)),
                text.isValid() ? text.value<QBrush>().color() : palette.color(QPalette::Text),
                ground.isValid() ? ground.value<QBrush>().color() : palette.color(base),
                kTextContrast);
        }
    }
}

// Also those that come only with the mouse.
void AccessibilityTest::statesOfAStyleCanBeRead()
{
    m_faults.clear();
    QCOMPARE(colorsIn(primaryButtonStyle(), u"background-color"_s).size(), 3);
    QVERIFY(!colorsIn(accountListStyle(), u"background-color"_s).isEmpty());
    for (const QColor &ground : colorsIn(primaryButtonStyle(), u"background-color"_s))
        m_faults << contrastFault(u"primary button"_s, Qt::white, ground, kTextContrast);
    ShellFixture shell;
    shell.addAccount(u"Savings"_s);
    shell.addAccount(u"Card"_s);
    shell.addTransaction(u"Card"_s, -100);
    shell.openWindow();
    QVERIFY(!shell.list()->findChildren<QLabel *>().isEmpty());
    for (const QColor &ground : colorsIn(accountListStyle(), u"background-color"_s)) {
        for (const QLabel *label : shell.list()->findChildren<QLabel *>())
            m_faults << contrastFault(
                label->objectName(), label->palette().color(label->foregroundRole()), ground,
                label->objectName() == "iconLabel"_L1 ? kLargeContrast : kTextContrast);
    }
    reportFaults();
}

PURSEWELL_TEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
