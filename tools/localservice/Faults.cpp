#include "Faults.h"

using namespace Qt::StringLiterals;

namespace {

constexpr struct
{
    QLatin1StringView word;
    Fault::Kind kind;
} kKinds[]{
    {"none"_L1, Fault::Kind::None},
    {"delay"_L1, Fault::Kind::Delay},
    {"drop"_L1, Fault::Kind::Drop},
    {"status"_L1, Fault::Kind::Status},
    {"truncated"_L1, Fault::Kind::Truncated},
    {"not_json"_L1, Fault::Kind::NotJson},
    {"json_array"_L1, Fault::Kind::JsonArray},
    {"wrong_types"_L1, Fault::Kind::WrongTypes},
    {"huge"_L1, Fault::Kind::Huge},
};

} // namespace

void Faults::set(const Fault &fault)
{
    const std::lock_guard lock(m_mutex);
    m_fault = fault;
    m_matched = 0;
}

bool Faults::setFrom(const QJsonObject &wish)
{
    for (const auto &known : kKinds) {
        if (wish.value("kind"_L1).toString() != known.word)
            continue;
        set({.kind = known.kind,
             .status = wish.value("status"_L1).toInt(500),
             .delay_ms = wish.value("delay_ms"_L1).toInt(),
             .one_in = std::max(1, wish.value("one_in"_L1).toInt(1)),
             .times = wish.value("times"_L1).toInt(-1),
             .path = wish.value("path"_L1).toString()});
        return true;
    }
    return false;
}

Fault Faults::next(const QString &path)
{
    const std::lock_guard lock(m_mutex);
    if (m_fault.kind == Fault::Kind::None || m_fault.times == 0 || !path.contains(m_fault.path))
        return {};
    if (++m_matched % m_fault.one_in != 0)
        return {};
    if (m_fault.times > 0)
        --m_fault.times;
    return m_fault;
}
