// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the table does not hold: asked of the package's object when somebody wants to see it.

#include "python/pyref.h"

#include "envra.h"
#include "formats.h"
#include "guiquestions.h"
#include "progress/progress.h"
#include "threads.h"
#include "yumio.h"

#include <QEventLoop>

#include <algorithm>

namespace {

constexpr Steps extraUnits = 15000;
constexpr Steps extraReadingUnits = 1000;
constexpr Steps extraRepositoryUnits = 14000;

bool hasAttribute(PyObject *po, const char *name)
{
    return po && PyObject_HasAttrString(po, name);
}

// The items of any sequence, null for none.
PyRef fastSequence(PyObject *object)
{
    PyRef result(object && object != Py_None ? PySequence_Fast(object, "not a sequence") : nullptr);
    PyErr_Clear();
    return result;
}

Py_ssize_t sizeOfFast(const PyRef &sequence)
{
    return sequence ? PySequence_Fast_GET_SIZE(sequence.get()) : 0;
}

PyObject *itemOfFast(const PyRef &sequence, Py_ssize_t index)
{
    return PySequence_Fast_GET_ITEM(sequence.get(), index);
}

// Whether the object has an attribute, without computing one that its class makes a property.
bool offers(PyObject *po, const char *name)
{
    return hasAttribute(reinterpret_cast<PyObject *>(Py_TYPE(po)), name) || hasAttribute(po, name);
}

bool isPackage(const Package::Entry &entry)
{
    return entry.kind == Package::Kind::Suite || entry.kind == Package::Kind::Package;
}

} // namespace

QString YumIO::getName(const Package::Entry &entry) const
{
    return entry.name;
}

QString YumIO::getVerRel(const Package::Entry &entry) const
{
    return entry.verRel;
}

QString YumIO::getRepo(const Package::Entry &entry) const
{
    return entry.repo;
}

QString YumIO::getArch(const Package::Entry &entry) const
{
    return entry.arch;
}

QString YumIO::getSize(const Package::Entry &entry) const
{
    return entry.sizeText;
}

QString YumIO::getSummary(const Package::Entry &entry) const
{
    return entry.summary;
}

QString YumIO::getBuildTime(const Package::Entry &entry) const
{
    return entry.buildTimeText;
}

QString YumIO::getState(Package::State state)
{
    switch (state) {
    case Package::State::Updatable:
        return tr("Available for update");
    case Package::State::Installable:
        return tr("Available for installation");
    case Package::State::Installed:
        return tr("Installed");
    }
    return QString();
}

QString YumIO::getKind(Package::Kind kind)
{
    switch (kind) {
    case Package::Kind::Suite:
        return tr("Suite of packages");
    case Package::Kind::Group:
        return tr("Group of packages");
    case Package::Kind::Package:
        return tr("Ordinary package");
    }
    return QString();
}

QString YumIO::getState(const Package::Entry &entry) const
{
    return getState(entry.state);
}

QString YumIO::getKind(const Package::Entry &entry) const
{
    return getKind(entry.kind);
}

// A simple field of a package. Groups have none.
QString YumIO::packageString(const Package::Entry &entry, const char *key)
{
    if (!isPackage(entry))
        return QString();
    const PyGILStateWrapper lock(true);
    return simpleString(entry.po, key);
}

QString YumIO::getDescription(const Package::Entry &entry)
{
    return packageString(entry, "description");
}

QString YumIO::getGroup(const Package::Entry &entry)
{
    return packageString(entry, "group");
}

QString YumIO::getVendor(const Package::Entry &entry)
{
    return packageString(entry, "vendor");
}

QString YumIO::getBuildHost(const Package::Entry &entry)
{
    return packageString(entry, "buildhost");
}

QString YumIO::getSourceRpm(const Package::Entry &entry)
{
    return packageString(entry, "sourcerpm");
}

QString YumIO::getLicense(const Package::Entry &entry)
{
    return packageString(entry, "license");
}

QString YumIO::getPackager(const Package::Entry &entry)
{
    return packageString(entry, "packager");
}

QString YumIO::getUrl(const Package::Entry &entry)
{
    return packageString(entry, "url");
}

quint64 YumIO::getInstalledSize(const Package::Entry &entry)
{
    return packageString(entry, "installedsize").toULongLong();
}

QString YumIO::getBinaryRpm(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return isPackage(entry) && hasAttribute(entry.po, "relativepath")
               ? simpleString(entry.po, "relativepath")
               : QString();
}

