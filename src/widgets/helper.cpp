// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "helper.h"

#include "app/execute.h"
#include "app/share.h"

#include <QFile>
#include <QList>

bool Helper::start(QWidget *parent, const QString &name, const QStringList &arguments,
                   QString &reason)
{
    QByteArrayList words = {QFile::encodeName(Share::absolute(name)), "--check"};
    for (const QString &argument : arguments)
        words.append(argument.toUtf8());
    QList<char *> argv;
    for (QByteArray &word : words)
        argv.append(word.data());
    argv.append(nullptr);
    if (!Execute::ask(argv.data(), reason))
        return false;
    argv.removeAt(1);
    Execute::execute(parent, argv.data());
    return true;
}
