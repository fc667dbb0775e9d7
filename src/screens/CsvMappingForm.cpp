#include "screens/CsvMappingForm.h"

#include "register/FieldLabel.h"
#include "services/CsvReader.h"
#include "shell/theme/FontRoles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPreviewRows = 5;
constexpr int kPreviewHeight = 220; // pixels
constexpr int kMaxFittedWidth = 240; // pixels
constexpr int kMaxColumns = 16'384; // of a spreadsheet; a file that is no table can have millions
constexpr int kFittedColumns = 30; // measuring takes long
constexpr int kShownLength = 200; // characters
constexpr int kColumnsForGuess = 3;

QList<QStringList> readRows(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return parseCsv(QString::fromUtf8(file.readAll()));
}

// Megabytes without a comma would be laid out at every paint.
QString beginningOf(const QString &text)
{
    return text.size() <= kShownLength ? text : text.left(kShownLength) + u'…';
}

int columnOf(const QComboBox *combo)
{
    return combo->currentIndex() < 0 ? -1 : combo->currentData().toInt();
}

} // namespace

CsvMappingForm::CsvMappingForm(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"csvSection"_s);
    auto *heading = new QLabel(tr("CSV Column Mapping:"));
    applyFontRole(heading, FontRole::Subheading);
    QGridLayout *fields = buildFields();
    m_header = new QCheckBox(tr("First row is header"));
    m_header->setObjectName(u"headerCheck"_s);
    m_header->setChecked(true);
    buildPreview();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(heading);
    column->addLayout(fields);
    column->addWidget(m_header);
    column->addWidget(m_preview, 1);
}

QGridLayout *CsvMappingForm::buildFields()
{
    auto *grid = new QGridLayout;
    m_dateColumn = addField(grid, u"dateColumnCombo"_s, tr("Date column:"));
    m_payeeColumn = addField(grid, u"payeeColumnCombo"_s, tr("Payee column:"));
    m_amountColumn = addField(grid, u"amountColumnCombo"_s, tr("Amount column:"));
    m_memoColumn = addField(grid, u"memoColumnCombo"_s, tr("Memo column:"));
    m_categoryColumn = addField(grid, u"categoryColumnCombo"_s, tr("Category column:"));
    m_dateFormat = addField(grid, u"dateFormatCombo"_s, tr("Date format:"));
    m_dateFormat->addItem(tr("Auto-detect"), QString());
    for (const QString &format : {u"MM/dd/yyyy"_s, u"M/d/yyyy"_s, u"M/dd/yyyy"_s, u"dd/MM/yyyy"_s,
                                  u"yyyy-MM-dd"_s, u"MM/dd/yy"_s})
        m_dateFormat->addItem(format, format);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

// Two to a line, from left to right.
QComboBox *CsvMappingForm::addField(QGridLayout *grid, const QString &name, const QString &label)
{
    const int place = grid->count() / 2;
    auto *combo = new QComboBox;
    combo->setObjectName(name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    grid->addWidget(makeFieldLabel(label, combo), place / 2, place % 2 * 2);
    grid->addWidget(combo, place / 2, place % 2 * 2 + 1);
    return combo;
}

void CsvMappingForm::buildPreview()
{
    m_preview = new QTableWidget;
    m_preview->setObjectName(u"previewTable"_s);
    m_preview->setAccessibleName(tr("Preview"));
    m_preview->setMinimumHeight(kPreviewHeight);
    m_preview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_preview->setAlternatingRowColors(true);
    m_preview->setTabKeyNavigation(false);
    m_preview->setWordWrap(false);
    m_preview->verticalHeader()->hide();
}

void CsvMappingForm::clear()
{
    for (QComboBox *combo :
         {m_dateColumn, m_payeeColumn, m_amountColumn, m_memoColumn, m_categoryColumn})
        combo->clear();
    m_preview->clear();
    m_preview->setRowCount(0);
    m_preview->setColumnCount(0);
}

void CsvMappingForm::showFile(const QString &path)
{
    clear();
    const QList<QStringList> rows = readRows(path);
    if (rows.isEmpty())
        return;
    fillColumns(rows.first().mid(0, kMaxColumns));
    showRows(rows.mid(0, kPreviewRows));
}

void CsvMappingForm::fillColumns(const QStringList &firstRow)
{
    m_memoColumn->addItem(tr("(none)"), -1);
    m_categoryColumn->addItem(tr("(none)"), -1);
    for (int column = 0; column < firstRow.size(); ++column) {
        const QString value = beginningOf(firstRow.at(column)).simplified();
        const QString label = value.isEmpty()
            ? tr("Column %1").arg(column)
            : tr("Col %1: %2").arg(QString::number(column), value);
        for (QComboBox *combo :
             {m_dateColumn, m_payeeColumn, m_amountColumn, m_memoColumn, m_categoryColumn})
            combo->addItem(label, column);
    }
    // With fewer columns any guess would be wrong, and a box takes its first item by itself.
    const bool guess = firstRow.size() >= kColumnsForGuess;
    m_dateColumn->setCurrentIndex(guess ? 0 : -1);
    m_payeeColumn->setCurrentIndex(guess ? 1 : -1);
    m_amountColumn->setCurrentIndex(guess ? 2 : -1);
}

void CsvMappingForm::showRows(const QList<QStringList> &rows)
{
    const int columns = static_cast<int>(qMin(rows.first().size(), kMaxColumns));
    m_preview->setRowCount(static_cast<int>(rows.size()));
    m_preview->setColumnCount(columns);
    QStringList headers;
    for (int column = 0; column < columns; ++column)
        headers << tr("Col %1").arg(column);
    m_preview->setHorizontalHeaderLabels(headers);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < qMin(columns, rows.at(row).size()); ++column)
            m_preview->setItem(row, column,
                               new QTableWidgetItem(beginningOf(rows.at(row).at(column))));
    }
    for (int column = 0; column < qMin(columns, kFittedColumns); ++column) {
        m_preview->resizeColumnToContents(column);
        if (m_preview->columnWidth(column) > kMaxFittedWidth)
            m_preview->setColumnWidth(column, kMaxFittedWidth);
    }
}

CsvColumnMapping CsvMappingForm::mapping() const
{
    return {.dateColumn = columnOf(m_dateColumn),
            .payeeColumn = columnOf(m_payeeColumn),
            .amountColumn = columnOf(m_amountColumn),
            .memoColumn = columnOf(m_memoColumn),
            .categoryColumn = columnOf(m_categoryColumn),
            .hasHeader = m_header->isChecked(),
            .dateFormat = m_dateFormat->currentData().toString()};
}
