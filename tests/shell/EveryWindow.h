#pragma once

#include "shell/ShellFixture.h"
#include "support/FakeHttpService.h"

#include <functional>

// Shows every page, window and form of the program in turn, filled with a household, and lets a
// visitor look at each while it is open and active.
class EveryWindow
{
public:
    using Visitor = std::function<void(const QString &name, QWidget *window)>;

    explicit EveryWindow(Visitor visitor);

    ShellFixture &shell() { return *m_shell; }
    void visitAll();

private:
    void visitPages();
    void visitForms();
    void visitScreens();
    void visitReports();
    void visitImport();
    void visitPreferences();
    void visitUpdates();
    void visitFamily(); // signs in

    void visit(const QString &name, QWidget *window);
    // Triggers the entry of the menu and visits the window or dialog of that name, unless `look`
    // does so; then closes it.
    void open(const QString &name, const QString &action,
              const std::function<void(QWidget *)> &look = {});
    // Likewise for a dialog that a button of an open window brings.
    void press(QWidget *window, const QString &button, const QString &dialog);

    FakeHttpService m_service{}; // what there is to sign in to
    std::unique_ptr<ShellFixture> m_shell{};
    Visitor m_visitor;
};
