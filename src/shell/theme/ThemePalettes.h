#pragma once

#include <QPalette>

QPalette lightPalette();
QPalette darkPalette();
