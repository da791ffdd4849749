#pragma once

class QWidget;

// Launching of programs that outlive VOK or do not, as they like.
namespace Execute {

// Starts the program at the path argv[0] with the null-terminated argument vector, detached: its
// parent is not VOK, no descriptor but the standard ones is passed on, and when VOK runs as root
// for an ordinary user, through sudo or pkexec, the program runs as that user. A failing fork is
// shown in a box on `parent`; a program that cannot be started is told on standard error.
void execute(QWidget *parent, char **argv);

} // namespace Execute
