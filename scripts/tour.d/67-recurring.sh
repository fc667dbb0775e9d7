# shellcheck shell=bash
# Two rows become templates. The next start posts what the one missed; the other is confirmed by
# hand.

gym='Gym "%1" 😀'

chapter_recurring() {
  memorize_rows
  quit_program
  sql "UPDATE recurring_transactions SET next_due_date = date('now', 'localtime', '-14 days')
       WHERE auto_post"
  mark_all_synced
  set_preference theme dark
  start_program
  picture auto-posted
  expect_posted_rows
  confirm_by_hand
}

memorize_rows() {
  press alt+1
  date_keys t
  type_row - - "$gym" "Personal Care" "dues of %1" 45 - -
  wait_for_rows 51
  press Up ctrl+m
  wait_for_window "Memorize Transaction"
  press Tab Tab Tab Tab w # Frequency
  press Tab Tab Tab Tab Tab space # past three parts of the date to Auto-post
  picture memorize-form
  press Return
  wait_for_window "$main_title"
  wait_for_answer 4 "SELECT COUNT(*) FROM recurring_transactions"
  press alt+1 Up Up ctrl+m # the split payment
  wait_for_window "Memorize Transaction"
  press Tab Tab Tab Tab w
  press Return
  wait_for_window "$main_title"
  wait_for_answer 5 "SELECT COUNT(*) FROM recurring_transactions"
  picture memorized
  expect_rows "the memorized templates" "
    SELECT r.payee, r.memo, r.amount, ifnull(c.name, ''), r.frequency, r.auto_post, r.is_active,
           r.start_date = date('now', 'localtime'), r.next_due_date = r.start_date, r.version,
           r.sync_status
    FROM recurring_transactions r LEFT JOIN categories c ON c.id = r.category_id
    WHERE r.id NOT LIKE 'sample-%' ORDER BY r.payee" <<ROWS
$gym | dues of %1 | -4500 | Personal Care | weekly | 1 | 1 | 1 | 1 | 1 | pending
$grocer |  | -12000 |  | weekly | 0 | 1 | 1 | 1 | 1 | pending
ROWS
}

expect_posted_rows() {
  expect_rows "the posted rows" "
    SELECT julianday(t.date) - julianday('now', 'localtime', 'start of day'), t.memo, t.amount,
           c.name, a.name, t.cleared, $(fresh t)
    FROM transactions t JOIN recurring_transactions r ON r.id = t.recurring_id
    JOIN accounts a ON a.id = t.account_id JOIN categories c ON c.id = t.category_id
    WHERE t.payee = '$gym' AND r.payee = t.payee ORDER BY t.date" <<'ROWS'
-14.0 | dues of %1 | -4500 | Personal Care | Main Checking | 0 | 1
-7.0 | dues of %1 | -4500 | Personal Care | Main Checking | 0 | 1
0.0 | dues of %1 | -4500 | Personal Care | Main Checking | 0 | 1
ROWS
  expect_next_due "after the start" <<ROWS
$gym | 7.0 | 1
$grocer | 0.0 | 0
ROWS
  wait_for_rows 54
}

expect_next_due() {
  expect_rows "the next dates $1" "
    SELECT payee, julianday(next_due_date) - julianday('now', 'localtime', 'start of day'),
           $(fresh recurring_transactions)
    FROM recurring_transactions WHERE id NOT LIKE 'sample-%' ORDER BY payee"
}

confirm_by_hand() {
  press alt+v Escape Escape # a menu puts the message of the status bar away
  picture due-in-the-status-bar
  press ctrl+3
  wait_for_window "Recurring Transactions"
  picture recurring-window
  press Tab Tab ctrl+Home Menu
  picture recurring-menu
  press c
  wait_for_rows 55
  picture recurring-confirmed
  expect_next_due "after the confirmation" <<ROWS
$gym | 7.0 | 1
$grocer | 7.0 | 1
ROWS
  expect_rows "the confirmed row" "
    SELECT date = date('now', 'localtime'), amount, ifnull(category_id, ''), is_split, sync_status
    FROM transactions WHERE payee = '$grocer' AND recurring_id IS NOT NULL" <<<"1 | -12000 |  | 0 | pending"
  close_window "$main_title"
  picture nothing-due
}
