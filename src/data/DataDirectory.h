#pragma once

#include <QString>

// Where the database lives. Made anew if it has gone; whether it can be used shows when the
// database opens.
QString dataDirectory();
QString databasePath();
