# shellcheck shell=bash
# Each choice of the preferences takes effect as it is made; a deleted account comes back with what
# went with it.

chapter_preferences() {
  enter_household household
  set_preference theme light
  set_preference fontScale 100
  start_program
  press alt+1
  type_and_delete_row
  choose_look
  choose_register
  look_at_pages light
  open_preferences
  press Tab End
  wait_for_preference theme dark
  press shift+Tab
  look_at_pages dark
  lose_account
  bring_account_back
  quit_program
}

# enter_household <name>: one of an earlier chapter.
enter_household() {
  export PURSEWELL_DATA_DIR=$stage/$1 XDG_CONFIG_HOME=$stage/$1-config
}

# Ends on the list of pages, with the first page shown.
open_preferences() {
  press alt+e p
  wait_for_window "Preferences"
  press Home
}

wait_for_preference() {
  wait_for_answer "$2" "SELECT value FROM preferences WHERE key = '$1'"
}

# A row that is gone before its account is.
type_and_delete_row() {
  local rows
  rows=$(sql "SELECT COUNT(*) FROM transactions WHERE deleted_at IS NULL")
  date_keys t
  type_row - - "Gone before" - - 1 - -
  wait_for_rows $((rows + 1))
  press Up ctrl+d
  wait_for_window "Delete Transaction"
  press alt+y
  wait_for_window "$main_title"
  wait_for_rows "$rows"
}

choose_look() {
  open_preferences
  picture preferences-general
  press Tab End
  wait_for_preference theme dark
  picture preferences-theme-dark
  press Home Down # typed letters would go on from those typed just before
  wait_for_preference theme light
  press Tab
  press End
  wait_for_preference fontScale 150
  picture preferences-font-150
  look_at_large_pages
  press Home Down
  wait_for_preference fontScale 100
  press Tab
  type_text Sat
  wait_for_preference weekStartDay 6
  press shift+Tab shift+Tab shift+Tab
  close_window "$main_title"
}

# From the box of the font size and back.
look_at_large_pages() {
  press shift+Tab shift+Tab Down
  picture preferences-font-150-register
  press Down
  picture preferences-font-150-data
  press Down
  picture preferences-font-150-about
  press Home Tab Tab
}

choose_register() {
  open_preferences
  press Down Tab space
  wait_for_preference registerTwoLine 1
  picture preferences-two-lines
  press space
  wait_for_preference registerTwoLine 0
  press Tab space
  wait_for_preference registerNewestFirst 1
  picture preferences-newest-first
  close_window "$main_title"
  picture newest-first
  open_newest_page
  press space
  wait_for_preference registerNewestFirst 0
  press shift+Tab shift+Tab
  close_window "$main_title"
}

# The window comes back with the focus where it was.
open_newest_page() {
  press alt+e p
  wait_for_window "Preferences"
}

look_at_pages() {
  [ "$1" = dark ] || open_preferences
  press Down
  picture "preferences-register-$1"
  press Down
  picture "preferences-data-$1"
  press Down
  picture "preferences-about-$1"
  press Home
  close_window "$main_title"
}

# whole_rows <table> <left out>: the statement that gives all columns but those, by id.
whole_rows() {
  printf 'SELECT %s FROM %s ORDER BY id' \
    "$(sql "SELECT group_concat('quote(' || name || ')') FROM pragma_table_info('$1') WHERE name NOT IN ($2)")" "$1"
}

rows_of_accounts() {
  local table
  for table in accounts transactions recurring_transactions reconciliations; do
    printf '%s\n' "--- $table"
    sql "$(whole_rows "$table" "'updated_at', 'sync_status', 'version'")"
  done
}

lose_account() {
  rows_of_accounts >"$stage/rows-before"
  wait_for_answer 1 "SELECT julianday('now') - julianday(deleted_at) > 11.0 / 86400
                     FROM transactions WHERE payee = 'Gone before'"
  press alt+1 alt+a d
  wait_for_window "Delete Account"
  picture delete-account
  press alt+y
  wait_for_window "$main_title"
  wait_for_answer 1 "SELECT COUNT(*) FROM accounts WHERE deleted_at IS NOT NULL"
  expect_rows "what the account takes with it" "
    SELECT (SELECT COUNT(*) FROM transactions WHERE deleted_at IS NULL AND account_id = a.id),
           (SELECT COUNT(*) FROM recurring_transactions
            WHERE deleted_at IS NULL AND account_id = a.id),
           (SELECT COUNT(*) FROM reconciliations WHERE deleted_at IS NULL AND account_id = a.id)
    FROM accounts a WHERE deleted_at IS NOT NULL" <<<"0 | 0 | 0"
}

# From the list of pages past the two buttons of the backup to the list of accounts.
bring_account_back() {
  open_preferences
  press Down Down Tab Tab Tab Home
  picture preferences-deleted-account
  press Tab space
  wait_for_answer 0 "SELECT COUNT(*) FROM accounts WHERE deleted_at IS NOT NULL"
  picture preferences-account-restored
  rows_of_accounts >"$stage/rows-after"
  if ! diff -u --label "before" --label "restored" "$stage/rows-before" "$stage/rows-after"; then
    fail "the account did not come back as it was"
  fi
  close_window "$main_title"
  press alt+1
  picture restored-register
}
