#include "register/AccountTypeName.h"

QString AccountTypeName::of(AccountType type)
{
    switch (type) {
    case AccountType::Checking:
        return tr("Checking");
    case AccountType::Savings:
        return tr("Savings");
    case AccountType::CreditCard:
        return tr("Credit Card");
    case AccountType::Cash:
        return tr("Cash");
    case AccountType::Investment:
        return tr("Investment");
    case AccountType::Other:
        break;
    }
    return tr("Other");
}
