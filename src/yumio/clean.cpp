// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/pyref.h"

#include "yumio.h"

// True when the script's method returns a tuple that begins with 0.
bool YumIO::cleanCode(const char *method)
{
    const PyRef result(pyMethodCall(m_session.yumIO, method, "()"));
    if (!result || !PyTuple_Check(result.get()) || PyTuple_Size(result.get()) < 1)
        return false;
    const long code = PyLong_AsLong(PyTuple_GET_ITEM(result.get(), 0));
    if (PyErr_Occurred()) {
        PyErr_Clear();
        return false;
    }
    return code == 0;
}

bool YumIO::cleanOne(const QString &heading, const char *method)
{
    log(Log::Kind::Action, 0, heading);
    PyGILStateWrapper lock(true);
    return cleanCode(method);
}

bool YumIO::cleanHeaders()
{
    return cleanOne(tr("Cleaning Headers"), "cleanHeaders");
}

bool YumIO::cleanPackages()
{
    return cleanOne(tr("Cleaning Packages"), "cleanPackages");
}

bool YumIO::cleanXmlMetadata()
{
    return cleanOne(tr("Cleaning Xml Metadata"), "cleanMetadata");
}

bool YumIO::cleanPickledCache()
{
    return cleanOne(tr("Cleaning Pickled Cache"), "cleanPickles");
}

bool YumIO::cleanSqliteCache()
{
    return cleanOne(tr("Cleaning Sqlite Cache"), "cleanSqlite");
}

bool YumIO::cleanAll()
{
    log(Log::Kind::Action, 0, tr("Cleaning All"));
    PyGILStateWrapper lock(true);
    // Each is asked for, whatever the ones before it said.
    bool cleaned = cleanCode("cleanHeaders");
    cleaned &= cleanCode("cleanPackages");
    cleaned &= cleanCode("cleanMetadata");
    if (hasPickledCache())
        cleaned &= cleanCode("cleanPickles");
    if (hasSqliteCache())
        cleaned &= cleanCode("cleanSqlite");
    return cleaned;
}
