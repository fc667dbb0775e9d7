#pragma once

#include <QScrollArea>

class QVBoxLayout;

// A page of the preferences: a heading over sections, scrolling where the window is too small.
class SettingsPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsPage(const QString &heading, const QString &description = {});

    QVBoxLayout *column() const { return m_column; } // where the sections go

private:
    QVBoxLayout *m_column;
};
