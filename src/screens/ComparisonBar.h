#pragma once

#include "screens/ReportPeriods.h"

#include <QWidget>

#include <functional>
#include <utility>

class QComboBox;
class QDateEdit;
class QHBoxLayout;
class QLabel;

// The two periods that a year-over-year report compares, chosen from a list or set by hand.
class ComparisonBar : public QWidget
{
    Q_OBJECT

public:
    using Clock = std::function<QDate()>; // the local date

    explicit ComparisonBar(Clock today, QWidget *parent = nullptr);

    ReportPeriods::Compared periods() const;
    void refresh(); // the dates of the choice as of today; emits nothing

Q_SIGNALS:
    void periodsChanged(); // once, however many of the dates changed

private:
    using Named = std::pair<QString, QString>; // an object name and what a screen reader says

    void addEdits(QHBoxLayout *row, const QString &title, const QList<Named> &names);
    void onChosen(int choice);
    void setPeriods(const ReportPeriods::Compared &periods);

    Clock m_today;
    QComboBox *m_choice;
    QLabel *m_label;
    QWidget *m_custom; // holds the edits
    QList<QDateEdit *> m_edits{}; // from and to of the earlier period, then of the later one
};
