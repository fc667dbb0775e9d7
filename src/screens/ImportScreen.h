#pragma once

#include "services/ImportRecords.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

class AppState;
class CsvMappingForm;
class ElidedLabel;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QifMappingForm;
struct QifMapRow;

// Brings QIF and CSV files in: a page to choose what goes where, and one that tells what came of
// it. Of the import itself it knows nothing but the new accounts.
class ImportScreen : public QWidget
{
    Q_OBJECT

public:
    explicit ImportScreen(AppState *appState, QWidget *parent = nullptr); // not owned

    void reloadAccounts(); // keeps the chosen one; none is chosen if it is gone

Q_SIGNALS:
    void importCompleted(); // the person has seen the result

public Q_SLOTS:
    void selectFile();
    void runImport(); // nothing without a chosen file

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *buildSetupPage();
    QWidget *buildSummaryPage();
    QLayout *buildSourceFields();
    QLayout *buildFormatRow();
    QLayout *buildFileRow();

    bool isQif() const;
    void clearSelection();
    void selectQifFiles();
    void selectCsvFile();
    void showFileName(const QString &text, const QStringList &paths);
    void analyze();

    QString createTargetAccount(); // asks; the id, or empty
    ImportResult importChosenFiles(const QString &csvAccountId);
    QifAccountMapping createMapping();
    QString targetOf(const QifMapRow &row); // an account id; empty: skipped
    QString createAccount(const QifMapRow &row);
    void showResult(const ImportResult &result);
    void leaveSummary();

    AppState *m_appState;
    QTimer m_accountsTimer{};
    QString m_selectedFile{}; // CSV
    QStringList m_selectedFiles{}; // QIF
    QStackedWidget *m_pages = nullptr;
    QLabel *m_formatLabel = nullptr;
    QRadioButton *m_csvRadio = nullptr;
    QRadioButton *m_qifRadio = nullptr;
    QComboBox *m_accountCombo = nullptr;
    ElidedLabel *m_fileLabel = nullptr;
    QPushButton *m_browseButton = nullptr;
    CsvMappingForm *m_csvForm = nullptr;
    QifMappingForm *m_qifForm = nullptr;
    QPlainTextEdit *m_summary = nullptr;
    QPushButton *m_doneButton = nullptr;
};
