// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;

// Launching of programs that outlive VOK or do not, as they like.
namespace Execute {

// Starts the program at the path argv[0] with the null-terminated argument vector, detached: its
// parent is not VOK, no descriptor but the standard ones is passed on, and when VOK runs as root
// for an ordinary user, through sudo or pkexec, the program runs as that user. A failing fork is
// shown in a box on `parent`; a program that cannot be started is told on standard error.
void execute(QWidget *parent, char **argv);

// Runs a program in the same way but waits for it, for five seconds at most: true when it ended with
// status 0. `said` is what it wrote, or why it could not be run; at most 4096 bytes of it.
bool ask(char **argv, QString &said);

} // namespace Execute
