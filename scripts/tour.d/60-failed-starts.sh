# shellcheck shell=bash
# Starts that cannot succeed say so and end with exit code 1. A database of a newer program opens.

chapter_failed_starts() {
  local usual=$PURSEWELL_DATA_DIR
  export PURSEWELL_DATA_DIR=/proc/pursewell
  expect_failed_start impossible-directory

  export PURSEWELL_DATA_DIR=$stage/corrupt
  mkdir "$PURSEWELL_DATA_DIR"
  printf 'This is no database, %s\n' {1..500} >"$PURSEWELL_DATA_DIR/pursewell.db"
  expect_failed_start corrupt-file

  export PURSEWELL_DATA_DIR=$stage/blocked
  mkdir -p "$PURSEWELL_DATA_DIR/pursewell.db"
  expect_failed_start directory-in-its-place

  export PURSEWELL_DATA_DIR=$usual
  sql "INSERT INTO schema_version (version, name) VALUES (99, 'of a newer program')"
  start_program
  picture newer-schema
  quit_program
}

expect_failed_start() {
  launch
  wait_for_window "Database Error"
  picture "failed-start-$1"
  press Return
  expect_end 1
}
