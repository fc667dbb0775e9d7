#include "register/RegisterEditBuffers.h"

#include "register/RegisterColumn.h"

QString *RegisterEditBuffers::at(int column)
{
    switch (column) {
    case RegisterColumn::Date:
        return &date;
    case RegisterColumn::CheckNumber:
        return &check_number;
    case RegisterColumn::Payee:
        return &payee;
    case RegisterColumn::Category:
        return &category;
    case RegisterColumn::Memo:
        return &memo;
    case RegisterColumn::Payment:
        return &payment;
    case RegisterColumn::Deposit:
        return &deposit;
    case RegisterColumn::Clr:
        return &clr;
    default:
        return nullptr;
    }
}

const QString *RegisterEditBuffers::at(int column) const
{
    return const_cast<RegisterEditBuffers *>(this)->at(column);
}
