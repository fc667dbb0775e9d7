# shellcheck shell=bash
# Keys that come faster than the completion popup can open and close all reach the cell.

chapter_fast_typing() {
  local letter expected="" rows=22
  start_program
  press alt+2
  for letter in q z x v k j h w; do
    press Return
    replace_text 9/28/2026
    press Return Return
    # The first letter opens the popup, the second finds nothing more and closes it.
    type_quickly "D$letter's Own"
    press Tab Tab Tab
    replace_text 2.50
    press ctrl+Return
    wait_for_rows $((++rows))
    expected+="D$letter's Own"$'\n'
  done
  expect_rows "the payees typed quickly" "
    SELECT payee FROM transactions WHERE date = '2026-09-28' ORDER BY rowid" <<<"${expected%$'\n'}"
  quit_program
}
