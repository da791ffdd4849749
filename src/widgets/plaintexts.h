// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

// While one of these lives, tips and labels of the program show their text as it is: by default they take what looks
// like HTML for it, and open the files that it names. A label whose format was set to rich text keeps it.
class PlainTexts : public QObject
{
    Q_OBJECT

public:
    explicit PlainTexts(QObject *parent);

    bool eventFilter(QObject *object, QEvent *event) override;
};
