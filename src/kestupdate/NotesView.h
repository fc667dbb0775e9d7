#pragma once

#include <QTextBrowser>
#include <QTextObjectInterface>

namespace KestUpdate {

// Shows release notes, which come from the network, as text alone: no picture, no style sheet and
// no other resource is loaded from anywhere. A link opens in the user's browser if it is one to the
// web, and does nothing otherwise.
class NotesView : public QTextBrowser, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit NotesView(QWidget *parent = nullptr);

    void showNotes(const QString &markdown);
    QVariant loadResource(int type, const QUrl &name) override;

    // In place of each picture: nothing.
    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rectangle, QTextDocument *document,
                    int position, const QTextFormat &format) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void colorLinks();
    static void openLink(const QUrl &url);
};

} // namespace KestUpdate
