#include "kestupdate/Client.h"
#include "kestupdate/NotesView.h"
#include "kestupdate/ReleaseManifest.h"
#include "kestupdate/ReleaseNotesFetcher.h"
#include "kestupdate/UpdateDialog.h"
#include "kestupdate/UpdateFlows.h"
#include "kestupdate/WhatsNewDialog.h"
#include "support/FakeHttpService.h"
#include "support/OpenedUrls.h"
#include "support/TestSupport.h"

using namespace KestUpdate;
using namespace Qt::StringLiterals;

namespace {

const QString kNotes = u"GET /1.0.10/release-notes.md"_s;
const QString kGermanNotes = u"GET /1.0.10/release-notes.de.md"_s;
const QString kManifest = u"GET /stable/latest.json"_s;

// The title, and of the notes of a release the line and the button below them.
QString wordsOf(const QWidget *window)
{
    QStringList words{window->windowTitle()};
    if (const auto *label = window->findChild<QLabel *>(u"runningVersionLabel"_s)) {
        words << label->text();
        if (const auto *button = window->findChild<QPushButton *>(u"downloadButton"_s))
            words << button->text();
    }
    return words.join(u'|');
}

} // namespace

// Runs in a German locale.
class UpdateWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void fetchesNotes_data();
    void fetchesNotes();
    void loadsNothing_data();
    void loadsNothing();
    void opensOnlyTheWeb_data();
    void opensOnlyTheWeb();
    void offersTheUpdate_data();
    void offersTheUpdate();
    void flowsAnswer_data();
    void flowsAnswer();

private:
    Config config() const
    {
        return {u"pursewell"_s, u"stable"_s, m_service->url(u"/stable/"_s), u"1.0.10"_s};
    }

    std::unique_ptr<FakeHttpService> m_service{};
    QTemporaryDir m_directory{};
    OpenedUrls m_opened{};
};

void UpdateWindowsTest::initTestCase()
{
    QCOMPARE(QLocale::system().name().left(2), u"de"_s);
    QImage red(40, 40, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(m_directory.filePath(u"red.png"_s)));
    QFile style(m_directory.filePath(u"red.css"_s));
    QVERIFY(style.open(QIODevice::WriteOnly) && style.write("p { background: #ff0000 }") > 0);
}

void UpdateWindowsTest::init()
{
    m_service = std::make_unique<FakeHttpService>();
    m_opened.take();
}

void UpdateWindowsTest::fetchesNotes_data()
{
    QTest::addColumn<FakeReply>("german");
    QTest::addColumn<FakeReply>("source");
    QTest::addColumn<QString>("notes"); // empty: unavailable
    const auto row = [](const char *tag, const FakeReply &german, const FakeReply &source,
                        const QString &notes) { QTest::newRow(tag) << german << source << notes; };
    row("in the language", {.body = "Größer\n"}, {.body = "New"}, u"Größer"_s);
    row("missing there", {.status = 404}, {.body = "New"}, u"New"_s);
    row("blank there", {.body = " \n\t"}, {.body = "New"}, u"New"_s);
    row("cut off there", {.drops = true}, {.body = "New"}, u"New"_s);
    row("nowhere", {.status = 404}, {.status = 500, .body = "x"}, {});
    row("blank", {.status = 404}, {.body = "\r\n"}, {});
    row("100 MB", {.status = 404}, {.body = QByteArray(100 << 20, 'x')}, {});
}

void UpdateWindowsTest::fetchesNotes()
{
    QFETCH(FakeReply, german);
    QFETCH(FakeReply, source);
    m_service->answer(kGermanNotes, {german});
    m_service->answer(kNotes, {source});
    ReleaseNotesFetcher fetcher(config());
    QSignalSpy ready(&fetcher, &ReleaseNotesFetcher::notesReady);
    QSignalSpy unavailable(&fetcher, &ReleaseNotesFetcher::notesUnavailable);
    fetcher.fetch();
    QTRY_COMPARE(ready.size() + unavailable.size(), 1);
    QTEST(ready.value(0).value(0).toString(), "notes");
}

