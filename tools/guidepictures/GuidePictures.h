#pragma once

#include "core/state/AppState.h"
#include "shell/MainWindow.h"

#include <QSize>
#include <QString>

// Draws the windows that the user guide shows, over the sample household, each as one page of a PDF
// file. The real windows paint into it, so that text stays text and lines stay lines.
class GuidePictures
{
public:
    explicit GuidePictures(const QString &folder); // must exist

    bool drawAll(); // false when one could not be drawn; which, has been said

private:
    bool openHousehold();
    bool drawRegister();
    bool drawSplit();
    bool drawRecurring();
    bool drawReconciliation();
    bool drawReports();
    bool drawPreferences();

    // The window that the menu's entry opens, about as large; null when there is no such window.
    QWidget *openFromMenu(const QString &action, const QString &name, QSize size) const;
    qint64 bankBalance() const; // minor units; of the first account, one line ahead of its ticks
    bool save(QWidget *window, const QString &name) const; // a null window fails

    QString m_folder;
    AppState m_state;
    MainWindow *m_window = nullptr;
};
