# shellcheck shell=bash
# A bank's statement as CSV, with commas, quotes and line breaks inside its fields.

chapter_import_csv() {
  open_import
  press Left # and the first account is the one
  choose_file "Select File" "$old_files/bank.csv"
  press Tab Tab Tab Tab Down Down Down Down # memo
  press Tab Down Down Down Down Down # category
  picture import-csv-mapping
  press shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab
  press_import
  wait_for_rows "$(ledger_rows 1)"
  picture import-csv-summary
  expect_household "after the statement" 1
  press space
  wait_for_window "$main_title"
  press alt+1
  picture imported-csv
}