void UpdateWindowsTest::loadsNothing_data()
{
    QTest::addColumn<QString>("markdown"); // %1: the folder with a red picture and style sheet
    QTest::newRow("path") << u"![x](%1/red.png)"_s;
    QTest::newRow("file") << u"![x](file://%1/red.png)"_s;
    QTest::newRow("HTML") << u"<table background=\"%1/red.png\"><tr><td>x</td></tr></table>"_s;
    QTest::newRow("style") << u"<p style=\"background-image: url(file://%1/red.png)\">xxx</p>"_s;
    QTest::newRow("style sheet") << u"<style>@import url(file://%1/red.css);</style><p>x</p>"_s;
    QTest::newRow("data") << u"![x](data:image/gif;base64,R0lGODlhAQABAIAAAP8AAP///yH5BAAAAAAALAAAA"
                             "AABAAEAAAICRAEAOw==)"_s;
}

void UpdateWindowsTest::loadsNothing()
{
    QFETCH(QString, markdown);
    NotesView view;
    view.resize(200, 200);
    view.showNotes(markdown.replace(u"%1"_s, m_directory.path()));
    const QImage image = view.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            QVERIFY(image.pixelColor(x, y) != QColor(Qt::red));
    }
}

void UpdateWindowsTest::opensOnlyTheWeb_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("opens");
    QTest::newRow("https") << u"https://files.example/a"_s << true;
    QTest::newRow("http") << u"HTTP://files.example/a"_s << true;
    QTest::newRow("file") << u"file:///etc/hostname"_s << false;
    QTest::newRow("script") << u"javascript:alert(1)"_s << false;
    QTest::newRow("program") << u"ms-word:ofe"_s << false;
    QTest::newRow("relative") << u"notes.html"_s << false;
    QTest::newRow("no host") << u"http:/etc/hostname"_s << false;
}

// By a link in the notes and by the button.
void UpdateWindowsTest::opensOnlyTheWeb()
{
    QFETCH(QString, address);
    QFETCH(bool, opens);
    const QList<QUrl> wanted{opens ? QList<QUrl>{QUrl(address)} : QList<QUrl>()};
    WhatsNewDialog notes(u"[Read more](%1)"_s.arg(address), u"2"_s, u"1"_s, u"App"_s, nullptr,
                         QUrl(address));
    notes.show();
    auto *view = notes.findChild<NotesView *>(u"notesView"_s);
    const QString before = view->toPlainText();
    QTextCursor cursor(view->document());
    cursor.setPosition(4);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->cursorRect(cursor).center());
    QCOMPARE(m_opened.take(), wanted);
    QCOMPARE(view->toPlainText(), before);
    QCOMPARE(notes.findChild<QWidget *>(u"downloadButton"_s) != nullptr, opens);

    UpdateDialog update({.version = u"2"_s, .url = QUrl(address)}, u"1"_s, u"App"_s);
    const LogCatcher log;
    update.onDownloadClicked();
    QCOMPARE(m_opened.take(), wanted);
    QCOMPARE(LogCatcher::warnings().contains(u"KestUpdate: download URL is empty or invalid"_s),
             !opens);
    QCOMPARE(update.result(), int(QDialog::Accepted));
}

void UpdateWindowsTest::offersTheUpdate_data()
{
    QTest::addColumn<bool>("mandatory");
    QTest::addColumn<QString>("notesPath");
    QTest::addColumn<QString>("notes"); // null: no view
    const QString missing = u"Release notes are not available for this version."_s;
    QTest::newRow("with notes") << false << u"/new.md"_s << u"Faster"_s;
    QTest::newRow("without notes") << true << QString() << QString();
    QTest::newRow("notes missing") << false << u"/old.md"_s << missing;
    QTest::newRow("notes in a file") << true << u"file:///etc/hostname"_s << missing;
}

void UpdateWindowsTest::offersTheUpdate()
{
    QFETCH(bool, mandatory);
    QFETCH(QString, notesPath);
    QFETCH(QString, notes);
    m_service->answer(u"GET /new.md"_s, {{.body = "**Faster**"}});
    Artifact artifact{.version = u"1.0.11"_s, .mandatory = mandatory};
    if (!notesPath.isEmpty())
        artifact.releaseNotesUrl = m_service->url().resolved(QUrl(notesPath));
    UpdateDialog dialog(artifact, u"1.0.10"_s, u"%2 & App"_s);
    dialog.show();
    QCOMPARE(dialog.findChild<QLabel *>(u"headingLabel"_s)->text(),
             u"A new version of %2 & App is available."_s);
    QVERIFY(dialog.findChild<QPushButton *>(u"downloadButton"_s)->isDefault());
    QCOMPARE(dialog.findChild<QWidget *>(u"laterButton"_s) == nullptr, mandatory);
    const auto *view = dialog.findChild<NotesView *>(u"notesView"_s);
    QCOMPARE(view == nullptr, notes.isNull());
    QCOMPARE(dialog.size() == QSize(520, 420), view != nullptr);
    if (view)
        QTRY_COMPARE(view->toPlainText().trimmed(), notes);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible() && m_opened.take().isEmpty());
}

