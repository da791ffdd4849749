// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;
class YumConfIO;
class YumIO;

namespace Repo {
struct Entry;
}

// Shows where packages come from in the user's web browser.
namespace RepoBrowse {

// Opens the first base URL of a repository, else its mirror list, with yum's variables replaced; a
// box on `parent` says when it has neither.
void browse(QWidget *parent, const Repo::Entry &entry, YumIO *yumIO);
// The same for the first repository of `yumConfIO` with the identifier `id`; nothing when there is
// none.
void browse(QWidget *parent, const QString &id, YumIO *yumIO, YumConfIO *yumConfIO);

// Opens any URL. One that holds a password is opened without it, and the user is told.
void open(QWidget *parent, const QString &url);

} // namespace RepoBrowse
