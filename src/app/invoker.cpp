// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "invoker.h"

#include <QString>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace {

// The user's number in an environment variable; 0, which is root, when there is none.
uid_t userFrom(const char *variable)
{
    bool ok = false;
    const uint uid = qEnvironmentVariable(variable).toUInt(&ok);
    return ok ? uid : 0;
}

// In front of the names of the user's own variables, where root's side was told them.
constexpr char handedOver[] = "VOK_OWN_";

// Belongs to root's session or to the way in, and would mislead the user's programs.
bool isDropped(const QByteArray &variable)
{
    static const char *const names[] = {"HOME",
                                        "USER",
                                        "LOGNAME",
                                        "SHELL",
                                        "MAIL",
                                        "SUDO_UID",
                                        "SUDO_GID",
                                        "SUDO_USER",
                                        "SUDO_COMMAND",
                                        "PKEXEC_UID",
                                        "PATH",
                                        "QT_QPA_PLATFORM",
                                        "XDG_RUNTIME_DIR",
                                        "DBUS_SESSION_BUS_ADDRESS",
                                        "XDG_CONFIG_HOME",
                                        "XDG_DATA_HOME",
                                        "XDG_CACHE_HOME",
                                        "XDG_STATE_HOME"};
    const QByteArray name = variable.left(variable.indexOf('='));
    for (const char *dropped : names) {
        if (name == dropped)
            return true;
    }
    return false;
}

} // namespace

Invoker::Invoker()
{
    if (geteuid() != 0)
        return;
    uid_t uid = userFrom("PKEXEC_UID");
    if (uid == 0)
        uid = userFrom("SUDO_UID");
    if (uid == 0)
        return;
    m_exists = true;
    m_known = lookUp(uid);
}

bool Invoker::lookUp(uid_t uid)
{
    QByteArray buffer(1 << 16, '\0');
    passwd entry;
    passwd *found = nullptr;
    if (getpwuid_r(uid, &entry, buffer.data(), size_t(buffer.size()), &found) != 0 || !found)
        return false;
    m_uid = uid;
    m_gid = entry.pw_gid;
    int count = 64;
    m_groups.resize(count);
    if (getgrouplist(entry.pw_name, m_gid, m_groups.data(), &count) == -1) {
        m_groups.resize(count);
        if (getgrouplist(entry.pw_name, m_gid, m_groups.data(), &count) == -1)
            return false;
    }
    m_groups.resize(count);
    makeEnvironment(entry.pw_name, entry.pw_dir, entry.pw_shell);
    return true;
}

void Invoker::makeEnvironment(const QByteArray &name, const QByteArray &home,
                              const QByteArray &shell)
{
    bool hasPath = false;
    for (char **variable = environ; *variable; ++variable) {
        const QByteArray text = *variable;
        if (text.startsWith(handedOver)) {
            m_variables.append(text.mid(qstrlen(handedOver)));
            hasPath = hasPath || m_variables.last().startsWith("PATH=");
        } else if (!isDropped(text)) {
            m_variables.append(text);
        }
    }
    if (!hasPath)
        m_variables << "PATH=/usr/local/bin:/usr/bin:/bin";
    m_variables << "HOME=" + home << "USER=" + name << "LOGNAME=" + name << "SHELL=" + shell;
    const QByteArray runtime = "/run/user/" + QByteArray::number(m_uid);
    if (access(runtime.constData(), F_OK) == 0)
        m_variables << "XDG_RUNTIME_DIR=" + runtime;
    if (access((runtime + "/bus").constData(), F_OK) == 0)
        m_variables << "DBUS_SESSION_BUS_ADDRESS=unix:path=" + runtime + "/bus";
    for (QByteArray &variable : m_variables)
        m_environment.append(variable.data());
    m_environment.append(nullptr);
}

bool Invoker::become() const
{
    if (!m_exists)
        return true;
    if (!m_known || setgroups(size_t(m_groups.size()), m_groups.constData()) == -1 ||
        setgid(m_gid) == -1 || setuid(m_uid) == -1)
        return false;
    environ = const_cast<char **>(m_environment.constData());
    return true;
}
