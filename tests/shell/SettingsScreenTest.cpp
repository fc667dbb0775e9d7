#include "shell/SettingsScreen.h"

#include "core/Dates.h"
#include "core/Language.h"
#include "data/AccountRepository.h"
#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "data/TransactionRepository.h"
#include "services/BackupService.h"
#include "shell/SettingsSyncSection.h"
#include "shell/SignedInSupport.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"
#include "shell/theme/ThemeManager.h"
#include "support/DialogAnswer.h"
#include "support/StateFixture.h"
#include "sync/SyncEngine.h"

#include <csignal>
#include <deque>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

using Answer = std::pair<QString, std::function<void(QDialog *)>>;

class SettingsScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void buildingWritesNothing();
    void choicesAreStoredAtOnce_data();
    void choicesAreStoredAtOnce();
    void activeLanguageTellsNothing();
    void restoreBringsBackWhatWentWithTheAccount();
    void syncSectionTellsItsState();
    void forcedSyncReplacesARunningPass();
    void backupComesBack_data();
    void backupComesBack();
    void failedWriteKeepsTheOlderBackup_data();
    void failedWriteKeepsTheOlderBackup();
    void vanishedFileIsTold();
    void nothingInterruptsTheWork();

private:
    template <typename Type> Type *find(const QString &name) const
    {
        return m_screen->findChild<Type *>(name);
    }
    QString label(const QString &name) const { return find<QLabel>(name)->text(); }
    void open(); // on the page of data
    QString preferences() const { return run(u"SELECT * FROM preferences ORDER BY key"_s); }
    // Presses a button and answers the dialogs that follow, each by its name.
    void press(const QString &button, const QList<Answer> &answers) const;
    Answer chooseFile(const QString &name) const;
    static Answer chooseMode(const QString &mode);
    Answer read(const QString &name); // a message box

    std::unique_ptr<QTemporaryDir> m_files;
    std::unique_ptr<FakeHttpService> m_service;
    SettingsScreen *m_screen = nullptr;
    QString m_told{}; // by the last message box
};

namespace {

const QString kUser = u"GET /api/v1/realms/kestrelwood/users/me"_s;

void limitFiles(rlim_t bytes) // beyond it a write fails, as on a full disk
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

void SettingsScreenTest::init()
{
    std::signal(SIGXFSZ, SIG_IGN);
    forgetStoredTokens();
    m_service = std::make_unique<FakeHttpService>();
    pointServicesAt(*m_service);
    m_service->answer(u"POST /pursewell/v1/sync/push"_s, {{.body = "{}"}});
    m_service->answer(kPulled, {{.body = R"({"server_time":"2026-03-14T20:05:00Z"})"}});
    m_files = std::make_unique<QTemporaryDir>();
    StateFixture::init();
    weekStart() = Qt::Monday;
    state().themeManager()->setThemeByName(u"light"_s);
}

void SettingsScreenTest::open()
{
    m_screen = keep<SettingsScreen>(&state());
    m_screen->onCategoryChanged(2);
    showActive(m_screen);
}

void SettingsScreenTest::press(const QString &button, const QList<Answer> &answers) const
{
    std::deque<DialogAnswer> given;
    const std::function<void()> next = [&] {
        const auto &[name, answer] = answers.at(static_cast<qsizetype>(given.size()));
        given.emplace_back(name, [&](QDialog *dialog) {
            answer(dialog);
            if (given.size() < static_cast<size_t>(answers.size()))
                next();
        });
    };
    next();
    find<QPushButton>(button)->click();
    QCOMPARE(given.size(), static_cast<size_t>(answers.size()));
    QVERIFY(given.back().wasAsked());
}

Answer SettingsScreenTest::chooseFile(const QString &name) const
{
    return {u"QFileDialog"_s, ::chooseFile(m_files->filePath(name))};
}

Answer SettingsScreenTest::chooseMode(const QString &mode)
{
    return {u"importModeDialog"_s, [mode](QDialog *dialog) {
                auto *combo = dialog->findChild<QComboBox *>();
                QCOMPARE(combo->currentText(), u"Replace all with backup data"_s);
                combo->setCurrentText(mode);
                dialog->accept();
            }};
}

Answer SettingsScreenTest::read(const QString &name)
{
    return {name, [this](QDialog *dialog) {
                m_told = qobject_cast<QMessageBox *>(dialog)->text();
                dialog->accept();
            }};
}

void SettingsScreenTest::buildingWritesNothing()
{
    weekStart() = Qt::Thursday;
    QSettings().setValue(u"ui/language"_s, u"pt"_s);
    fontScale() = 90;
    const QString before = preferences();
    const QSignalSpy changed(state().preferences(), &PreferencesRepository::changed);
    open();
    fontScale() = 100;
    QCOMPARE(changed.size(), 0);
    QCOMPARE(preferences(), before);
    QCOMPARE(Language::current(false), u"pt"_s);
    QCOMPARE(find<QComboBox>(u"languageCombo"_s)->currentData(), u"system"_s);
    QCOMPARE(find<QComboBox>(u"fontScaleCombo"_s)->currentData(), 100);
    QCOMPARE(find<QComboBox>(u"weekStartCombo"_s)->currentIndex(), -1);
    QCOMPARE(find<QComboBox>(u"weekStartCombo"_s)->placeholderText(), u"Thursday"_s);
}

void SettingsScreenTest::choicesAreStoredAtOnce_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("effect"); // window lightness, font scale, first day of the week
    QTest::newRow("theme") << u"themeCombo"_s << QList{Qt::Key_Down} << u"theme"_s << u"dark"_s
                           << u"dark 100 1"_s;
    QTest::newRow("font size") << u"fontScaleCombo"_s << QList{Qt::Key_Down, Qt::Key_Down}
                               << u"fontScale"_s << u"130"_s << u"light 130 1"_s;
    QTest::newRow("week") << u"weekStartCombo"_s << QList{Qt::Key_Down} << u"weekStartDay"_s
                          << u"6"_s << u"light 100 6"_s;
}

