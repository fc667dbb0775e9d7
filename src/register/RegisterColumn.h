#pragma once

// The columns of the register by number. The numbers are stored in the settings (widths, hidden
// columns, the sort), so they never change their meaning.
namespace RegisterColumn {
inline constexpr int Date = 0;
inline constexpr int CheckNumber = 1;
inline constexpr int Payee = 2;
inline constexpr int Category = 3;
inline constexpr int Memo = 4;
inline constexpr int Payment = 5;
inline constexpr int Deposit = 6;
inline constexpr int Clr = 7;
inline constexpr int Balance = 8;
inline constexpr int kCount = 9;

// Typing goes through these; Balance is only ever shown.
inline constexpr int kFirstNavigable = Date;
inline constexpr int kLastNavigable = Clr;

// A split transaction's category and amount belong to its split lines.
constexpr bool belongsToSplitLines(int column)
{
    return column == Category || column == Payment || column == Deposit;
}
} // namespace RegisterColumn
