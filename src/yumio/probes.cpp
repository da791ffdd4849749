// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the library is and what it can do.

#include "python/pyref.h"

#include "yumio.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

QString YumIO::yumVersionStr()
{
    if (!m_script.version && m_session.yumIO) {
        const PyGILStateWrapper lock(true);
        PyObject *version = pyLookup("yum.__version__", true);
        if (!version)
            version = pyLookup("cli.__version__", true);
        m_script.version = version ? pyString(version) : QString();
    }
    return m_script.version.value_or(QString());
}

long YumIO::yumVersion()
{
    static constexpr std::array weights = {10000L, 100L, 1L};
    const QString text = yumVersionStr();
    const QStringList parts = text.split(u'.');
    long version = 0;
    for (qsizetype i = 0; i < std::min<qsizetype>(parts.size(), weights.size()); ++i) {
        errno = 0;
        const unsigned long part = std::strtoul(parts[i].toUtf8().constData(), nullptr, 10);
        const int cause = errno;
        static bool warned = false;
        if (cause && !warned) {
            warned = true;
            warning(tr("Internal error: yum version not understood: %1 errno=%2 (%3)")
                        .arg(text)
                        .arg(cause)
                        .arg(QString::fromLocal8Bit(std::strerror(cause))));
        }
        version += weights[i] * long(part);
    }
    return version;
}

bool YumIO::hasDistribGroups()
{
    return yumVersion() > 20499;
}

bool YumIO::hasTransTest()
{
    return yumVersion() < 30203;
}

bool YumIO::hasPickledCache()
{
    return yumVersion() < 20902;
}

bool YumIO::hasSqliteCache()
{
    return yumVersion() > 20301;
}

// Asks the script a yes-or-no question once; only its True means yes.
bool YumIO::probe(std::optional<bool> &answer, const char *method)
{
    if (!answer && m_session.yumIO) {
        const PyGILStateWrapper lock(true);
        pyExceptStart();
        const PyRef result(pyMethodCall(m_session.yumIO, method, "()"));
        pyExceptClear();
        answer = result.get() == Py_True;
    }
    return answer.value_or(false);
}

bool YumIO::usesSqlite()
{
    if (!m_script.sqlite && m_session.yumIO) {
        const PyGILStateWrapper lock(true);
        pyExceptStart();
        const PyRef result(pyCall("usesSqlite", "()"));
        pyExceptClear();
        m_script.sqlite = result.get() == Py_True;
    }
    return m_script.sqlite.value_or(false);
}

bool YumIO::usesPresto()
{
    return probe(m_script.presto, "usesPresto");
}

bool YumIO::hasMultiProgress()
{
    return probe(m_script.multiProgress, "hasMultiProgress");
}
