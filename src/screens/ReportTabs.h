#pragma once

#include <QTabWidget>

// Tabs whose titles take two lines where they have several words: all the reports stand side by
// side instead of half of them out of sight.
class ReportTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit ReportTabs(QWidget *parent = nullptr);
};
