#include "sync/AccountSharingService.h"

#include "kestaccount/ApiClient.h"
#include "kestaccount/AvatarLabel.h"
#include "kestaccount/Client.h"
#include "kestaccount/MemoryTokenStore.h"
#include "kestaccount/ShareMembersDialog.h"
#include "kestaccount/TokenManager.h"
#include "support/DialogAnswer.h"
#include "support/FakeHttpService.h"
#include "support/TestSupport.h"

using namespace KestAccount;
using namespace Qt::StringLiterals;

// Sharing as a person does it: the dialog, and through the backend to a scripted service.
class AccountSharingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsInitials_data();
    void findsInitials();
    void listsThePeople_data();
    void listsThePeople();
    void changesAccess_data();
    void changesAccess();
    void sendsBothKeysForAnAddress();
    void answersMayOutliveTheDialog();

private:
    void openDialog();
    QStringList rowTexts(const QString &rowName) const; // of all rows of that kind
    QStringList shownNotes() const;

    std::unique_ptr<FakeHttpService> m_service{};
    std::unique_ptr<Client> m_client{};
    std::unique_ptr<AccountSharingService> m_sharing{};
    std::unique_ptr<ShareMembersDialog> m_dialog{};
};

const QByteArray kFamily = R"({"id":"g","members":[
    {"account_id":"ann","email":"ann@example.com","role":"owner"},
    {"account_id":"bob","display_name":"<b>Bob %1</b>","email":"bob@example.com"},
    {"account_id":"cy","email":"cy@example.com"}]})";
const QByteArray kShares = R"({"members":[{"user_id":"ann","role":"owner"},
    {"user_id":"bob","role":"member"},{"user_id":"gone","role":"member"}]})";

void AccountSharingTest::init()
{
    m_dialog.reset();
    m_service = std::make_unique<FakeHttpService>();
    m_client =
        std::make_unique<Client>(ClientConfig{.accountApiUrl = m_service->url(u"/a"_s).toString()});
    m_client->tokenManager()->setTokens(tokenFor(3600), {});
    m_client->syncApi()->setBaseUrl(m_service->url(u"/s"_s));
    m_sharing = std::make_unique<AccountSharingService>(m_client->syncApi());
    m_service->answer(u"GET /a/profile"_s, {{200, R"({"id":"ann"})"}});
    m_service->answer(u"GET /a/group"_s, {{200, kFamily}});
    m_service->answer(u"GET /s/accounts/joint/members"_s, {{200, kShares}});
}

void AccountSharingTest::openDialog()
{
    const ShareWords words{.windowTitle = u"Share"_s,
                           .heading = u"Sharing: <b>%1</b>"_s,
                           .description = u"All of it"_s,
                           .removeConfirmText = u"Away with %1?"_s};
    m_dialog =
        std::make_unique<ShareMembersDialog>(m_client.get(), m_sharing.get(), u"joint"_s, words);
    showActive(m_dialog.get());
}

QStringList AccountSharingTest::rowTexts(const QString &rowName) const
{
    QStringList texts;
    const QList<QWidget *> rows = m_dialog->findChildren<QWidget *>(rowName);
    for (const QWidget *row : rows) {
        if (!row->isVisible())
            continue;
        const QList<QLabel *> labels = row->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts << label->text();
    }
    return texts;
}

QStringList AccountSharingTest::shownNotes() const
{
    QStringList names;
    const QList<QLabel *> labels =
        m_dialog->findChildren<QLabel *>(QRegularExpression(u"^(emptyShared|noGroup|allShared)"_s));
    for (const QLabel *label : labels) {
        if (label->isVisible())
            names << label->objectName();
    }
    return names;
}

void AccountSharingTest::findsInitials_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("letters");
    QTest::newRow("no name") << QString() << u"A"_s;
    QTest::newRow("one word") << u" bob "_s << u"B"_s;
    QTest::newRow("middle names do not count") << u"eve  mary ann king"_s << u"EK"_s;
    QTest::newRow("an emoji is one letter") << u"😀y é́va"_s << u"😀É́"_s;
    QTest::newRow("only blanks") << u"  "_s << QString();
}

void AccountSharingTest::findsInitials()
{
    QFETCH(QString, name);
    QTEST(initials(name, u"ann@example.com"_s), "letters");
    QCOMPARE(initials({}, {}), u"?"_s);
}

void AccountSharingTest::listsThePeople_data()
{
    QTest::addColumn<FakeReply>("family");
    QTest::addColumn<FakeReply>("shares");
    QTest::addColumn<QStringList>("withAccess");
    QTest::addColumn<QStringList>("candidates");
    QTest::addColumn<QStringList>("notes"); // those that can be seen
    const FakeReply family{.body = kFamily};
    const FakeReply shares{.body = kShares};
    const FakeReply nobody{.body = "[]"};
    const QStringList bob{u"<%"_s, u"<b>Bob %1</b>"_s, u"bob@example.com"_s};
    const QStringList cy{u"C"_s, u"cy@example.com"_s};
    const QStringList gone{u"?"_s, u"gone"_s};
    const QStringList empty{u"emptySharedLabel"_s};
    QTest::newRow("names from the group, one has left it")
        << family << shares << (bob + gone) << cy << QStringList();
    QTest::newRow("nobody yet") << family << nobody << QStringList() << (bob + cy) << empty;
    QTest::newRow("names of the share come first")
        << FakeReply{.body = R"({"members":[{"account_id":"ann"}]})"}
        << FakeReply{.body =
                         R"({"members":[{"user_id":"ann","display_name":"Ann B","email":"x"}]})"}
        << QStringList{u"AB"_s, u"Ann B"_s, u"x"_s} << QStringList()
        << QStringList{u"allSharedLabel"_s};
    QTest::newRow("no group") << FakeReply{.body = "{}"} << nobody << QStringList() << QStringList()
                              << (empty + QStringList{u"noGroupLabel"_s});
    QTest::newRow("the family never comes")
        << FakeReply{.hangs = true} << shares << (QStringList{u"?"_s, u"bob"_s} + gone)
        << QStringList() << QStringList{u"noGroupLabel"_s};
    QTest::newRow("the shares never come")
        << family << FakeReply{.hangs = true} << QStringList() << (bob + cy) << empty;
}

