#include "share.h"

QString Share::absolute(const QString &relative)
{
    const QString dir = qEnvironmentVariable("VOKSHARE", QStringLiteral("/usr/share/vok"));
    return QStringLiteral("%1/%2").arg(dir, relative);
}
