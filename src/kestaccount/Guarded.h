#pragma once

#include <QObject>
#include <QPointer>

#include <utility>

namespace KestAccount {

// A callback for a request that may be answered when the object is long gone: then it does nothing.
template <typename Call> auto guarded(QObject *object, Call call)
{
    return [alive = QPointer<QObject>(object), call = std::move(call)](const auto &...arguments) {
        if (alive)
            call(arguments...);
    };
}

} // namespace KestAccount
