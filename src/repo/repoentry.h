// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <Qt>

namespace Repo {

// One repository definition as a configuration file holds it: a plain value.
struct Entry
{
    QString id;      // the section's name
    QString name;    // empty: the option is absent, as with the other texts
    QString baseurl; // several URLs are separated by one line feed each
    QString mirrorlist;
    // Off, on, or PartiallyChecked where the file does not set the option.
    Qt::CheckState enabled = Qt::PartiallyChecked;
    Qt::CheckState gpgcheck = Qt::PartiallyChecked;
    QString otherOptions;  // every other line of the section, each ended by a line feed
    QString file;          // full path of the file, as it is inside the system root
    double position = 0.0; // 1.0 for the first section of the file; fractions lie in between
};

} // namespace Repo