QString YumIO::getInstallTime(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return getRpmTime(entry.po, "INSTALLTIME");
}

QString YumIO::getRelocations(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return getRpmList(entry.po, "PREFIXES");
}

QString YumIO::getProvides(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return getPrco(entry.po, "PROVIDE", "provides");
}

QString YumIO::getRequires(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return getPrco(entry.po, "REQUIRE", "requires");
}

QString YumIO::getConflicts(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return getPrco(entry.po, "CONFLICT", "conflicts");
}

QString YumIO::getObsoletes(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    return getPrco(entry.po, "OBSOLETE", "obsoletes");
}

PyObject *YumIO::getRpmHdrValue(PyObject *po, const char *tag)
{
    const PyRef header(PyObject_GetAttrString(po, "hdr"));
    if (!header) {
        PyErr_Clear();
        error(tr("getRpmHdrValue called for package with no hdr (i.e. not installed)"));
        return nullptr;
    }
    const QByteArray name = QByteArray("RPMTAG_") + tag;
    PyObject *value = PyDict_GetItemString(m_script.rpmDict, name.constData());
    if (!value) {
        error(tr("Internal error: cannot find rpm.%1").arg(QLatin1String(name)));
        return nullptr;
    }
    PyObject *result = PyObject_GetItem(header.get(), value);
    if (!result && PyErr_Occurred())
        handleException();
    return result;
}

QString YumIO::getRpmTime(PyObject *po, const char *tag)
{
    const PyRef time(hasAttribute(po, "hdr") ? getRpmHdrValue(po, tag) : nullptr);
    if (!time || time.get() == Py_None)
        return QString();
    return QString::fromLocal8Bit(timeFormat(pyTime(time.get())));
}

QString YumIO::getRpmList(PyObject *po, const char *tag)
{
    if (!hasAttribute(po, "hdr"))
        return QString();
    const PyRef value(getRpmHdrValue(po, tag));
    const PyRef items = fastSequence(value.get());
    QStringList lines;
    for (Py_ssize_t i = 0; i < sizeOfFast(items); ++i)
        lines.append(pyString(itemOfFast(items, i)));
    return lines.join(u'\n');
}

QString YumIO::getPrco(PyObject *po, const char *tag, const char *key)
{
    QStringList lines;
    if (hasAttribute(po, "hdr"))
        lines = installedRelations(po, tag);
    else
        lines = availableRelations(po, key);
    return makeSorted(lines);
}

QStringList YumIO::installedRelations(PyObject *po, const QByteArray &tag)
{
    const auto values = [&](const char *suffix) {
        const PyRef value(getRpmHdrValue(po, (tag + suffix).constData()));
        return fastSequence(value.get());
    };
    const PyRef names = values("NAME");
    const PyRef flags = values("FLAGS");
    const PyRef versions = values("VERSION");
    QStringList lines;
    for (Py_ssize_t i = 0; i < sizeOfFast(names); ++i) {
        QString line = pyString(itemOfFast(names, i));
        PyObject *flag = i < sizeOfFast(flags) ? itemOfFast(flags, i) : Py_None;
        PyObject *version = i < sizeOfFast(versions) ? itemOfFast(versions, i) : Py_None;
        // rpm gives an empty text where there is no version.
        const QString versionText = version == Py_None ? QString() : pyString(version);
        if (flag != Py_None && !versionText.isEmpty()) {
            const long bits = PyLong_Check(flag) ? PyLong_AsLong(flag) : 0;
            line += u' ';
            if (bits & 2)
                line += u'<';
            if (bits & 4)
                line += u'>';
            if (bits & 8)
                line += u'=';
            line += u' ' + versionText;
        }
        lines.append(line);
    }
    return lines;
}

QStringList YumIO::availableRelations(PyObject *po, const char *key)
{
    PyRef list;
    if (hasAttribute(po, "returnPrco")) {
        list = PyRef(pyMethodCall(po, "returnPrco", "(s)", key));
    } else if (hasAttribute(po, "prco")) {
        const PyRef prco(PyObject_GetAttrString(po, "prco"));
        list = PyRef(PyMapping_GetItemString(prco.get(), key));
        PyErr_Clear();
    } else {
        error(tr("Internal error: cannot find package's prco.%1").arg(QLatin1String(key)));
    }
    QStringList lines;
    const PyRef items = fastSequence(list.get());
    for (Py_ssize_t i = 0; i < sizeOfFast(items); ++i)
        lines.append(relationText(itemOfFast(items, i)));
    return lines;
}

