#pragma once

#include "data/RecurringTransaction.h"

#include <QDialog>

#include <functional>

class AppState;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QRadioButton;
class QStringListModel;

// Enters or changes a recurring template. Nothing is stored: the caller takes recurring() when it
// is accepted.
class RecurringFormDialog : public QDialog
{
    Q_OBJECT

public:
    using Clock = std::function<QDate()>;
    enum class Purpose {
        Edit, // changes the template that is given
        Memorize, // makes a new one like it
    };

    // A new template, at first of the given account. The state is not owned.
    RecurringFormDialog(AppState *appState, const QString &accountId, QWidget *parent = nullptr,
                        Clock today = QDate::currentDate);
    RecurringFormDialog(AppState *appState, Purpose purpose, const RecurringTransaction &recurring,
                        QWidget *parent = nullptr, Clock today = QDate::currentDate);

    // The template as typed, pending. One that is new gets its id with each call.
    RecurringTransaction recurring() const;

private:
    void build();
    void buildAccount();
    void buildAmount();
    void buildSchedule();
    QWidget *buildType();
    void addRows(QFormLayout *form);
    void followAccount();
    void onAccountChanged();
    void showOriginal();

    qint64 typedAmount() const;
    void takeSchedule(RecurringTransaction &recurring) const;
    void mendDates(RecurringTransaction &recurring) const;

    AppState *m_appState;
    RecurringTransaction m_original;
    bool m_editMode;
    bool m_isCreateFromSeed;
    Clock m_today;
    double m_shownAmount = 0.0;

    QComboBox *m_account = nullptr;
    QRadioButton *m_payment = nullptr;
    QRadioButton *m_deposit = nullptr;
    QLineEdit *m_payee = nullptr;
    QStringListModel *m_payees = nullptr; // of the selected account
    QDoubleSpinBox *m_amount = nullptr;
    QComboBox *m_category = nullptr;
    QLineEdit *m_memo = nullptr;
    QComboBox *m_frequency = nullptr;
    QDateEdit *m_startDate = nullptr;
    QCheckBox *m_hasEndDate = nullptr;
    QDateEdit *m_endDate = nullptr;
    QCheckBox *m_autoPost = nullptr;
    QCheckBox *m_active = nullptr;
};
