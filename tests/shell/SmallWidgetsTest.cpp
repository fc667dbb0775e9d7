#include "shell/StatusBar.h"
#include "shell/WelcomeScreen.h"
#include "shell/theme/ElidedLabel.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

// The parts of the window that stand without it.
class SmallWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelDrawsWholeOrElided_data();
    void labelDrawsWholeOrElided();
    void labelNeverWidensItsColumn();
    void statusBarCountsInWords();
    void messageEndsProgressAndHidesTheDues();
    void welcomeGreetsByForm();
};

void SmallWidgetsTest::labelDrawsWholeOrElided_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("looks like markup") << u"<b>Household</b> and everything else besides"_s;
    QTest::newRow("several lines") << u"Household\nand everything\nelse besides"_s;
    QTest::newRow("access key") << u"Household & everything else besides"_s;
}

void SmallWidgetsTest::labelDrawsWholeOrElided()
{
    QFETCH(QString, text);
    const LogCatcher log;
    ElidedLabel label;
    label.setFullText(text);
    const QFontMetrics metrics = label.fontMetrics();
    for (const int width : {300, 60, 20}) {
        label.resize(width, metrics.height());
        QImage expected(label.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(label.palette().color(QPalette::Window));
        QPainter painter(&expected);
        painter.setFont(label.font());
        painter.setPen(label.palette().color(QPalette::WindowText));
        painter.drawText(expected.rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(text, Qt::ElideRight, width));
        painter.end();
        QCOMPARE(label.grab().toImage().convertToFormat(expected.format()), expected);
    }
    label.resize(0, metrics.height());
    QPaintEvent paint(label.rect()); // grab() would not paint what is empty
    QCoreApplication::sendEvent(&label, &paint);
    QCOMPARE(LogCatcher::warnings(), QStringList());
}

void SmallWidgetsTest::labelNeverWidensItsColumn()
{
    ElidedLabel label;
    label.setFullText(QString(500, u'W'));
    QHBoxLayout layout;
    layout.setContentsMargins(0, 0, 0, 0);
    layout.addWidget(&label);
    QCOMPARE(layout.minimumSize().width(), 0);
    QVERIFY(label.sizeHint().width() > 2000);
}

void SmallWidgetsTest::statusBarCountsInWords()
{
    QTranslator english;
    QVERIFY(english.load(u":/i18n/pursewell_en.qm"_s));
    QCoreApplication::installTranslator(&english);
    StatusBar bar;
    bar.show();
    const auto *due = bar.findChild<QLabel *>(u"recurringDueLabel"_s);
    QVERIFY(!due->isVisible());
    for (const int count : {1, 0, 12}) {
        bar.setAccountCount(count);
        bar.setRecurringDueCount(count);
        QCOMPARE(bar.findChild<QLabel *>(u"accountCountLabel"_s)->text(),
                 count == 1 ? u"1 account"_s : u"%1 accounts"_s.arg(count));
        QCOMPARE(due->text(), count == 0 ? QString() : u"  •  %1 recurring due"_s.arg(count));
        QCOMPARE(due->isVisible(), count > 0);
    }
    bar.setRecurringDueCount(-1);
    QVERIFY(!due->isVisible());
}

void SmallWidgetsTest::messageEndsProgressAndHidesTheDues()
{
    StatusBar bar;
    bar.show();
    const auto *label = bar.findChild<QLabel *>(u"progressLabel"_s);
    const auto *progress = bar.findChild<QProgressBar *>(u"progressBar"_s);
    const auto *due = bar.findChild<QLabel *>(u"recurringDueLabel"_s);
    QVERIFY(!label->isVisible() && !progress->isVisible());
    for (const int count : {2, 0}) { // the second time they are gone when the message ends
        bar.showProgress(u"Checking…"_s);
        QVERIFY(label->isVisible() && progress->isVisible());
        bar.showTimedMessage(u"Done"_s, 60000);
        QVERIFY(!label->isVisible() && !progress->isVisible() && !due->isVisible());
        QCOMPARE(bar.currentMessage(), u"Done"_s);
        bar.setRecurringDueCount(count);
        QVERIFY(!due->isVisible());
        bar.clearMessage();
        QCOMPARE(due->isVisible(), count > 0);
    }
}

void SmallWidgetsTest::welcomeGreetsByForm()
{
    for (const bool returning : {false, true}) {
        WelcomeScreen screen;
        screen.setReturningUser(returning);
        screen.show();
        QCOMPARE(screen.findChild<QLabel *>(u"sessionEndedLabel"_s)->isVisible(), returning);
        QCOMPARE(screen.findChild<QWidget *>(u"HowItWorksCard"_s)->isVisible(), !returning);
        auto *create = screen.findChild<QPushButton *>(u"createAccountButton"_s);
        auto *signIn = screen.findChild<QPushButton *>(u"signInButton"_s);
        QVERIFY(signIn->isFlat() == !returning && create->isFlat() == returning);
        QSignalSpy createAsked(&screen, &WelcomeScreen::createAccountRequested);
        QSignalSpy signInAsked(&screen, &WelcomeScreen::signInRequested);
        QTest::mouseClick(create, Qt::LeftButton);
        QVERIFY(createAsked.size() == 1 && signInAsked.size() == 0);
        QTest::mouseClick(signIn, Qt::LeftButton);
        QVERIFY(createAsked.size() == 1 && signInAsked.size() == 1);
    }
}

PURSEWELL_TEST_MAIN(SmallWidgetsTest)
#include "SmallWidgetsTest.moc"
