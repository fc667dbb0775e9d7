#include "core/program/StartupNotices.h"

#include "core/Deployment.h"
#include "data/PreferencesRepository.h"
#include "kestupdate/Client.h"
#include "kestupdate/ReleaseManifest.h"
#include "kestupdate/ReleaseNotesFetcher.h"
#include "kestupdate/UpdateDialog.h"
#include "support/FakeHttpService.h"
#include "support/OpenedUrls.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

// Runs in an English locale.
class StartupNoticesTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void notesAreOfferedOnce_data();
    void notesAreOfferedOnce();
    void updateIsOfferedOnce_data();
    void updateIsOfferedOnce();
    void failedCheckIsOnlyLogged();

private:
    PreferencesRepository *preferences() const { return state().preferences(); }

    std::unique_ptr<FakeHttpService> m_service{};
    OpenedUrls m_opened{}; // nothing reaches the desktop
};

void StartupNoticesTest::init()
{
    StateFixture::init();
    m_service = std::make_unique<FakeHttpService>();
    qputenv("UPDATE_BASE_URL", m_service->url(u"/pursewell/stable/"_s).toEncoded());
}

void StartupNoticesTest::notesAreOfferedOnce_data()
{
    QTest::addColumn<QString>("marker");
    QTest::addColumn<QString>("preference"); // where earlier releases kept the marker
    QTest::addColumn<bool>("offered");
    QTest::addColumn<QString>("markerAfter");
    const QString current(kApplicationVersion);
    QTest::newRow("first start") << QString() << QString() << true << current;
    QTest::newRow("upgrade") << u"0.9.9"_s << current << true << current;
    QTest::newRow("same version") << current << QString() << false << current;
    QTest::newRow("downgrade") << u"99.0.0"_s << QString() << false << u"99.0.0"_s;
    QTest::newRow("unreadable") << u"latest"_s << QString() << true << current;
    QTest::newRow("taken over") << QString() << current << false << current;
    QTest::newRow("upgrade, taken over") << QString() << u"0.9.9"_s << true << current;
}

void StartupNoticesTest::notesAreOfferedOnce()
{
    QFETCH(QString, marker);
    QFETCH(QString, preference);
    QFETCH(bool, offered);
    m_service->answer(u"GET /pursewell/%1/release-notes.md"_s.arg(kApplicationVersion),
                      {{.body = "New"}});
    if (!marker.isEmpty())
        QSettings().setValue("whatsNew/lastShownVersion", marker);
    if (!preference.isEmpty())
        preferences()->set(u"last_whats_new_version"_s, preference);
    QWidget window;
    const auto asks = [] {
        return qApp->findChild<KestUpdate::ReleaseNotesFetcher *>() != nullptr;
    };
    offerWhatsNew(preferences(), &window);
    QCOMPARE(asks(), offered);
    // Stored before the notes have come, so that a start without a network counts as well.
    if (offered) {
        QFile settings(QSettings().fileName());
        QVERIFY(settings.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(settings.readAll())
                    .contains(u"lastShownVersion="_s + kApplicationVersion));
        QTRY_VERIFY(window.findChild<QDialog *>(u"whatsNewDialog"_s));
    }
    QTEST(QSettings().value("whatsNew/lastShownVersion").toString(), "markerAfter");
    QCOMPARE(preferences()->getOr(u"last_whats_new_version"_s, {}), preference);
    QTRY_VERIFY(!asks()); // it goes once it has answered
    offerWhatsNew(preferences(), &window);
    QVERIFY(!asks());
}

void StartupNoticesTest::updateIsOfferedOnce_data()
{
    QTest::addColumn<QString>("dismissed");
    QTest::addColumn<bool>("offered");
    QTest::newRow("none") << QString() << true;
    QTest::newRow("older") << u"98.0.0"_s << true;
    QTest::newRow("same") << u"99.0.0"_s << false;
    QTest::newRow("newer") << u"99.0.1"_s << false;
}

void StartupNoticesTest::updateIsOfferedOnce()
{
    QFETCH(QString, dismissed);
    QFETCH(bool, offered);
    m_service->answer(u"GET /pursewell/stable/latest.json"_s,
                      {{.body = releaseManifest("1.0.11", "99.0.0")}});
    if (!dismissed.isEmpty())
        preferences()->set(u"update_dismissed_version"_s, dismissed);
    for (const char *button : {"laterButton", "downloadButton", ""}) {
        QWidget window;
        startUpdateCheck(preferences(), &window);
        auto *client = qApp->findChild<KestUpdate::Client *>();
        QVERIFY(QSignalSpy(client, &KestUpdate::Client::updateAvailable).wait());
        delete client;
        auto *dialog = window.findChild<QDialog *>(u"updateDialog"_s);
        QCOMPARE(dialog != nullptr, offered);
        if (!dialog)
            continue;
        if (auto *pressed = dialog->findChild<QPushButton *>(QLatin1StringView(button)))
            pressed->click();
        else
            dialog->close();
        QCOMPARE(preferences()->getOr(u"update_dismissed_version"_s, {}), u"99.0.0"_s);
        preferences()->set(u"update_dismissed_version"_s, dismissed);
    }
}

void StartupNoticesTest::failedCheckIsOnlyLogged()
{
    m_service->answer(u"GET /pursewell/stable/latest.json"_s, {{.body = "[]"}});
    const LogCatcher log;
    QWidget window;
    startUpdateCheck(preferences(), &window);
    QTRY_COMPARE(LogCatcher::warnings(),
                 QStringList{u"update check failed: manifest invalid: manifest root is not a JSON "
                             "object"_s});
    QVERIFY(!QApplication::activeModalWidget());
}

PURSEWELL_TEST_MAIN(StartupNoticesTest, qputenv("LC_ALL", "en_US.UTF-8"))
#include "StartupNoticesTest.moc"
