// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The credential functions and the masking with their expressions.

#include "kivvet/kivvet.h"
#include "kivvet/percent.h"
#include "repo/maskedfield.h"

#include <QStringList>

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
    if (MaskedField::maskAll(text, one, u'*').size() != text.size() ||
        MaskedField::maskAll(text, many, u'*').size() != text.size())
        abort();

    // Whatever the text, these end, and find in it what they can.
    QString nameKey, name, passwordKey, password;
    if (Repo::Kivvet::getAuth(text, nameKey, name, passwordKey, password))
        Repo::Kivvet::replaceAuth(text, nameKey, name, passwordKey, password);

    // As the values of credentials, what it holds comes back from a URL, and putting the same
    // values into it changes nothing.
    QStringList values = text.split(u'|').mid(0, 4);
    values.resize(4);
    for (QString &value : values)
        value.removeIf([](QChar c) { return c.isSpace() && c != u' '; });
    for (const QString &form : {QStringLiteral("h/kivvet?%1=%2&%3=%4&path=os"),
                                QStringLiteral("h/rhel/%1=%2/%3=%4/os")}) {
        const QString url = form.arg(httpProtect(values[0]), httpProtect(values[1]),
                                     httpProtect(values[2]), httpProtect(values[3]));
        if (!Repo::Kivvet::getAuth(url, nameKey, name, passwordKey, password) ||
            QStringList{nameKey, name, passwordKey, password} != values ||
            Repo::Kivvet::replaceAuth(url, name, password) != url ||
            Repo::Kivvet::replaceAuth(Repo::Kivvet::replaceAuth(url, form), password) != url)
            abort();
        const QString shown = MaskedField::maskAll(url, one, u'*');
        const qsizetype length = httpProtect(password).size();
        const qsizetype start = url.lastIndexOf(u'=', form.startsWith(u"h/k") ? -9 : -1) + 1;
        if (QStringView(shown).mid(start, length) != QString(length, u'*'))
            abort();
    }
    return 0;
}
