#pragma once

#include "PlainSqlite.h"

#include "core/state/AppState.h"
#include "shell/MainWindow.h"

#include <QTemporaryDir>

#include <memory>

// A file to import and, as often as one asks for it, an empty register of ten accounts.
class ImportStage
{
public:
    enum class Format { Qif, Csv };

    ImportStage(Format format, int records);

    void openRegister(bool withWindow); // empty again, in place of the one before
    void import(); // with all that the window does in answer
    AppState *state() const { return m_state.get(); }

    // Another empty register beside it, and the rows of the last import written there.
    void openPlain();
    void readRows();
    void writeRows();

private:
    struct Values; // of one table, row by row
    QString path(const QString &name) const { return m_directory.filePath(name); }
    void makeEmptyRegister();
    void writeFile(int records);
    void copyEmpty(const QString &name);

    Format m_format;
    QTemporaryDir m_directory{};
    QStringList m_accountIds{};
    std::unique_ptr<AppState> m_state{};
    std::unique_ptr<MainWindow> m_window{};
    std::unique_ptr<PlainSqlite> m_plain{};
    std::vector<std::shared_ptr<Values>> m_tables{};
};
