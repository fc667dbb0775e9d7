#pragma once

#include <QWidget>

class QAbstractButton;
class QHBoxLayout;

namespace KestAccount {

// A person in a list: avatar, name and address, and one button at the right end.
class PersonRow : public QWidget
{
    Q_OBJECT

public:
    // The name, else the address stands first; the address below it only when that differs. Without
    // either the fallback is shown.
    PersonRow(const QString &name, const QString &email, const QString &fallback,
              QWidget *parent = nullptr);

    QString primaryText() const { return m_primaryText; }
    void addButton(QAbstractButton *button);

private:
    QString m_primaryText;
    QHBoxLayout *m_layout;
};

} // namespace KestAccount
