// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "log.h"

#include <utility>

Log::Entry::Entry(Kind kind, unsigned int level, QString text)
    : kind(kind), level(level), text(std::move(text))
{
}

void Log::EntryList::emitAppended()
{
    Q_EMIT appended();
}
