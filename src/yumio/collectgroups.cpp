// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// The groups among the rows, and whether what they hold is up to date.

#include "python/pyref.h"

#include "progress/progress.h"
#include "yumio.h"

namespace {

constexpr Steps groupUnits = 1000;

} // namespace

bool YumIO::collectAllGroups()
{
    m_progress->startItem(tr("Collecting groups"), groupUnits, 1);
    const QString what = tr("collect groups");
    pyExceptStart();
    commExceptSetup();
    const PyRef ready(pyMethodCall(m_session.yumIO, "setupTsGroup", "()"));
    const bool none =
        !ready && PyErr_Occurred() && exceptionText() == QLatin1String("No Groups Available");
    const bool reported = !none && commExceptRaised(ready.get(), what);
    pyExceptClear();
    if (none)
        return true;
    if (reported)
        return false;
    if (!ready)
        return fail(tr("Internal error: execution of yumIO.setupTsGroup failed"));

    const PyRef info(pyMethodCall(m_session.yumIO, "collectGroupInfo", "()"));
    if (!info)
        return fail(tr("Internal error: execution of yumIO.collectGroupInfo failed"));
    if (!collectGroups(m_store.byKey, info.get()))
        return false;
    const PyRef done(pyMethodCall(m_session.yumIO, "collectDone", "()"));
    return true;
}

bool YumIO::collectGroups(EntryHash &hash, PyObject *groupInfo)
{
    const PyRef groups(PyObject_GetAttrString(groupInfo, "visible_groups"));
    const PyRef iterator(groups ? PyObject_GetIter(groups.get()) : nullptr);
    if (!iterator) {
        PyErr_Clear();
        return fail(tr("Internal error: groupInfo.visible_groups not evaluable"));
    }
    const bool distribution = hasDistribGroups();
    while (const PyRef item{PyIter_Next(iterator.get())}) {
        QString name;
        if (distribution) {
            const PyRef visible(PyObject_GetAttrString(item.get(), "user_visible"));
            PyErr_Clear();
            if (!visible || PyObject_IsTrue(visible.get()) != 1)
                continue;
            const PyRef nameObject(PyObject_GetAttrString(item.get(), "name"));
            if (!nameObject) {
                PyErr_Clear();
                return fail(tr("Internal error: group without name"));
            }
            name = pyString(nameObject.get());
        } else {
            name = pyString(item.get());
        }
        Package::Entry *&slot = hash[EntryKey(true, name, QString())];
        if (slot)
            continue;
        if (!collectGroup(slot, distribution ? item.get() : groupInfo, name)) {
            hash.remove(EntryKey(true, name, QString()));
            return false;
        }
    }
    if (PyErr_Occurred())
        handleException();
    return true;
}

bool YumIO::collectGroup(Package::Entry *&slot, PyObject *group, const QString &name)
{
    bool installed = false;
    if (hasDistribGroups()) {
        const PyRef flag(PyObject_GetAttrString(group, "installed"));
        if (!flag) {
            PyErr_Clear();
            return fail(tr("Internal error: cannot find group's installed flag"));
        }
        installed = PyObject_IsTrue(flag.get()) == 1;
    } else {
        const PyRef flags(PyObject_GetAttrString(group, "group_installed"));
        const PyRef flag(flags ? PyMapping_GetItemString(flags.get(), name.toUtf8().constData())
                               : nullptr);
        if (!flag) {
            PyErr_Clear();
            return fail(tr("Internal error: cannot find groupInfo.group_installed['%s']")
                            .replace(QLatin1String("%s"), name));
        }
        installed = PyObject_IsTrue(flag.get()) == 1;
    }

    auto *entry = new Package::Entry;
    entry->kind = Package::Kind::Group;
    entry->state = installed ? Package::State::Installed : Package::State::Installable;
    entry->name = name;
    entry->po = PyRef::share(group).release();
    slot = entry;
    if (installed && !upToDateGroup(entry))
        entry->state = Package::State::Updatable;
    return true;
}

bool YumIO::upToDateGroup(const Package::Entry *group)
{
    return upToDateGroupGrps(group, "sub_groups") &&
           upToDateGroupPkgs(group, "mandatory_pkgs", "mandatory_packages");
}

bool YumIO::upToDateGroupGrps(const Package::Entry *group, const char *attribute)
{
    if (hasDistribGroups())
        return true;
    const PyRef subGroups(getGroupItem_22(*group, attribute));
    const PyRef iterator(subGroups && subGroups.get() != Py_None ? PyObject_GetIter(subGroups.get())
                                                                 : nullptr);
    PyErr_Clear();
    while (iterator) {
        const PyRef name(PyIter_Next(iterator.get()));
        if (!name)
            break;
        const Package::Entry *sub =
            m_store.byKey.value(EntryKey(true, pyString(name.get()), QString()));
        if (sub && !upToDateGroup(sub))
            return false;
    }
    PyErr_Clear();
    return true;
}

bool YumIO::upToDateGroupPkgs(const Package::Entry *group, const char *oldAttribute,
                              const char *newAttribute)
{
    const QStringList names = groupNames(*group, oldAttribute, newAttribute);
    for (const QString &name : names) {
        const Package::Entry *package = findPackage(name);
        if (package && package->state == Package::State::Updatable)
            return false;
    }
    return true;
}
