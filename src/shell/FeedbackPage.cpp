#include "shell/FeedbackPage.h"

#include "core/Feedback.h"

#include <QDesktopServices>

using namespace Qt::StringLiterals;

QUrl feedbackAddress(const FeedbackConfig &feedback)
{
    QUrl url = feedback.url;
    if (!url.path().endsWith(u'/'))
        url.setPath(url.path() + u'/');
    url.setQuery(u"tags="_s + feedback.tag);
    return url;
}

void openFeedbackPage(const FeedbackConfig &feedback)
{
    QDesktopServices::openUrl(feedbackAddress(feedback));
}
