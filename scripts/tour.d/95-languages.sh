# shellcheck shell=bash disable=SC2154 # the sourcing script's variables
# Every window in the other languages, for the eye: build/tour/<language>-<window>.png. Windows are
# known by their ids here and entries by their places, since all words are in the language.

language=
entered=() # ids of the windows that wait behind the one with the focus
menu_keys=()

chapter_languages() {
  local qif=$stage/tour.qif csv=$stage/tour.csv path_before=$PATH
  # shellcheck source=../../tests/e2e/devices.sh
  source "$repository_root/tests/e2e/devices.sh"
  make_browser
  printf '!Account\nNGiro\nTBank\n^\n!Type:Bank\nD1/2/2024\nT-5\nPGrocer\n^\n' >"$qif"
  printf 'Day,Payee,Amount\n2024-01-04,Kiosk,-1\n' >"$csv"
  mkdir -p "$stage/downloads"
  start_service "$local_service" --files "$stage/downloads"
  export UPDATE_BASE_URL=$service_address/downloads/pursewell/stable/ PURSEWELL_DEV=1
  for language in de es fr ja; do
    new_household "household-$language"
    mkdir "$XDG_CONFIG_HOME/Kestrelwood"
    printf '[ui]\nlanguage=%s\n' "$language" >"$XDG_CONFIG_HOME/Kestrelwood/Pursewell.conf"
    export BROWSER_USER=ann-$language
    rm -rf "$stage/downloads/pursewell" # or its notices would come up by themselves
    start_program
    look_at_first_start
    look_at_menus
    look_at_register_windows
    look_at_account_windows
    look_at_view_windows
    look_at_report_tabs
    look_at_import "$csv" "$qif"
    look_at_preferences
    look_at_updates
    sign_in_to_family
    look_at_kestrelwood_account
    look_at_sharing
    look_at_sync
    quit_program
  done
  stop_local_service
  unset AUTH_BASE_URL ACCOUNT_API_URL SYNC_API_URL BROWSER_USER PURSEWELL_DEV
  export PATH=$path_before UPDATE_BASE_URL=http://127.0.0.1:9/
}

look_at_first_start() {
  window_picture welcome
  enter new-account ctrl+shift+n
  leave
  find_entry 5 6 # the sample household
  press "${menu_keys[@]}" Return
  wait_for_rows 49
  press alt+1
  window_picture register
}

look_at_menus() {
  local menu names=(file edit account view help)
  for menu in 1 2 3 4 5; do
    find_entry "$menu" 1
    press "${menu_keys[@]}"
    menu_picture "${names[menu - 1]}"
    press Escape Escape
  done
}

look_at_register_windows() {
  press alt+1 Up # from the insertion row
  press Menu
  menu_picture row
  press Escape
  enter details alt+Return
  leave
  press alt+1 Up
  enter memorize ctrl+m
  leave
  enter transaction-form ctrl+n
  press Tab
  type_text 12
  press Tab Tab
  enter split-editor space
  leave
  leave
}

look_at_account_windows() {
  enter_entry edit-account 3 1
  leave
  enter reconcile ctrl+r
  leave
  enter_entry reconciliation-history 3 3
  leave
  enter_entry payees 3 4
  leave
  enter_entry sharing-signed-out 3 5
  leave
}

look_at_view_windows() {
  enter recurring ctrl+3
  leave
  enter categories ctrl+4
  enter category-form Tab space
  leave
  leave
  enter search ctrl+f
  leave
  enter_entry about 5 1
  leave
  enter_entry shortcuts 5 5
  leave
}

look_at_report_tabs() {
  local report
  enter report-this-month ctrl+2
  press Tab End
  window_picture report-own-period
  press Up Tab Tab # all time; past the button to the tabs
  for report in categories payees taxes months cash-flow years accounts transactions; do
    window_picture "report-$report"
    press Right
  done
  leave
}

# look_at_import <CSV file> <QIF file>
look_at_import() {
  enter_entry import 1 3
  open_file "$1"
  window_picture import-csv
  press shift+Tab shift+Tab Right
  open_file "$2"
  window_picture import-qif
  press shift+Tab shift+Tab shift+Tab space
  window_picture import-summary
  leave
}

# With an account that was deleted; the question has the focus on its No.
look_at_preferences() {
  enter_entry delete-account 3 6
  press shift+Tab
  leave_by Return
  enter_entry preferences-general 2 2
  press Home Down
  window_picture preferences-register
  press Down
  window_picture preferences-data
  look_at_backup
  press shift+Tab shift+Tab Down
  window_picture preferences-about
  press Up # the next time, that page is shown
  leave
}

