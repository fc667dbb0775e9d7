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

Q_DECLARE_METATYPE(FakeReply)

using namespace KestAccount;
using namespace Qt::StringLiterals;

// Sharing as a person does it: the dialog, and through the backend to a scripted service.
class AccountSharingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void findsInitials_data();
    void findsInitials();
    void listsThePeople_data();
    void listsThePeople();
    void listsBeforeEitherAnswer_data();
    void listsBeforeEitherAnswer();
    void changesAccess_data();
    void changesAccess();
    void sendsBothKeysForAnAddress();
    void answersMayOutliveTheDialog();

private:
    void openDialog();
    QStringList rowTexts(const QString &rowName) const; // of all rows of that kind
    QStringList shownNotes() const;
    QAbstractButton *button(const QString &name) const;

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

void AccountSharingTest::cleanup()
{
    m_dialog.reset();
}

void AccountSharingTest::openDialog()
{
    const ShareWords words{.windowTitle = u"Share"_s,
                           .heading = u"Sharing: <b>%1</b>"_s,
                           .description = u"All of it"_s,
                           .removeConfirmText = u"Away with %1?"_s};
    m_dialog =
        std::make_unique<ShareMembersDialog>(m_client.get(), m_sharing.get(), u"joint"_s, words);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
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

QAbstractButton *AccountSharingTest::button(const QString &name) const
{
    const QList<QAbstractButton *> buttons = m_dialog->findChildren<QAbstractButton *>(name);
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [](const QAbstractButton *each) { return each->isVisible(); });
    return found == buttons.end() ? nullptr : *found;
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
    QTest::addColumn<QByteArray>("family");
    QTest::addColumn<QByteArray>("shares");
    QTest::addColumn<QStringList>("withAccess");
    QTest::addColumn<QStringList>("candidates");
    QTest::addColumn<QStringList>("notes"); // those that can be seen
    const QStringList bob{u"<%"_s, u"<b>Bob %1</b>"_s, u"bob@example.com"_s};
    const QStringList cy{u"C"_s, u"cy@example.com"_s};
    const QStringList gone{u"?"_s, u"gone"_s};
    QTest::newRow("names from the group, one has left it")
        << kFamily << kShares << (bob + gone) << cy << QStringList();
    QTest::newRow("nobody yet") << kFamily << QByteArray("[]") << QStringList() << (bob + cy)
                                << QStringList{u"emptySharedLabel"_s};
    QTest::newRow("names of the share come first")
        << QByteArray(R"({"members":[{"account_id":"ann"}]})")
        << QByteArray(R"({"members":[{"user_id":"ann","display_name":"Ann B","email":"x"}]})")
        << QStringList{u"AB"_s, u"Ann B"_s, u"x"_s} << QStringList()
        << QStringList{u"allSharedLabel"_s};
    QTest::newRow("no group") << QByteArray("{}") << QByteArray("[]") << QStringList()
                              << QStringList()
                              << QStringList{u"emptySharedLabel"_s, u"noGroupLabel"_s};
}

void AccountSharingTest::listsThePeople()
{
    QFETCH(QByteArray, family);
    QFETCH(QByteArray, shares);
    QFETCH(QStringList, withAccess);
    QFETCH(QStringList, candidates);
    QFETCH(QStringList, notes);
    m_service->answer(u"GET /a/group"_s, {{200, family}});
    m_service->answer(u"GET /s/accounts/joint/members"_s, {{200, shares}});
    openDialog();
    QTRY_COMPARE(rowTexts(u"shareRow"_s), withAccess);
    QTRY_COMPARE(rowTexts(u"candidateRow"_s), candidates);
    QTRY_COMPARE(shownNotes(), notes);
}

void AccountSharingTest::listsBeforeEitherAnswer_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QStringList>("withAccess");
    QTest::addColumn<QStringList>("notes");
    QTest::newRow("the family never comes")
        << u"GET /a/group"_s << QStringList{u"?"_s, u"bob"_s, u"?"_s, u"gone"_s}
        << QStringList{u"noGroupLabel"_s};
    QTest::newRow("the shares never come") << u"GET /s/accounts/joint/members"_s << QStringList()
                                           << QStringList{u"emptySharedLabel"_s};
}

void AccountSharingTest::listsBeforeEitherAnswer()
{
    QFETCH(QString, missing);
    QFETCH(QStringList, withAccess);
    QFETCH(QStringList, notes);
    m_service->answer(missing, {{.hangs = true}});
    openDialog();
    QTRY_COMPARE(rowTexts(u"candidateRow"_s).isEmpty(), missing.contains(u"group"_s));
    QTRY_COMPARE(shownNotes(), notes);
    QTRY_COMPARE(rowTexts(u"shareRow"_s), withAccess);
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
    QAbstractButton *pressed = button(buttonName);
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
    QTRY_COMPARE(m_service->requests().size(), 2); // the third would follow one of them
}

PURSEWELL_TEST_MAIN(AccountSharingTest)
#include "AccountSharingTest.moc"
