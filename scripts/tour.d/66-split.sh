# shellcheck shell=bash
# A payment is split over three categories in the transaction form, and split again.

grocer='מכולת "%1" 😀'

chapter_split() {
  split_new_payment
  keep_split
  change_split
  press alt+1
  press Up alt+Return
  wait_for_window "Transaction Details"
  picture split-details
  press Escape
  wait_for_window "$main_title"
}

split_new_payment() {
  press ctrl+n
  wait_for_window "New Transaction"
  type_text "$grocer"
  press Tab
  type_text 120
  press Tab Tab space
  wait_for_window "Split Transaction"
  picture split-editor-empty
  type_split_line g 70 '50%1 "off"'
  press Tab
  type_split_line p 30 "תכל 😀"
  click_add_line
  picture split-editor-line-added
  press shift+Tab Tab
  type_split_line h 20 "all the rest"
  picture split-editor-filled
  press Return Return # the first one ends the editor of the memo
  wait_for_window "New Transaction"
  picture split-form
  press Return
  wait_for_window "$main_title"
  wait_for_rows 50
  press alt+1
  picture split-in-the-grid
  expect_split "after the first save" <<ROWS
$grocer | -12000 | 1 |  | Gas | -7000 | 50%1 "off"
$grocer | -12000 | 1 |  | Personal Care | -3000 | תכל 😀
$grocer | -12000 | 1 |  | HOA | -2000 | all the rest
ROWS
}

# type_split_line <letter> <amount> <memo>: into the line whose category has the focus, which takes
# the first name with the letter.
type_split_line() {
  press "$1" Tab
  type_text "$2"
  press Tab
  type_text "$3"
}

click_add_line() {
  local window height
  window=$(xdotool getactivewindow)
  height=$(xdotool getwindowgeometry --shell "$window" | sed -n 's/^HEIGHT=//p')
  xdotool mousemove --window "$window" 50 $((height - 25)) click 1
}

# Saved as it stands: the lines are written again, each one once and under its old id.
keep_split() {
  local before
  before=$(split_ids)
  press alt+1 Up Right Right Right Return # the category of a split row leads to the form
  wait_for_window "Edit Transaction"
  sql "UPDATE transactions SET sync_status = 'synced' WHERE is_split"
  press Return
  wait_for_window "$main_title"
  wait_for_answer pending "SELECT sync_status FROM transactions WHERE is_split"
  [ "$(split_ids)" = "$before" ] || fail "the lines of the split are not the same"
}

change_split() {
  local before
  before=$(split_ids)
  press alt+1 Up Menu
  picture split-row-menu
  press s
  wait_for_window "Edit Transaction"
  press Tab Tab space # past the category, which is locked
  wait_for_window "Split Transaction"
  press Tab
  type_text 75
  press Tab Tab Tab
  type_text 25
  picture split-editor-again
  press Return
  wait_for_window "Edit Transaction"
  press Return
  wait_for_window "$main_title"
  wait_for_answer -7500 "SELECT MIN(amount) FROM split_lines"
  expect_split "after the second save" <<ROWS
$grocer | -12000 | 1 |  | Gas | -7500 | 50%1 "off"
$grocer | -12000 | 1 |  | Personal Care | -2500 | תכל 😀
$grocer | -12000 | 1 |  | HOA | -2000 | all the rest
ROWS
  expect_rows "lines that kept their id" "
    SELECT COUNT(*) FROM split_lines WHERE id IN ('${before//$'\n'/"', '"}')" <<<0
}

split_ids() {
  sql "SELECT id FROM split_lines ORDER BY amount"
}

expect_split() {
  expect_rows "the split $1" "
    SELECT t.payee, t.amount, t.is_split, ifnull(t.category_id, ''), c.name, s.amount, s.memo
    FROM transactions t JOIN split_lines s ON s.transaction_id = t.id
    JOIN categories c ON c.id = s.category_id ORDER BY s.amount"
}
