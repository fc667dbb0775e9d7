#include "HouseholdRows.h"

#include "BenchDatabase.h"

#include <QUuid>

#include <array>

namespace {

const QDate kFirstDay(2011, 11, 1);
const QDate kLastDay(2026, 10, 31);
constexpr int kRareWordEvery = 20000;

constexpr std::array kPlaces{
    "Harbor",   "Maple",   "Riverside", "Oak Street", "Sunset",   "Granite",  "Lakeview",
    "Corner",   "Union",   "Old Town",  "Juniper",    "Station",  "Prairie",  "Hillcrest",
    "Meadow",   "Cedar",   "Northgate", "Bluebird",   "Summit",   "Orchard",  "Willow",
    "Fairview", "Central", "Pine",      "Birch",      "Canyon",   "Eastside", "Golden",
    "Valley",   "Silver",  "Redwood",   "Parkway",    "Magnolia", "Cascade",  "Liberty",
    "Chestnut", "Colony",  "Evergreen", "Frontier",   "Garden"};
constexpr std::array kTrades{"Market",  "Hardware", "Pharmacy",   "Bakery",    "Garage",
                             "Books",   "Electric", "Water",      "Diner",     "Clinic",
                             "Florist", "Cinema",   "Outfitters", "Insurance", "Telecom",
                             "Café",    "Dental",   "Grocer",     "Fitness",   "Pets"};
constexpr std::array kMemos{"weekly shopping",
                            "birthday",
                            "monthly bill",
                            "for the kitchen",
                            "gift card",
                            "school",
                            "car",
                            "returned one item",
                            "paid in advance",
                            "shared with neighbours"};

} // namespace

HouseholdRows::HouseholdRows(int count, QList<QByteArray> categoryIds,
                             const HouseholdHabits &habits)
    : m_count(count)
    , m_categoryIds(std::move(categoryIds))
    , m_habits(habits)
{
}

HouseholdRow HouseholdRows::draw(int index, int account)
{
    const qint64 days = kFirstDay.daysTo(kLastDay);
    HouseholdRow row{.id = drawId(), .account = account};
    row.date = kFirstDay.addDays(days * index / m_count);
    row.payee = drawPayee();
    row.memo = drawMemo(index);
    const bool deposit = drawBelow(100) < 12;
    row.amount_cents = deposit ? 5000 + drawBelow(300000) : -qint64(199 + drawBelow(25000));
    row.category_id = m_categoryIds.at(drawBelow(quint32(m_categoryIds.size())));
    if (!deposit && drawBelow(100) < 6)
        row.check_number = QByteArray::number(m_nextCheck++);
    // Several rows share a day, and the order in which they were typed is the order in the day.
    const QTime typed = QTime(8, 0).addSecs(index % 36000);
    row.created_at = QDateTime(row.date, typed, Qt::UTC).toString(Qt::ISODate).toUtf8();
    drawState(row);
    return row;
}

HouseholdRow HouseholdRows::otherSide(HouseholdRow &row, int account, const QByteArray &id)
{
    row.payee = "Transfer to account " + QByteArray::number(account);
    row.category_id.clear();
    HouseholdRow other = row;
    other.id = id;
    other.account = account;
    other.payee = "Transfer from account " + QByteArray::number(row.account);
    other.amount_cents = -row.amount_cents;
    other.linked_id = row.id;
    other.linked_account = row.account;
    row.linked_id = id;
    row.linked_account = account;
    return other;
}

QByteArray HouseholdRows::drawId()
{
    std::array<quint32, 4> words{};
    for (quint32 &word : words)
        word = quint32(m_engine());
    QByteArray bytes(reinterpret_cast<const char *>(words.data()), sizeof words);
    bytes[6] = char((bytes.at(6) & 0x0f) | 0x40);
    bytes[8] = char((bytes.at(8) & 0x3f) | 0x80);
    return QUuid::fromRfc4122(bytes).toByteArray(QUuid::WithoutBraces);
}

QByteArray HouseholdRows::drawPayee()
{
    // The smaller of two draws: some payees are met every week, most of them once a year.
    const quint32 payee = std::min(drawBelow(m_habits.payees), drawBelow(m_habits.payees));
    const QByteArray place = kPlaces.at(payee / kTrades.size() % kPlaces.size());
    const QByteArray name = place + ' ' + kTrades.at(payee % kTrades.size());
    const size_t branch = payee / (kTrades.size() * kPlaces.size());
    return branch == 0 ? name : name + " branch " + QByteArray::number(quint64(branch));
}

QByteArray HouseholdRows::drawMemo(int index)
{
    if (index % kRareWordEvery == kRareWordEvery / 2)
        return "stamps from " + BenchDatabase::rareWord().toUtf8();
    if (drawBelow(100) < 40)
        return {};
    const QByteArray what = kMemos.at(drawBelow(kMemos.size()));
    return what + " no. " + QByteArray::number(drawBelow(1000));
}

void HouseholdRows::drawState(HouseholdRow &row)
{
    const qint64 age = row.date.daysTo(kLastDay);
    row.reconciled = m_habits.reconciles && age > 45;
    row.cleared = row.reconciled || (age > 5 && drawBelow(100) < 70);
}
