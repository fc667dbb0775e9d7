#include "services/BackupProgress.h"

#include <utility>

namespace {
constexpr int kReportEveryMs = 100;
}

BackupProgress::BackupProgress(int total, ImportProgress::Report report)
    : m_total(total)
    , m_report(std::move(report))
{
    m_sinceReport.start();
}

void BackupProgress::next()
{
    m_done = qMin(m_done + 1, m_total); // a row may be tried again
    pause();
}

void BackupProgress::pause()
{
    if (m_sinceReport.elapsed() < kReportEveryMs)
        return;
    m_report(m_done, m_total);
    ImportProgress::letWindowsPaint();
    m_sinceReport.start();
}

void BackupProgress::finish() const
{
    m_report(m_total, m_total);
}
