#pragma once

#include "data/Account.h"
#include "services/ImportRecords.h"

#include <QList>
#include <QWidget>

class QComboBox;
class QFormLayout;

// What a mapping box holds besides the ids of accounts.
inline constexpr QLatin1StringView kCreateAccount{"__create__"};
inline constexpr QLatin1StringView kSkipSource{"__skip__"};

struct QifMapRow
{
    QString sourceKey{};
    QString label{};
    AccountType suggestedType = AccountType::Checking;
    QComboBox *combo = nullptr; // owned by the form
};

// Where each account that the chosen QIF files name goes: a line with a box for each.
class QifMappingForm : public QWidget
{
    Q_OBJECT

public:
    explicit QifMappingForm(QWidget *parent = nullptr);

    void showSources(const QList<QifSourceAccount> &sources, const QList<Account> &accounts);
    void clear();
    const QList<QifMapRow> &rows() const { return m_rows; }

private:
    QWidget *buildRows();

    QFormLayout *m_layout = nullptr;
    QList<QifMapRow> m_rows{};
};
