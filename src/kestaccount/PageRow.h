#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace KestAccount {

// One entry of a list on an account page: lines of text, and badges and buttons at the right end.
class PageRow : public QWidget
{
    Q_OBJECT

public:
    explicit PageRow(QWidget *parent = nullptr);

    void addLine(QLabel *label);
    void addBadge(const QString &text, const QString &color);
    // The subject tells a screen reader which of the many buttons of that name it is.
    QPushButton *addButton(const QString &text, const QString &objectName, const QString &subject);

private:
    QHBoxLayout *m_layout;
    QVBoxLayout *m_lines;
};

} // namespace KestAccount
