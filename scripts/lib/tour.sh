# shellcheck shell=bash
# The stage and the hands of the tour. Sourced by scripts/tour after lib/common.sh.
#
# Nothing here sleeps and hopes: keys are pressed, and then the tour waits, within a bound, until a
# window has come, a row is in the database or a file has changed.

main_title="Kestrelwood Pursewell"
pictures=$repository_root/build/tour
stage=        # scratch directory: home, settings, data, logs
program=      # the program under tour
program_pid=
program_log=program.log # in the stage
local_service= # the program of it
service_pid=
service_address=
picture_number=0

# open_stage <program>: an empty home, a virtual display and a window manager on it.
open_stage() {
  program=$1
  stage=$(mktemp -d "${TMPDIR:-/tmp}/pursewell-tour.XXXXXX")
  trap close_stage EXIT
  trap 'exit 143' TERM INT
  mkdir -p "$stage"/{home,config,share,cache,data}
  install -d -m 700 "$stage/runtime"
  rm -rf "$pictures"
  mkdir -p "$pictures"
  export HOME=$stage/home XDG_CONFIG_HOME=$stage/config XDG_DATA_HOME=$stage/share
  export XDG_CACHE_HOME=$stage/cache XDG_RUNTIME_DIR=$stage/runtime
  export PURSEWELL_DATA_DIR=$stage/data
  export LANG=C.UTF-8 LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
  export UPDATE_BASE_URL=http://127.0.0.1:9/ # nobody answers there: no release is offered
  # No keyring either; unset, a bus would be started for the display and outlive it.
  export DBUS_SESSION_BUS_ADDRESS=disabled:
  unset WAYLAND_DISPLAY XAUTHORITY SESSION_MANAGER
  unset PURSEWELL_DEV PURSEWELL_VERBOSE QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_QPA_PLATFORMTHEME
  open_display
}

open_display() {
  Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp -noreset \
    3>"$stage/display" >"$stage/xvfb.log" 2>&1 &
  wait_until 20 "the virtual display" test -s "$stage/display"
  DISPLAY=:$(<"$stage/display")
  export DISPLAY
  add_letters
  # A window manager of our own taste: new windows get the focus, and of all keys only Alt+F4 is
  # taken away.
  cat >"$stage/openbox.xml" <<'XML'
<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><focusLast>yes</focusLast></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse/>
</openbox_config>
XML
  openbox --sm-disable --config-file "$stage/openbox.xml" >"$stage/openbox.log" 2>&1 &
  wait_until 20 "the window manager" window_manager_runs
}

