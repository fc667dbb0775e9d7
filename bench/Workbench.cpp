#include "Workbench.h"

using namespace Qt::StringLiterals;

Workbench::Workbench(BenchDatabase::Shape shape)
    : m_files(shape, m_directory.path())
    , m_plain(m_files.path())
{
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    openState();
}

void Workbench::closeState()
{
    m_state.reset();
}

void Workbench::openState()
{
    m_state = std::make_unique<AppState>();
    if (!m_state->initialize())
        qFatal("bench database: not opened");
}

Workbench &workbench(BenchDatabase::Shape shape)
{
    static std::unique_ptr<Workbench> bench;
    static BenchDatabase::Shape current{};
    if (!bench || current != shape) {
        bench.reset();
        bench = std::make_unique<Workbench>(shape);
        current = shape;
    }
    return *bench;
}
