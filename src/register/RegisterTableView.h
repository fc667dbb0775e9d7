#pragma once

#include <QTableView>

class RegisterScreen;

// The table of the register. It hands Tab to the screen's own way from cell to cell and keeps the
// cursor out of the Balance column.
class RegisterTableView : public QTableView
{
    Q_OBJECT

public:
    // The screen is not owned; null leaves the keys to the base class.
    explicit RegisterTableView(RegisterScreen *screen, QWidget *parent = nullptr);

    bool isEditing() const { return state() == EditingState; }
    bool isHopping() const { return m_hop != Hop::None; } // between two editors
    QWidget *activeEditor() const; // at the current cell, or null
    void dropActiveEditor(); // closes it without taking its text; no other one follows

    // Tab moves on once the event loop is done with the old editor. This moves at once, and gives
    // false when no move was waiting.
    bool finishHop();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    // Letters typed without an editor must not wander off to another row and drop a half-typed one.
    void keyboardSearch(const QString &) override { }
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    enum class Hop { None, Next, Previous };

    void moveToField(bool next);

    RegisterScreen *m_screen;
    Hop m_hop = Hop::None; // a move to the next cell that waits for the editor to be gone
    QPersistentModelIndex m_hopFrom;
};
