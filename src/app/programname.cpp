// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "programname.h"

#include <QFile>

namespace {

QString &storedName()
{
    static QString name;
    return name;
}

} // namespace

QString programName()
{
    return storedName();
}

void setProgramName(const char *argv0)
{
    const QString path = QFile::decodeName(argv0);
    storedName() = path.mid(path.lastIndexOf(u'/') + 1);
}
