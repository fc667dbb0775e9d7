#pragma once

#include <QDesktopServices>
#include <QUrl>

// For its lifetime takes the addresses that the desktop would have been given to open.
class OpenedUrls : public QObject
{
    Q_OBJECT

public:
    OpenedUrls()
    {
        for (const char *scheme : kSchemes)
            QDesktopServices::setUrlHandler(QLatin1StringView(scheme), this, "add");
    }
    ~OpenedUrls() override
    {
        for (const char *scheme : kSchemes)
            QDesktopServices::unsetUrlHandler(QLatin1StringView(scheme));
    }
    QList<QUrl> take() { return std::exchange(m_urls, {}); }

public Q_SLOTS:
    void add(const QUrl &url) { m_urls << url; }

private:
    static constexpr const char *kSchemes[]{"http", "https", "file", "javascript", "ms-word"};

    QList<QUrl> m_urls{};
};
