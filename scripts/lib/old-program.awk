# Writes what another program might have exported of two years of a household, alike at every run:
#   old-banks.qif   the bank accounts; Windows-1252, CR LF, "1/ 5'24", "-1,234.56"
#   old-cards.qif   card and cash, and December of the bank accounts; UTF-8, "05.01.2024", "-1.234,56"
#   bank.csv        a bank's statement: header, quotes, line breaks in a field
#   ledger.tsv      every transaction plainly: account, date, payee, cents, category, memo, the
#                   other account of a transfer, number of split lines, file; "~" is a line break
#   splits.tsv      every split line: payee, cents, category
# Start with: awk -v folder=<existing> -v first_year=<year> -f old-program.awk

BEGIN {
  seed = 20240229
  for (year = first_year; year < first_year + 2; ++year)
    for (month = 1; month <= 12; ++month)
      for (day = 1; day <= 28; ++day)
        live_a_day()
  write_banks()
  write_cards()
  write_statement()
}

function random(limit) { # 0 to limit - 1
  seed = (seed * 16807) % 2147483647
  return seed % limit
}

function live_a_day(   cents) {
  spend("Harbor Checking", 40 + random(9000))
  spend("Visa & Co", 40 + random(20000))
  if (day % 2 == 0)
    spend("Wallet", 40 + random(3000))
  if (day == 1)
    record("Harbor Checking", "Brightwater Studios", 312500 + month, "Wages", "salary " month, "", 0)
  if (day == 28)
    record("Harbor Savings", "Harbor Bank", 900 + random(400), "Interest Income", "", "", 0)
  if (day % 7 == 3)
    transfer("Harbor Checking", "Harbor Savings", "put aside")
  if (day % 7 == 4)
    transfer("Harbor Checking", "Visa & Co", "card payment")
  if (day % 7 == 5)
    transfer("Harbor Checking", "Wallet", "")
  if (day == 17)
    transfer("Visa & Co", "Wallet", "cash [advance]")
}

function spend(account, cents,   shop, payee, category, splits) {
  shop = random(8)
  payee = "Maple Market"; category = "Groceries"
  if (shop == 1) { payee = "Caf\303\251 Central"; category = "Dining & Restaurants" }
  if (shop == 2) { payee = "O'Brien & Sons"; category = "Household:Repairs" }
  if (shop == 3) { payee = "100% \"Organic\", Ltd."; category = "Groceries" }
  if (shop == 4) { payee = "Dr. Weiss"; category = "Medical Expenses" }
  if (shop == 5) { payee = "City Electric"; category = "Utilities:Power" }
  if (shop == 6) { payee = "<b>Bold</b> Books"; category = "Education Expenses" }
  if (shop == 7) { payee = "Kiosk"; category = "" }
  if (cents > 100 && ++shopped % 16 == 0) {
    splits = 2 + shopped % 3
    payee = "Department Store " shopped
    category = ""
  }
  record(account, payee, -cents, category, shopped % 5 ? "" : "note " shopped, "", splits + 0)
}

# Amounts that grow: each side of a transfer has but one other.
function transfer(from, to, memo) {
  ++transfers
  record(from, "Transfer to " to, -(5000 + 13 * transfers), "", memo == "" ? "" : memo " " transfers, to, 0)
  record(to, "Transfer from " from, 5000 + 13 * transfers, "", "", from, 0)
}

function record(account, payee, cents, category, memo, other, splits,   file, date) {
  date = sprintf("%04d-%02d-%02d", year, month, day)
  while ((account, date, cents, payee) in taken)
    --cents
  taken[account, date, cents, payee] = 1
  file = "cards"
  if (account ~ /^Harbor/ && !(year > first_year && month == 12))
    file = "banks"
  ++count
  in_block[file, account] = in_block[file, account] " " count
  date_of[count] = year " " month " " day
  payee_of[count] = payee
  cents_of[count] = cents
  category_of[count] = category
  memo_of[count] = memo
  other_of[count] = other
  splits_of[count] = splits
  print_ledger(account, date, payee, cents, category, memo, other, splits, file)
}

function print_ledger(account, date, payee, cents, category, memo, other, splits, file) {
  printf "%s\t%s\t%s\t%d\t%s\t%s\t%s\t%d\t%s\n", account, date, payee, cents, category, memo, other,
    splits, file > (folder "/ledger.tsv")
}

function grouped(cents, group, point,   sign, whole, text) {
  sign = cents < 0 ? "-" : ""
  if (cents < 0)
    cents = -cents
  whole = int(cents / 100)
  text = whole >= 1000 ? sprintf("%d%s%03d", int(whole / 1000), group, whole % 1000) : whole
  return sprintf("%s%s%s%02d", sign, text, point, cents % 100)
}