look_at_backup() {
  enter backup-file Tab space
  replace_text "$stage/$language.zip"
  enter_next backup-complete Return
  leave
  enter restore-file Tab space
  type_text "$stage/$language.zip"
  enter_next restore-mode Return
  enter_next restore-complete Return
  leave
}

# The notes have their own translations; the ones of the tour are German beside English.
look_at_updates() {
  publish_releases
  enter_entry whats-new 5 2
  leave
  enter_entry update 5 3
  leave
}

# The owner of a family with two more, one of whom is to share an account, and two invitations.
sign_in_to_family() {
  local member code token
  token=$(token_of "ann-$language")
  for member in bob cleo; do
    code=$(ask_service "$token" account/v1/group/invite | grep -o '"invite_code":"[^"]*' \
      | cut -d '"' -f 4)
    ask_service "$(token_of "$member-$language")" "account/v1/group/join/$code"
  done
  ask_service "$token" account/v1/group/invite '{"email":"dora@example.com"}' >"$stage/answer.json"
  ask_service "$token" account/v1/group/invite >"$stage/answer.json"
  find_entry 1 4
  press "${menu_keys[@]}" Return
  window_picture sign-in
  sign_in
  wait_for_answer 0 "SELECT COUNT(*) FROM accounts WHERE sync_status <> 'synced'"
}

look_at_kestrelwood_account() {
  once_asked 1 '/users/me$' enter_entry kestrelwood-profile 1 4
  enter kestrelwood-name Tab space
  leave
  enter kestrelwood-password Tab space
  leave
  press shift+Tab shift+Tab Down
  window_picture kestrelwood-group
  enter kestrelwood-invite-email shift+Tab shift+Tab space
  leave
  enter kestrelwood-invite-code Tab space
  once_asked 1 '/group$' leave # the page is made anew, and the keyboard finds its button again
  press Tab Down
  window_picture kestrelwood-devices
  enter kestrelwood-remove-device shift+Tab space
  leave
  press Tab Down
  window_picture kestrelwood-security
  press Down
  window_picture kestrelwood-privacy
  leave
}

# The last one on the list of those who can be added is, and asked to be taken away again.
look_at_sharing() {
  press alt+1
  once_asked 2 '/(group|members)$' enter_entry sharing-alone 3 5
  press shift+Tab space
  wait_for_service 1 "SELECT COUNT(*) FROM shares s JOIN users u ON u.id = s.user_id
                      WHERE u.email = 'cleo-$language@example.com'"
  window_picture sharing
  enter sharing-end shift+Tab shift+Tab space
  leave
  leave
}

look_at_sync() {
  enter_entry preferences-sync 2 2
  enter full-sync Tab Tab space
  leave
  leave
}

# open_file <path>: from the chosen format's button.
open_file() {
  enter file-dialog Tab Tab space
  type_text "$1"
  leave_by Return
}

# find_entry <menu> <entry>: sets the keys that lead there; both are counted from 1.
find_entry() {
  local i
  menu_keys=(Alt_L)
  for ((i = 1; i < $1; ++i)); do menu_keys+=(Right); done
  for ((i = 0; i < $2; ++i)); do menu_keys+=(Down); done
}

# enter_entry <picture> <menu> <entry>
enter_entry() {
  find_entry "$2" "$3"
  enter "$1" "${menu_keys[@]}" Return
}

# enter <picture> <key>...: until the keys have opened a window.
enter() {
  local name=$1 before
  before=$(xdotool getactivewindow)
  shift
  press "$@"
  wait_until 20 "the window $name ($language)" focus_is_new "$before"
  entered+=("$before")
  window_picture "$name"
}

# enter_next <picture> <key>...: until the keys have put another window in the place of this one.
enter_next() {
  enter "$@"
  unset 'entered[-1]'
}

leave() {
  leave_by alt+F4
}

leave_by() {
  press "$@"
  wait_until 20 "the window behind ($language)" has_focus "${entered[-1]}"
  unset 'entered[-1]'
}

has_focus() {
  [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ]
}

# focus_is_new <window>: it is neither there nor in one that waits.
focus_is_new() {
  local now
  now=$(xdotool getactivewindow 2>/dev/null) && [ -n "$now" ] || return 1
  [[ " $1 ${entered[*]} " != *" $now "* ]]
}

window_picture() {
  settle
  import -silent -frame -window "$(xdotool getactivewindow)" "$pictures/$language-$1.png"
}

# A menu lies over its window and is no part of it.
menu_picture() {
  settle
  import -silent -window root "$pictures/$language-menu-$1.png"
}
