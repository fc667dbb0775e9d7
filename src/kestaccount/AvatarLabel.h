#pragma once

#include <QLabel>

namespace KestAccount {

// Upper-case; "?" when both are empty. A letter is what a person takes for one, such as an emoji.
QString initials(const QString &name, const QString &email);

// A person's initials on a disc.
class AvatarLabel : public QLabel
{
    Q_OBJECT

public:
    AvatarLabel(const QString &name, const QString &email, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColor();
};

} // namespace KestAccount
