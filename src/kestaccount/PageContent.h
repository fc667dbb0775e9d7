#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace KestAccount {

class PageRow;

// What stands below the title of a page of the account screen, from top to bottom.
class PageContent : public QWidget
{
    Q_OBJECT

public:
    explicit PageContent(QWidget *parent = nullptr);

    void addSection(const QString &title, const QString &description = {});
    void addSeparator();
    void addLabel(QLabel *label);
    void addRow(PageRow *row);
    QPushButton *addButton(const QString &text, const QString &objectName);

private:
    QVBoxLayout *m_layout;
};

} // namespace KestAccount
