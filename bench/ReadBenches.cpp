#include "ReadBenches.h"

#include "PairedBench.h"
#include "Statements.h"
#include "Workbench.h"

#include "data/TransactionRepository.h"

namespace {

using Shape = BenchDatabase::Shape;

TransactionRepository *transactionsOf(Workbench &bench)
{
    return bench.state()->transactions();
}

void addRegisterRows(const char *name, Shape shape)
{
    registerPair({name, 2.5}, [shape] {
        Workbench &bench = workbench(shape);
        const QString account = bench.accountId(0);
        return Pair{
            .program = [&bench, account] { transactionsOf(bench)->registerRows(account); },
            .counterpart =
                [&bench, account] {
                    bench.plain()->readAll(Statements::registerRows(), {account.toUtf8()});
                },
        };
    });
}

void addSearch(const char *name, const QString &word)
{
    registerPair({name}, [word] {
        Workbench &bench = workbench(Shape::TenAccounts);
        return Pair{
            .program = [&bench, word] { transactionsOf(bench)->search(word, {}); },
            .counterpart =
                [&bench, word] {
                    bench.plain()->readAll(Statements::searchWord(), {word.toUtf8()});
                },
        };
    });
}

void addFilteredSearch()
{
    registerPair({"search by account and year alone"}, [] {
        Workbench &bench = workbench(Shape::TenAccounts);
        const SearchFilters filters{.account_id = bench.accountId(3),
                                    .date_from = QDate(2019, 1, 1),
                                    .date_to = QDate(2019, 12, 31)};
        return Pair{
            .program = [&bench, filters] { transactionsOf(bench)->search(QString(), filters); },
            .counterpart =
                [&bench, filters] {
                    bench.plain()->readAll(
                        Statements::searchFilters(),
                        {filters.account_id.toUtf8(), "2019-01-01", "2019-12-31"});
                },
        };
    });
}

void addBalances()
{
    registerPair({"balances of 10 accounts, read alone", 1.5}, [] {
        Workbench &bench = workbench(Shape::TenAccounts);
        return Pair{
            .program = [&bench] { transactionsOf(bench)->balancesByAccount(); },
            .counterpart = [&bench] { bench.plain()->readAll(Statements::balances()); },
        };
    });
}

void addPayees()
{
    registerPair({"distinct payees, read alone"}, [] {
        Workbench &bench = workbench(Shape::TenAccounts);
        return Pair{
            .program = [&bench] { transactionsOf(bench)->allPayees(); },
            .counterpart = [&bench] { bench.plain()->readAll(Statements::payees()); },
        };
    });
}

} // namespace

void registerReadBenches(Shape shape)
{
    if (shape == Shape::OneAccount) {
        addRegisterRows("rows of an account of 100,000", shape);
        return;
    }
    addRegisterRows("rows of an account of 10,000", shape);
    addBalances();
    addSearch("search for a common word", BenchDatabase::commonWord());
    addSearch("search for a rare word", BenchDatabase::rareWord());
    addFilteredSearch();
    addPayees();
}
