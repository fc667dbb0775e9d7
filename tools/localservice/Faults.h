#pragma once

#include <QJsonObject>
#include <QString>

#include <mutex>

// How the service misbehaves, for trying out what becomes of a client.
struct Fault
{
    enum class Kind {
        None,
        Delay, // answers after delay_ms
        Drop, // closes the connection without an answer, after the work was done
        Status, // answers with `status` and does nothing
        Truncated, // sends half of the answer and closes the connection
        NotJson,
        JsonArray,
        WrongTypes, // numbers for texts, texts for numbers, and so on
        Huge // 100 MB of JSON
    };

    Kind kind = Kind::None;
    int status = 500;
    int delay_ms = 0;
    int one_in = 1; // every so many-th of the matching requests
    int times = -1; // then it is over; negative: never
    QString path{}; // only requests whose path holds this text
};

// Hands out the fault of each request; the handlers ask from several threads.
class Faults
{
public:
    void set(const Fault &fault);
    bool setFrom(const QJsonObject &wish); // false: no such kind
    Fault next(const QString &path);

private:
    std::mutex m_mutex{};
    Fault m_fault{};
    int m_matched = 0;
};
