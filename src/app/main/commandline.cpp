// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "commandline.h"

#include "app/programname.h"
#include "mainwindow/mainwindow.h"

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <getopt.h>
#include <initializer_list>

namespace {

constexpr int disableRepo = 256;
constexpr int enableRepo = 257;
constexpr int duplicates = 258;

// No "d" among the letters: duplicates are omitted by the long option alone.
constexpr char letters[] = "+hHm:e:s:grl";

constexpr option longOptions[] = {
    {"help", no_argument, nullptr, 'h'},
    {"mode", required_argument, nullptr, 'm'},
    {"regexp", required_argument, nullptr, 'e'},
    {"state", required_argument, nullptr, 's'},
    {"duplicates", no_argument, nullptr, duplicates},
    {"groups", no_argument, nullptr, 'g'},
    {"repo-editor", no_argument, nullptr, 'r'},
    {"log", no_argument, nullptr, 'l'},
    {"disablerepo", required_argument, nullptr, disableRepo},
    {"enablerepo", required_argument, nullptr, enableRepo},
    {nullptr, 0, nullptr, 0},
};

constexpr char usageText[] =
    "\n"
    "VOK, Vokmanager, is a graphical user interface which allows a user\n"
    "to make modifications to the installed rpm packages on a system.\n"
    "\n"
    "options:\n"
    "\n"
    "   -h, -H, --help           display this help information\n"
    "   -m m,   --mode=m         start with the package table mode, m:\n"
    "                               filter, search\n"
    "   -e r,   --regexp=r       start with the package table regexp, r\n"
    "   -s s,   --state=s        start with the package table state, s:\n"
    "                               updatable, installable, removable, all\n"
    "   -d,     --duplicates     start with the package table omitting duplicates\n"
    "   -g,     --groups         start with the package table showing groups\n"
    "   -r,     --repo-editor    start by bringing up the repository configuration\n"
    "                            editor\n"
    "   -l,     --log            start with the log window displayed\n"
    "           --disablerepo=r  disable the specified repository, r\n"
    "           --enablerepo=r   enable the specified repository, r\n"
    "\n";

QByteArray name()
{
    return QFile::encodeName(programName());
}

[[noreturn]] void usage()
{
    printf("usage: %s [options...]\n%s", name().constData(), usageText);
    exit(1);
}

// The number of the first keyword that begins with the argument, or -1.
int match(const char *argument, std::initializer_list<const char *> keywords)
{
    int number = 0;
    for (const char *keyword : keywords) {
        if (strncmp(argument, keyword, strlen(argument)) == 0)
            return number;
        ++number;
    }
    return -1;
}

int keyword(const char *option, std::initializer_list<const char *> keywords)
{
    const int number = match(optarg, keywords);
    if (number == -1) {
        fprintf(stderr, "%s: unrecogized argument to %s option: %s\n", name().constData(), option,
                optarg);
        usage();
    }
    return number;
}

// Of a long option that lacks its argument or must not have one, getopt_long tells the letter too.
[[noreturn]] void rejectOption(const char *word)
{
    if (strncmp(word, "--", 2) == 0)
        fprintf(stderr, "%s: unrecogized option: %s\n", name().constData(), word);
    else
        fprintf(stderr, "%s: unrecognized option letter: %c\n", name().constData(), optopt);
    usage();
}

// The word is the argument in which the option begins.
void applyOption(int option, const char *word, MainWindow &window)
{
    switch (option) {
    case 'h':
    case 'H':
        usage();
    case 'm':
        window.setMode(PackageTable::Mode(keyword("-m/--mode", {"filter", "search"})));
        break;
    case 'e':
        window.setRegexp(optarg);
        break;
    case 's':
        window.setStateFilter(PackageTable::StateFilter(
            keyword("-s/--state", {"updatable", "installable", "removable", "all"})));
        break;
    case duplicates:
        window.setDups(false);
        break;
    case 'g':
        window.setGroups(true);
        break;
    case 'r':
        window.setStartInEditor(true);
        break;
    case 'l':
        window.setShowLogAtStart(true);
        break;
    case disableRepo:
    case enableRepo:
        window.addRepoRequest(YumRepoEnabled(option == enableRepo, QString::fromLocal8Bit(optarg)));
        break;
    default:
        rejectOption(word);
    }
}

} // namespace

void applyCommandLine(int argc, char **argv, MainWindow &window)
{
    opterr = 0;
    for (;;) {
        const char *word = argv[optind];
        const int option = getopt_long(argc, argv, letters, longOptions, nullptr);
        if (option == -1)
            break;
        applyOption(option, word, window);
    }
    if (optind < argc) {
        fprintf(stderr, "%s: unrecognized argument: %s\n", name().constData(), argv[optind]);
        usage();
    }
}
