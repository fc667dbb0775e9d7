#pragma once

#include <QStringList>

class QWidget;

// The texts of the window's visible parts that do not fit where they stand: each with its widget
// and by how much. What a person has written (names, memos) may be cut; the program's own words
// not.
QStringList cutTexts(const QWidget *window);
