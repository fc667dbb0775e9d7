#include "data/Frequency.h"

#include "core/EnumWords.h"

using namespace Qt::StringLiterals;

namespace {
constexpr EnumWords<7> kFrequencyWords{"daily"_L1,   "weekly"_L1,    "biweekly"_L1,
                                       "monthly"_L1, "quarterly"_L1, "semi_annual"_L1,
                                       "annual"_L1};
}

QString frequencyToString(Frequency frequency)
{
    return enumToWord(kFrequencyWords, frequency, Frequency::Monthly);
}

Frequency frequencyFromString(const QString &word)
{
    return enumFromWord(kFrequencyWords, word, Frequency::Monthly);
}
