#pragma once

#include <QUrl>

struct FeedbackConfig;

QUrl feedbackAddress(const FeedbackConfig &feedback); // names the product in its query
void openFeedbackPage(const FeedbackConfig &feedback); // in the browser
