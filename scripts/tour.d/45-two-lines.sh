# shellcheck shell=bash
# Rows typed while payee and memo share one cell.

chapter_two_lines() {
  set_preference registerTwoLine 1
  start_program
  press alt+2
  # Tab goes from the payee to the memo in the same cell, and from there to the category.
  press Return
  replace_text 9/21/2026
  press Return Return
  type_text "Book Nook"
  press Tab
  type_text "a novel"
  picture two-line-memo
  press Tab
  replace_text Entertainment
  press Tab
  replace_text 14.95
  press ctrl+Return
  wait_for_rows 20

  # With the popup open Tab takes its entry and goes to the memo, and Return goes on. The memo of
  # a known payee gives way to its last one.
  press Return
  replace_text 9/24/2026
  press Return Return
  type_text book
  press Down
  picture two-line-completion
  press Tab
  replace_text "forgotten"
  press Return
  picture two-line-filled
  press Return
  replace_text 8
  press Return Return Return
  wait_for_rows 21
  picture two-line-typed
  expect_rows "the rows of two lines" "
    SELECT t.date, t.payee, t.memo, t.amount, c.name FROM transactions t
    LEFT JOIN categories c ON c.id = t.category_id
    WHERE t.payee = 'Book Nook' ORDER BY t.date" <<'ROWS'
2026-09-21 | Book Nook | a novel | -1495 | Entertainment
2026-09-24 | Book Nook | a novel | -800 | Entertainment
ROWS
  quit_program
  set_preference registerTwoLine 0
}
