# shellcheck shell=bash
# Words and filters find transactions; what is no expression finds none. Then all three windows once
# more on the dark palette.

chapter_search() {
  local before
  before=$(dump_household)
  press ctrl+f
  wait_for_window "Search Transactions"
  type_text "bakery town"
  picture search-words
  replace_text '"unfinished'
  picture search-no-expression
  replace_text "harbor"
  press Tab Down Down
  picture search-in-one-account
  press alt+F4
  wait_for_window "$main_title"
  quit_program
  expect_same_household "after searching" "$before"
  look_in_the_dark
}

look_in_the_dark() {
  set_preference theme dark
  start_program
  press ctrl+f
  wait_for_window "Search Transactions"
  type_text "electric"
  picture search-dark
  press alt+F4
  wait_for_window "$main_title"
  press ctrl+2
  wait_for_window "Reports"
  press Tab
  type_text "All"
  press Tab Tab Right Right Right
  picture reports-dark
  press alt+F4
  wait_for_window "$main_title"
  open_import
  choose_file "Select File" "$old_files/bank.csv"
  picture import-csv-dark
  press shift+Tab shift+Tab Right
  choose_file "Select QIF File(s)" "$old_files/old-cards.qif"
  picture import-qif-dark
  press_import
  picture import-summary-dark
  press space
  wait_for_window "$main_title"
  quit_program
}
