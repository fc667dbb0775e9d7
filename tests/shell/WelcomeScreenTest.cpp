#include "shell/WelcomeScreen.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class WelcomeScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void greetsByForm_data();
    void greetsByForm();
    void returnsToTheFirstForm();
    void buttonsKeepTheirSignals_data();
    void buttonsKeepTheirSignals();
    void showsTheIcon();
};

namespace {

// What a person sees of every label and button, in one comparable text.
QString seenOf(const WelcomeScreen &screen)
{
    QStringList lines;
    for (const QLabel *label : screen.findChildren<QLabel *>())
        lines << label->objectName() + label->text() + label->styleSheet()
                + QString::number(label->isVisible());
    for (const QPushButton *button : screen.findChildren<QPushButton *>())
        lines << button->text() + button->styleSheet() + QString::number(button->isFlat())
                + QString::number(button->minimumHeight());
    return lines.join(u'\n');
}

void addForms()
{
    QTest::addColumn<bool>("returning");
    QTest::newRow("newcomer") << false;
    QTest::newRow("returning") << true;
}

} // namespace

void WelcomeScreenTest::greetsByForm_data()
{
    addForms();
}

void WelcomeScreenTest::greetsByForm()
{
    QFETCH(bool, returning);

    WelcomeScreen screen;
    screen.setReturningUser(returning);
    screen.show();
    const auto label = [&screen](const QString &name) { return screen.findChild<QLabel *>(name); };
    const auto button = [&screen](const QString &name) {
        return screen.findChild<QPushButton *>(name);
    };
    const QPushButton *create = button(u"createAccountButton"_s);
    const QPushButton *signIn = button(u"signInButton"_s);
    QCOMPARE(label(u"titleLabel"_s)->text(),
             returning ? u"Welcome back"_s : u"Welcome to\nKestrelwood Pursewell"_s);
    QCOMPARE(label(u"sessionEndedLabel"_s)->isVisible(), returning);
    QCOMPARE(screen.findChild<QWidget *>(u"HowItWorksCard"_s)->isVisible(), !returning);
    QCOMPARE(create->text(),
             returning ? u"Create a different account"_s : u"Create Your First Account"_s);
    QCOMPARE(signIn->text(), returning ? u"Sign In"_s : u"Already have an account? Sign In"_s);
    QCOMPARE(signIn->isFlat(), !returning);
    QCOMPARE(create->isFlat(), returning);
    QVERIFY((returning ? signIn : create)->height() >= 40);
}

void WelcomeScreenTest::returnsToTheFirstForm()
{
    WelcomeScreen screen;
    screen.show();
    const QString before = seenOf(screen);
    screen.setReturningUser(true);
    QVERIFY(seenOf(screen) != before);
    screen.setReturningUser(false);
    QCOMPARE(seenOf(screen), before);
}

void WelcomeScreenTest::buttonsKeepTheirSignals_data()
{
    addForms();
}

void WelcomeScreenTest::buttonsKeepTheirSignals()
{
    QFETCH(bool, returning);

    WelcomeScreen screen;
    screen.setReturningUser(returning);
    screen.show();
    QSignalSpy create(&screen, &WelcomeScreen::createAccountRequested);
    QSignalSpy signIn(&screen, &WelcomeScreen::signInRequested);
    QTest::mouseClick(screen.findChild<QPushButton *>(u"createAccountButton"_s), Qt::LeftButton);
    QCOMPARE(create.size(), 1);
    QCOMPARE(signIn.size(), 0);
    QTest::mouseClick(screen.findChild<QPushButton *>(u"signInButton"_s), Qt::LeftButton);
    QCOMPARE(create.size(), 1);
    QCOMPARE(signIn.size(), 1);
}

void WelcomeScreenTest::showsTheIcon()
{
    const WelcomeScreen screen;
    const QList<QLabel *> labels = screen.findChildren<QLabel *>();
    const auto hasIcon = [](const QLabel *label) {
        return label->pixmap().size() == QSize(80, 80);
    };
    QCOMPARE(std::count_if(labels.begin(), labels.end(), hasIcon), 1);
}

PURSEWELL_TEST_MAIN(WelcomeScreenTest)
#include "WelcomeScreenTest.moc"
