#pragma once

#include <QJsonObject>

#include <string>

namespace httplib {
struct Response;
}

// How answers are spoilt.

void dropConnection(int servicePort, int clientPort); // ends it without an answer
QJsonObject withWrongTypes(const QJsonObject &object); // each value becomes one of another type
void sendTruncated(httplib::Response &response, const std::string &body); // half, then the end
