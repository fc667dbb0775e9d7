#include "kestupdate/NotesView.h"

#include "kestupdate/WebAddress.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QEvent>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace KestUpdate {

NotesView::NotesView(QWidget *parent)
    : QTextBrowser(parent)
{
    setObjectName(u"notesView"_s);
    setAccessibleName(tr("Release notes"));
    setStyleSheet(u"QTextBrowser { border: 1px solid palette(mid); }"
                  "QTextBrowser:focus { border: 1px solid palette(highlight); }"_s);
    setOpenLinks(false); // it would load files into itself
    connect(this, &QTextBrowser::anchorClicked, this, &NotesView::openLink);
    // Qt's own handler opens pictures by their path, past loadResource.
    document()->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

void NotesView::showNotes(const QString &markdown)
{
    setPlaceholderText({}); // notes of nothing but comments leave the view empty
    setMarkdown(markdown);
    colorLinks();
}

QVariant NotesView::loadResource(int, const QUrl &)
{
    return QByteArray(""); // for a null value the document would open the file itself
}

QSizeF NotesView::intrinsicSize(QTextDocument *, int, const QTextFormat &)
{
    return {0, 0};
}

void NotesView::drawObject(QPainter *, const QRectF &, QTextDocument *, int, const QTextFormat &) {
}

void NotesView::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colorLinks();
}

// In the accent colour: the platform's own blue is unreadable on a dark palette.
void NotesView::colorLinks()
{
    QList<QTextCursor> links;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (!fragment.charFormat().isAnchor())
                continue;
            links.append(QTextCursor(document()));
            links.last().setPosition(fragment.position());
            links.last().setPosition(fragment.position() + fragment.length(),
                                     QTextCursor::KeepAnchor);
        }
    }
    QTextCharFormat accent;
    accent.setForeground(palette().highlight());
    QTextCursor edit(document());
    edit.beginEditBlock(); // one layout for all of them
    for (QTextCursor &link : links)
        link.mergeCharFormat(accent);
    edit.endEditBlock();
}

void NotesView::openLink(const QUrl &url)
{
    if (isWebAddress(url))
        QDesktopServices::openUrl(url);
}

} // namespace KestUpdate