void SettingsScreenTest::choicesAreStoredAtOnce()
{
    QFETCH(QString, control);
    QFETCH(QList<Qt::Key>, keys);
    QFETCH(QString, key);
    open();
    m_screen->onCategoryChanged(0);
    for (const Qt::Key pressed : keys)
        QTest::keyClick(find<QWidget>(control), pressed);
    QTEST(state().preferences()->getOr(key, {}), "value");
    const QString effect = u"%1 %2 %3"_s.arg(isDarkPalette() ? u"dark"_s : u"light"_s)
                               .arg(fontScale())
                               .arg(weekStart());
    state().themeManager()->setFontScale(100);
    QTEST(effect, "effect");
}

void SettingsScreenTest::activeLanguageTellsNothing()
{
    open();
    auto *combo = find<QComboBox>(u"languageCombo"_s);
    const DialogAnswer told(u"languageChangedBox"_s, [](QDialog *) {});
    combo->setCurrentIndex(3);
    QVERIFY(told.wasAsked());
    QCOMPARE(Language::current(false), u"de"_s);
    const DialogAnswer again(u"languageChangedBox"_s, [](QDialog *) {});
    m_screen->onLanguageChanged(3);
    QVERIFY(!again.wasAsked());
}

void SettingsScreenTest::restoreBringsBackWhatWentWithTheAccount()
{
    for (const QString &payee : {u"with it"_s, u"before"_s})
        addTransaction(u"2024-01-02"_s, payee, 5);
    run(u"UPDATE transactions SET deleted_at = CASE payee WHEN 'before' THEN "
        "'2024-02-01T00:00:01Z' ELSE '2024-02-01T00:00:02Z' END"_s);
    run(u"UPDATE accounts SET deleted_at = '2024-02-01T00:00:12Z', name = '<b>&Old</b> %1'"_s);

    open();
    auto *list = find<QListWidget>(u"deletedAccountList"_s);
    QVERIFY(list->isVisible());
    QCOMPARE(list->item(0)->text(), u"<b>&Old</b> %1"_s);
    QVERIFY(!find<QWidget>(u"restoreButton"_s)->isEnabled());
    const QSignalSpy restored(m_screen, &SettingsScreen::deletedAccountRestored);
    list->setCurrentRow(0);
    run(refusing(u"UPDATE ON accounts"_s));
    press(u"restoreButton"_s, {{u"restoreFailedBox"_s, [](QDialog *dialog) { dialog->accept(); }}});
    QCOMPARE(restored.size(), 0);
    QVERIFY(stored(u"payee"_s).isEmpty());
    QCOMPARE(list->count(), 1);
    run(u"DROP TRIGGER refusing"_s);
    list->setCurrentRow(0);
    find<QPushButton>(u"restoreButton"_s)->click();
    QCOMPARE(restored.size(), 1);
    QCOMPARE(stored(u"payee"_s), u"with it"_s);
    QVERIFY(!state().accounts()->findById(m_checking)->deleted_at);
    QVERIFY(!find<QWidget>(u"deletedAccounts"_s)->isVisible());
}