// A tuple (name, flags text, (epoch, version, release)), the last two perhaps None.
QString YumIO::relationText(PyObject *relation)
{
    static const QHash<QString, QString> operators = {
        {QStringLiteral("GT"), QStringLiteral(">")}, {QStringLiteral("GE"), QStringLiteral(">=")},
        {QStringLiteral("LT"), QStringLiteral("<")}, {QStringLiteral("LE"), QStringLiteral("<=")},
        {QStringLiteral("EQ"), QStringLiteral("=")},
    };
    PyObject *name, *flags, *version;
    if (!PyTuple_Check(relation) || !PyArg_ParseTuple(relation, "OOO", &name, &flags, &version)) {
        PyErr_Clear();
        return pyStringX(relation);
    }
    QString line = pyString(name);
    PyObject *epoch, *ver, *rel;
    if (flags == Py_None || version == Py_None)
        return line;
    if (!PyTuple_Check(version) || !PyArg_ParseTuple(version, "OOO", &epoch, &ver, &rel)) {
        PyErr_Clear();
        return line;
    }
    const QString flagsText = pyString(flags);
    line += u' ' + operators.value(flagsText, flagsText) + u' ';
    const QString epochText = epoch == Py_None ? QString() : pyStringX(epoch);
    if (!epochText.isEmpty() && epochText != QLatin1String("0"))
        line += epochText + u':';
    if (ver != Py_None)
        line += pyString(ver);
    if (rel != Py_None)
        line += u'-' + pyString(rel);
    return line;
}

QString YumIO::getFiles(const Package::Entry &entry)
{
    if (!isPackage(entry))
        return QString();
    PyGILStateWrapper lock(true);
    QStringList paths;
    if (hasAttribute(entry.po, "hdr")) {
        const PyRef namesValue(getRpmHdrValue(entry.po, "BASENAMES"));
        const PyRef dirsValue(getRpmHdrValue(entry.po, "DIRNAMES"));
        const PyRef indexesValue(getRpmHdrValue(entry.po, "DIRINDEXES"));
        const PyRef names = fastSequence(namesValue.get());
        const PyRef dirs = fastSequence(dirsValue.get());
        const PyRef indexes = fastSequence(indexesValue.get());
        for (Py_ssize_t i = 0; i < std::min(sizeOfFast(names), sizeOfFast(indexes)); ++i) {
            const long dir = PyLong_AsLong(itemOfFast(indexes, i));
            if (dir >= 0 && dir < sizeOfFast(dirs))
                paths.append(pyString(itemOfFast(dirs, dir)) + pyString(itemOfFast(names, i)));
        }
        PyErr_Clear();
        return makeSortedUniq(paths);
    }
    if (!hasAttribute(entry.po, "_loadFiles") && !hasAttribute(entry.po, "files"))
        return QString();
    lock.release();
    const bool loaded = collectFileLists();
    lock.ensure();
    if (!loaded)
        return QString();
    const PyRef files(pyMethodCall(entry.po, "returnFileEntries", "(s)", "file"));
    if (!files) {
        error(tr("Internal error: cannot find package's files"));
        return QString();
    }
    const PyRef items = fastSequence(files.get());
    for (Py_ssize_t i = 0; i < sizeOfFast(items); ++i)
        paths.append(pyString(itemOfFast(items, i)));
    return makeSortedUniq(paths);
}

