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
