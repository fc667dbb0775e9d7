#include "screens/ImportScreen.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "register/AccountCreation.h"
#include "register/FieldLabel.h"
#include "screens/CsvMappingForm.h"
#include "screens/ImportSummary.h"
#include "screens/QifMappingForm.h"
#include "screens/WorkProgressDialog.h"
#include "services/ImportService.h"
#include "shell/theme/ElidedLabel.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/PlainWords.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kSectionGap = 8;
constexpr int kAnalysisDelayMs = 200;
constexpr int kImportDelayMs = 500;

QString fileNameOf(const QString &path)
{
    return path.section(u'/', -1);
}

QString nameOfNewAccount(const QifMapRow &row)
{
    if (row.sourceKey == row.label)
        return row.label;
    const QString name = QFileInfo(row.sourceKey).completeBaseName();
    return name.isEmpty() ? row.label : name;
}

} // namespace

ImportScreen::ImportScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_pages(new QStackedWidget)
{
    setObjectName(u"importScreen"_s);
    setWindowTitle(tr("Import Transactions"));
    m_pages->setObjectName(u"pages"_s);
    m_pages->addWidget(buildSetupPage());
    m_pages->addWidget(buildSummaryPage());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_pages);
    clearSelection();
    m_accountsTimer.setSingleShot(true); // once for all accounts that change together
    connect(&m_accountsTimer, &QTimer::timeout, this, &ImportScreen::reloadAccounts);
    connect(m_appState->accounts(), &AccountRepository::accountsChanged, this,
            [this] { m_accountsTimer.start(0); });
}

QWidget *ImportScreen::buildSetupPage()
{
    auto *page = new QWidget;
    m_csvForm = new CsvMappingForm;
    m_qifForm = new QifMappingForm;
    auto *importButton = new QPushButton(tr("Import"));
    importButton->setObjectName(u"importButton"_s);
    connect(importButton, &QPushButton::clicked, this, &ImportScreen::runImport);

    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(buildSourceFields());
    column->addSpacing(kSectionGap);
    column->addWidget(m_csvForm, 1);
    column->addWidget(m_qifForm, 1);
    column->addStretch(); // keeps the fields at the top while no section is shown
    column->addWidget(importButton, 0, Qt::AlignRight);
    return page;
}

QLayout *ImportScreen::buildSourceFields()
{
    m_accountCombo = new QComboBox;
    m_accountCombo->setObjectName(u"accountCombo"_s);
    m_accountCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *fields = new QFormLayout;
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_formatLabel = new QLabel(tr("&Format:"));
    fields->addRow(m_formatLabel, buildFormatRow());
    fields->addRow(tr("&Account:"), m_accountCombo);
    QLayout *fileRow = buildFileRow();
    fields->addRow(makeFieldLabel(tr("File:"), m_browseButton), fileRow);
    return fields;
}

QLayout *ImportScreen::buildFormatRow()
{
    m_csvRadio = new QRadioButton(tr("CSV"));
    m_csvRadio->setObjectName(u"csvRadio"_s);
    m_csvRadio->setChecked(true);
    m_qifRadio = new QRadioButton(tr("QIF"));
    m_qifRadio->setObjectName(u"qifRadio"_s);
    auto *group = new QButtonGroup(this);
    group->addButton(m_csvRadio);
    group->addButton(m_qifRadio);
    connect(m_qifRadio, &QRadioButton::toggled, this, &ImportScreen::clearSelection);
    auto *row = new QHBoxLayout;
    row->addWidget(m_csvRadio);
    row->addWidget(m_qifRadio);
    row->addStretch();
    return row;
}

QLayout *ImportScreen::buildFileRow()
{
    m_fileLabel = new ElidedLabel;
    m_fileLabel->setObjectName(u"fileLabel"_s);
    m_browseButton = new QPushButton(tr("Browse..."));
    m_browseButton->setObjectName(u"browseButton"_s);
    connect(m_browseButton, &QPushButton::clicked, this, &ImportScreen::selectFile);
    auto *row = new QHBoxLayout;
    row->addWidget(m_fileLabel, 1);
    row->addWidget(m_browseButton);
    return row;
}

QWidget *ImportScreen::buildSummaryPage()
{
    auto *page = new QWidget;
    m_summary = new QPlainTextEdit;
    m_summary->setObjectName(u"summaryText"_s);
    m_summary->setAccessibleName(tr("Result"));
    m_summary->setReadOnly(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_summary->setTabChangesFocus(true);
    m_doneButton = new QPushButton(tr("Done"));
    m_doneButton->setObjectName(u"doneButton"_s);
    connect(m_doneButton, &QPushButton::clicked, this, &QWidget::close);
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_summary, 1);
    // Not where "Import" stood: a double click there must not put the result away unseen.
    column->addWidget(m_doneButton, 0, Qt::AlignHCenter);
    return page;
}

void ImportScreen::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return; // it was only minimised
    clearSelection();
    m_accountCombo->clear(); // what was chosen for another file is no choice for the next
    reloadAccounts();
    m_formatLabel->buddy()->setFocus();
}

// However the window goes, the register has to hear what has come in.
void ImportScreen::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    leaveSummary();
}

void ImportScreen::leaveSummary()
{
    if (m_pages->currentIndex() == 0)
        return;
    clearSelection();
    Q_EMIT importCompleted();
}

bool ImportScreen::isQif() const
{
    return m_qifRadio->isChecked();
}

