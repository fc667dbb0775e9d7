#include "services/ImportProgress.h"

#include <QCoreApplication>

#include <utility>

namespace {
constexpr int kStep = 100; // records
constexpr int kPaintingMs = 5;
}

ImportProgress::ImportProgress(int total, Report report)
    : m_total(total)
    , m_report(std::move(report))
{
}

void ImportProgress::next()
{
    if (++m_current % kStep != 0)
        return;
    m_report(m_current, m_total);
    letWindowsPaint();
}

void ImportProgress::finish() const
{
    m_report(m_total, m_total);
}

void ImportProgress::letWindowsPaint()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kPaintingMs);
}
