# shellcheck shell=bash
# A first start: the welcome page, and two accounts made with the keyboard.

chapter_accounts() {
  start_program
  picture welcome
  add_account Checking "Chec" 1250 "01Sep2026" "Harbor Bank" 4417
  wait_for_answer 1 "SELECT COUNT(*) FROM accounts"
  picture first-account
  add_account Savings "Sav" "" "" "" ""
  wait_for_answer 2 "SELECT COUNT(*) FROM accounts"
  picture second-account
  expect_rows "the accounts" "
    SELECT name, account_type, currency, starting_balance, institution, account_number_last4,
           version, sync_status FROM accounts ORDER BY created_at, rowid" <<'ROWS'
Checking | checking | USD | 0 | Harbor Bank | 4417 | 1 | pending
Savings | savings | USD | 0 |  |  | 1 | pending
ROWS
  expect_rows "the opening balance" "$(register_of Checking)" <<'ROWS'
2026-09-01 |  | Opening Balance |  | 125000 |  | R | 125000 | 
ROWS
  expect_rows "the default categories" "
    SELECT COUNT(*), COUNT(parent_id), SUM(is_tax_relevant) FROM categories" <<'ROWS'
56 | 27 | 12
ROWS
}

# add_account <name> <type> <balance> <as of> <institution> <number> [currency]: the fields of the
# form; an empty one is left as it is.
add_account() {
  press ctrl+shift+n
  wait_for_window "New Account"
  type_text "$1"
  press Tab
  type_text "$2"
  press Tab
  [ -z "${7:-}" ] || type_text "$7"
  press Tab
  [ -z "$3" ] || type_text "$3"
  press Tab
  [ -z "$4" ] || type_text "$4"
  press Tab
  [ -z "$5" ] || type_text "$5"
  press Tab
  [ -z "$6" ] || type_text "$6"
  picture "account-form-$1"
  press Return
  wait_for_window "$main_title"
}
