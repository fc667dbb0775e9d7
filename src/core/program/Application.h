#pragma once

#include "core/Feedback.h"
#include "kestupdate/Config.h"

#include <QApplication>
#include <QStringList>

class AppState;
class MainWindow;
class QTranslator;

// The application object of the single process: its identity, log, language and start sequence.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);
    ~Application() override;

    int run(); // blocks in the event loop; the exit code

    static QString currentLanguage(bool resolveSystem);
    static void setLanguage(const QString &word); // takes effect at the next start
    static QStringList supportedLanguages();
    static KestUpdate::Config updateClientConfig();
    static FeedbackConfig feedbackConfig();
    static void openFeedbackPage(const FeedbackConfig &feedback); // in the browser

private:
    void installLanguage();
    int reportDatabaseError();

    AppState *m_appState = nullptr;
    // Without a parent and never deleted: as a child it would die after the widgets' part of the
    // application. All it has to save it saves when it closes.
    MainWindow *m_mainWindow = nullptr;
    QTranslator *m_qtTranslator = nullptr; // null for English, or when there is none
    QTranslator *m_appTranslator = nullptr; // null when there is none
};
