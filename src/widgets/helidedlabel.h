// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

// A plain text on one line, or on a few, cut where it does not fit; then the tool tip begins with
// the whole. The tip is plain text, too.
class HElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit HElidedLabel(QWidget *parent = nullptr);

    // How many lines the text may take; 1 at first. More are used where the width demands it.
    void setMaximumLines(int lines);

    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return m_maximumLines > 1; }
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect room() const;
    // The text as it is shown in so many pixels.
    QStringList linesIn(int width) const;

    int m_maximumLines = 1;
};
