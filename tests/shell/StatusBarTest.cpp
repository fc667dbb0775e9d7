#include "shell/StatusBar.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class StatusBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_bar.reset(); }
    void countsInWords_data();
    void countsInWords();
    void duesComeAndGo();
    void duesWaitForTheEndOfAMessage();
    void messageEndsTheProgress();
    void colorsFollowThePalette();

private:
    template <typename Widget> Widget *find(const QString &name) const
    {
        return m_bar->findChild<Widget *>(name);
    }

    std::unique_ptr<StatusBar> m_bar;
};

void StatusBarTest::init()
{
    m_bar = std::make_unique<StatusBar>();
    m_bar->resize(800, 30);
    m_bar->show();
}

void StatusBarTest::countsInWords_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("accounts");
    QTest::addColumn<QString>("due");

    QTest::newRow("none") << 0 << u"0 accounts"_s << QString();
    QTest::newRow("one") << 1 << u"1 account"_s << u"  •  1 recurring due"_s;
    QTest::newRow("several") << 12 << u"12 accounts"_s << u"  •  12 recurring due"_s;
}

void StatusBarTest::countsInWords()
{
    QFETCH(int, count);
    QFETCH(QString, accounts);
    QFETCH(QString, due);

    QTranslator english;
    QVERIFY(english.load(u":/i18n/pursewell_en.qm"_s));
    QCoreApplication::installTranslator(&english);
    m_bar->setAccountCount(count);
    m_bar->setRecurringDueCount(count);
    QCOMPARE(find<QLabel>(u"accountCountLabel"_s)->text(), accounts);
    QCOMPARE(find<QLabel>(u"recurringDueLabel"_s)->text(), due);
}

void StatusBarTest::duesComeAndGo()
{
    const auto *due = find<QLabel>(u"recurringDueLabel"_s);
    QVERIFY(!due->isVisible());
    m_bar->setRecurringDueCount(2);
    QVERIFY(due->isVisible());
    m_bar->setRecurringDueCount(0);
    QVERIFY(!due->isVisible());
    m_bar->setRecurringDueCount(3);
    QVERIFY(due->isVisible());
    m_bar->setRecurringDueCount(-1);
    QVERIFY(!due->isVisible());
}

void StatusBarTest::duesWaitForTheEndOfAMessage()
{
    const auto *due = find<QLabel>(u"recurringDueLabel"_s);
    m_bar->showTimedMessage(u"Saved"_s, 60000);
    m_bar->setRecurringDueCount(2);
    QVERIFY(!due->isVisible());
    m_bar->clearMessage();
    QVERIFY(due->isVisible());

    m_bar->showTimedMessage(u"Saved again"_s, 60000);
    QVERIFY(!due->isVisible());
    m_bar->setRecurringDueCount(0);
    m_bar->clearMessage();
    QVERIFY(!due->isVisible());
}

void StatusBarTest::messageEndsTheProgress()
{
    const auto *label = find<QLabel>(u"progressLabel"_s);
    const auto *progress = find<QProgressBar>(u"progressBar"_s);
    QVERIFY(!label->isVisible() && !progress->isVisible());
    m_bar->showProgress(u"Checking…"_s);
    QVERIFY(label->isVisible() && progress->isVisible());
    QCOMPARE(label->text(), u"Checking…"_s);
    QVERIFY(progress->maximum() == progress->minimum()); // busy
    m_bar->showTimedMessage(u"Done"_s, 60000);
    QVERIFY(!label->isVisible() && !progress->isVisible());
    QCOMPARE(m_bar->currentMessage(), u"Done"_s);
}

void StatusBarTest::colorsFollowThePalette()
{
    m_bar->setSyncStatus(u"Synced"_s);
    m_bar->setRecurringDueCount(1);
    const auto textColor = [this](const QString &name) {
        auto *label = find<QLabel>(name);
        label->ensurePolished();
        return label->palette().color(label->foregroundRole()).name();
    };
    const QPalette before = QApplication::palette();
    for (const bool dark : {true, false}) {
        QApplication::setPalette(QPalette(dark ? Qt::black : Qt::white));
        m_bar->applyThemeColors();
        QCOMPARE(textColor(u"syncStatusLabel"_s), dark ? u"#8faf9f"_s : u"#2a3d33"_s);
        QCOMPARE(textColor(u"accountCountLabel"_s), dark ? u"#8faf9f"_s : u"#2a3d33"_s);
        QCOMPARE(textColor(u"recurringDueLabel"_s), dark ? u"#ffa726"_s : u"#e65100"_s);
    }
    QApplication::setPalette(before);
}

PURSEWELL_TEST_MAIN(StatusBarTest)
#include "StatusBarTest.moc"
