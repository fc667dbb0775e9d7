# shellcheck shell=bash
# A payee gets a new name, and two become one.

chapter_payees() {
  press alt+a p
  wait_for_window "Payee Management"
  rename_payee
  refuse_merge_of_one
  merge_payees
  close_window "$main_title"
  press alt+1
  picture payees-in-the-register
}

rename_payee() {
  go_to_payee "$gym"
  press Tab
  type_text 'Turnhalle é "%2" 😀'
  picture payee-to-rename
  press Tab space
  wait_for_window "Rename Complete"
  picture payee-renamed
  press Return
  wait_for_window "Payee Management"
  expect_rows "the renamed rows" "
    SELECT payee, COUNT(*), MAX(version), MIN(sync_status),
           SUM(updated_at GLOB '20[0-9][0-9]-[0-1][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-5][0-9]')
    FROM transactions WHERE payee = 'Turnhalle é \"%2\" 😀' OR payee = '$gym' GROUP BY payee" \
    <<<'Turnhalle é "%2" 😀 | 4 | 1 | pending | 4'
  wait_for_answer 1 "SELECT COUNT(*) FROM recurring_transactions WHERE payee = '$gym'"
}

refuse_merge_of_one() {
  press Tab space
  wait_for_window "Merge"
  picture merge-refused
  press Return
  wait_for_window "Payee Management"
}

# Into a third name. The greengrocer stands at the end of the list.
merge_payees() {
  press shift+Tab shift+Tab shift+Tab
  go_to_payee 'Greenleaf Market'
  press ctrl+End ctrl+space Tab
  replace_text 'Corner "100%1"'
  press Tab Tab
  picture payees-to-merge
  press space
  wait_for_window "Merge Payees"
  picture merge-question
  press alt+y
  wait_for_window "Merge Complete"
  picture merge-complete
  press Return
  wait_for_window "Payee Management"
  picture payees-merged
  expect_rows "the merged rows" "
    SELECT payee, COUNT(*), SUM(amount), MIN(sync_status) FROM transactions
    WHERE payee IN ('Greenleaf Market', '$grocer', 'Corner \"100%1\"') GROUP BY payee" \
    <<<'Corner "100%1" | 9 | -89650 | pending'
}

# go_to_payee <name>: down the list, which is sorted as the database sorts.
go_to_payee() {
  local above
  above=$(sql "SELECT COUNT(DISTINCT payee) FROM transactions
               WHERE deleted_at IS NULL AND payee < '$1'")
  press Home
  while [ "$above" -gt 0 ]; do
    press Down
    above=$((above - 1))
  done
}
