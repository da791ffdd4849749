// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QCoreApplication;

// Has the texts of the program and of the toolkit shown in the user's language: the first of the
// session's languages that there is a catalogue for, else English. To be called before the first
// widget is made. The environment variable VOKLANGUAGE, where it is not empty, names the catalogue
// instead; numbers and dates keep to the session's locale.
void installTranslations(QCoreApplication &app);
