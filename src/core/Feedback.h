#pragma once

#include <QString>
#include <QUrl>

struct FeedbackConfig
{
    QString tag{};
    QUrl url{};
};

FeedbackConfig feedbackConfig();