function line(text) {
  printf "%s%s", text, newline > output
}

function qif_date(packed, style,   part) {
  split(packed, part, " ")
  if (style == "dots")
    return sprintf("%02d.%02d.%04d", part[3], part[2], part[1])
  return sprintf("%d/%2d'%02d", part[2], part[3], part[1] % 100)
}

function account_block(account, type) {
  line("!Account"); line("N" account); line("T" type); line("^")
}

function transactions_of(file, account, type, style, group, point,   ids, i, n) {
  account_block(account, type)
  line("!Type:" type)
  n = split(in_block[file, account], ids, " ")
  for (i = 1; i <= n; ++i)
    transaction(ids[i], style, group, point)
}

function transaction(id, style, group, point,   payee, cleared) {
  payee = payee_of[id]
  if (style != "dots")
    gsub(/\303\251/, "\351", payee)
  line("D" qif_date(date_of[id], style))
  line("U" grouped(cents_of[id], group, point))
  line("T" grouped(cents_of[id], group, point))
  cleared = id % 3 == 0 ? "X" : id % 3 == 1 ? "*" : ""
  if (cleared != "")
    line("C" cleared)
  line("P" payee)
  if (memo_of[id] != "")
    line("M" memo_of[id])
  if (other_of[id] != "")
    line("L[" other_of[id] "]")
  else if (category_of[id] != "")
    line("L" category_of[id])
  if (splits_of[id] > 0)
    split_lines(id, group, point)
  line("^")
}

function split_lines(id, group, point,   left, i, part, category) {
  left = cents_of[id]
  for (i = 1; i <= splits_of[id]; ++i) {
    part = i < splits_of[id] ? -(7 * i + id % 11) : left
    left -= part
    category = i == 1 ? "Groceries" : i == 2 ? "Clothing" : "Household:Repairs"
    line("S" category); line("Epart " i); line("$" grouped(part, group, point))
    printf "%s\t%d\t%s\n", payee_of[id], part, category > (folder "/splits.tsv")
  }
}

function write_banks() {
  output = folder "/old-banks.qif"
  newline = "\r\n"
  line("!Type:Cat")
  line("NWages"); line("DEarned"); line("I"); line("^")
  line("NHousehold:Repairs"); line("E"); line("^")
  line("!Type:Memorized")
  line("KD"); line("PMaple Market"); line("T-1.00"); line("^")
  line("KD"); line("PKiosk"); line("T-1.00"); line("^")
  line("!Option:AutoSwitch")
  account_block("Harbor Checking", "Bank")
  line("!Clear:AutoSwitch")
  transactions_of("banks", "Harbor Checking", "Bank", "slashes", ",", ".")
  line("PNeither date nor amount"); line("^")
  transactions_of("banks", "Harbor Savings", "Bank", "slashes", ",", ".")
  close(output)
}

function write_cards() {
  output = folder "/old-cards.qif"
  newline = "\n"
  printf "\357\273\277" > output
  transactions_of("cards", "Harbor Checking", "Bank", "dots", ".", ",")
  transactions_of("cards", "Harbor Savings", "Bank", "dots", ".", ",")
  transactions_of("cards", "Visa & Co", "CCard", "dots", ".", ",")
  transactions_of("cards", "Wallet", "Cash", "dots", ".", ",")
  close(output)
}

# January after the two years, of Harbor Checking. One row stands there twice.
function write_statement(   i, date, cents, payee, category) {
  output = folder "/bank.csv"
  newline = "\r\n"
  line("Booking date,Payee,Amount,Note,Category")
  for (i = 1; i <= 40; ++i) {
    date = sprintf("%04d-01-%02d", first_year + 2, 1 + i % 28)
    cents = i % 9 == 0 ? 150000 + i : -(1000 + 37 * i)
    payee = (i % 2 ? "Corner Bakery " : "Harbor Ferry ") i ", \"Old Town\""
    category = cents > 0 ? "Refunds" : i % 4 ? "Groceries" : ""
    print_ledger("Harbor Checking", date, payee, cents, category,
      "first line " i "~second, with a comma", "", 0, "statement")
    gsub(/"/, "\"\"", payee)
    line(sprintf("%s,\"%s\",\"%s\",\"first line %d\nsecond, with a comma\",%s", date, payee,
      grouped(cents, ",", "."), i, category))
  }
  line(sprintf("%04d-01-02,\"Corner Bakery 1, \"\"Old Town\"\"\",-10.37,again,", first_year + 2))
  line("not a date,Nobody,1.00,,")
  close(output)
}
