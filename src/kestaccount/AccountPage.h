#pragma once

#include <QWidget>

class QVBoxLayout;

namespace KestAccount {

class PageContent;

// One tab of the account screen: a title, and below it content that scrolls. Its focus proxy takes
// the keyboard when new content has no place for it.
class AccountPage : public QWidget
{
    Q_OBJECT

public:
    explicit AccountPage(const QString &title, QWidget *parent = nullptr);

Q_SIGNALS:
    void succeeded(const QString &message); // for the status line of the screen
    void failed(const QString &message);

protected:
    // After a request whose end is not told, before the service is asked how things stand.
    static constexpr int kSettlingMs = 500;

    // Takes the content over and lets the old one go, once its handlers have returned: the button
    // that led here may be in it. The keyboard stays where it was, or as near as there is.
    void setContent(PageContent *content);

private:
    void moveFocus(const QString &objectName);

    QVBoxLayout *m_holder; // of the one content
    PageContent *m_content = nullptr;
};

} // namespace KestAccount
