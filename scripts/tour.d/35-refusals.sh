# shellcheck shell=bash
# What is refused leaves nothing behind, and an account goes with all its rows.

chapter_refusals() {
  local before
  before=$(dump_household)
  refuse_incomplete_rows
  expect_same_household "after refused rows" "$before"
  refuse_mixed_currencies
  delete_account
  rename_account
  look_at_menus
}

refuse_incomplete_rows() {
  press alt+1
  date_keys
  replace_text 9/17/2026
  press ctrl+Return
  picture refused-without-payee
  press alt+1
  type_row 9/17/2026 - "Nobody's Shop" - - - - -
  picture refused-without-amount
  press alt+1
  type_row 9/17/2026 - "[Transfer] Nowhere" - - 5 - -
  picture refused-without-account
}

# Travel is kept in euros: no transfer between it and Checking.
refuse_mixed_currencies() {
  add_account Travel "Cash" 75.50 "" "" "" EUR
  wait_for_rows 20
  press alt+1
  type_row 9/17/2026 - "[Transfer] Travel" - - 5 - -
  picture refused-currencies
  press alt+3
  type_row 9/16/2026 - "Bistro de la Gare" - - 3.20 - -
  wait_for_rows 21
  picture euro-account
}

delete_account() {
  press alt+a
  picture account-menu
  press d
  wait_for_window "Delete Account"
  picture delete-account-question
  press alt+y
  wait_for_window "$main_title"
  wait_for_rows 19
  wait_for_answer 0 "SELECT COUNT(*) FROM accounts WHERE name = 'Travel' AND deleted_at IS NULL"
  picture account-deleted
  expect_rows "the rows that went with the account" "
    SELECT t.payee, t.amount, t.cleared FROM transactions t JOIN accounts a ON a.id = t.account_id
    WHERE a.name = 'Travel' AND t.deleted_at IS NOT NULL ORDER BY t.amount" <<'ROWS'
Bistro de la Gare | -320 | 0
Opening Balance | 7550 | 1
ROWS
}

rename_account() {
  press alt+2
  press alt+a e
  wait_for_window "Edit Account"
  replace_text "Savings & Co."
  press Return
  wait_for_window "$main_title"
  wait_for_answer 1 "SELECT COUNT(*) FROM accounts WHERE name = 'Savings & Co.'"
  picture account-renamed
  press alt+a e
  wait_for_window "Edit Account"
  replace_text Savings
  press Return
  wait_for_window "$main_title"
  wait_for_answer 1 "SELECT COUNT(*) FROM accounts WHERE name = 'Savings'"
}

look_at_menus() {
  press alt+f
  picture file-menu
  press Escape Escape
  press alt+h
  picture help-menu
  press k
  wait_for_window "Keyboard Shortcuts"
  picture shortcuts-box
  press Return
  wait_for_window "$main_title"
  press alt+h a
  wait_for_window "About $main_title"
  picture about-box
  press Return
  wait_for_window "$main_title"
  press alt+1 Return F4
  picture calendar
  press Escape Escape
  right_click_date_header
  picture header-menu
  press Escape
  right_click 120 50
  picture sidebar-menu
  press Escape
}
