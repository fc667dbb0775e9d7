#pragma once

#include <QStyledItemDelegate>

class AppState;
class QComboBox;
class RegisterLineEdit;
class RegisterModel;

// The editors of the register's cells, and the painting of its two-line mode.
class RegisterDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr int kRowHeight = 36; // pixels; in two-line mode that of the first line
    static constexpr int kTwoLineRowHeight = 52;

    // Neither is owned; both must outlive the delegate.
    RegisterDelegate(AppState *appState, RegisterModel *model, QObject *parent = nullptr);

    void setAccountId(const QString &accountId) { m_accountId = accountId; }
    void setTwoLineMode(bool enabled) { m_twoLineMode = enabled; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *createPayeeEditor(QWidget *parent) const;
    QWidget *createCategoryEditor(QWidget *parent) const;
    void completePayee(RegisterLineEdit *editor) const;
    void onPayeeCompleted(RegisterLineEdit *editor, const QString &payee) const;
    void fillInsertionRow(const QString &payee) const;
    void takeCategory(const QComboBox &combo, const QModelIndex &index) const;

    AppState *m_appState;
    RegisterModel *m_model;
    QString m_accountId;
    bool m_twoLineMode = false;
};
