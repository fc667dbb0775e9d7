#pragma once

#include "BenchDatabase.h"
#include "PlainSqlite.h"

#include "core/state/AppState.h"

#include <QTemporaryDir>

#include <memory>

// A bench database with the program's own objects on it, and a plain connection beside them.
class Workbench
{
public:
    explicit Workbench(BenchDatabase::Shape shape);

    AppState *state() { return m_state.get(); }
    void closeState(); // the state is null until openState()
    void openState();
    QString path() const { return m_files.path(); }
    PlainSqlite *plain() { return &m_plain; }
    QString accountId(int index) const { return m_files.accountIds().at(index); }

private:
    QTemporaryDir m_directory{};
    BenchDatabase m_files;
    std::unique_ptr<AppState> m_state{};
    PlainSqlite m_plain;
};

// The workbench of this shape. It takes the place of the other one, since the program has one
// connection.
Workbench &workbench(BenchDatabase::Shape shape);
