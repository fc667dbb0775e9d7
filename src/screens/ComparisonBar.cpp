#include "screens/ComparisonBar.h"

#include "register/FieldLabel.h"
#include "screens/ScreenDates.h"
#include "shell/theme/MoneyColors.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {
constexpr int kSideMargin = 8;
}

ComparisonBar::ComparisonBar(Clock today, QWidget *parent)
    : QWidget(parent)
    , m_today(std::move(today))
    , m_choice(new QComboBox(this))
    , m_label(new QLabel(this))
    , m_custom(new QWidget(this))
{
    m_choice->setObjectName(u"comparisonCombo"_s);
    m_choice->addItems({tr("This Year vs Last Year"), tr("Last Year vs Year Before"),
                        tr("This Quarter vs Last Quarter"), tr("Custom")});
    m_label->setObjectName(u"comparisonLabel"_s);
    m_label->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
    QLabel *title = makeFieldLabel(tr("Compare:"), m_choice);
    auto *edits = new QHBoxLayout(m_custom);
    edits->setContentsMargins(0, 0, 0, 0);
    addEdits(edits, tr("P1:"), {{u"period1From"_s, tr("P1 from")}, {u"period1To"_s, tr("P1 to")}});
    addEdits(edits, tr("P2:"), {{u"period2From"_s, tr("P2 from")}, {u"period2To"_s, tr("P2 to")}});

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kSideMargin, 0, kSideMargin, 0);
    row->addWidget(title);
    row->addWidget(m_choice);
    row->addWidget(m_label);
    row->addWidget(m_custom);
    row->addStretch();
    connect(m_choice, &QComboBox::currentIndexChanged, this, &ComparisonBar::onChosen);
    m_custom->hide();
    refresh();
}

void ComparisonBar::addEdits(QHBoxLayout *row, const QString &title, const QList<Named> &names)
{
    auto *label = new QLabel(title, m_custom);
    row->addWidget(label);
    for (const auto &[name, spokenName] : names) {
        auto *edit = new QDateEdit(m_custom);
        edit->setObjectName(name);
        edit->setAccessibleName(spokenName); // the label names two
        setUpShortDateEdit(edit);
        edit->setKeyboardTracking(false); // a report for each digit of a year would be in the way
        connect(edit, &QDateEdit::dateChanged, this, &ComparisonBar::periodsChanged);
        row->addWidget(edit);
        m_edits << edit;
    }
    label->setBuddy(m_edits.at(m_edits.size() - names.size()));
}

ReportPeriods::Compared ComparisonBar::periods() const
{
    return {{m_edits.at(0)->date(), m_edits.at(1)->date()},
            {m_edits.at(2)->date(), m_edits.at(3)->date()}};
}

void ComparisonBar::refresh()
{
    const int choice = m_choice->currentIndex();
    if (choice != ReportPeriods::CustomComparison)
        setPeriods(ReportPeriods::comparedRanges(choice, m_today()));
}

void ComparisonBar::onChosen(int choice)
{
    const bool custom = choice == ReportPeriods::CustomComparison;
    m_label->setVisible(!custom);
    m_custom->setVisible(custom);
    if (custom)
        return; // the dates stand as they stood
    refresh();
    Q_EMIT periodsChanged();
}

void ComparisonBar::setPeriods(const ReportPeriods::Compared &periods)
{
    const QSignalBlocker blocker(this);
    m_edits.at(0)->setDate(periods.earlier.from);
    m_edits.at(1)->setDate(periods.earlier.to);
    m_edits.at(2)->setDate(periods.later.from);
    m_edits.at(3)->setDate(periods.later.to);
    m_label->setText(tr("P1: %1 – %2    P2: %3 – %4")
                         .arg(shortDate(periods.earlier.from), shortDate(periods.earlier.to),
                              shortDate(periods.later.from), shortDate(periods.later.to)));
}
