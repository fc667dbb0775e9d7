#include "shell/theme/ElidedLabel.h"

#include "shell/PlainWords.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class LabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsWholeOrElided_data();
    void drawsWholeOrElided();
    void neverWidensItsColumn();
    void wordsStayPlain_data();
    void wordsStayPlain();
};

void LabelsTest::drawsWholeOrElided_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("long") << u"Household and everything else besides"_s;
    QTest::newRow("looks like markup") << u"<b>Household</b> and everything else besides"_s;
    QTest::newRow("several lines") << u"Household\nand everything\nelse besides"_s;
    QTest::newRow("access key") << u"Household & everything else besides"_s;
    QTest::newRow("emoji") << u"👩‍👩‍👧 Household and everything"_s;
}

void LabelsTest::drawsWholeOrElided()
{
    QFETCH(QString, text);

    const LogCatcher log;
    ElidedLabel label;
    label.setFullText(text);
    QCOMPARE(label.fullText(), text);
    const QFontMetrics metrics = label.fontMetrics();
    for (const int width : {300, 150, 60, 20}) {
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
    label.grab();
    QCOMPARE(LogCatcher::warnings(), QStringList());
}

void LabelsTest::neverWidensItsColumn()
{
    QWidget column;
    auto *layout = new QHBoxLayout(&column);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new ElidedLabel;
    label->setFullText(QString(500, u'W'));
    layout->addWidget(label);
    QCOMPARE(layout->minimumSize().width(), 0);
    QVERIFY(label->sizeHint().width() > 2000);
}

void LabelsTest::wordsStayPlain_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("inMenu");
    QTest::addColumn<bool>("needsEscape");

    QTest::newRow("plain") << u"Everyday %1"_s << u"Everyday %1"_s << false;
    QTest::newRow("ampersand") << u"Ann & Söhne"_s << u"Ann && Söhne"_s << false;
    QTest::newRow("tab") << u"a\tb"_s << u"a b"_s << false;
    QTest::newRow("markup") << u"<b>bold</b> & more"_s << u"<b>bold</b> && more"_s << true;
    QTest::newRow("a sum") << u"1 < 2"_s << u"1 < 2"_s << false;
}

void LabelsTest::wordsStayPlain()
{
    QFETCH(QString, words);
    QFETCH(QString, inMenu);
    QFETCH(bool, needsEscape);

    QCOMPARE(menuWords(words), inMenu);
    const QString toolTip = toolTipWords(words);
    QCOMPARE(Qt::mightBeRichText(toolTip), needsEscape);
    if (needsEscape) {
        QTextDocument shown;
        shown.setHtml(toolTip);
        QCOMPARE(shown.toPlainText(), words);
    } else {
        QCOMPARE(toolTip, words);
    }
}

PURSEWELL_TEST_MAIN(LabelsTest)
#include "LabelsTest.moc"
