#pragma once

class RegisterModel;
class RegisterTableView;

// Finds the way from cell to cell of the register, past hidden columns.
class RegisterNavigator
{
public:
    // Neither is owned; both must outlive the navigator.
    RegisterNavigator(RegisterTableView *view, RegisterModel *model);

    // Takes the text of the open editor, if any, into the buffers. The editor of payee and memo is
    // closed as well, since the view does not see the focus inside it.
    void commitActiveEditor();

    // From a valid current cell to the next or previous visible one of its row, taking along what
    // was typed, and open its editor. False when there is none.
    bool openNextField();
    bool openPreviousField();
    // The same for Tab, without telling the selection's listeners.
    void hopToNextField();
    void hopToPreviousField();

private:
    // The next visible column that can be typed into, or -1. Balance counts as before the first
    // for the way forward, and as after the last for the way back.
    int columnAfter(int column) const;
    int columnBefore(int column) const;

    void openField(int column);
    void hopToField(int column);
    // Arriving at the payee from the right means arriving at the memo under it.
    void enterMemoLine();

    RegisterTableView *m_view;
    RegisterModel *m_model;
};
