# shellcheck shell=bash
# After another start: the same household, and its windows in a large font.

chapter_large_windows() {
  local before
  quit_program
  before=$(dump_household)
  set_preference theme light
  set_preference fontScale 130
  start_program
  press alt+1
  picture large-register
  look_at_form
  look_at_windows
  quit_program
  set_preference theme light
  expect_same_household "after looking around" "$before"
  unset PURSEWELL_DEV
}

look_at_form() {
  press ctrl+n
  wait_for_window "New Transaction"
  type_text Corner
  press Down Return # the completion fills the form
  press Tab Tab Tab
  picture large-form
  press space
  wait_for_window "Split Transaction"
  picture large-split-editor
  press Escape
  wait_for_window "New Transaction"
  press Escape
  wait_for_window "$main_title"
  press alt+1 Up ctrl+m
  wait_for_window "Memorize Transaction"
  picture large-memorize-form
  press Escape
  wait_for_window "$main_title"
}

look_at_windows() {
  press ctrl+3
  wait_for_window "Recurring Transactions"
  picture large-recurring
  close_window "$main_title"
  press ctrl+r
  wait_for_window "Reconcile — Main Checking"
  press Tab Tab Down space
  picture large-reconciliation
  close_window "$main_title"
  press alt+a h
  wait_for_window "Reconciliation History"
  picture large-history
  close_window "$main_title"
  press alt+a p
  wait_for_window "Payee Management"
  picture large-payees
  close_window "$main_title"
  press ctrl+4
  wait_for_window "Categories"
  type_text inc
  picture large-categories
  press Tab space
  wait_for_window "New Category"
  picture large-category-form
  press Escape
  wait_for_window "Categories"
  close_window "$main_title"
}
