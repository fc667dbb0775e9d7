# shellcheck shell=bash disable=SC2016 # awk has variables of its own
# Each report over all that was imported, written as CSV and compared with sums over the ledger.

chapter_reports() {
  press ctrl+2
  wait_for_window "Reports"
  picture reports-this-month
  press Tab
  type_text "All"
  press Tab Tab # past the button to the tabs
  local report
  for report in category-spending payee-summary tax-report income-vs-expenses cash-flow \
    year-over-year account-summary transactions; do
    picture "report-$report"
    export_report "$old_files/$report.csv"
    "expect_${report//-/_}" "$old_files/$report.csv"
    press Tab Right
  done
  press alt+F4
  wait_for_window "$main_title"
}

# From the tabs to the button before them; ends on the button.
export_report() {
  press shift+Tab space
  wait_for_window "Export CSV"
  replace_text "$1"
  press Return
  wait_for_window "Reports"
  wait_until 20 "the file $1" test -s "$1"
}

# expect_report <file> <columns of the file, "c1" to "c6"> <awk body over the ledger>: the money of
# the file is read back as cents.
expect_report() {
  local columns
  columns=$(sed -E "s/money\((c[0-9])\)/CAST(replace(replace(replace(\1,'\$',''),',',''),'.','') AS INTEGER)/g" <<<"$2")
  if ! diff -u --label "from the ledger" --label "in $1" \
    <(awk -F '\t' -v today="$(date +%F)" -v year="$(date +%Y)" "\$2 <= today { $3" \
      "$old_files/ledger.tsv" | LC_ALL=C sort) \
    <(sqlite3 :memory: \
      "CREATE TABLE report (c1, c2, c3, c4, c5, c6)" ".mode csv" ".import --skip 1 '$1' report" \
      ".mode list" ".separator ' | '" "SELECT $columns FROM report" 2>"$stage/csv.log" | LC_ALL=C sort); then
    fail "the report $1 is not the sum of the ledger"
  fi
}

expect_category_spending() {
  expect_report "$1" "c1, money(c2)" 'if ($4 < 0) sum[$5 == "" ? "Uncategorized" : $5] += $4 }
    END { for (name in sum) print name " | " sum[name] }'
}

expect_payee_summary() {
  expect_report "$1" "c1, money(c2), c3" 'sum[$3] += $4; ++count[$3] }
    END { for (name in sum) print name " | " sum[name] " | " count[name] }'
}

expect_tax_report() {
  expect_report "$1" "c1, money(c3)" \
    'if ($5 == "Medical Expenses" || $5 == "Education Expenses" || $5 == "Interest Income") sum[$5] += $4 }
    END { for (name in sum) print name " | " sum[name] }'
}

expect_income_vs_expenses() {
  expect_months "$1" '$7 == ""'
}

expect_cash_flow() {
  expect_months "$1" 1
}

expect_months() {
  expect_report "$1" "c1, money(c2), money(c3), money(c4)" "if ($2) {"'
      month = substr($2, 1, 7)
      net[month] += $4; net["Total"] += $4
      if ($4 > 0) { income[month] += $4; income["Total"] += $4 }
      else { expense[month] += $4; expense["Total"] += $4 } } }
    END { for (month in net)
            print month " | " income[month] + 0 " | " expense[month] + 0 " | " net[month] }'
}

expect_year_over_year() {
  expect_report "$1" "c1, money(c2), money(c3), money(c4)" '
    name = $5 == "" ? "Uncategorized" : $5
    if (substr($2, 1, 4) == year - 1) { before[name] += $4; names[name] }
    if (substr($2, 1, 4) == year) { now[name] += $4; names[name] } }
    END { for (name in names)
            print name " | " before[name] + 0 " | " now[name] + 0 " | " now[name] - before[name] }'
}

expect_account_summary() {
  expect_report "$1" "c1, money(c5)" 'sum[$1] += $4 }
    END { for (name in sum) print name " | " sum[name] }'
}

expect_transactions() {
  expect_report "$1" "c2, c3, c4, replace(c5, char(10), '~'), money(c6)" \
    'print $1 " | " $3 " | " $5 " | " $6 " | " $4 }'
}