void UpdateWindowsTest::flowsAnswer_data()
{
    QTest::addColumn<QString>("flow");
    QTest::addColumn<QByteArray>("notes"); // null: none
    QTest::addColumn<QByteArray>("manifest");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("title"); // of the window that opens; "-": its parent is gone

    const auto row = [](const char *flow, const char *tag, const QByteArray &notes,
                        const QByteArray &manifest, const QString &told, const QString &title) {
        QTest::addRow("%s: %s", flow, tag)
            << QString::fromLatin1(flow) << notes << manifest << told << title;
    };
    const QString checked = u"Checking for updates…|cleared"_s;
    const QString loaded = u"Loading release notes…|cleared"_s;
    const QString none = loaded + u"|No release notes available for App %1 1.0.10 5000"_s;
    const QByteArray newer = releaseManifest("notes_url\":\"", "notes_url\":\"%1/new.md");
    const QByteArray unread = releaseManifest("notes_url\":\"", "notes_url\":\"%1/none.md");
    const QString notesTitle = u"What's New in App %1 1.0.10|You are running version 1.0.10"_s;
    row("check", "newer", {}, newer, checked, u"Update available"_s);
    row("check", "parent gone", {}, newer, checked, u"-"_s);
    row("check", "none", {}, {}, checked + u"|App %1 is up to date (version 1.0.10) 5000"_s, {});
    row("check", "failed", {}, "[]",
        checked
            + u"|Update check failed: manifest invalid: manifest root is not a JSON object 5000"_s,
        {});
    row("notes", "own", "x", {}, loaded, notesTitle);
    row("notes", "of the newer one", {}, newer, loaded,
        u"What's New in App %1 1.0.11|You are running version 1.0.10|Download 1.0.11"_s);
    row("notes", "parent gone", "x", {}, loaded, u"-"_s);
    row("notes", "newer one without", {}, releaseManifest(), none, {});
    row("notes", "newer one's missing", {}, unread, none, {});
    row("notes", "no manifest", {}, {}, none, {});
    row("silent", "own", "x", {}, {}, notesTitle);
    row("silent", "parent gone", "x", {}, {}, u"-"_s);
    row("silent", "none", {}, newer, {}, {});
}

void UpdateWindowsTest::flowsAnswer()
{
    QFETCH(QString, flow);
    QFETCH(QByteArray, notes);
    QFETCH(QByteArray, manifest);
    QFETCH(QString, title);
    manifest.replace("%1", m_service->url().toEncoded());
    m_service->answer(kNotes, {{.status = notes.isNull() ? 404 : 200, .body = notes}});
    m_service->answer(kManifest, {{.status = manifest.isNull() ? 404 : 200, .body = manifest}});
    m_service->answer(u"GET /new.md"_s, {{.body = "Faster"}});
    QStringList told;
    const ProgressCallbacks callbacks{
        .showProgress = [&told](const QString &text) { told << text; },
        .clearProgress = [&told] { told << u"cleared"_s; },
        .showMessage = [&told](const QString &text,
                               int ms) { told << text + u' ' + QString::number(ms); }};
    auto parent = std::make_unique<QWidget>();
    if (flow == "check"_L1)
        runUpdateCheck(config(), u"App %1"_s, parent.get(), callbacks);
    else if (flow == "notes"_L1)
        showReleaseNotes(config(), u"App %1"_s, parent.get(), callbacks);
    else
        showWhatsNew(config(), u"App %1"_s, parent.get());
    if (title == "-"_L1)
        parent.reset();
    QTRY_VERIFY(!qApp->findChild<Client *>() && !qApp->findChild<ReleaseNotesFetcher *>());
    QTEST(told.join(u'|'), "told");
    QString opened = parent ? QString() : u"-"_s;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows)
        opened += window->isVisible() ? wordsOf(window) : QString();
    QCOMPARE(opened, title);
}

PURSEWELL_TEST_MAIN(UpdateWindowsTest, qputenv("LC_ALL", "de_DE.UTF-8"))
#include "UpdateWindowsTest.moc"
