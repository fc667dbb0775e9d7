#pragma once

#include "services/ImportProgress.h"

#include <QElapsedTimer>

// Tells how many rows are done, and lets the windows be painted, about ten times a second.
class BackupProgress
{
public:
    BackupProgress(int total, ImportProgress::Report report);

    void next(); // another row is done
    void pause(); // where a row takes long
    void finish() const;

private:
    int m_total;
    int m_done = 0;
    ImportProgress::Report m_report;
    QElapsedTimer m_sinceReport{};
};
