#pragma once

#include <functional>

// Tells how far an import has come, and lets the windows be painted meanwhile.
class ImportProgress
{
public:
    using Report = std::function<void(int current, int total)>;

    ImportProgress(int total, Report report);

    void next(); // another record begins
    void finish() const;

    // Handles what waits, but no key or click: what the person would change is being written.
    static void letWindowsPaint();

private:
    int m_total;
    int m_current = 0;
    Report m_report;
};