void SettingsScreenTest::syncSectionTellsItsState()
{
    open();
    QCOMPARE(label(u"syncStatusLabel"_s),
             u"Not signed in.\nSign in via File › Kestrelwood Account to enable sync."_s);
    QVERIFY(!find<QWidget>(u"syncButtons"_s)->isVisible());

    m_service->answer(kUser, {{.body = R"({"display_name":"<i>%2 Ann"})"}});
    signIn(state());
    QTRY_COMPARE(label(u"syncStatusLabel"_s),
                 u"<b>Signed in as:</b> &lt;i&gt;%2 Ann<br><b>Status:</b> "
                 "<span style=\"color:#2E7D32\">Synced</span>"_s);
    QCOMPARE(label(u"lastSyncLabel"_s), u"Last synced: Mar 14, 4:05 pm"_s);

    auto *button = find<QPushButton>(u"syncNowButton"_s);
    auto *section = m_screen->findChild<SettingsSyncSection *>();
    const QSignalSpy ended(section, &SettingsSyncSection::passEnded);
    m_service->answer(kPulled, {{.status = 500}});
    for (int passes = 1; passes <= 2; ++passes) {
        button->click();
        m_screen->refresh();
        QCOMPARE(button->text(), u"Syncing..."_s);
        QVERIFY(!button->isEnabled());
        QTRY_VERIFY(button->isEnabled());
        QCOMPARE(button->text(), u"Sync Now"_s);
        QCOMPARE(ended.size(), passes);
    }
    QVERIFY(label(u"syncStatusLabel"_s).contains(u"color:#C62828\">Sync error"_s));
    state().preferences()->set(u"lastSyncTimestamp"_s, u"<soon>"_s);
    m_screen->refresh();
    QCOMPARE(label(u"lastSyncLabel"_s), u"Last synced: <soon>\nError: Pull failed (HTTP 500)"_s);
}

// Its answer would bring back the cursor, and one that never comes would keep the buttons waiting.
void SettingsScreenTest::forcedSyncReplacesARunningPass()
{
    signIn(state());
    open();
    auto *button = find<QPushButton>(u"fullSyncButton"_s);
    QTRY_VERIFY(!state().preferences()->getOr(u"lastSyncTimestamp"_s, {}).isEmpty());
    run(u"UPDATE categories SET sync_status = 'synced'"_s);
    const LogCatcher log;
    m_service->forgetRequests();
    m_service->answer(kPulled, {{.hangs = true}, {.body = "{}"}});
    state().syncEngine()->syncNow();
    QTRY_VERIFY(m_service->requestLines().contains(kPulled));
    press(u"fullSyncButton"_s, {{u"fullSyncQuestion"_s, clickYes}});
    QVERIFY(!button->isEnabled());
    QTRY_VERIFY(button->isEnabled());
    QVERIFY(LogCatcher::infos().contains(
        u"Force Full Sync: marked pending — accounts: 0 categories: 56 transactions: 0 "
        "recurrings: 0 reconciliations: 0"_s));
    QStringList cursors;
    for (const FakeRequest &request : m_service->requests())
        if (request.method == u"GET"_s && request.target.path().endsWith(u"/sync/pull"_s))
            cursors << QUrlQuery(request.target).queryItemValue(u"since"_s);
    QVERIFY(cursors.contains(QString()));
    QVERIFY(!cursors.first().isEmpty());
}

void SettingsScreenTest::backupComesBack_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("content"); // empty: the exported one
    QTest::addColumn<QString>("payee");
    QTest::addColumn<QString>("told");
    QTest::newRow("replace") << u"Replace all with backup data"_s << QByteArray() << u"As saved"_s
                             << u"Imported 58 items, skipped 0."_s;
    QTest::newRow("newer") << u"Keep newer (compare timestamps)"_s << QByteArray() << u"As saved"_s
                           << u"Imported 1 items, skipped 57."_s;
    QTest::newRow("skip") << u"Skip existing items"_s << QByteArray() << u"Changed"_s
                          << u"Imported 0 items, skipped 58."_s;
    QTest::newRow("no archive") << u"Skip existing items"_s << QByteArray("<b>") << u"Changed"_s
                                << u"Imported 0 items, skipped 0.\n\n1 error(s) occurred."_s;
}

