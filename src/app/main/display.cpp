// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "display.h"

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char *variables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};

bool namesDisplay(QByteArrayView argument)
{
    if (argument.startsWith("--"))
        argument = argument.sliced(1);
    return argument == "-display" || argument == "-platform";
}

} // namespace

bool isDisplayMissing(int argc, char **argv)
{
    // A session of a compositor may leave the name of its socket out: the usual one is tried then.
    return qgetenv("XDG_SESSION_TYPE") != "wayland" &&
           std::all_of(std::begin(variables), std::end(variables), qEnvironmentVariableIsEmpty) &&
           std::none_of(argv + 1, argv + std::max(argc, 1), namesDisplay);
}
