// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;

namespace WebBrowser {

// Opens an address (http, https, ftp, file) or an absolute path with the program "webbrowser" of the
// share directory, detached and as the invoking user. When nothing can open it, a box on `parent`
// says why. The address must hold no password: other users see the arguments of programs.
void open(QWidget *parent, const QString &address);

} // namespace WebBrowser
