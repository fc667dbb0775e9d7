#pragma once

#include "data/PreferencesRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterModel.h"
#include "register/RegisterScreen.h"
#include "register/RegisterTableView.h"
#include "support/StateFixture.h"

#include <QApplication>
#include <QMessageBox>

#include <functional>

// The base of a test of the register: for each test function a new one on a new state. Its keys go
// the way of real ones: through the window, to whatever holds the focus or the open popup.
class RegisterFixture : public StateFixture
{
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    RegisterScreen &screen() { return *m_screen; }
    RegisterTableView &view() { return *m_view; }
    RegisterModel &model() { return *m_model; }

    void setPreference(const QString &key, bool on) { state().preferences()->setBool(key, on); }
    void openAccount(const QString &accountId = {}); // Checking if empty; shows the window

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void save() { press(Qt::Key_Return, Qt::ControlModifier); }
    void type(const QString &text); // into whatever holds the focus, replacing its selection
    void enter(const QString &text, Qt::Key key = Qt::Key_Return); // types, then leaves the cell
    void click(int row, int column);
    // Moves the cursor without opening an editor.
    void goTo(int row, int column) { m_view->setCurrentIndex(m_model->index(row, column)); }
    void edit(int row, int column, const QString &text = {}); // opens the cell's editor and types
    // Presses that button of the question that the act asks, if it does. Returns the question.
    QString answering(QMessageBox::StandardButton button, const std::function<void()> &act);

    QWidget *editor() { return m_view->activeEditor(); } // open at the current cell, or null
    QString editorText(); // of the editor that has the focus
    int currentColumn() { return m_view->currentIndex().column(); }
    QString shown(int row, int column) { return m_model->index(row, column).data().toString(); }
    QString message(); // under the grid

private:
    RegisterScreen *m_screen = nullptr;
    RegisterTableView *m_view = nullptr;
    RegisterModel *m_model = nullptr;
};
