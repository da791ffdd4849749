// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

// A plain text that is broken inside words where it must be, as URLs have to be.
class HWrapLabel : public QLabel
{
    Q_OBJECT

public:
    explicit HWrapLabel(QWidget *parent = nullptr);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize sizeIn(int width) const;
};
