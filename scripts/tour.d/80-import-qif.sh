# shellcheck shell=bash disable=SC2016 # awk has variables of its own
# Two years of a household come over from another program on two occasions. The second brings the
# cards, and with them the other sides of transfers that came with the first.

old_files= # where what the other program exported lies, and the ledger that it was made from

chapter_import_qif() {
  new_household imported
  old_files=$stage/old
  mkdir "$old_files"
  LC_ALL=C awk -v folder="$old_files" -v first_year=$(($(date +%Y) - 2)) \
    -f "$repository_root/scripts/lib/old-program.awk"
  start_program
  import_banks
  import_cards
  import_banks_again
}

import_banks() {
  press ctrl+i # no grid has the focus, which has a use of its own for the key
  wait_for_window "Import Transactions"
  picture import-empty
  press Right
  choose_file "Select QIF File(s)" "$old_files/old-banks.qif"
  picture import-banks-mapping
  press_import
  wait_for_rows "$(ledger_rows '$9 == "banks"')"
  picture import-banks-summary
  expect_household "after the banks" '$9 == "banks"' hints
  press space
  wait_for_window "$main_title"
  picture imported-banks
}

import_cards() {
  open_import
  choose_file "Select QIF File(s)" "$old_files/old-cards.qif"
  picture import-cards-mapping
  press_import
  wait_for_rows "$(ledger_rows '$9 != "statement"')"
  picture import-cards-summary
  expect_household "after the cards" '$9 != "statement"'
  expect_rows "the joined rows wait to be synced" "
    SELECT DISTINCT t.version, t.sync_status FROM transactions t JOIN accounts a
    ON a.id = t.account_id WHERE a.name = 'Harbor Checking' AND t.version > 1" <<<"2 | pending"
  expect_rows "the split lines" "
    SELECT t.payee, s.amount, c.name FROM split_lines s
    JOIN transactions t ON t.id = s.transaction_id AND t.is_split
    JOIN categories c ON c.id = s.category_id ORDER BY t.payee, s.amount, c.name" \
    < <(LC_ALL=C sort -t $'\t' -k1,1 -k2,2n -k3,3 "$old_files/splits.tsv" | sed 's/\t/ | /g')
  press space
  wait_for_window "$main_title"
  press alt+1
  picture imported-cards
}

# What is there already does not come again.
import_banks_again() {
  local before
  before=$(dump_household)
  open_import
  choose_file "Select QIF File(s)" "$old_files/old-banks.qif"
  press_import
  picture import-again-summary
  press space
  wait_for_window "$main_title"
  expect_same_household "after the same file once more" "$before"
}

open_import() {
  press alt+f i
  wait_for_window "Import Transactions"
}

# choose_file <title of the dialog> <path>: from the chosen format's button. Ends on "Browse...".
choose_file() {
  press Tab Tab space
  wait_for_window "$1"
  type_text "$2"
  press Return
  wait_for_window "Import Transactions"
}

# Backwards from "Browse...": the account, the format, and around the corner.
press_import() {
  press shift+Tab shift+Tab shift+Tab space
}

# ledger_rows <awk condition>: how many rows of the ledger meet it.
ledger_rows() {
  awk -F '\t' "$1 { ++rows } END { print rows }" "$old_files/ledger.tsv"
}

# expect_household <when> <awk condition> [hints]: compares all transactions with those of the
# ledger that meet the condition. With "hints", the sides of transfers whose other side is in
# another file say so in their memo.
expect_household() {
  expect_rows "the transactions $1" "
    SELECT line FROM (
      SELECT a.name || ' | ' || t.date || ' | ' || t.payee || ' | ' || t.amount || ' | ' ||
             ifnull(c.name, '') || ' | ' || replace(ifnull(t.memo, ''), char(10), '~') || ' | ' ||
             $other_account || ' | ' ||
             (SELECT COUNT(*) FROM split_lines s WHERE s.transaction_id = t.id) AS line
      FROM transactions t
      JOIN accounts a ON a.id = t.account_id
      LEFT JOIN categories c ON c.id = t.category_id)
    ORDER BY line" < <(ledger_lines "$2" "${3:-}" | LC_ALL=C sort)
  expect_rows "the sums of the accounts $1" "
    SELECT a.name, SUM(t.amount), COUNT(*) FROM accounts a
    JOIN transactions t ON t.account_id = a.id GROUP BY a.id ORDER BY a.name" \
    < <(ledger_sums "$2" | LC_ALL=C sort)
}

ledger_lines() {
  awk -F '\t' -v hints="$2" "$1"' {
    memo = $6
    other = $7
    if (hints != "" && other != "" && other !~ /^Harbor/) {
      memo = "[→ " other "]" (memo == "" ? "" : " " memo)
      other = ""
    }
    print $1 " | " $2 " | " $3 " | " $4 " | " $5 " | " memo " | " other " | " $8
  }' "$old_files/ledger.tsv"
}

ledger_sums() {
  awk -F '\t' "$1"' { sum[$1] += $4; ++count[$1] }
    END { for (account in sum) print account " | " sum[account] " | " count[account] }' \
    "$old_files/ledger.tsv"
}
