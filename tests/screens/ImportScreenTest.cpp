#include "screens/ImportScreen.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "screens/ImportSummary.h"
#include "services/ImportService.h"
#include "support/DialogAnswer.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

class ImportScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void qifSourceFindsItsAccount_data();
    void qifSourceFindsItsAccount();
    void filesShareTheirSources();
    void csvPreviewGuessesColumns_data();
    void csvPreviewGuessesColumns();
    void csvMakesItsAccount_data();
    void csvMakesItsAccount();
    void formatSwitchClears();
    void nothingInterruptsAnImport();
    void everyWayOutCompletes_data();
    void everyWayOutCompletes();
    void deletedAccountsGetNothing();
    void summaryTellsCounts();
    void fullDiskIsTold();

private:
    template <typename Type> Type *find(const QString &name) const
    {
        return m_screen->findChild<Type *>(name);
    }
    void press(const QString &button) const { find<QAbstractButton>(button)->click(); }
    QString write(const QString &name, const QByteArray &content) const; // the path
    void choose(const QStringList &paths); // in the file dialog, by its name field
    QFormLayout *mapRows() const { return find<QFormLayout>(u"qifMapRowsLayout"_s); }
    QComboBox *mapCombo(int row) const;
    QString mapLabel(int row) const;
    QString summary() const { return find<QPlainTextEdit>(u"summaryText"_s)->toPlainText(); }
    QString stored() const; // transactions as "account payee amount", "; " between them

    QTemporaryDir m_files;
    ImportScreen *m_screen = nullptr;
};

namespace {

const QString kCreate = u"— Create new account \"%1\" —"_s;
const QByteArray kRecord = "D1/2/2024\nT-5\nPGrocer\n^\n";

QByteArray accountBlock(const QByteArray &name)
{
    return "!Account\nN" + name + "\nTBank\n^\n!Type:Bank\n" + kRecord;
}

} // namespace

void ImportScreenTest::init()
{
    StateFixture::init();
    run(u"DELETE FROM accounts"_s);
    m_screen = keep<ImportScreen>(&state());
    showActive(m_screen, {650, 600});
}

QString ImportScreenTest::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_files.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("file not written");
    return file.fileName();
}

void ImportScreenTest::choose(const QStringList &paths)
{
    const QString typed = paths.size() == 1 ? paths.first() : u"\"%1\""_s.arg(paths.join(u"\" \""));
    const DialogAnswer answer(u"QFileDialog"_s, chooseFile(typed));
    press(u"browseButton"_s);
    QVERIFY(answer.wasAsked());
    showActive(m_screen);
}

QComboBox *ImportScreenTest::mapCombo(int row) const
{
    return qobject_cast<QComboBox *>(mapRows()->itemAt(row, QFormLayout::FieldRole)->widget());
}

QString ImportScreenTest::mapLabel(int row) const
{
    return qobject_cast<QLabel *>(mapRows()->itemAt(row, QFormLayout::LabelRole)->widget())->text();
}

QString ImportScreenTest::stored() const
{
    return run(u"SELECT a.name || ' ' || t.payee || ' ' || t.amount FROM transactions t "
               "JOIN accounts a ON a.id = t.account_id ORDER BY t.rowid"_s);
}

void ImportScreenTest::qifSourceFindsItsAccount_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("account"); // that the row ends in; the local ones are "Giro", "card"
    QTest::newRow("another case") << u"a.qif"_s << accountBlock("gIRO") << u"gIRO"_s << u"Giro"_s
                                  << u"Giro"_s;
    QTest::newRow("words of markup")
        << u"a.qif"_s << accountBlock("A && B <b>%1</b>\t\"x\"") << u"A && B <b>%1</b>\t\"x\""_s
        << kCreate.arg(u"A && B <b>%1</b>\t\"x\""_s) << u"A && B <b>%1</b>\t\"x\""_s;
    QTest::newRow("no account in the file") << u"my.bank card.qif"_s << "!Type:Bank\n" + kRecord
                                            << u"my.bank card.qif (no account header)"_s
                                            << kCreate.arg(u"my.bank"_s) << u"my.bank card"_s;
    QTest::newRow("file named as an account")
        << u"Giro"_s << "!Type:Bank\n" + kRecord << u"Giro (no account header)"_s
        << kCreate.arg(u"Giro"_s) << u"Giro"_s;
    QTest::newRow("file that is all extension")
        << u".qif"_s << "!Type:Bank\n" + kRecord << u".qif (no account header)"_s
        << kCreate.arg(u".qif"_s) << u".qif (no account header)"_s;
}

