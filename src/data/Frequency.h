#pragma once

#include <QString>

enum class Frequency { Daily, Weekly, Biweekly, Monthly, Quarterly, SemiAnnual, Annual };

QString frequencyToString(Frequency frequency); // an unknown value gives "monthly"
Frequency frequencyFromString(const QString &word); // an unknown word reads as Monthly