void AccountSharingTest::listsThePeople()
{
    QFETCH(FakeReply, family);
    QFETCH(FakeReply, shares);
    QFETCH(QStringList, withAccess);
    QFETCH(QStringList, candidates);
    QFETCH(QStringList, notes);
    m_service->answer(u"GET /a/group"_s, {family});
    m_service->answer(u"GET /s/accounts/joint/members"_s, {shares});
    openDialog();
    QTRY_COMPARE(rowTexts(u"shareRow"_s), withAccess);
    QTRY_COMPARE(rowTexts(u"candidateRow"_s), candidates);
    QTRY_COMPARE(shownNotes(), notes);
}

void AccountSharingTest::changesAccess_data()
{
    QTest::addColumn<QString>("buttonName");
    QTest::addColumn<QString>("request");
    QTest::addColumn<FakeReply>("reply");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("error"); // empty: none, and the change is told
    const QString post = u"POST /s/accounts/joint/share"_s;
    const QString removal = u"DELETE /s/accounts/joint/share/bob"_s;
    const QByteArray cy = R"({"role":"member","user_id":"cy"})";
    QTest::newRow("share") << u"shareButton"_s << post << FakeReply{201} << cy << QString();
    QTest::newRow("refused with a reason")
        << u"shareButton"_s << post << FakeReply{403, R"({"error":"<b>No</b> %1"})"} << cy
        << u"<b>No</b> %1"_s;
    QTest::newRow("refused without one") << u"shareButton"_s << post << FakeReply{500, "<html>"}
                                         << cy << u"Failed to share account (HTTP 500)"_s;
    QTest::newRow("remove") << u"removeButton"_s << removal << FakeReply{204} << QByteArray()
                            << QString();
    QTest::newRow("removal refused") << u"removeButton"_s << removal << FakeReply{404}
                                     << QByteArray() << u"Could not remove <b>Bob %1</b>."_s;
}

void AccountSharingTest::changesAccess()
{
    QFETCH(QString, buttonName);
    QFETCH(QString, request);
    QFETCH(FakeReply, reply);
    QFETCH(QByteArray, body);
    QFETCH(QString, error);
    m_service->answer(request, {reply});
    openDialog();
    QSignalSpy changed(m_dialog.get(), &ShareMembersDialog::sharingChanged);
    QTRY_COMPARE(rowTexts(u"candidateRow"_s).size(), 2); // both answers are in
    QTRY_COMPARE(rowTexts(u"shareRow"_s).size(), 5);
    m_service->forgetRequests();
    DialogAnswer answer(u"accountQuestion"_s, [](QDialog *dialog) {
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        QCOMPARE(box->text(), u"Away with <b>Bob %1</b>?"_s);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
        box->button(QMessageBox::Yes)->click();
    });
    auto *pressed = visibleChild<QAbstractButton>(*m_dialog, buttonName);
    QTest::mouseClick(pressed, Qt::LeftButton);
    QTest::mouseClick(pressed, Qt::LeftButton); // before the service has answered
    const auto *errorLabel = m_dialog->findChild<QLabel *>(u"errorLabel"_s);
    QTRY_VERIFY(changed.count() == 1 || errorLabel->isVisible());
    QCOMPARE(changed.count(), error.isEmpty() ? 1 : 0);
    QCOMPARE(errorLabel->text(), error);
    if (error.isEmpty())
        QTRY_COMPARE(m_service->requests().size(), 4); // and everything is asked for anew
    QCOMPARE(m_service->requestLines().filter(request), QStringList(request));
    QCOMPARE(m_service->requests().constFirst().body, body);
    QTRY_COMPARE(rowTexts(u"candidateRow"_s).size(), 2);
}

void AccountSharingTest::sendsBothKeysForAnAddress()
{
    m_sharing->shareWith(u"joint"_s, u"bob@example.com"_s, {}, {});
    QTRY_COMPARE(m_service->requests().size(), 1);
    QCOMPARE(m_service->requests().constFirst().body,
             R"({"email":"bob@example.com","role":"member","user_id":"bob@example.com"})");
}

void AccountSharingTest::answersMayOutliveTheDialog()
{
    openDialog();
    m_dialog.reset();
    for (int later = 0; later < 2; ++later) { // the answers, then what would follow one of them
        bool isAnswered = false;
        m_sharing->listMembers(u"other"_s, [&](const QList<ShareMember> &) { isAnswered = true; });
        QTRY_VERIFY(isAnswered);
    }
    QCOMPARE(m_service->requestLines().count(u"GET /a/profile"_s), 1);
    QVERIFY(!m_service->requestLines().contains(u"GET /a/group"_s));
}

PURSEWELL_TEST_MAIN(AccountSharingTest)
#include "AccountSharingTest.moc"
