#pragma once

#include <QLabel>

// One line of plain text that is cut with an ellipsis instead of widening its layout.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    const QString &fullText() const { return m_fullText; }
    void setFullText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString m_fullText;
};