void ImportScreen::clearSelection()
{
    m_selectedFile.clear();
    m_selectedFiles.clear();
    showFileName(tr("No file selected"), {});
    m_csvForm->clear();
    m_csvForm->setVisible(!isQif());
    m_qifForm->clear();
    m_qifForm->hide();
    m_summary->clear();
    m_pages->setCurrentIndex(0);
    m_formatLabel->setBuddy(isQif() ? m_qifRadio : m_csvRadio); // its key would press the other one
}

void ImportScreen::reloadAccounts()
{
    const QString chosen = m_accountCombo->currentData().toString();
    m_accountCombo->clear();
    const QList<Account> accounts = m_appState->accounts()->listActive();
    for (const Account &account : accounts)
        m_accountCombo->addItem(account.name, account.id);
    if (!chosen.isEmpty())
        m_accountCombo->setCurrentIndex(m_accountCombo->findData(chosen));
}

void ImportScreen::showFileName(const QString &text, const QStringList &paths)
{
    m_fileLabel->setFullText(text);
    m_fileLabel->setToolTip(toolTipWords(paths.join(u'\n')));
}

void ImportScreen::selectFile()
{
    m_qifForm->clear();
    m_qifForm->hide();
    if (isQif())
        selectQifFiles();
    else
        selectCsvFile();
}

void ImportScreen::selectQifFiles()
{
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Select QIF File(s)"), {}, tr("QIF Files (*.qif)"));
    if (paths.isEmpty())
        return;
    m_selectedFiles = paths;
    m_selectedFile.clear();
    showFileName(paths.size() == 1
                     ? fileNameOf(paths.first())
                     : tr("%n file(s) selected", nullptr, static_cast<int>(paths.size())),
                 paths);
    analyze();
}

void ImportScreen::analyze()
{
    const WorkProgressDialog progress(tr("Analyzing QIF file(s)..."), kAnalysisDelayMs, this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // paints the file's name
    const QifAnalysis analysis = m_appState->importService()->analyzeQifFiles(m_selectedFiles);
    m_qifForm->showSources(analysis.sources, m_appState->accounts()->listActive());
    m_qifForm->setVisible(!analysis.sources.isEmpty());
    QWidget *before = m_browseButton; // Tab would come to new boxes last
    for (const QifMapRow &row : m_qifForm->rows()) {
        setTabOrder(before, row.combo);
        before = row.combo;
    }
}

void ImportScreen::selectCsvFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Select File"), {},
                                                      tr("CSV Files (*.csv);;All Files (*)"));
    if (path.isEmpty())
        return;
    m_selectedFile = path;
    m_selectedFiles.clear();
    showFileName(fileNameOf(path), {path});
    m_csvForm->showFile(path);
}

void ImportScreen::runImport()
{
    if (isQif() ? m_selectedFiles.isEmpty() : m_selectedFile.isEmpty())
        return;
    QString accountId = m_accountCombo->currentData().toString();
    if (!isQif() && accountId.isEmpty()) {
        accountId = createTargetAccount();
        if (accountId.isEmpty())
            return;
    }
    showResult(importChosenFiles(accountId));
}

QString ImportScreen::createTargetAccount()
{
    QMessageBox question(QMessageBox::Question, tr("No target account"),
                         tr("Pick an account to import into, or create one now."),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"noTargetQuestion"_s);
    question.setDefaultButton(QMessageBox::Yes);
    if (question.exec() != QMessageBox::Yes)
        return {};
    const QString accountId = createAccountByForm(m_appState, this);
    reloadAccounts();
    m_accountCombo->setCurrentIndex(m_accountCombo->findData(accountId));
    return accountId;
}

ImportResult ImportScreen::importChosenFiles(const QString &csvAccountId)
{
    ImportService *service = m_appState->importService();
    WorkProgressDialog progress(tr("Importing..."), kImportDelayMs, this);
    connect(service, &ImportService::importStarted, &progress, &QProgressDialog::setMaximum);
    connect(service, &ImportService::importProgress, &progress, &QProgressDialog::setValue);
    if (isQif())
        return service->importQifFiles(m_selectedFiles, createMapping());
    return service->importCsv(m_selectedFile, csvAccountId, m_csvForm->mapping());
}

QifAccountMapping ImportScreen::createMapping()
{
    QifAccountMapping mapping;
    for (const QifMapRow &row : m_qifForm->rows())
        mapping.insert(row.sourceKey, targetOf(row));
    return mapping;
}

QString ImportScreen::targetOf(const QifMapRow &row)
{
    const QString choice = row.combo->currentData().toString();
    if (choice == kSkipSource)
        return {};
    if (choice == kCreateAccount)
        return createAccount(row);
    // Meanwhile it may have been deleted in the main window; nobody would find the rows there.
    const std::optional<Account> account = m_appState->accounts()->findById(choice);
    return account && !account->deleted_at ? choice : QString();
}

QString ImportScreen::createAccount(const QifMapRow &row)
{
    Account account;
    account.id = newId();
    account.name = nameOfNewAccount(row);
    account.account_type = row.suggestedType;
    account.created_at = currentStamp();
    account.updated_at = account.created_at;
    return m_appState->accounts()->insert(account) ? account.id : QString();
}

void ImportScreen::showResult(const ImportResult &result)
{
    m_summary->setPlainText(importSummary(result));
    m_pages->setCurrentIndex(1);
    m_doneButton->setFocus();
}
