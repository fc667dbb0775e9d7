# shellcheck shell=bash
# Rows are corrected, deleted, marked and sorted.

chapter_corrections() {
  press alt+1
  correct_amount
  delete_row
  mark_rows
  delete_transfer
  sort_newest_first
  expect_corrections
}

correct_amount() {
  go_to_cell 11 5 # City Electric, Payment
  press Return
  replace_text 62.51
  press ctrl+Return
  wait_for_answer "-6251 | 2" "SELECT amount, version FROM transactions WHERE payee = 'City Electric'"
}

delete_row() {
  press alt+1
  go_to_cell 3 0 # Parking Garage
  press Return ctrl+d # from inside an editor, where X11 has a use of its own for the key
  wait_for_window "Delete Transaction"
  picture delete-question
  press alt+y
  wait_for_window "$main_title"
  wait_for_rows 18
}

mark_rows() {
  press alt+1
  go_to_cell 11 7 # Maple Market of the fourth, Clr
  press Return
  replace_text c
  press Return
  wait_for_answer 1 "SELECT cleared FROM transactions WHERE amount = -8437"
  press alt+1
  go_to_cell 3 2 # State Treasury
  press Menu
  picture row-menu
  press c
  wait_for_answer "1 | 1" "SELECT cleared, version FROM transactions WHERE payee = 'State Treasury'"
}

# Both sides of a transfer go with one of them.
delete_transfer() {
  press alt+2
  type_row 9/14/2026 - "[Transfer] Checking" - "a mistake" - 75 -
  wait_for_rows 20
  press Up ctrl+d
  wait_for_window "Delete Transaction"
  picture delete-transfer-question
  press alt+y
  wait_for_window "$main_title"
  wait_for_rows 18
}

sort_newest_first() {
  press alt+1
  click_date_header 1
  press alt+1
  picture newest-first
  date_keys t
  type_row - - "Corner Bakery" - - 3.10 - -
  wait_for_rows 19
  picture newest-first-typed
}

expect_corrections() {
  expect_rows "the corrected rows of Checking" "$(register_of Checking) LIMIT 14" <<'ROWS'
2026-09-01 |  | Opening Balance |  | 125000 |  | R | 125000 | 
2026-09-01 | 101 | Oak Street Properties | September rent | -115000 | Housing > Rent/Mortgage Payment |  | 10000 | 
2026-09-01 |  | Harbor Bank | statement copy | -400 | Fees & Charges > Bank Fees |  | 9600 | 
2026-09-02 |  | Brightwater Studios | paid by the 2nd | 240000 | Salary / Wages | C | 249600 | 
2026-09-04 |  | Maple Market | weekly shopping | -8437 | Groceries | C | 241163 | 
2026-09-05 |  | City Electric | meter 4417 | -6251 | Utilities > Electric |  | 234912 | 
2026-09-08 |  | Maple Market | weekly shopping | -9102 | Groceries |  | 225810 | 
2026-09-10 |  | Transfer to Savings | rainy day | -30000 |  |  | 195810 | Savings
2026-09-11 | 102 | Dr. O'Brien |  | -4500 | Medical Expenses |  | 191310 | 
2026-09-11 |  | Dr. O'Brien |  | -2000 | Medical Expenses |  | 189310 | 
2026-09-13 |  | Transfer from Savings |  | 5000 |  |  | 194310 | Savings
2026-09-15 |  | Gas 'n Go |  | -3820 | Transportation > Gas/Fuel |  | 190490 | 
2026-09-18 |  | State Treasury | tax of last year | 31055 | Refunds | C | 221545 | 
2026-09-30 |  | Harbor Bank |  | 107 | Interest Income |  | 221652 | 
ROWS
  expect_rows "both sides of the deleted transfer" "
    SELECT a.name, t.amount, t.sync_status FROM transactions t
    JOIN accounts a ON a.id = t.account_id
    WHERE t.date = '2026-09-14' AND t.deleted_at IS NOT NULL ORDER BY a.name" <<'ROWS'
Checking | -7500 | pending
Savings | 7500 | pending
ROWS
  expect_rows "the row filled from its payee and typed over" "
    SELECT t.amount, t.memo, c.name, t.cleared FROM transactions t
    JOIN categories c ON c.id = t.category_id
    WHERE t.payee = 'Corner Bakery' ORDER BY t.created_at, t.rowid" <<'ROWS'
-675 | 100% rye, "small" | Dining & Restaurants | 1
-310 | 100% rye, "small" | Dining & Restaurants | 0
ROWS
}