QString YumIO::getChangeLog(const Package::Entry &entry)
{
    if (!isPackage(entry))
        return QString();
    PyGILStateWrapper lock(true);
    QStringList changes;
    const auto append = [&](PyObject *time, PyObject *author, PyObject *text) {
        const QString date = QString::fromLocal8Bit(dateFormat(pyTime(time)));
        changes.append(QStringLiteral("* ") + date + u' ' + pyString(author) + u'\n' +
                       pyString(text));
    };
    if (hasAttribute(entry.po, "hdr")) {
        const PyRef namesValue(getRpmHdrValue(entry.po, "CHANGELOGNAME"));
        const PyRef timesValue(getRpmHdrValue(entry.po, "CHANGELOGTIME"));
        const PyRef textsValue(getRpmHdrValue(entry.po, "CHANGELOGTEXT"));
        const PyRef names = fastSequence(namesValue.get());
        const PyRef times = fastSequence(timesValue.get());
        const PyRef texts = fastSequence(textsValue.get());
        const Py_ssize_t count =
            std::min({sizeOfFast(names), sizeOfFast(times), sizeOfFast(texts)});
        for (Py_ssize_t i = 0; i < count; ++i)
            append(itemOfFast(times, i), itemOfFast(names, i), itemOfFast(texts, i));
        return changes.join(QStringLiteral("\n\n"));
    }
    if (!offers(entry.po, "changelog")) {
        error(tr("Internal error: cannot find package's changelog"));
        return QString();
    }
    lock.release();
    const bool loaded = collectOtherData();
    lock.ensure();
    if (!loaded)
        return QString();
    const PyRef log(yumVersion() > 20300 ? pyMethodCall(entry.po, "returnChangelog", "()")
                                         : PyObject_GetAttrString(entry.po, "changelog"));
    const PyRef items = fastSequence(log.get());
    for (Py_ssize_t i = 0; i < sizeOfFast(items); ++i) {
        PyObject *time, *author, *text;
        if (PyArg_ParseTuple(itemOfFast(items, i), "OOO", &time, &author, &text))
            append(time, author, text);
        else
            handleException();
    }
    return changes.join(QStringLiteral("\n\n"));
}

QString YumIO::getYumVar(const QString &name)
{
    const PyGILStateWrapper lock(true);
    const PyRef conf(m_session.yumIO ? PyObject_GetAttrString(m_session.yumIO, "conf") : nullptr);
    const PyRef vars(conf ? PyObject_GetAttrString(conf.get(), "yumvar") : nullptr);
    const PyRef value(vars ? PyMapping_GetItemString(vars.get(), name.toUtf8().constData())
                           : nullptr);
    PyErr_Clear();
    return value ? pyStringX(value.get()) : QString();
}

bool YumIO::collectFileLists(Failures failures)
{
    if (m_session.fileLists)
        return true;
    QEventLoop loop;
    CollectFileListsThread thread(this, loop);
    execWorkThread(loop, thread, failures);
    m_session.fileLists = thread.result();
    if (m_session.fileLists)
        Q_EMIT collectedExtraData();
    return m_session.fileLists;
}

bool YumIO::collectOtherData(Failures failures)
{
    if (m_session.otherData)
        return true;
    QEventLoop loop;
    CollectOtherDataThread thread(this, loop);
    execWorkThread(loop, thread, failures);
    m_session.otherData = thread.result();
    if (m_session.otherData)
        Q_EMIT collectedExtraData();
    return m_session.otherData;
}

bool YumIO::collectFileListsReal()
{
    return collectExtraReal(tr("Collecting File Lists"), tr("Loading file lists: Total Progress"),
                            "collectFileLists", tr("collect filelists"));
}

bool YumIO::collectOtherDataReal()
{
    return collectExtraReal(tr("Collecting Miscellaneous data"),
                            tr("Loading miscellaneous data: Total Progress"), "collectOtherData",
                            tr("collect miscellaneous data"));
}

bool YumIO::collectExtraReal(const QString &heading, const QString &total, const char *method,
                             const QString &what)
{
    m_blocker.block();
    const Progress::User progressUser(m_progress, m_surface.totalBar, m_surface.itemBar);
    const YumIODialogsUser dialogsUser(m_dialogs, m_surface.parent);
    log(Log::Kind::Action, 0, heading);
    const PyGILStateWrapper lock(true);
    m_metadata = {};
    m_progress->startTotal(total, extraUnits);
    m_progress->startItem(tr("Reading repositories"), extraReadingUnits, 1);
    m_progress->setupItemActs(extraRepositoryUnits, 6 * Steps(m_session.enabledRepos.size()));
    const PyRef result(bracketedOrError(method, what));
    if (result)
        m_progress->endItemActs();
    m_progress->reset();
    return bool(result);
}

bool YumIO::parseEnvra(const QString &text, QString &name, QString &epoch, QString &version,
                       QString &release, QString &arch)
{
    Envra envra;
    if (!envra.parse(text))
        return false;
    name = envra.name;
    epoch = envra.epoch;
    version = envra.version;
    release = envra.release;
    arch = envra.arch;
    return true;
}

bool YumIO::parseEnvra(const QString &text, QString &name, QString &arch)
{
    QString epoch, version, release;
    return parseEnvra(text, name, epoch, version, release, arch);
}
