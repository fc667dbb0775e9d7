#include "FaultyAnswers.h"

#include <QJsonArray>

#include <httplib.h>

#include <sys/socket.h>

#include <netinet/in.h>

using namespace Qt::StringLiterals;

namespace {

int portOf(const sockaddr_in &address)
{
    return ntohs(address.sin_port);
}

QJsonValue wrongType(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return 42;
    case QJsonValue::Double:
        return u"a word"_s;
    case QJsonValue::Bool:
        return QJsonArray{1, 2};
    case QJsonValue::Array:
        return QJsonObject{{"an"_L1, u"object"_s}};
    case QJsonValue::Object:
        return QJsonArray{u"a list"_s};
    default:
        return false;
    }
}

} // namespace

// The library has no word for it, so the socket is looked for by both its ports.
void dropConnection(int servicePort, int clientPort)
{
    for (int descriptor = 3; descriptor < 1024; ++descriptor) {
        sockaddr_in own{};
        sockaddr_in peer{};
        socklen_t ownLength = sizeof own;
        socklen_t peerLength = sizeof peer;
        if (getsockname(descriptor, reinterpret_cast<sockaddr *>(&own), &ownLength) == 0
            && getpeername(descriptor, reinterpret_cast<sockaddr *>(&peer), &peerLength) == 0
            && portOf(own) == servicePort && portOf(peer) == clientPort)
            shutdown(descriptor, SHUT_RDWR);
    }
}

QJsonObject withWrongTypes(const QJsonObject &object)
{
    QJsonObject spoilt;
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry)
        spoilt.insert(entry.key(), wrongType(entry.value()));
    return spoilt;
}

void sendTruncated(httplib::Response &response, const std::string &body)
{
    response.set_content_provider(body.size() + 100, "application/json",
                                  [body](std::size_t offset, std::size_t, httplib::DataSink &sink) {
                                      if (offset == 0)
                                          sink.write(body.data(), body.size() / 2);
                                      return false;
                                  });
}
