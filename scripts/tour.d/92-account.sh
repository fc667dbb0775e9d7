# shellcheck shell=bash disable=SC2154 # the sourcing script's variables
# Two people with a program each and the local service between them: the account window on every
# page, a family by invite code, an account shared and taken back.

chapter_account() {
  local path_before=$PATH data_before=$PURSEWELL_DATA_DIR config_before=$XDG_CONFIG_HOME
  # shellcheck source=../../tests/e2e/devices.sh
  source "$repository_root/tests/e2e/devices.sh"
  make_browser
  start_service "$local_service"
  ann_found_a_family
  ann_signs_in_and_names_herself
  ann_invites
  bob_joins
  ann_shares
  bob_has_the_account
  ann_takes_it_back
  ann_clears_up
  ann_looks_at_it dark 100
  ann_looks_at_it light 150
  for device in ann bob; do
    on "$device"
    quit_device
  done
  stop_local_service
  unset AUTH_BASE_URL ACCOUNT_API_URL SYNC_API_URL BROWSER_USER
  export PATH=$path_before PURSEWELL_DATA_DIR=$data_before XDG_CONFIG_HOME=$config_before
  program_log=program.log
}

# Groups are made outside the program. This leaves a session and an invitation of its own behind.
ann_found_a_family() {
  ask_service "$(token_of ann)" account/v1/group/invite >"$stage/invitation.json"
}

open_account_window() {
  press alt+f a a Return # two entries of the menu go by that letter
  wait_for_window "Kestrelwood Account"
}

# open_tab <number>: from 0, with the keyboard left on the list.
open_tab() {
  local i
  press Home
  for ((i = 0; i < $1; ++i)); do press Down; done
}

ann_signs_in_and_names_herself() {
  export BROWSER_USER=ann
  on ann
  start_device
  sign_in
  add_account "Joint 100%1" Chec 1250 01Sep2026 "" ""
  press alt+1
  type_row 9/2/2026 - "Maple Market" Groceries "shared <b>meal</b>" 84.37 - -
  wait_for_rows 2
  wait_until_pushed
  open_account_window
  picture account-profile
  press Tab space
  wait_for_window "Edit Display Name"
  replace_text "Ann <i>Oak</i> 100%1"
  press Return
  wait_for_window "Kestrelwood Account"
  wait_for_service "Ann <i>Oak</i> 100%1" \
    "SELECT display_name FROM users WHERE email = 'ann@example.com'"
  picture account-renamed
}

ann_invites() {
  press shift+Tab
  open_tab 1
  press shift+Tab space # backwards, the last button comes first
  wait_for_window "Invite Code"
  picture account-invite-code
  press Return
  wait_for_window "Kestrelwood Account"
  wait_for_service 2 "SELECT COUNT(*) FROM invitations WHERE status = 'pending'"
  picture account-group-of-owner
  close_window "$main_title"
}

bob_joins() {
  export BROWSER_USER=bob
  on bob
  start_device
  sign_in
  open_account_window
  open_tab 1
  picture account-no-group
  press Tab space
  wait_for_window "Join Group"
  type_text "$(served "SELECT invite_code FROM invitations ORDER BY rowid DESC LIMIT 1")"
  press Return
  wait_for_window "Kestrelwood Account"
  wait_for_service 2 "SELECT COUNT(*) FROM members"
  picture account-group-of-member
  close_window "$main_title"
}

open_share_dialog() {
  press alt+a s
  wait_for_window "Share Account"
}

ann_shares() {
  on ann
  once_asked 2 '/(group|members)$' open_share_dialog
  press shift+Tab space
  wait_for_service "bob@example.com | member" \
    "SELECT u.email, s.role FROM shares s JOIN users u ON u.id = s.user_id"
  picture share-dialog
  close_window "$main_title"
  wait_for_answer 1 "SELECT is_shared FROM accounts"
}

bob_has_the_account() {
  on bob
  restart_device
  wait_for_rows 2
  press alt+1
  expect_rows "the shared account" "$(register_of 'Joint 100%1')" <<'ROWS'
2026-09-01 |  | Opening Balance |  | 125000 |  | R | 125000 | 
2026-09-02 |  | Maple Market | shared <b>meal</b> | -8437 | Groceries |  | 116563 | 
ROWS
  type_row 9/3/2026 - "Written by Bob" Groceries - 3 - -
  wait_until_pushed
  picture shared-account-at-bob
  on ann
  restart_device
  wait_for_rows 3
}

ann_takes_it_back() {
  local cursor
  press alt+1
  once_asked 2 '/(group|members)$' open_share_dialog
  press shift+Tab space
  wait_for_window "Remove Share"
  picture share-remove-question
  press alt+y
  wait_for_window "Share Account"
  wait_for_service 0 "SELECT COUNT(*) FROM shares"
  picture share-taken-back
  close_window "$main_title"
  wait_for_answer 0 "SELECT is_shared FROM accounts"
  type_row 9/4/2026 - "Not for Bob" Groceries - 5 - -
  wait_for_rows 4
  wait_until_pushed
  on bob
  cursor=$(sync_cursor)
  restart_device
  wait_until 20 "a sync of device bob" cursor_has_moved "$cursor"
  expect_rows "what came after the account was taken back" \
    "SELECT COUNT(*) FROM transactions WHERE payee = 'Not for Bob'" <<<0
}

sync_cursor() {
  sql "SELECT value FROM preferences WHERE key = 'lastSyncTimestamp'"
}

cursor_has_moved() {
  [ "$(sync_cursor)" != "$1" ]
}

ann_clears_up() {
  local ours="user_id = (SELECT id FROM users WHERE email = 'ann@example.com')"
  on ann
  open_account_window
  open_tab 2
  picture account-devices
  press shift+Tab space
  wait_for_window "Remove Device"
  press alt+y
  wait_for_window "Kestrelwood Account"
  wait_for_service 0 "SELECT COUNT(*) FROM devices WHERE $ours"
  close_window "$main_title"
  restart_device # with the keyboard at the start of the account window again
  open_account_window
  open_tab 3
  picture account-security
  wait_for_service 2 "SELECT COUNT(*) FROM sessions WHERE $ours"
  press Tab space
  wait_for_service 1 "SELECT COUNT(*) FROM sessions WHERE $ours"
  picture account-session-revoked
  close_window "$main_title"
}

# ann_looks_at_it <theme> <font scale>
ann_looks_at_it() {
  local tab
  on ann
  quit_device
  set_preference theme "$1"
  set_preference fontScale "$2"
  start_device
  open_account_window
  for tab in {0..4}; do
    open_tab "$tab"
    picture "account-$1-$2-page-$tab"
  done
  close_window "$main_title"
  press alt+1
  once_asked 2 '/(group|members)$' open_share_dialog
  picture "share-$1-$2"
  close_window "$main_title"
}
