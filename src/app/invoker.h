// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QList>

#include <sys/types.h>

// The ordinary user for whom VOK runs as root, as sudo or pkexec tell it; none when VOK does not
// run as root, or root itself started it. Everything is looked up on construction, so that become()
// may be called in a forked child.
class Invoker
{
public:
    Invoker();
    Invoker(const Invoker &) = delete;
    Invoker &operator=(const Invoker &) = delete;

    bool exists() const { return m_exists; }
    // Takes the user's groups, group, user and environment; true at once when there is no such
    // user. On false the process must not go on: it may have kept rights. Async-signal-safe.
    bool become() const;

private:
    bool lookUp(uid_t uid);
    void makeEnvironment(const QByteArray &name, const QByteArray &home, const QByteArray &shell);

    bool m_exists = false;
    bool m_known = false;
    uid_t m_uid = 0;
    gid_t m_gid = 0;
    QList<gid_t> m_groups;
    QList<QByteArray> m_variables;
    QList<char *> m_environment;
};
