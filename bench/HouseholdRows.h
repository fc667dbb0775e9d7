#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>

#include <random>

// One row of table "transactions" as the bench database stores it.
struct HouseholdRow
{
    QByteArray id{};
    int account = 0; // index of the account
    QDate date{};
    QByteArray payee{};
    QByteArray memo{};
    qint64 amount_cents = 0;
    QByteArray category_id{};
    QByteArray check_number{};
    bool cleared = false;
    bool reconciled = false;
    QByteArray linked_id{};
    int linked_account = -1; // index of the account of a transfer's other side, -1 without
    QByteArray created_at{};

    bool operator==(const HouseholdRow &) const = default;
};

struct HouseholdHabits
{
    quint32 payees = 800;
    bool reconciles = true; // what is older than a statement
};

// Draws transactions from a fixed seed. The standard fixes what the engine returns but not what its
// distributions make of it, so every draw is a remainder.
class HouseholdRows
{
public:
    // The row at position `index` of `count` falls on that share of the 15 years.
    HouseholdRows(int count, QList<QByteArray> categoryIds, const HouseholdHabits &habits = {});

    HouseholdRow draw(int index, int account);
    bool drawsChance(quint32 percent) { return drawBelow(100) < percent; }
    // Makes a transfer of the row and returns its other side, which lies in this account.
    static HouseholdRow otherSide(HouseholdRow &row, int account, const QByteArray &id);
    QByteArray drawId();

private:
    quint32 drawBelow(quint32 bound) { return quint32(m_engine() % bound); }
    QByteArray drawPayee();
    QByteArray drawMemo(int index);
    void drawState(HouseholdRow &row);

    std::mt19937 m_engine{20111101};
    int m_count;
    QList<QByteArray> m_categoryIds;
    HouseholdHabits m_habits;
    int m_nextCheck = 1001;
};
