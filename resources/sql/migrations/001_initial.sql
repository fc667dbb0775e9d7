-- Ids are text made by the writer of a row. Amounts are integer minor units. Dates are text
-- yyyy-MM-dd, time stamps text yyyy-MM-ddTHH:mm:ssZ. Booleans are 0 and 1.
--
-- The runner takes this file apart by lines: a statement ends at a line that ends in a semicolon,
-- a trigger begins with a line that ends in BEGIN and ends at its own line END.

CREATE TABLE IF NOT EXISTS accounts (
    id                   TEXT PRIMARY KEY,
    name                 TEXT NOT NULL,
    account_type         TEXT NOT NULL DEFAULT 'checking',
    currency             TEXT NOT NULL DEFAULT 'USD',
    institution          TEXT,
    account_number_last4 TEXT,
    starting_balance     INTEGER NOT NULL DEFAULT 0,
    sort_order           INTEGER NOT NULL DEFAULT 0,
    is_shared            INTEGER NOT NULL DEFAULT 0,
    version              INTEGER NOT NULL DEFAULT 1,
    sync_status          TEXT NOT NULL DEFAULT 'pending',
    server_id            TEXT,
    created_at           TEXT NOT NULL,
    updated_at           TEXT NOT NULL,
    deleted_at           TEXT
);

CREATE TABLE IF NOT EXISTS categories (
    id              TEXT PRIMARY KEY,
    name            TEXT NOT NULL,
    category_type   TEXT NOT NULL DEFAULT 'expense',
    parent_id       TEXT REFERENCES categories(id),
    is_tax_relevant INTEGER NOT NULL DEFAULT 0,
    tax_category    TEXT,
    icon            TEXT,
    color           TEXT,
    is_default      INTEGER NOT NULL DEFAULT 0,
    account_id      TEXT,
    version         INTEGER NOT NULL DEFAULT 1,
    sync_status     TEXT NOT NULL DEFAULT 'pending',
    server_id       TEXT,
    created_at      TEXT NOT NULL,
    updated_at      TEXT NOT NULL,
    deleted_at      TEXT
);

CREATE TABLE IF NOT EXISTS transactions (
    id                       TEXT PRIMARY KEY,
    account_id               TEXT NOT NULL REFERENCES accounts(id),
    date                     TEXT NOT NULL,
    payee                    TEXT NOT NULL,
    memo                     TEXT,
    amount                   INTEGER NOT NULL,
    category_id              TEXT REFERENCES categories(id),
    check_number             TEXT,
    cleared                  INTEGER NOT NULL DEFAULT 0,
    reconciled               INTEGER NOT NULL DEFAULT 0,
    transfer_link_id         TEXT,
    transfer_dest_account_id TEXT,
    is_split                 INTEGER NOT NULL DEFAULT 0,
    recurring_id             TEXT,
    version                  INTEGER NOT NULL DEFAULT 1,
    sync_status              TEXT NOT NULL DEFAULT 'pending',
    server_id                TEXT,
    created_at               TEXT NOT NULL,
    updated_at               TEXT NOT NULL,
    deleted_at               TEXT
);

CREATE INDEX IF NOT EXISTS idx_transactions_account_id ON transactions(account_id);
CREATE INDEX IF NOT EXISTS idx_transactions_date ON transactions(date);
CREATE INDEX IF NOT EXISTS idx_transactions_category_id ON transactions(category_id);
CREATE INDEX IF NOT EXISTS idx_transactions_transfer_link_id ON transactions(transfer_link_id);
CREATE INDEX IF NOT EXISTS idx_transactions_sync_status ON transactions(sync_status);

-- Holds no text of its own. A soft delete is an update, so soft-deleted rows stay in the index and
-- a search has to filter on deleted_at.
CREATE VIRTUAL TABLE IF NOT EXISTS transactions_fts USING fts5(
    payee, memo, check_number, content='transactions', content_rowid='rowid'
);

