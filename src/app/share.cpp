#include "share.h"

#include "app/version.h"

QString Share::absolute(const QString &relative)
{
    const QString dir = qEnvironmentVariable("VOKSHARE", QStringLiteral(VOK_SHARE));
    return QStringLiteral("%1/%2").arg(dir, relative);
}
