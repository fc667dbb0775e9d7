#include "ScreenBenches.h"

#include "PaintWatch.h"
#include "PairedBench.h"
#include "Statements.h"
#include "Workbench.h"

#include "data/AccountRepository.h"
#include "data/TransactionRepository.h"
#include "register/RegisterDelegate.h"
#include "register/RegisterModel.h"
#include "register/RegisterScreen.h"
#include "register/RegisterTableView.h"
#include "shell/MainWindow.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

namespace {

using Shape = BenchDatabase::Shape;

// A register in a window of its own, or the whole main window, shown and painted once.
struct Stage
{
    Workbench &bench;
    std::unique_ptr<QWidget> window;
    RegisterScreen *screen = nullptr;
    RegisterTableView *view = nullptr;
    RegisterModel *model = nullptr;
    std::unique_ptr<PaintWatch> paints{};

    Stage(Workbench &shownBench, std::unique_ptr<QWidget> shownWindow, RegisterScreen *shownScreen)
        : bench(shownBench)
        , window(std::move(shownWindow))
        , screen(shownScreen)
        , view(screen->findChild<RegisterTableView *>())
        , model(screen->findChild<RegisterModel *>())
    {
    }

    void watch(const QList<QWidget *> &widgets)
    {
        paints = std::make_unique<PaintWatch>(widgets);
        paints->start();
        window->resize(1280, 900);
        window->show();
        paints->wait();
    }

    template <typename Work> void untilPainted(Work work)
    {
        paints->start();
        work();
        paints->wait();
    }
};

std::shared_ptr<Stage> registerStage(Shape shape)
{
    Workbench &bench = workbench(shape);
    auto screen = std::make_unique<RegisterScreen>(bench.state());
    RegisterScreen *shown = screen.get();
    auto stage = std::make_shared<Stage>(bench, std::move(screen), shown);
    shown->setAccount(bench.accountId(0));
    stage->watch({stage->view->viewport()});
    return stage;
}

enum class Watched {
    Register,
    RegisterAndSidebar,
};

std::shared_ptr<Stage> windowStage(Watched watched)
{
    Workbench &bench = workbench(Shape::TenAccounts);
    auto window = std::make_unique<MainWindow>(bench.state());
    window->selectAccount(bench.accountId(0));
    QWidget *sidebar = window->findChild<QListWidget *>()->viewport();
    auto *screen = window->findChild<RegisterScreen *>();
    auto stage = std::make_shared<Stage>(bench, std::move(window), screen);
    QList<QWidget *> parts{stage->view->viewport()};
    if (watched == Watched::RegisterAndSidebar)
        parts << sidebar;
    stage->watch(parts);
    return stage;
}

void addSidebar()
{
    registerPair({"sidebar of 10 accounts after a change, painted", 1.5}, [] {
        const std::shared_ptr<Stage> stage = windowStage(Watched::Register);
        stage->paints = std::make_unique<PaintWatch>(
            QList<QWidget *>{stage->window->findChild<QListWidget *>()->viewport()});
        return Pair{
            .program =
                [stage] {
                    stage->untilPainted(
                        [&] { Q_EMIT stage->bench.state()->accounts()->accountsChanged(); });
                },
            .counterpart = [stage] { stage->bench.plain()->readAll(Statements::balances()); },
        };
    });
}

void addOpening(const char *name, Shape shape)
{
    registerPair({name}, [shape] {
        const std::shared_ptr<Stage> stage = registerStage(shape);
        const QString account = stage->bench.accountId(0);
        return Pair{
            .prepare =
                [stage] {
                    stage->untilPainted(
                        [&] { stage->screen->setAccount(stage->bench.accountId(1)); });
                },
            .program =
                [stage, account] {
                    stage->untilPainted([&] { stage->screen->setAccount(account); });
                },
            .counterpart =
                [stage, account] {
                    stage->bench.plain()->readAll(Statements::registerRows(), {account.toUtf8()});
                },
        };
    });
}

void typeRow(const Stage &stage)
{
    const int row = stage.model->insertionRow();
    const auto type = [&](int column, const QString &text) {
        stage.model->setData(stage.model->index(row, column), text);
    };
    type(2, u"Harbor Market"_s);
    type(3, u"Groceries"_s);
    type(4, u"weekly shopping"_s);
    type(5, u"84.37"_s);
    stage.view->setCurrentIndex(stage.model->index(row, 5));
}

void addSaving(const PairLine &line, const std::function<std::shared_ptr<Stage>()> &build)
{
    registerPair(line, [build] {
        const std::shared_ptr<Stage> stage = build();
        const QString account = stage->bench.accountId(0);
        return Pair{
            .prepare = [stage] { typeRow(*stage); },
            .program = [stage] { stage->untilPainted([&] { stage->screen->commitCurrentRow(); }); },
            .counterpart =
                [stage, account] { stage->bench.state()->transactions()->registerRows(account); },
            .finished = [stage] { return stage->paints->paintedAt(); },
        };
    });
}

void addPayeeEditor()
{
    registerPair({"payee editor with its completion list"}, [] {
        const std::shared_ptr<Stage> stage = registerStage(Shape::TenAccounts);
        return Pair{
            .program =
                [stage] {
                    const QModelIndex cell = stage->model->index(stage->model->insertionRow(), 2);
                    auto *delegate = stage->screen->findChild<RegisterDelegate *>();
                    delete delegate->createEditor(stage->view->viewport(), {}, cell);
                },
            .counterpart =
                [stage] {
                    stage->bench.plain()->readAll(Statements::payees());
                    stage->bench.plain()->readAll("SELECT name FROM accounts");
                },
        };
    });
}

} // namespace

void registerScreenBenches(Shape shape)
{
    if (shape == Shape::OneAccount) {
        addOpening("open an account of 100,000, painted", shape);
        return;
    }
    addSidebar();
    addOpening("open an account of 10,000, painted", shape);
    addPayeeEditor();
    addSaving({"save a row, register alone, painted", 1.5},
              [] { return registerStage(Shape::TenAccounts); });
    addSaving({"save a row in the main window, register painted"},
              [] { return windowStage(Watched::Register); });
    addSaving({"save a row in the main window, sidebar painted too"},
              [] { return windowStage(Watched::RegisterAndSidebar); });
}
