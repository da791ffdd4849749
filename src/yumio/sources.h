#pragma once

#include <QList>
#include <QString>

namespace Engine {

// What a collection rests on beside metadata. Paths are those inside the system; not all need exist.
struct Sources
{
    // A file, or with a pattern those files of a directory whose names match it.
    struct File
    {
        QString path;
        QString pattern;
        bool operator==(const File &other) const = default;
    };

    QString database; // the directory of rpm's database; empty when it is not known
    QList<File> files;
};

} // namespace Engine
