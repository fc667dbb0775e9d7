#include "screens/ReportTable.h"

#include <QEvent>
#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRowHeight = 36; // pixels
constexpr int kCellPadding = 16; // pixels, both sides together
constexpr int kMinTextChars = 12;
constexpr int kMinStretchChars = 12;

constexpr Qt::Alignment kFigureAlignment = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment kTextAlignment = Qt::AlignLeft | Qt::AlignVCenter;

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

} // namespace

ReportTable::ReportTable(const QStringList &headers, int firstFigure, QWidget *parent)
    : QTableWidget(0, static_cast<int>(headers.size()), parent)
    , m_firstFigure(firstFigure)
    , m_longest(headers.size())
{
    setObjectName(u"reportTable"_s);
    setHorizontalHeaderLabels(headers);
    for (int column = 0; column < columnCount(); ++column)
        horizontalHeaderItem(column)->setTextAlignment(isFigure(column) ? kFigureAlignment
                                                                        : kTextAlignment);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    fitColumns();
}

// A cell at a time the view would hear of 600,000 changes for a report of 100,000 rows; it hears of
// one when all are written.
void ReportTable::startRows(qsizetype count)
{
    if (m_hasTotalRow)
        removeRow(rowCount() - 1);
    m_hasTotalRow = false;
    setRowCount(static_cast<int>(count));
    m_nextRow = 0;
    m_longest = QStringList(columnCount());
    model()->blockSignals(true);
}

void ReportTable::addRow(std::initializer_list<QString> texts)
{
    int column = 0;
    for (const QString &text : texts)
        setCell(m_nextRow, column++, text);
    ++m_nextRow;
}

void ReportTable::addTotalRow(std::initializer_list<QString> texts)
{
    model()->blockSignals(false);
    insertRow(m_nextRow);
    m_hasTotalRow = true;
    const int row = m_nextRow;
    addRow(texts);
    QFont bold;
    bold.setWeight(QFont::Bold);
    for (int column = 0; column < columnCount(); ++column)
        item(row, column)->setFont(bold);
}

void ReportTable::finishRows()
{
    model()->blockSignals(false);
    if (rowCount() > 0)
        Q_EMIT model()->dataChanged(model()->index(0, 0),
                                    model()->index(rowCount() - 1, columnCount() - 1));
    fitColumns();
}

// What stands in the table already is written over: making a cell costs far more than its text.
void ReportTable::setCell(int row, int column, const QString &text)
{
    if (QTableWidgetItem *cell = item(row, column)) {
        cell->setText(text);
    } else {
        auto *made = new QTableWidgetItem(text);
        if (isFigure(column))
            made->setTextAlignment(kFigureAlignment);
        setItem(row, column, made);
    }
    if (text.size() > m_longest.at(column).size())
        m_longest[column] = text;
}

// From one text per column, since the view itself would measure the rows that are in sight. Only
// ever wider, so that a column which was drawn wider by hand stays so.
void ReportTable::fitColumns()
{
    const int charWidth = fontMetrics().averageCharWidth();
    horizontalHeader()->setMinimumSectionSize(kMinStretchChars * charWidth);
    QFont bold = font();
    bold.setWeight(QFont::Bold); // as in the total row
    const QFontMetrics metrics(bold);
    for (int column = columnCount() - 1; column > 0; --column) { // the figures before the texts
        int width = metrics.horizontalAdvance(m_longest.at(column)) + kCellPadding;
        if (!isFigure(column))
            width = qMin(width, qMax(roomForText(), kMinTextChars * charWidth));
        width = qMax(width, horizontalHeader()->sectionSizeHint(column));
        if (width > columnWidth(column))
            setColumnWidth(column, width);
    }
}

// What each column of texts may take, so that a long name does not push the figures out of sight.
int ReportTable::roomForText() const
{
    int room = viewport()->width() - horizontalHeader()->minimumSectionSize();
    for (int column = m_firstFigure; column < columnCount(); ++column)
        room -= columnWidth(column);
    return room / qMax(1, m_firstFigure - 1);
}

void ReportTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    fitColumns();
}

void ReportTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && !m_longest.isEmpty())
        fitColumns();
}

QString ReportTable::toCsv() const
{
    QStringList cells;
    for (int column = 0; column < columnCount(); ++column)
        cells << quoted(horizontalHeaderItem(column)->text());
    QString csv = cells.join(u',') + u'\n';
    for (int row = 0; row < rowCount(); ++row) {
        cells.clear();
        for (int column = 0; column < columnCount(); ++column) {
            const QTableWidgetItem *cell = item(row, column);
            cells << quoted(cell ? cell->text().replace(u'"', u"\"\""_s) : QString());
        }
        csv += cells.join(u',') + u'\n';
    }
    return csv;
}