CREATE TRIGGER IF NOT EXISTS transactions_ai AFTER INSERT ON transactions BEGIN
    INSERT INTO transactions_fts(rowid, payee, memo, check_number) VALUES (new.rowid, new.payee, new.memo, new.check_number);
END;

CREATE TRIGGER IF NOT EXISTS transactions_ad AFTER DELETE ON transactions BEGIN
    INSERT INTO transactions_fts(transactions_fts, rowid, payee, memo, check_number) VALUES ('delete', old.rowid, old.payee, old.memo, old.check_number);
END;

CREATE TRIGGER IF NOT EXISTS transactions_au AFTER UPDATE ON transactions BEGIN
    INSERT INTO transactions_fts(transactions_fts, rowid, payee, memo, check_number) VALUES ('delete', old.rowid, old.payee, old.memo, old.check_number);
    INSERT INTO transactions_fts(rowid, payee, memo, check_number) VALUES (new.rowid, new.payee, new.memo, new.check_number);
END;

CREATE TABLE IF NOT EXISTS split_lines (
    id             TEXT PRIMARY KEY,
    transaction_id TEXT NOT NULL REFERENCES transactions(id),
    category_id    TEXT NOT NULL REFERENCES categories(id),
    amount         INTEGER NOT NULL,
    memo           TEXT,
    created_at     TEXT NOT NULL,
    updated_at     TEXT NOT NULL
);

CREATE INDEX IF NOT EXISTS idx_split_lines_transaction_id ON split_lines(transaction_id);

CREATE TABLE IF NOT EXISTS recurring_transactions (
    id                       TEXT PRIMARY KEY,
    account_id               TEXT NOT NULL REFERENCES accounts(id),
    payee                    TEXT NOT NULL,
    memo                     TEXT,
    amount                   INTEGER NOT NULL,
    category_id              TEXT REFERENCES categories(id),
    frequency                TEXT NOT NULL DEFAULT 'monthly',
    start_date               TEXT NOT NULL,
    end_date                 TEXT,
    next_due_date            TEXT NOT NULL,
    auto_post                INTEGER NOT NULL DEFAULT 0,
    is_active                INTEGER NOT NULL DEFAULT 1,
    transfer_dest_account_id TEXT,
    version                  INTEGER NOT NULL DEFAULT 1,
    sync_status              TEXT NOT NULL DEFAULT 'pending',
    server_id                TEXT,
    created_at               TEXT NOT NULL,
    updated_at               TEXT NOT NULL,
    deleted_at               TEXT
);

CREATE TABLE IF NOT EXISTS reconciliations (
    id                 TEXT PRIMARY KEY,
    account_id         TEXT NOT NULL REFERENCES accounts(id),
    statement_date     TEXT NOT NULL,
    statement_balance  INTEGER NOT NULL,
    reconciled_balance INTEGER NOT NULL,
    completed_at       TEXT NOT NULL
);

-- Reserved: no code reads or writes it.
CREATE TABLE IF NOT EXISTS transaction_templates (
    id           TEXT PRIMARY KEY,
    account_id   TEXT NOT NULL REFERENCES accounts(id),
    name         TEXT NOT NULL,
    payee        TEXT,
    amount       INTEGER,
    category_id  TEXT REFERENCES categories(id),
    memo         TEXT,
    check_number TEXT,
    is_payment   INTEGER NOT NULL DEFAULT 1,
    created_at   TEXT NOT NULL,
    updated_at   TEXT NOT NULL
);

-- Reserved: changes are tracked by sync_status, nothing is queued here.
CREATE TABLE IF NOT EXISTS sync_queue (
    id          INTEGER PRIMARY KEY AUTOINCREMENT,
    entity_type TEXT NOT NULL,
    entity_id   TEXT NOT NULL,
    action      TEXT NOT NULL,
    created_at  TEXT NOT NULL,
    processed   INTEGER NOT NULL DEFAULT 0
);

CREATE TABLE IF NOT EXISTS preferences (
    key   TEXT PRIMARY KEY,
    value TEXT
);
