#pragma once

#include <QDate>
#include <QLineEdit>

// The line edit for dates in forms and dialogs. Starts on today.
class DateField : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateField(QWidget *parent = nullptr);

    // The date that the current text means, or the last accepted date when it means none.
    QDate date() const;
    void setDate(QDate date);

Q_SIGNALS:
    void dateChanged(QDate date); // only when the accepted date really changes

public Q_SLOTS:
    void openCalendarPopup();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QDate m_date;
};