void ImportScreenTest::qifSourceFindsItsAccount()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, account);
    addAccount(u"Giro"_s);
    addAccount(u"card"_s);
    press(u"qifRadio"_s);
    choose({write(file, content)});
    QCOMPARE(mapRows()->rowCount(), 1);
    QTEST(mapLabel(0), "label");
    QTEST(mapCombo(0)->currentText(), "choice");
    QCOMPARE(mapCombo(0)->itemText(2), u"Giro"_s);
    QCOMPARE(mapCombo(0)->itemText(3), u"card"_s);
    find<QWidget>(u"browseButton"_s)->setFocus();
    QTest::keyClick(m_screen->windowHandle(), Qt::Key_Tab);
    QVERIFY(mapCombo(0)->hasFocus());
    press(u"importButton"_s);
    QCOMPARE(stored(), account + u" Grocer -500"_s);
}

void ImportScreenTest::filesShareTheirSources()
{
    press(u"qifRadio"_s);
    const QString gone = write(u"gone.qif"_s, accountBlock("Gone"));
    choose({write(u"a.qif"_s, accountBlock("Giro")), gone, write(u"b.qif"_s, accountBlock("GIRO")),
            write(u"c.qif"_s, accountBlock("Card")), write(u"empty.qif"_s, {})});
    QCOMPARE(find<QLabel>(u"fileLabel"_s)->text(), u"5 file(s) selected"_s);
    QCOMPARE(find<QLabel>(u"fileLabel"_s)->toolTip().count(u'\n'), 4);
    QCOMPARE(mapRows()->rowCount(), 4);
    mapCombo(2)->setCurrentIndex(mapCombo(2)->findData(u"__skip__"_s));
    mapCombo(3)->setCurrentIndex(mapCombo(3)->findData(u"__skip__"_s));
    QFile::remove(gone);
    press(u"importButton"_s);
    QCOMPARE(stored(), u"Giro Grocer -500"_s);
    QCOMPARE(summary(),
             u"Import complete!\n\n1 transaction(s) imported\n1 duplicate(s) skipped\n"
             "1 record(s) skipped (unmapped source account)"_s);
    QCOMPARE(state().accounts()->listActive().size(), 2); // Gone too, though its file went away
}

void ImportScreenTest::csvPreviewGuessesColumns_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("chosen"); // in the boxes, from date to category
    QTest::addColumn<int>("rows");
    const QStringList nothing{{}, {}, {}, u"(none)"_s, u"(none)"_s};
    QTest::newRow("a bank's") << QByteArray("Day,,Amount %1\n1/2/2024,\"A\nB\",1\n\n")
                              << QStringList{u"Col 0: Day"_s, u"Column 1"_s, u"Col 2: Amount %1"_s,
                                             u"(none)"_s, u"(none)"_s}
                              << 2;
    QTest::newRow("two columns") << QByteArray("a,b\n") << nothing << 1;
    QTest::newRow("many rows") << QByteArray("a,b\n").repeated(9) << nothing << 5;
    QTest::newRow("empty") << QByteArray() << QStringList{{}, {}, {}, {}, {}} << 0;
    QTest::newRow("binary") << QByteArray("\0\xff\xfe\x80\"", 5) << nothing << 1;
    QTest::newRow("one long line") << QByteArray(10'000'000, 'x') << nothing << 1;
    QTest::newRow("commas alone") << QByteArray(100'000, ',')
                                  << QStringList{u"Column 0"_s, u"Column 1"_s, u"Column 2"_s,
                                                 u"(none)"_s, u"(none)"_s}
                                  << 1;
}

