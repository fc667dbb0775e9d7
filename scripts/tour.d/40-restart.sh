# shellcheck shell=bash
# What was typed is there after a restart, in every look of the register.

chapter_restart() {
  local before
  before=$(dump_household)
  widen_window
  quit_program
  expect_same_household "after quitting" "$before"
  look_at light theme light
  look_at dark theme dark
  look_at two-line-dark registerTwoLine 1
  look_at two-line-light theme light
  look_at two-line-large-font fontScale 130
  look_at large-font registerTwoLine 0
  set_preference fontScale 100
  expect_same_household "after all these starts" "$before"
}

widen_window() {
  xdotool windowsize "$(xdotool getactivewindow)" 1540 900
  wait_until 20 "the wider window" window_is_wide
}

window_is_wide() {
  [[ $(xdotool getactivewindow getwindowgeometry 2>/dev/null) == *"Geometry: 1540x900"* ]]
}

# look_at <picture> <preference> <value>: a run with the preference, which looks at both states of
# the register: at rest and with a row being typed.
look_at() {
  set_preference "$2" "$3"
  start_program
  wait_until 20 "the width of the last run" window_is_wide
  press alt+1
  picture "$1"
  press Down Down Return Tab Tab
  type_text ma
  picture "$1-typing"
  press Escape Escape
  quit_program
}
