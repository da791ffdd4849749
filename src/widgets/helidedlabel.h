// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

// A plain text on one line, cut where it does not fit; then the tool tip begins with the whole. The
// tip is plain text, too.
class HElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit HElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect room() const;
    QString elided() const;
};
