#pragma once

#include <QLabel>

// A one-line status text in a frame, over the palette's Base colour; what has no room is elided.
// Without a text nothing is drawn, but the place is kept. The text is plain.
class HFrameLabel : public QLabel
{
    Q_OBJECT

public:
    explicit HFrameLabel(QWidget *parent = nullptr);
    explicit HFrameLabel(const QString &text, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
