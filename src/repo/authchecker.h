// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QStringList>

class QWidget;
class YumConfIO;

namespace Repo {
struct Entry;
}

namespace RepoAuth {

class Dialog;

// One pass over the repositories that are used in this session: asks for the user name and the
// password of each whose URL has room for both and holds neither. What was answered is written to
// the configuration files. The whole pass is done by the constructor, which reads them anew.
class Checker
{
    Q_DECLARE_TR_FUNCTIONS(RepoAuth::Checker)

public:
    struct Auth
    {
        QString name;
        QString password;
    };

    Checker(QWidget *parent, YumConfIO *yumConfIO);
    Checker(const Checker &) = delete;
    Checker &operator=(const Checker &) = delete;
    ~Checker();

    // Puts the credentials into the URLs of the entry, which keep their keys.
    static void replace(Repo::Entry &entry, const Auth &auth);

    bool quit = false;    // the user wants to leave the program
    bool changed = false; // an answer changed the configuration
    QStringList skipped;  // the repositories that lack credentials after Skip All

private:
    void check();
    QString warning(qsizetype at) const;

    QWidget *m_parent;
    YumConfIO *m_yumConfIO;
    QPointer<Dialog> m_dialog; // made for the first question
};

} // namespace RepoAuth
