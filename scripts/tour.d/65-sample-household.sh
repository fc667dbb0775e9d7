# shellcheck shell=bash
# A developer loads the sample data into an empty household, which the chapters after this one use.

chapter_sample_household() {
  new_household household
  export PURSEWELL_DEV=1
  start_program
  press alt+h
  picture developer-menu
  press s
  wait_for_rows 49
  picture sample-data-loaded
  press alt+h s
  wait_for_window "Sample Data"
  picture sample-data-twice
  press Return
  wait_for_window "$main_title"
  press alt+1
  picture sample-register
  expect_sample_accounts
  expect_sample_templates
}

expect_sample_accounts() {
  expect_rows "the sample accounts" "
    SELECT a.name, a.account_type, a.starting_balance + SUM(t.amount), COUNT(*),
           SUM(t.cleared AND t.reconciled), SUM(t.cleared), COUNT(c.id),
           julianday(MIN(t.date)) - julianday('now', 'localtime', 'start of day'),
           julianday(MAX(t.date)) - julianday('now', 'localtime', 'start of day')
    FROM transactions t JOIN accounts a ON a.id = t.account_id
    LEFT JOIN categories c ON c.id = t.category_id
    GROUP BY a.id ORDER BY a.sort_order" <<'ROWS'
Main Checking | checking | 1125960 | 33 | 16 | 26 | 31 | -60.0 | 0.0
Savings | savings | 1101695 | 4 | 0 | 3 | 2 | -45.0 | 0.0
Visa Rewards | credit_card | -3839 | 12 | 0 | 7 | 10 | -55.0 | -2.0
ROWS
}

expect_sample_templates() {
  expect_rows "the sample templates" "
    SELECT r.payee, r.amount, ifnull(c.name, ''), r.frequency, r.auto_post, r.is_active,
           julianday(r.next_due_date) - julianday('now', 'localtime', 'start of day')
    FROM recurring_transactions r LEFT JOIN categories c ON c.id = r.category_id
    ORDER BY r.payee" <<'ROWS'
Brightpath Inc | 285000 | Salary / Wages | biweekly | 0 | 1 | 8.0
Pinecrest Apartments | -145000 | Rent/Mortgage Payment | monthly | 0 | 1 | 1.0
Transfer to Savings | -50000 |  | monthly | 0 | 1 | 1.0
ROWS
}
