#pragma once

#include <QString>

QString primaryButtonStyle(); // the one button of a page that leads on
QString linkButtonStyle(); // for a flat button that reads like a link
