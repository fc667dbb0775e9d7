#pragma once

#include <QString>

QString primaryButtonStyle(); // the one button of a page that leads on
QString primaryButtonFocusStyle(); // goes with it, which shows no focus by itself
QString linkButtonStyle(); // for a flat button that reads like a link
