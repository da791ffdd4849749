// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

// The application object. When it is told to quit, as by the end of the session, it asks no window
// whether it may close, which could put questions to somebody who has gone: it only says so.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    // Once the style is set; what changes later is seen to.
    void mendPalette();

Q_SIGNALS:
    void quitAsked();

protected:
    bool event(QEvent *event) override;
};