void ImportScreenTest::csvPreviewGuessesColumns()
{
    QFETCH(QByteArray, content);
    choose({write(u"bank.csv"_s, content)});
    QStringList chosen;
    for (const QString &field : {u"date"_s, u"payee"_s, u"amount"_s, u"memo"_s, u"category"_s})
        chosen << find<QComboBox>(field + u"ColumnCombo"_s)->currentText();
    QTEST(chosen, "chosen");
    auto *preview = find<QTableWidget>(u"previewTable"_s);
    QTEST(preview->rowCount(), "rows");
    if (preview->rowCount() > 0)
        QCOMPARE(preview->horizontalHeaderItem(0)->text(), u"Col 0"_s);
    QVERIFY(preview->columnCount() < 20'000); // five boxes of millions take all memory
    QVERIFY(!m_screen->grab().isNull()); // paints it in a time that a person waits for
    QCOMPARE(m_screen->width(), 650);
}

void ImportScreenTest::csvMakesItsAccount_data()
{
    QTest::addColumn<bool>("agreed");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stored");
    QTest::newRow("made") << true << u"A & B"_s
                          << u"A & B Opening Balance 1000; A & B Ann, Bob -350"_s;
    QTest::newRow("without a name") << true << u" "_s << QString();
    QTest::newRow("not now") << false << u"A & B"_s << QString();
}

void ImportScreenTest::csvMakesItsAccount()
{
    QFETCH(bool, agreed);
    QFETCH(QString, name);
    choose({write(u"bank.csv"_s, "Day,Payee,Amount\r\n2024-03-01,\"Ann, Bob\",-3.50\r\n")});
    std::unique_ptr<DialogAnswer> form;
    const DialogAnswer question(u"noTargetQuestion"_s, [&](QDialog *dialog) {
        form = std::make_unique<DialogAnswer>(u"accountFormDialog"_s, [&name](QDialog *asking) {
            asking->findChild<QLineEdit *>(u"nameEdit"_s)->setText(name);
            asking->findChild<QDoubleSpinBox *>(u"balanceSpin"_s)->setValue(10);
            asking->accept();
        });
        qobject_cast<QMessageBox *>(dialog)
            ->button(agreed ? QMessageBox::Yes : QMessageBox::No)
            ->click();
    });
    press(u"importButton"_s);
    QVERIFY(question.wasAsked());
    QTEST(stored(), "stored");
    QCOMPARE(summary().isEmpty(), stored().isEmpty());
    QCOMPARE(find<QComboBox>(u"accountCombo"_s)->currentText(),
             stored().isEmpty() ? QString() : name);
}

void ImportScreenTest::formatSwitchClears()
{
    choose({write(u"bank.csv"_s, "a,b,c\n")});
    press(u"qifRadio"_s);
    choose({write(u"a.qif"_s, accountBlock("Giro"))});
    QVERIFY(find<QWidget>(u"qifSection"_s)->isVisible());
    press(u"csvRadio"_s);
    QCOMPARE(find<QLabel>(u"fileLabel"_s)->text(), u"No file selected"_s);
    QCOMPARE(mapRows()->rowCount(), 0);
    QVERIFY(!find<QWidget>(u"qifSection"_s)->isVisible());
    QCOMPARE(find<QTableWidget>(u"previewTable"_s)->rowCount(), 0);
    press(u"importButton"_s); // neither file is chosen any more
    QCOMPARE(summary(), QString());
    QVERIFY(state().accounts()->listActive().isEmpty());
}

// A look at the middle of an import: what a person does then reaches nothing.
void ImportScreenTest::nothingInterruptsAnImport()
{
    press(u"qifRadio"_s);
    QByteArray records;
    for (int i = 0; i < 150; ++i)
        records += "D1/2/2024\nT" + QByteArray::number(i) + "\n^\n";
    choose({write(u"a.qif"_s, accountBlock("Giro") + records)});
    int looks = 0;
    connect(state().importService(), &ImportService::importProgress, m_screen, [&] {
        auto *progress = m_screen->findChild<QProgressDialog *>();
        QTRY_VERIFY(progress->isVisible());
        QTest::keyClick(progress->windowHandle(), Qt::Key_Escape);
        progress->close();
        QTest::keyClick(m_screen->windowHandle(), Qt::Key_Space); // on the Import button
        QVERIFY(progress->isVisible());
        QCOMPARE(progress->maximum(), 151);
        ++looks;
    });
    find<QWidget>(u"importButton"_s)->setFocus();
    press(u"importButton"_s);
    QCOMPARE(looks, 2); // after a hundred, and at the end
    QVERIFY(summary().contains(u"\n151 transaction(s) imported"_s));
    QVERIFY(!m_screen->findChild<QProgressDialog *>());
    QVERIFY(m_screen->isVisible());
}

void ImportScreenTest::everyWayOutCompletes_data()
{
    QTest::addColumn<QString>("button"); // empty: as the window manager closes a window
    QTest::newRow("done") << u"doneButton"_s;
    QTest::newRow("closed") << QString();
}

void ImportScreenTest::everyWayOutCompletes()
{
    QFETCH(QString, button);
    const QSignalSpy completed(m_screen, &ImportScreen::importCompleted);
    press(u"qifRadio"_s);
    choose({write(u"a.qif"_s, accountBlock("Giro"))});
    press(u"importButton"_s);
    QCOMPARE(completed.size(), 0);
    if (button.isEmpty())
        m_screen->close();
    else
        press(button);
    QCOMPARE(completed.size(), 1);
    QVERIFY(!m_screen->isVisible());
    m_screen->show();
    QVERIFY(find<QWidget>(u"importButton"_s)->isVisible()); // the first page again
    QCOMPARE(find<QComboBox>(u"accountCombo"_s)->currentText(), u"Giro"_s);
    m_screen->close();
    QCOMPARE(completed.size(), 1);
}

// In the main window, which stays usable while the files wait.
void ImportScreenTest::deletedAccountsGetNothing()
{
    addAccount(u"Card"_s);
    const QString giro = addAccount(u"Giro"_s);
    auto *target = find<QComboBox>(u"accountCombo"_s);
    QTRY_COMPARE(target->count(), 2);
    target->setCurrentText(u"Giro"_s);
    press(u"qifRadio"_s);
    choose({write(u"a.qif"_s, accountBlock("Giro"))});
    QVERIFY(state().accounts()->softDelete(giro));
    QTRY_COMPARE(target->count(), 1);
    QCOMPARE(target->currentIndex(), -1); // and not the next one, unasked
    press(u"importButton"_s);
    QVERIFY(summary().contains(u"\n1 record(s) skipped (unmapped source account)"_s));
    QCOMPARE(stored(), QString());
}

void ImportScreenTest::summaryTellsCounts()
{
    QCOMPARE(importSummary({1, 2, 3, 4, 5, 6, 7, 8, false}),
             u"Import complete!\n\n1 transaction(s) imported\n"
             "6 transfer(s) linked across accounts\n"
             "  (including 7 linked to previously imported row(s))\n2 duplicate(s) skipped\n"
             "3 record(s) skipped (unparseable)\n4 metadata record(s) skipped\n"
             "5 record(s) skipped (unmapped source account)\n"
             "8 record(s) skipped (database error — see log)"_s);
}

void ImportScreenTest::fullDiskIsTold()
{
    addAccount(u"Giro"_s);
    QTRY_COMPARE(find<QComboBox>(u"accountCombo"_s)->count(), 1);
    QByteArray rows = "Day,Payee,Amount\n";
    for (int i = 0; i < 100; ++i)
        rows += "2024-03-01," + QByteArray(1000, 'p') + ',' + QByteArray::number(i) + '\n';
    choose({write(u"bank.csv"_s, rows)});
    run(u"PRAGMA max_page_count = 1"_s); // as it is
    press(u"importButton"_s);
    QCOMPARE(summary(),
             u"Import failed.\nA database error stopped the import and all changes were rolled "
             "back. No transactions were added."_s);
    QCOMPARE(stored(), QString());
}

PURSEWELL_TEST_MAIN(ImportScreenTest)
#include "ImportScreenTest.moc"
