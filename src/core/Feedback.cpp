#include "core/Feedback.h"

#include "core/Deployment.h"

using namespace Qt::StringLiterals;

FeedbackConfig feedbackConfig()
{
    return {.tag = u"pursewell"_s, .url = QUrl(kFeedbackUrl)};
}
