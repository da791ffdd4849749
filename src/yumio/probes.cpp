// What the library is and what it can do.

#include "python/pyref.h"

#include "yumio.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

QString YumIO::yumVersionStr()
{
    if (!m_versionKnown && m_yumIO) {
        const PyGILStateWrapper lock(true);
        PyObject *version = pyLookup("yum.__version__", true);
        if (!version)
            version = pyLookup("cli.__version__", true);
        m_versionStr = version ? pyString(version) : QString();
        m_versionKnown = true;
    }
    return m_versionStr;
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
bool YumIO::probe(bool &known, bool &answer, const char *method)
{
    if (known || !m_yumIO)
        return answer;
    const PyGILStateWrapper lock(true);
    pyExceptStart();
    const PyRef result(pyMethodCall(m_yumIO, method, "()"));
    pyExceptClear();
    answer = result.get() == Py_True;
    known = true;
    return answer;
}

bool YumIO::usesSqlite()
{
    if (!m_sqliteKnown && m_yumIO) {
        const PyGILStateWrapper lock(true);
        pyExceptStart();
        const PyRef result(pyCall("usesSqlite", "()"));
        pyExceptClear();
        m_sqlite = result.get() == Py_True;
        m_sqliteKnown = true;
    }
    return m_sqlite;
}

bool YumIO::usesPresto()
{
    return probe(m_prestoKnown, m_presto, "usesPresto");
}

bool YumIO::hasMultiProgress()
{
    return probe(m_multiKnown, m_multi, "hasMultiProgress");
}
