# shellcheck shell=bash disable=SC2016 # awk has variables of its own
# The imported household goes into a backup, and comes out of it in an empty data directory.

backup_file= # where it lies
backup_tables="accounts categories transactions split_lines recurring_transactions reconciliations"

chapter_backup() {
  backup_file=$stage/backup.zip
  enter_household imported
  set_preference theme light
  export_household
  expect_whole_archive
  backup_rows >"$stage/rows-before"
  new_household restored
  restore_household
  restore_nothing_twice
}

export_household() {
  start_program
  open_preferences
  press Down Down Tab space
  wait_for_window "Export Backup"
  picture backup-file
  replace_text "$backup_file"
  press Return
  wait_for_window "Backup Complete"
  picture backup-complete
  press Return
  wait_for_window "Preferences"
  close_window "$main_title"
  quit_program
}

expect_whole_archive() {
  unzip -tq "$backup_file" >"$stage/unzip.log"
  expect_rows "the files of the archive" "
    SELECT (SELECT COUNT(*) FROM accounts), (SELECT COUNT(*) FROM categories),
           (SELECT COUNT(*) FROM transactions), (SELECT COUNT(*) FROM split_lines),
           (SELECT COUNT(*) FROM recurring_transactions), (SELECT COUNT(*) FROM reconciliations), 1" \
    < <(unzip -Z1 "$backup_file" | awk -F / '{ ++files[$1] } END {
          print files["accounts"] + 0 " | " files["categories"] + 0 " | " \
                files["transactions"] + 0 " | " files["split_lines"] + 0 " | " \
                files["recurring"] + 0 " | " files["reconciliations"] + 0 " | " \
                files["manifest.json"] + 0 }')
}

# Every column but those that a restored row gets anew.
backup_rows() {
  local table
  for table in $backup_tables; do
    printf '%s\n' "--- $table"
    sql "$(whole_rows "$table" "'sync_status', 'server_id', 'version'")"
  done
}

# choose_backup: from the button to the choice of what becomes of rows that are there.
choose_backup() {
  press space
  wait_for_window "Import Backup"
  type_text "$backup_file"
  press Return
  wait_for_window "Import Mode"
}

restore_household() {
  start_program
  open_preferences
  press Down Down Tab Tab
  choose_backup
  picture restore-mode
  press Return
  wait_for_window "Import Complete"
  picture restore-complete
  press Return
  wait_for_window "Preferences"
  close_window "$main_title"
  picture restored-household
  press alt+1
  picture restored-household-register
  quit_program
  backup_rows >"$stage/rows-after"
  if ! diff -u --label "in the backup" --label "restored" "$stage/rows-before" "$stage/rows-after" \
    >"$stage/rows.diff"; then
    head -40 "$stage/rows.diff" >&2
    fail "the restored household is not the one that was saved"
  fi
  expect_rows "what waits to be synced" "
    SELECT DISTINCT sync_status, ifnull(server_id, ''), version FROM transactions" \
    <<<"pending |  | 1"
  expect_rows "the integrity of the database" "PRAGMA integrity_check" <<<"ok"
}

# With the last of the three modes all that is there stays, marks of the sync included.
restore_nothing_twice() {
  local before
  mark_all_synced
  before=$(dump_household)
  start_program
  open_preferences
  press Down Down Tab Tab
  choose_backup
  press End Return
  wait_for_window "Import Complete"
  picture restore-skips
  press Return
  wait_for_window "Preferences"
  close_window "$main_title"
  quit_program
  expect_same_household "after the same backup once more" "$before"
}