# Gives each letter that a US keyboard lacks a key of its own. xdotool would move one spare key from
# letter to letter, and a busy program would read the letter that came next.
add_letters() {
  local letters="מכולתé😀" code=160 keys="" hex i
  for ((i = 0; i < ${#letters}; ++i)); do
    printf -v hex '%X' "'${letters:i:1}"
    keys+="key <I$((code + i))> { [ U$hex ] };"$'\n'
  done
  {
    xkbcomp "$DISPLAY" - | awk -v keys="$keys" '
      /^xkb_symbols/ { symbols = 1 }
      symbols && /^};/ { printf "%s", keys; symbols = 0 }
      { print }' >"$stage/keyboard.xkb"
    xkbcomp "$stage/keyboard.xkb" "$DISPLAY"
  } 2>"$stage/xkbcomp.log"
}

window_manager_runs() {
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# Runs at every end of the tour and ends all that it started. On a failure it leaves behind what
# tells why.
close_stage() {
  local status=$? pid
  trap - EXIT
  if [ "$status" -ne 0 ]; then
    keep_evidence
  fi
  for pid in $(jobs -p); do
    kill -9 "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  rm -rf "$stage"
  exit "$status"
}

keep_evidence() {
  timeout 10 import -window root "$pictures/failure.png" 2>/dev/null || true
  cp -r "$PURSEWELL_DATA_DIR" "$stage"/*.log "$pictures/" 2>/dev/null || true
  printf '%s: failed; the last picture, the database and the logs are in %s\n' \
    "$script_name" "$pictures" >&2
}

fail() {
  printf '%s: %s\n' "$script_name" "$1" >&2
  exit 1
}

# wait_until <seconds> <what> <command>...: until the command succeeds, or fails the tour.
wait_until() {
  local deadline=$((SECONDS + $1)) what=$2
  shift 2
  until "$@"; do
    if [ "$SECONDS" -ge "$deadline" ]; then
      fail "waited in vain for $what"
    fi
    sleep 0.05
  done
}

# new_household <name>: an empty one, with settings of its own.
new_household() {
  export PURSEWELL_DATA_DIR=$stage/$1 XDG_CONFIG_HOME=$stage/$1-config
  mkdir "$PURSEWELL_DATA_DIR" "$XDG_CONFIG_HOME"
}

# --- the program -------------------------------------------------------------------------------

launch() {
  [ -z "$program_pid" ] || fail "the program is running already"
  "$program" >>"$stage/$program_log" 2>&1 &
  program_pid=$!
}

start_program() {
  launch
  wait_for_window "$main_title"
  wait_for_first_painting
}

# Before that, keys are lost.
wait_for_first_painting() {
  wait_until 30 "the first painting" sidebar_is_painted
}

# Left of the names of the accounts, in either theme.
sidebar_is_painted() {
  import -silent -window "$(xdotool getactivewindow)" -crop 1x1+2+600 txt:- 2>/dev/null \
    | grep -q 'srgb(21,36,32)'
}

program_has_ended() {
  ! kill -0 "$program_pid" 2>/dev/null
}

# expect_end <exit code>: waits for the end of the program.
expect_end() {
  local status=0
  wait_until 20 "the end of the program" program_has_ended
  wait "$program_pid" || status=$?
  program_pid=
  [ "$status" -eq "$1" ] || fail "the program ended with exit code $status instead of $1"
}

quit_program() {
  press ctrl+q
  expect_end 0
}

kill_program() {
  kill -9 "$program_pid"
  wait "$program_pid" 2>/dev/null || true
  program_pid=
}

# --- the local service -----------------------------------------------------------------------------

# start_local_service <option>...: its address goes to service_address.
start_local_service() {
  rm -f "$stage/service.address" # of an earlier one
  "$local_service" "$@" >"$stage/service.address" 2>"$stage/service.log" &
  service_pid=$!
  wait_until 20 "the local service" test -s "$stage/service.address"
  # shellcheck disable=SC2034 # read by the chapters
  service_address=$(<"$stage/service.address")
}

stop_local_service() {
  kill "$service_pid"
  wait "$service_pid" || fail "the service did not end well"
  service_pid=
}

# requests_for <path as an expression>: how many the service was asked so far.
requests_for() {
  curl --silent --show-error --fail --max-time 20 "$service_address/control/requests" \
    | grep -cE -- "$1" || true
}

asked_since() {
  [ "$(requests_for "$1")" -ge "$2" ]
}

# once_asked <number> <path> <command>...: runs the command until the service was asked so often and
# the answers have been painted.
once_asked() {
  local number=$1 path=$2 before
  shift 2
  before=$(requests_for "$path")
  "$@"
  wait_until 20 "$number request(s) for $path" asked_since "$path" "$((before + number))"
  settle
}

# --- windows, keys and the mouse -----------------------------------------------------------------

active_window_is() {
  [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]
}

# Until the window with this title has the focus, so that the next key goes to it.
wait_for_window() {
  wait_until 20 "the window \"$1\"" active_window_is "$1"
}

# close_window <title>: the window with the focus, until the one with the title has it.
close_window() {
  press alt+F4
  wait_for_window "$1"
}

press() {
  xdotool key --clearmodifiers --delay 25 "$@"
}

type_text() {
  xdotool type --clearmodifiers --delay 12 -- "$1"
}

# As fast as the display takes it, so that many keys wait while the program is at work on the first.
type_quickly() {
  xdotool type --clearmodifiers --delay 1 -- "$1"
}

# replace_text <text>: over what stands in the focused field.
replace_text() {
  press ctrl+a
  type_text "$1"
}

picture() {
  picture_number=$((picture_number + 1))
  settle
  import -window root "$(printf '%s/%02d-%s.png' "$pictures" "$picture_number" "$1")"
}

# Until two looks at the screen in a row are alike: what was asked for has been painted.
settle() {
  local before="" now tries
  for tries in {1..40}; do
    now=$(import -silent -window root rgb:- | cksum)
    [ "$tries" -eq 1 ] || [ "$now" != "$before" ] || return 0
    before=$now
    sleep 0.1
  done
}

# --- the database ----------------------------------------------------------------------------

sql() {
  sqlite3 -cmd '.timeout 5000' -separator ' | ' "${PURSEWELL_DATA_DIR}/pursewell.db" "$1"
}

sql_answers() {
  [ "$(sql "$1" 2>/dev/null)" = "$2" ]
}

# wait_for_answer <answer> <statement>: until the statement gives this answer.
wait_for_answer() {
  wait_until 20 "\"$1\" from: $2 (it gives: $(sql "$2" 2>&1))" sql_answers "$2" "$1"
}

# expect_rows <what> <statement>: compares what the statement gives with the standard input.
expect_rows() {
  local expected
  expected=$(cat)
  if ! diff -u --label "expected" --label "in the database" \
    <(printf '%s\n' "$expected") <(sql "$2"); then
    fail "not what was typed: $1"
  fi
}

dump_household() {
  sql "SELECT * FROM accounts ORDER BY id"
  sql "SELECT * FROM transactions ORDER BY id"
  sql "SELECT * FROM split_lines ORDER BY id"
  sql "SELECT * FROM recurring_transactions ORDER BY id"
  sql "SELECT * FROM reconciliations ORDER BY id"
  sql "SELECT * FROM categories ORDER BY id"
}

# expect_same_household <when> <earlier dump>
expect_same_household() {
  if ! diff -u --label "before" --label "now" <(printf '%s\n' "$2") <(dump_household); then
    fail "the database is not the same $1"
  fi
  expect_rows "the integrity of the database" "PRAGMA integrity_check" <<<"ok"
}

# As if another device had everything: rows written from here on stand out.
mark_all_synced() {
  [ -z "$program_pid" ] || fail "rows are marked only between two runs"
  local table
  for table in accounts transactions categories recurring_transactions; do
    sql "UPDATE $table SET sync_status = 'synced', updated_at = '2001-02-03T04:05:06Z'"
  done
}

# fresh <table>: 1 for a row that waits to be synced, with a time stamp of this run.
fresh() {
  printf "(%s.sync_status = 'pending' AND %s.updated_at > date('now', '-1 day'))" "$1" "$1"
}

set_preference() {
  [ -z "$program_pid" ] || fail "preferences are changed only between two runs"
  sql "INSERT INTO preferences (key, value) VALUES ('$1', '$2')
       ON CONFLICT (key) DO UPDATE SET value = excluded.value"
}

# --- the register ------------------------------------------------------------------------------

# fill <text>: into the focused field; "-" leaves it as it is.
fill() {
  [ "$1" = - ] || replace_text "$1"
}

# date_keys <key>...: opens the first cell of the row and presses the date field's own keys there.
date_keys() {
  press Return "$@"
}

# type_row <date> <check> <payee> <category> <memo> <payment> <deposit> <clr>: types the insertion
# row from left to right and leaves its last cell with Return, which saves. The date cell may be
# open already. Tab leaves the cells with completion, since there Return would only take the entry.
type_row() {
  [ "$1" = - ] || { press Return; replace_text "$1"; }
  press Return
  fill "$2"; press Return
  fill "$3"; press Tab
  fill "$4"; press Tab
  fill "$5"; press Return
  fill "$6"; press Return
  fill "$7"; press Return
  fill "$8"; press Return
}

# wait_for_rows <number>: until so many live transactions are stored.
wait_for_rows() {
  wait_for_answer "$1" "SELECT COUNT(*) FROM transactions WHERE deleted_at IS NULL"
}

# Up from the insertion row, then right to a column.
go_to_cell() {
  local i
  for ((i = 0; i < $1; ++i)); do press Up; done
  for ((i = 0; i < $2; ++i)); do press Right; done
}

date_header_x=345
date_header_y= # known once it was clicked

setting_is() {
  grep -qx -- "$1" "$XDG_CONFIG_HOME/Kestrelwood/Pursewell.conf" 2>/dev/null
}

# Down along the first column until the settings tell that the header was hit: how far below the
# menu it lies depends on the fonts.
click_date_header() {
  local window y tries
  window=$(xdotool getactivewindow)
  for y in {70..220..10}; do
    xdotool mousemove --window "$window" "$date_header_x" "$y" click 1
    for tries in {1..10}; do
      if setting_is "sortOrder=$1"; then
        date_header_y=$y
        return
      fi
      sleep 0.05
    done
  done
  fail "the header of the date column was not found in $tries looks at each place"
}

right_click_date_header() {
  right_click "$date_header_x" "$date_header_y"
}

right_click() {
  xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 3
}

# SQL: the account on the other side of a row t that is a transfer.
other_account="CASE WHEN ifnull(t.transfer_link_id, '') = '' THEN ''
  ELSE ifnull((SELECT other_account.name FROM transactions other
               JOIN accounts other_account ON other_account.id = other.account_id
               WHERE other.id = t.transfer_link_id
                 AND other.transfer_link_id = t.id
                 AND other.transfer_dest_account_id = t.account_id
                 AND t.transfer_dest_account_id = other.account_id
                 AND other.amount = -t.amount AND other.date = t.date
                 AND other.deleted_at IS NULL), 'broken link') END"

# The register of an account as text: date, check number, payee, memo, amount, category, state,
# running balance and, for a transfer whose two sides agree in every way, the other account.
register_of() {
  printf '%s' "
    SELECT t.date, ifnull(t.check_number, ''), t.payee, ifnull(t.memo, ''), t.amount,
           coalesce(parent.name || ' > ' || c.name, c.name, ''),
           CASE WHEN t.reconciled AND t.cleared THEN 'R' WHEN t.reconciled THEN '?'
                WHEN t.cleared THEN 'C' ELSE '' END,
           a.starting_balance + SUM(t.amount) OVER (ORDER BY t.date, t.created_at, t.rowid),
           $other_account
    FROM transactions t
    JOIN accounts a ON a.id = t.account_id
    LEFT JOIN categories c ON c.id = t.category_id
    LEFT JOIN categories parent ON parent.id = c.parent_id
    WHERE a.name = '$1' AND t.deleted_at IS NULL
    ORDER BY t.date, t.created_at, t.rowid"
}
