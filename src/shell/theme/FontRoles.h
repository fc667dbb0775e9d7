#pragma once

#include <QFont>

class QWidget;

// The fonts of all screens come from these few roles, so that one change of scale reaches them all.
// A role is stored on its widget in the dynamic property "kestFontRole", refined by
// "kestFontItalic" (bool) and "kestFontWeight" (a QFont weight).
namespace FontRole {
inline constexpr int Body = 0; // any value without a role of its own counts as this one
inline constexpr int BodyMedium = 1;
inline constexpr int Caption = 2;
inline constexpr int Subheading = 3;
inline constexpr int Heading = 4;
inline constexpr int Title = 5;
inline constexpr int Display = 6;
inline constexpr int Monospace = 7;
}

inline constexpr int kMinFontScale = 70;
inline constexpr int kMaxFontScale = 160;

inline constexpr char kFontRoleProperty[] = "kestFontRole";
inline constexpr char kFontItalicProperty[] = "kestFontItalic";
inline constexpr char kFontWeightProperty[] = "kestFontWeight";

// Process-wide, since free functions and widgets need them without a pointer to anything.
int &fontScale(); // percent, kMinFontScale to kMaxFontScale
QFont &baseFont(); // before scaling; the application's font of the first call unless set

int scaledPointSize(); // of Body, at least 1
QFont scaledFont(); // Body
QFont fontForRole(int role);
QFont monoFont();

// Screens call these instead of setFont; a null widget is passed over.
void applyFontRole(QWidget *widget, int role);
void applyFontRole(QWidget *widget, int role, int weight);

// Gives the widget the font of its stored role, italic and weight again; one without a role keeps
// following the application's font.
void reapplyFontRole(QWidget *widget);
