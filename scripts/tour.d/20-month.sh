# shellcheck shell=bash
# A month typed into the register with the keyboard alone.

chapter_month() {
  press alt+1
  type_first_week
  type_second_week
  type_rest_of_month
  type_savings
  expect_month
}

type_first_week() {
  type_row 9/1/2026 101 "Oak Street Properties" "Housing > Rent/Mortgage Payment" \
    "September rent" 1,150.00 - -
  wait_for_rows 2
  date_keys plus
  type_row - - "Brightwater Studios" "Salary / Wages" "paid by the 2nd" - 2400 c
  wait_for_rows 3
  type_row 9/4/2026 - "Maple Market" Groceries "weekly shopping" 84.37 - -
  wait_for_rows 4
  date_keys plus plus minus
  type_row - - "City Electric" "Utilities > Electric" "meter 4417" 62.15 - -
  wait_for_rows 5
  picture first-week
}

type_second_week() {
  # A payee that is known by now: picked from the popup, which fills the row from its last one.
  press Return
  replace_text 9/8/2026
  press Return Return
  type_text map
  picture payee-completion
  press Down Return Tab
  picture filled-from-payee
  press Return Return
  replace_text 91.02
  press ctrl+Return
  wait_for_rows 6

  type_row 9/10/2026 - "[Transfer] Savings" - "rainy day" 300 - -
  wait_for_rows 8
  type_row 9/11/2026 102 "Dr. O'Brien" "Medical Expenses" - 45 - -
  wait_for_rows 9

  # Date, payee and category from the row above, each by an apostrophe on the resting cell.
  press apostrophe Right Right apostrophe Right apostrophe Right Right Return
  replace_text 20
  picture copied-from-above
  press ctrl+Return
  wait_for_rows 10
}

type_rest_of_month() {
  press Return
  replace_text 9/15/2026
  press Return Return
  type_text "Gas 'n Go"
  press Tab
  replace_text fuel
  picture category-completion
  press Down Tab Return
  replace_text 38.20
  press ctrl+Return
  wait_for_rows 11

  type_row 9/18/2026 - "State Treasury" Refunds "tax of last year" - 310.55 -
  wait_for_rows 12
  type_row 9/20/2026 - "Parking Garage" - - 12.345 - -
  wait_for_rows 13
  date_keys h
  type_row - - "Harbor Bank" "Interest Income" - - 1.07 -
  wait_for_rows 14
  # The same payee fills in the deposit, and a payment typed over it wins.
  date_keys m
  type_row - - "Harbor Bank" "Fees & Charges > Bank Fees" "statement copy" 4 - -
  wait_for_rows 15
  date_keys t
  type_row - - "Corner Bakery" "Dining & Restaurants" "100% rye, \"small\"" 6.75 - C
  wait_for_rows 16
  picture month-typed
}

type_savings() {
  press alt+2
  picture savings
  type_row 9/12/2026 - "Harbor Bank" "Interest Income" - - 0.42 -
  wait_for_rows 17
  type_row 9/13/2026 - "[Transfer] Checking" - "back again" 50 - -
  wait_for_rows 19
}

expect_month() {
  expect_rows "the month in Checking" "$(register_of Checking)" <<ROWS
2026-09-01 |  | Opening Balance |  | 125000 |  | R | 125000 | 
2026-09-01 | 101 | Oak Street Properties | September rent | -115000 | Housing > Rent/Mortgage Payment |  | 10000 | 
2026-09-01 |  | Harbor Bank | statement copy | -400 | Fees & Charges > Bank Fees |  | 9600 | 
2026-09-02 |  | Brightwater Studios | paid by the 2nd | 240000 | Salary / Wages | C | 249600 | 
2026-09-04 |  | Maple Market | weekly shopping | -8437 | Groceries |  | 241163 | 
2026-09-05 |  | City Electric | meter 4417 | -6215 | Utilities > Electric |  | 234948 | 
2026-09-08 |  | Maple Market | weekly shopping | -9102 | Groceries |  | 225846 | 
2026-09-10 |  | Transfer to Savings | rainy day | -30000 |  |  | 195846 | Savings
2026-09-11 | 102 | Dr. O'Brien |  | -4500 | Medical Expenses |  | 191346 | 
2026-09-11 |  | Dr. O'Brien |  | -2000 | Medical Expenses |  | 189346 | 
2026-09-13 |  | Transfer from Savings |  | 5000 |  |  | 194346 | Savings
2026-09-15 |  | Gas 'n Go |  | -3820 | Transportation > Gas/Fuel |  | 190526 | 
2026-09-18 |  | State Treasury | tax of last year | 31055 | Refunds |  | 221581 | 
2026-09-20 |  | Parking Garage |  | -1235 |  |  | 220346 | 
2026-09-30 |  | Harbor Bank |  | 107 | Interest Income |  | 220453 | 
$(date +%F) |  | Corner Bakery | 100% rye, "small" | -675 | Dining & Restaurants | C | 219778 | 
ROWS
  expect_rows "the month in Savings" "$(register_of Savings)" <<'ROWS'
2026-09-10 |  | Transfer from Checking |  | 30000 |  |  | 30000 | Checking
2026-09-12 |  | Harbor Bank |  | 42 | Interest Income |  | 30042 | 
2026-09-13 |  | Transfer to Checking | back again | -5000 |  |  | 25042 | Checking
ROWS
}