void SettingsScreenTest::backupComesBack()
{
    QFETCH(QString, mode);
    QFETCH(QByteArray, content);
    addTransaction(u"2024-01-02"_s, u"As saved"_s, -500);
    open();
    QString suggested;
    Answer file = chooseFile(u"<b>%1.zip"_s);
    press(u"exportButton"_s,
          {{file.first,
            [&](QDialog *dialog) {
                suggested = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->text();
                file.second(dialog);
            }},
           read(u"backupCompleteBox"_s)});
    QCOMPARE(suggested, u"pursewell-backup-%1.zip"_s.arg(isoDate(QDate::currentDate())));
    QCOMPARE(m_told, u"Backup saved to:\n"_s + m_files->filePath(u"<b>%1.zip"_s));

    run(u"UPDATE transactions SET payee = 'Changed', updated_at = '2000-01-01T00:00:00Z'"_s);
    if (!content.isEmpty()) {
        QFile other(m_files->filePath(u"<b>%1.zip"_s));
        QVERIFY(other.open(QIODevice::WriteOnly) && other.write(content) == content.size());
    }
    const QSignalSpy restored(m_screen, &SettingsScreen::deletedAccountRestored);
    press(u"importButton"_s, {file, chooseMode(mode), read(u"importCompleteBox"_s)});
    QTEST(m_told, "told");
    QTEST(stored(u"payee"_s), "payee");
    QCOMPARE(restored.size(), 1);
    QVERIFY(find<QWidget>(u"importButton"_s)->isEnabled());
}

void SettingsScreenTest::failedWriteKeepsTheOlderBackup_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<rlim_t>("limit"); // bytes that fit on the disk
    QTest::newRow("full disk") << u"b.zip"_s << rlim_t(4096);
    QTest::newRow("no such folder") << u"none/b.zip"_s << RLIM_INFINITY;
}

void SettingsScreenTest::failedWriteKeepsTheOlderBackup()
{
    QFETCH(QString, name);
    QFETCH(rlim_t, limit);
    QFile older(m_files->filePath(u"b.zip"_s));
    QVERIFY(older.open(QIODevice::ReadWrite) && older.write("older") == 5 && older.flush());
    open();
    limitFiles(limit);
    press(u"exportButton"_s, {chooseFile(name), read(u"backupFailedBox"_s)});
    limitFiles(RLIM_INFINITY);
    QCOMPARE(m_told, u"Could not write to:\n"_s + m_files->filePath(name));
    QCOMPARE(QDir(m_files->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"b.zip"_s});
    QFile kept(older.fileName());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), "older");
    QCOMPARE(find<QPushButton>(u"exportButton"_s)->text(), u"Export Backup"_s);
}

void SettingsScreenTest::vanishedFileIsTold()
{
    QFile file(m_files->filePath(u"b.zip"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    open();
    press(u"importButton"_s,
          {chooseFile(u"b.zip"_s),
           {u"importModeDialog"_s,
            [&](QDialog *dialog) {
                file.remove();
                dialog->accept();
            }},
           read(u"importFailedBox"_s)});
    QCOMPARE(m_told, u"Could not read file."_s);
}

void SettingsScreenTest::nothingInterruptsTheWork()
{
    m_service->answer(kPulled, {{.hangs = true}});
    signIn(state());
    const SyncEngine *engine = state().syncEngine();
    QCOMPARE(engine->state(), SyncEngine::SyncState::Syncing);
    open();
    auto *button = find<QPushButton>(u"exportButton"_s);
    int looks = 0;
    connect(state().backupService(), &BackupService::progressed, m_screen, [&] {
        auto *progress = m_screen->findChild<QProgressDialog *>();
        QTRY_VERIFY(progress->isVisible());
        QCOMPARE(button->text(), u"Exporting..."_s);
        QVERIFY(!button->isEnabled());
        QTest::keyClick(progress->windowHandle(), Qt::Key_Escape);
        QVERIFY(progress->isVisible());
        QVERIFY(state().transactions()->isBulkWriting()); // which holds the sync back
        QCOMPARE(engine->state(), SyncEngine::SyncState::Idle);
        m_screen->close();
        ++looks;
    });
    QTimer closer;
    connect(&closer, &QTimer::timeout, m_screen, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->accept();
    });
    closer.start(10);
    press(u"exportButton"_s, {chooseFile(u"b.zip"_s)});
    QVERIFY(looks > 0);
    QVERIFY(!state().transactions()->isBulkWriting());
    QVERIFY(QFile::exists(m_files->filePath(u"b.zip"_s)));
}

PURSEWELL_TEST_MAIN(SettingsScreenTest)

#include "SettingsScreenTest.moc"
