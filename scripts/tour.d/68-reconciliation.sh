# shellcheck shell=bash
# The checking account is reconciled with a statement, with the keyboard alone.

chapter_reconciliation() {
  press alt+1 ctrl+r
  wait_for_window "Reconcile — Main Checking"
  replace_text 11820.46 # a cent too much
  press shift+Tab t Tab
  picture reconcile-started
  press Tab Tab ctrl+Home
  tick_rows
  add_fee
  correct_prescription
  delete_fuel
  picture reconcile-a-cent-off
  # The gate: the button is passed by, and the statement's figure has the focus instead.
  press shift+Tab shift+Tab space
  replace_text 11820.45
  picture reconcile-agrees
  wait_for_answer 0 "SELECT COUNT(*) FROM reconciliations"
  press Tab space
  wait_for_window "Reconciliation Complete"
  picture reconcile-complete
  press Return
  wait_for_window "$main_title"
  picture reconciled-register
  expect_reconciliation
  look_at_history
}

# Of the rows that had not cleared before: both dues, the groceries of last week and the paycheck.
tick_rows() {
  press Down Down Down Down Down Down Down Down space
  press Down Down Down c
  press Down r
  press Down space
}

add_fee() {
  press Insert
  wait_for_window "New Transaction"
  type_text 'Café "%1" & Co.'
  press Tab
  type_text 3.50
  press Tab Tab Tab Tab Tab space # Cleared
  picture reconcile-add
  press Return
  wait_for_window "Reconcile — Main Checking"
  wait_for_rows 56
}

correct_prescription() {
  press Down F2
  wait_for_window "Edit Transaction"
  press Tab
  type_text 35.25
  press Return
  wait_for_window "Reconcile — Main Checking"
  wait_for_answer -3525 "SELECT amount FROM transactions WHERE payee = 'Ridgeline Pharmacy'"
  press space
}

delete_fuel() {
  press Down Delete
  wait_for_window "Delete Transaction"
  picture reconcile-delete-question
  press alt+y
  wait_for_window "Reconcile — Main Checking"
  wait_for_rows 55
}

expect_reconciliation() {
  expect_rows "the record of the reconciliation" "
    SELECT a.name, r.statement_date = date('now', 'localtime'), r.statement_balance,
           r.reconciled_balance, r.version, $(fresh r),
           r.completed_at = r.updated_at
    FROM reconciliations r JOIN accounts a ON a.id = r.account_id" \
    <<<"Main Checking | 1 | 1182045 | 1182045 | 1 | 1 | 1"
  expect_rows "the rows that were ticked" "
    SELECT payee, amount, cleared, version FROM transactions
    WHERE reconciled AND $(fresh transactions) AND account_id = 'sample-acct-checking'
    ORDER BY date, created_at" <<ROWS
Pinecrest Apartments | -145000 | 1 | 1
Greenleaf Market | -10120 | 1 | 1
Hilltop Gas | -4100 | 1 | 1
NetConnect ISP | -7999 | 1 | 1
Lakeside Utilities | -10870 | 1 | 1
Brightpath Inc | 285000 | 1 | 1
Greenleaf Market | -8890 | 1 | 1
Streamline TV | -1599 | 1 | 1
$gym | -4500 | 1 | 1
Maplewood Diner | -2340 | 1 | 1
Hilltop Gas | -4250 | 1 | 1
Greenleaf Market | -11540 | 1 | 1
$gym | -4500 | 1 | 1
Brightpath Inc | 285000 | 1 | 1
Ridgeline Pharmacy | -3525 | 1 | 1
Café "%1" & Co. | -350 | 1 | 1
ROWS
  expect_rows "the balance of the reconciled rows" "
    SELECT a.starting_balance + SUM(t.amount), SUM(t.cleared) = COUNT(*)
    FROM transactions t JOIN accounts a ON a.id = t.account_id
    WHERE t.reconciled AND t.deleted_at IS NULL AND a.id = 'sample-acct-checking'" \
    <<<"1182045 | 1"
  expect_rows "the rows that were left open" "
    SELECT payee, amount, cleared, sync_status FROM transactions
    WHERE NOT reconciled AND deleted_at IS NULL AND account_id = 'sample-acct-checking'
    ORDER BY date, payee, sync_status" <<ROWS
Greenleaf Market | -9475 | 0 | synced
Maplewood Diner | -1285 | 0 | synced
$gym | -4500 | 0 | pending
$gym | -4500 | 0 | synced
Transfer to Savings | -50000 | 0 | synced
$grocer | -12000 | 0 | pending
$grocer | -12000 | 0 | synced
ROWS
  expect_rows "the deleted row" "
    SELECT payee, amount, $(fresh transactions) FROM transactions WHERE deleted_at IS NOT NULL" \
    <<<"Hilltop Gas | -4680 | 1"
}

look_at_history() {
  press alt+a h
  wait_for_window "Reconciliation History"
  picture reconciliation-history
  close_window "$main_title"
}
