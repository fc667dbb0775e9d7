# shellcheck shell=bash
# The program is killed in the middle of typing. Every saved row is there afterwards.

chapter_crash() {
  local before
  start_program
  press alt+1
  date_keys t
  type_row - 103 "Maple Market" Groceries "saved a moment before" 17.05 - -
  wait_for_rows 22
  before=$(dump_household)
  date_keys t
  press Return Return
  type_text "never sa"
  picture killed-while-typing
  kill_program
  start_program
  picture after-the-kill
  expect_same_household "after the kill" "$before"
  expect_rows "the row saved before the kill" "
    SELECT payee, memo, amount FROM transactions WHERE check_number = '103'" <<'ROWS'
Maple Market | saved a moment before | -1705
ROWS
  expect_rows "the row that was being typed" "
    SELECT COUNT(*) FROM transactions WHERE payee LIKE 'never%'" <<<"0"
  quit_program
}
