#pragma once

#include <QString>

class QModelIndex;
class RegisterModel;
class RegisterTableView;

// Where the cursor and the top of the register's grid stand, so that both come back after the rows
// have been read anew: on the same transactions, or else in the same rows.
class RegisterPosition
{
public:
    static RegisterPosition of(const RegisterTableView &view, const RegisterModel &model);
    void restore(RegisterTableView &view, const RegisterModel &model) const;

private:
    struct Place
    {
        QString transactionId{}; // empty on the insertion row
        int row = -1;
    };

    static Place placeOf(const QModelIndex &index, const RegisterModel &model);
    static int findRow(const Place &place, const RegisterModel &model);

    Place m_current;
    int m_currentColumn = 0;
    Place m_top;
};
