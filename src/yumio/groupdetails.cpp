// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The package and group lists of a group.

#include "python/pyref.h"

#include "yumio.h"

QString YumIO::getRequiredGroups(const Package::Entry &entry)
{
    return getGroupGrps(entry, "sub_groups");
}

QString YumIO::getDefaultMetaPkgs(const Package::Entry &entry)
{
    return getGroupGrps(entry, "default_metapkgs");
}

QString YumIO::getOptionalMetaPkgs(const Package::Entry &entry)
{
    return getGroupGrps(entry, "optional_metapkgs");
}

QString YumIO::getMandatoryPkgs(const Package::Entry &entry)
{
    return getGroupPkgs(entry, "mandatory_pkgs", "mandatory_packages");
}

QString YumIO::getDefaultPkgs(const Package::Entry &entry)
{
    return getGroupPkgs(entry, "default_pkgs", "default_packages");
}

QString YumIO::getOptionalPkgs(const Package::Entry &entry)
{
    return getGroupPkgs(entry, "optional_pkgs", "optional_packages");
}

QString YumIO::getConditionalPkgs(const Package::Entry &entry)
{
    return hasDistribGroups() ? getGroupPkgs(entry, "", "conditional_packages") : QString();
}

QHash<QString, QString> YumIO::getConditions(const Package::Entry &entry)
{
    QHash<QString, QString> conditions;
    if (!hasDistribGroups())
        return conditions;
    const PyGILStateWrapper lock(true);
    const PyRef members(getGroupItem_25(entry, "conditional_packages"));
    PyObject *member, *needed;
    for (Py_ssize_t at = 0; members && PyDict_Check(members.get()) &&
                            PyDict_Next(members.get(), &at, &member, &needed);)
        conditions.insert(pyString(member), pyString(needed));
    return conditions;
}

QString YumIO::getGroupDescription(const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    const PyRef text(entry.kind == Package::Kind::Group
                         ? PyObject_GetAttrString(entry.po, "description")
                         : nullptr);
    PyErr_Clear();
    return text ? pyString(text.get()) : QString();
}

// What an optional method of the script says about a package.
QString YumIO::linesOf(const char *method, const Package::Entry &entry)
{
    const PyGILStateWrapper lock(true);
    if (entry.kind == Package::Kind::Group || !m_session.yumIO ||
        !PyObject_HasAttrString(m_session.yumIO, method))
        return QString();
    return textsOf(PyRef(pyMethodCall(m_session.yumIO, method, "(O)", entry.po)).get()).join(u'\n');
}

QString YumIO::getRequiredBy(const Package::Entry &entry)
{
    return linesOf("requiredBy", entry);
}

QString YumIO::getReplaced(const Package::Entry &entry)
{
    return linesOf("replaced", entry);
}

const Package::Entry *YumIO::packageNamed(const QString &name)
{
    const PyGILStateWrapper lock(true);
    return findPackage(name);
}

QString YumIO::getGroupGrps(const Package::Entry &entry, const char *attribute)
{
    if (hasDistribGroups())
        return QString();
    const PyGILStateWrapper lock(true);
    QStringList names = textsOf(PyRef(getGroupItem_22(entry, attribute)).get());
    return makeSorted(names);
}

QString YumIO::getGroupPkgs(const Package::Entry &entry, const char *oldAttribute,
                            const char *newAttribute)
{
    const PyGILStateWrapper lock(true);
    QStringList names = groupNames(entry, oldAttribute, newAttribute);
    return makeSorted(names);
}

// The package names of one of a group's lists, in no order.
QStringList YumIO::groupNames(const Package::Entry &entry, const char *oldAttribute,
                              const char *newAttribute)
{
    if (!hasDistribGroups())
        return textsOf(PyRef(getGroupItem_22(entry, oldAttribute)).get());
    const PyRef item(getGroupItem_25(entry, newAttribute));
    if (!item || item.get() == Py_None)
        return QStringList();
    return textsOf(PyRef(pyMethodCall(item.get(), "keys", "()")).get());
}

// The items of an iterable as texts; none of null or None.
QStringList YumIO::textsOf(PyObject *iterable)
{
    QStringList texts;
    const PyRef iterator(iterable && iterable != Py_None ? PyObject_GetIter(iterable) : nullptr);
    PyErr_Clear();
    while (iterator) {
        const PyRef item(PyIter_Next(iterator.get()));
        if (!item)
            break;
        texts.append(pyString(item.get()));
    }
    PyErr_Clear();
    return texts;
}

PyObject *YumIO::getGroupItem_22(const Package::Entry &entry, const char *attribute)
{
    if (hasDistribGroups()) {
        error(tr("getGroupItem_22 called for incorrect version of yum"));
        return nullptr;
    }
    const PyRef map(PyObject_GetAttrString(entry.po, attribute));
    if (!map) {
        PyErr_Clear();
        error(tr("Internal error: groupInfo.%1 not evaluable").arg(QLatin1String(attribute)));
        return nullptr;
    }
    PyObject *item = PyMapping_GetItemString(map.get(), entry.name.toUtf8().constData());
    if (!item) {
        PyErr_Clear();
        error(tr("Internal error: groupInfo.%1[%2] not evaluable")
                  .arg(QLatin1String(attribute), entry.name));
    }
    return item;
}

PyObject *YumIO::getGroupItem_25(const Package::Entry &entry, const char *attribute)
{
    if (!hasDistribGroups()) {
        error(tr("getGroupItem_25 called for incorrect version of yum"));
        return nullptr;
    }
    PyObject *item = PyObject_GetAttrString(entry.po, attribute);
    if (!item) {
        PyErr_Clear();
        error(tr("Internal error: group %1.%2 not evaluable")
                  .arg(entry.name, QLatin1String(attribute)));
    }
    return item;
}
