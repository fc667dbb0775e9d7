#include "core/program/Application.h"

#include "core/Deployment.h"
#include "core/Language.h"
#include "core/program/MessageHandler.h"
#include "core/program/StartupNotices.h"
#include "core/state/AppState.h"
#include "core/state/UpdateConfig.h"
#include "data/DataDirectory.h"
#include "shell/FeedbackPage.h"
#include "shell/MainWindow.h"
#include "shell/theme/IndicatorStyle.h"

#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTimer>
#include <QTranslator>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kUpdateCheckDelay = 1500ms; // the window opens and paints first

// The translator, in use; or null, and without it the texts stay in the language of the source.
QTranslator *installed(QTranslator *translator, bool loaded)
{
    if (loaded) {
        QCoreApplication::installTranslator(translator);
        return translator;
    }
    delete translator;
    return nullptr;
}

}

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    installMessageHandler();
    setOrganizationName(kOrganizationName);
    setOrganizationDomain(kOrganizationDomain);
    setApplicationName(kApplicationName);
    setDesktopFileName(kDesktopFileName);
    setApplicationVersion(kApplicationVersion);
    installLanguage(); // before any widget has taken its texts
    setStyle(new IndicatorStyle); // the application owns it
    setWindowIcon(QIcon(u":/icons/icons/app_icon.png"_s));
    QFontDatabase::addApplicationFont(u":/fonts/fonts/MaterialIcons-Regular.otf"_s);
}

Application::~Application() = default;

int Application::run()
{
    m_appState = new AppState(this);
    if (!m_appState->initialize())
        return reportDatabaseError();
    m_mainWindow = new MainWindow(m_appState);
    m_mainWindow->show();
    offerWhatsNew(m_appState->preferences(), m_mainWindow);
    QTimer::singleShot(kUpdateCheckDelay, this,
                       [this] { startUpdateCheck(m_appState->preferences(), m_mainWindow); });
    return exec();
}

void Application::installLanguage()
{
    const QString language = currentLanguage(true);
    if (language != "en"_L1) {
        auto *translator = new QTranslator(this);
        const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        m_qtTranslator = installed(
            translator, translator->load(QLocale(language), u"qtbase"_s, u"_"_s, directory));
    }
    // English too: its file holds the singular and plural forms. Empty delimiters keep Qt from
    // trying ever shorter names.
    auto *translator = new QTranslator(this);
    m_appTranslator =
        installed(translator,
                  translator->load(u":/i18n/pursewell_%1.qm"_s.arg(language), u""_s, u""_s, u""_s));
}

int Application::reportDatabaseError()
{
    QMessageBox box(QMessageBox::Critical, tr("Database Error"),
                    tr("Failed to initialize the database.\n\nData directory: %1\n\nPlease check "
                       "file permissions and try again.")
                        .arg(dataDirectory()),
                    QMessageBox::Ok);
    box.setObjectName(u"databaseErrorBox"_s);
    box.setTextFormat(Qt::PlainText); // the directory is shown letter by letter
    box.exec();
    return 1;
}

QString Application::currentLanguage(bool resolveSystem)
{
    return Language::current(resolveSystem);
}

void Application::setLanguage(const QString &word)
{
    Language::store(word);
}

QStringList Application::supportedLanguages()
{
    return Language::supported();
}

KestUpdate::Config Application::updateClientConfig()
{
    return ::updateClientConfig();
}

FeedbackConfig Application::feedbackConfig()
{
    return ::feedbackConfig();
}

void Application::openFeedbackPage(const FeedbackConfig &feedback)
{
    ::openFeedbackPage(feedback);
}
