#pragma once

#include <QListWidget>

// The list of the pages of the preferences.
class SettingsNavigation : public QListWidget
{
    Q_OBJECT

public:
    explicit SettingsNavigation(QWidget *parent = nullptr);

    void applyTheme(); // its colours and icons do not follow the palette by themselves

protected:
    void changeEvent(QEvent *event) override;

private:
    void fitToFont();
};
