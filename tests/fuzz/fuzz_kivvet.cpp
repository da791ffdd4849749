// The credential functions and the masking with their expressions.

#include "repo/kivvet/kivvet.h"
#include "repo/kivvet/percent.h"
#include "repo/passwordmask.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    if (httpUnprotect(httpProtect(text)) != text)
        abort();

    const QRegularExpression one = Repo::Kivvet::oneUrlRegExp(), many = Repo::Kivvet::urlsRegExp();
    if (PasswordMask::maskWhole(text, one, u'*').size() != text.size() ||
        PasswordMask::maskAll(text, many, u'*').size() != text.size())
        abort();

    QString nameKey, name, passwordKey, password;
    if (!Repo::Kivvet::getAuth(text, nameKey, name, passwordKey, password))
        return 0;
    const QString replaced = Repo::Kivvet::replaceAuth(text, nameKey, name, passwordKey, password);
    if (Repo::Kivvet::replaceAuth(replaced, nameKey, name, passwordKey, password) != replaced)
        abort();
    return 0;
}
