# shellcheck shell=bash disable=SC2154 # the sourcing script's variables
# Two devices of one user and the service between them. Sourced by two-devices after the hands of
# the tour, which it lends a second pair of.

device=
log_mark=0
declare -A running=() # the process of each device

# --- the service and the browser -----------------------------------------------------------------

# start_service <program of it> <more options>...
start_service() {
  # shellcheck disable=SC2034 # read by lib/tour.sh
  local_service=$1
  shift
  start_local_service --database "$stage/service.db" "$@"
  export AUTH_BASE_URL=$service_address ACCOUNT_API_URL=$service_address/account/v1
  export SYNC_API_URL=$service_address/pursewell/v1
}

# misbehave <wish as JSON>: from now on; {"kind":"none"} ends it.
misbehave() {
  curl --silent --show-error --fail --max-time 20 --data "$1" "$service_address/control/fault"
}

served() {
  sqlite3 -cmd '.timeout 5000' -separator ' | ' "$stage/service.db" "$1"
}

service_has() {
  [ "$(served "$2")" = "$1" ]
}

# wait_for_service <answer> <statement>
wait_for_service() {
  wait_until 20 "\"$1\" at the service from: $2" service_has "$1" "$2"
}

served_rows() {
  served "SELECT COUNT(*) FROM records WHERE entity_type = 'transaction' AND NOT is_deleted"
}

# token_of <user>: of a session of its own, as another program would have it.
token_of() {
  curl --silent --show-error --max-time 20 --output /dev/null \
    --write-out '%{redirect_url}' --data "email=$1@example.com" --data password=secret \
    --user-agent 'Some browser with a name that goes on for more than sixty characters' \
    "$service_address/kestrelwood/account/login?redirect_uri=http%3A%2F%2Flocalhost%2F" \
    | grep -o 'access_token=[^&]*' | cut -d = -f 2
}

# ask_service <token> <path> [body as JSON]
ask_service() {
  curl --silent --show-error --fail --max-time 20 --data "${3:-}" \
    --header "Authorization: Bearer $1" "$service_address/$2"
}

# Stands where the desktop's opener is looked for first: sees the login page, sends its form as it
# stands, and goes where it is sent, which is the program's own listener.
make_browser() {
  mkdir -p "$stage/bin"
  cat >"$stage/bin/xdg-open" <<'SH'
#!/bin/sh
exec >>"$BROWSER_LOG" 2>&1
set -ex
visit() { curl --silent --show-error --fail --max-time 20 "$@"; }
visit "$1" | grep -q '<form method="post">'
visit --location --data "email=${BROWSER_USER:-ann}@example.com" --data password=secret "$1" \
  | grep -q 'Authentication complete'
SH
  chmod +x "$stage/bin/xdg-open"
  export PATH=$stage/bin:$PATH BROWSER_LOG=$stage/browser.log
}

# --- devices -------------------------------------------------------------------------------------

# on <device>: keys and statements go there from now on.
on() {
  device=$1
  program_pid=${running[$1]:-}
  program_log=$1.log
  export PURSEWELL_DATA_DIR=$stage/data/$1 XDG_CONFIG_HOME=$stage/config/$1
  mkdir -p "$PURSEWELL_DATA_DIR" "$XDG_CONFIG_HOME"
  [ -z "$program_pid" ] || come_to_front
}

come_to_front() {
  wait_until 30 "the window of device $device" its_window_is_active
}

its_window_is_active() {
  local window active
  window=$(xdotool search --all --onlyvisible --pid "$program_pid" --name "^$main_title\$" \
    | tail -n 1)
  active=$(xdotool getactivewindow 2>/dev/null)
  [ -n "$window" ] || return 1
  [ "$window" != "$active" ] || return 0
  xdotool windowactivate "$window" 2>/dev/null
  return 1
}

start_device() {
  launch
  running[$device]=$program_pid
  come_to_front
  wait_for_first_painting
}

quit_device() {
  quit_program
  running[$device]=
}

kill_device() {
  kill_program
  running[$device]=
  expect_rows "the integrity of device $device" "PRAGMA integrity_check" <<<"ok"
}

mark_log() {
  log_mark=$(wc -l <"$stage/$program_log")
}

# pushes_since_mark: what the log of the device tells of them.
pushes_since_mark() {
  tail -n "+$((log_mark + 1))" "$stage/$program_log" | grep 'Push batch'
}

# A start syncs at once.
restart_device() {
  quit_device
  start_device
}

# From the welcome page of a device without accounts.
sign_in() {
  press Tab space
  wait_until 30 "the sign-in of device $device" setting_is "hasSignedInBefore=true"
}

# --- what the devices hold -----------------------------------------------------------------------

synced_tables="accounts categories recurring_transactions transactions reconciliations"

# Every column of the synced tables, but for two that stay with a device: the moment when it learned
# of a deletion, and when it made the default categories, which each device makes for itself.
everything_on() {
  local table columns own=deleted_at
  for table in $synced_tables; do
    [ "$table" != categories ] || own="deleted_at created_at"
    columns=$(sql_on "$1" "SELECT group_concat(name) FROM pragma_table_info('$table')
                           WHERE ' $own ' NOT LIKE '% ' || name || ' %'")
    sql_on "$1" "SELECT '$table', $columns, deleted_at IS NULL FROM $table ORDER BY id"
    own=deleted_at
  done
  sql_on "$1" "SELECT id, created_at FROM categories WHERE NOT is_default ORDER BY id"
}

sql_on() {
  sqlite3 -cmd '.timeout 5000' -separator ' | ' "$stage/data/$1/pursewell.db" "$2"
}

pending_on() {
  local table statement="SELECT 0"
  for table in $synced_tables; do
    statement+=" + (SELECT COUNT(*) FROM $table WHERE sync_status <> 'synced')"
  done
  sql_on "$1" "$statement"
}

nothing_pending_on() {
  [ "$(pending_on "$1" 2>/dev/null)" = 0 ]
}

wait_until_pushed() {
  wait_until 60 "the push of device $device" nothing_pending_on "$device"
}

devices_agree() {
  nothing_pending_on ann && nothing_pending_on bob \
    && [ "$(everything_on ann)" = "$(everything_on bob)" ]
}

wait_until_alike() {
  local deadline=$((SECONDS + $1))
  until devices_agree; do
    if [ "$SECONDS" -ge "$deadline" ]; then
      { diff -u --label ann --label bob <(everything_on ann) <(everything_on bob) || true; } \
        | head -n 40 >&2
      fail "the devices do not agree $2; pending: $(pending_on ann) and $(pending_on bob)"
    fi
    sleep 0.1
  done
}

live_rows() {
  sql "SELECT COUNT(*) FROM transactions WHERE deleted_at IS NULL" 2>/dev/null || echo 0
}

# The service holds as many transactions as the device.
all_served() {
  [ "$(served_rows)" = "$(live_rows)" ]
}

expect_served() {
  all_served || fail "the service holds $(served_rows) rows and device $device $(live_rows)"
}
