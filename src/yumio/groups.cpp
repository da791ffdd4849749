// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Marks of groups, turned into marks of the packages that they hold.

#include "python/pyref.h"

#include "guiquestions.h"
#include "pyattributes.h"
#include "yumio.h"

#include <algorithm>

namespace {

constexpr unsigned int markLevel = 2;

void appendUnique(QStringList &names, const QString &name, QSet<QString> &seen)
{
    if (seen.contains(name))
        return;
    seen.insert(name);
    names.append(name);
}

} // namespace

QString YumIO::actionName(Package::Action action)
{
    switch (action) {
    case Package::Action::Update:
        return tr("Update");
    case Package::Action::Install:
        return tr("Install");
    case Package::Action::Remove:
        return tr("Remove");
    case Package::Action::None:
        break;
    }
    return tr("ERROR");
}

bool YumIO::applyGroups()
{
    for (const Package::Entry *entry : std::as_const(m_store.entries)) {
        if (entry->kind != Package::Kind::Group)
            continue;
        bool applied = true;
        if (entry->applyAction == Package::Action::Update)
            applied = applyGrpUpdate(entry);
        else if (entry->applyAction == Package::Action::Install)
            applied = applyGrpInstall(entry);
        else if (entry->applyAction == Package::Action::Remove)
            applied = applyGrpRemove(entry);
        if (!applied)
            return false;
    }
    return true;
}

void YumIO::markByGroup(const Package::Entry *group, Package::Entry *package,
                        Package::Action action)
{
    package->applyAction = action;
    package->markedBy = group;
    applyGrpLog(group, package);
}

bool YumIO::applyGrpUpdate(const Package::Entry *group)
{
    QSet<QString> required;
    QStringList members, names;
    return requiredPkgs(group, required) &&
           groupMembers(group, {Mandatory, Default, Optional, Conditional}, members) &&
           groupTree(members, names) && markNames(group, names, &required);
}

bool YumIO::applyGrpInstall(const Package::Entry *group)
{
    QStringList members, names;
    return groupMembers(group, {Mandatory, Default, ConditionalThatHolds}, members) &&
           groupTree(members, names) && markNames(group, names, nullptr);
}

// Marks packages for update or installation. Of what is not installed only the required ones, when
// a set of these is given. False when the user cancelled at a conflict.
bool YumIO::markNames(const Package::Entry *group, const QStringList &names,
                      const QSet<QString> *required)
{
    for (const QString &name : names) {
        Package::Entry *package = findPackage(name);
        if (!package)
            continue;
        switch (package->applyAction) {
        case Package::Action::Update:
        case Package::Action::Install:
            applyGrpLogWas(group, package);
            break;
        case Package::Action::None:
            if (package->state == Package::State::Updatable)
                markByGroup(group, package, Package::Action::Update);
            else if (package->state == Package::State::Installable) {
                if (!required || required->contains(name))
                    markByGroup(group, package, Package::Action::Install);
                else
                    applyGrpLogNot(group, package, Package::Action::Install,
                                   tr("the package is optional"));
            }
            break;
        default:
            if (applyGrpConflict(group, package) != 1)
                return false;
        }
    }
    return true;
}

bool YumIO::applyGrpRemove(const Package::Entry *group)
{
    QSet<QString> all;
    if (!allPkgs(group, all))
        return false;
    QStringList names = all.values();
    std::sort(names.begin(), names.end());
    for (const QString &name : std::as_const(names)) {
        Package::Entry *package = findPackage(name);
        if (!package)
            continue;
        switch (package->applyAction) {
        case Package::Action::Remove:
            applyGrpLog(group, package);
            break;
        case Package::Action::None:
            if (package->state != Package::State::Installable)
                markByGroup(group, package, Package::Action::Remove);
            break;
        default:
            if (applyGrpConflict(group, package) != 1)
                return false;
        }
    }
    return true;
}

// Nothing is asked where the group implies the mark that the package has. 0 when the user cancelled.
int YumIO::applyGrpConflict(const Package::Entry *group, Package::Entry *package)
{
    Package::Action implied;
    switch (package->state) {
    case Package::State::Updatable:
        implied = Package::Action::Update;
        break;
    case Package::State::Installable:
        implied = Package::Action::Install;
        break;
    case Package::State::Installed:
        implied = Package::Action::Remove;
        break;
    default:
        error(tr("Internal error: applyGrpConflict unexpected package state\n"));
        return 0;
    }
    if (group->applyAction == Package::Action::Remove && implied == Package::Action::Update)
        implied = Package::Action::Remove;
    if (package->applyAction == implied) {
        applyGrpLogWas(group, package);
        return 1;
    }
    const QString groupAction = actionName(group->applyAction);
    const QString impliedName = actionName(implied);
    const QString presentName = actionName(package->applyAction);
    QString text;
    if (package->markedBy == package) {
        text = tr("Package %1 is included in group %2 which was marked for %3,\n"
                  "so the package would be marked for %4,\n"
                  "but it was marked individually for %5.\n"
                  "How do you wish to proceed?")
                   .arg(package->name, group->name, groupAction, impliedName, presentName);
    } else if (!package->markedBy) {
        text = tr("Package %1 is included in group %2 which was marked for %3,\n"
                  "so the package would be marked for %4,\n"
                  "but you resolved an earlier conflict by marking it for %5.\n"
                  "How do you wish to proceed?")
                   .arg(package->name, group->name, groupAction, impliedName, presentName);
    } else {
        text = tr("Package %1 is included in group %2 which was marked for %3,\n"
                  "so the package would be marked for %4,\n"
                  "but it also was part of group %5 and so was marked for %6.\n"
                  "How do you wish to proceed?")
                   .arg(package->name, group->name, groupAction, impliedName,
                        package->markedBy->name, presentName);
    }
    const int answer = m_dialogs ? m_dialogs->critical(tr("Apply"), text, impliedName, presentName,
                                                       tr("Cancel"), 2, 2)
                                 : 2;
    if (answer != 0 && answer != 1)
        return 0;
    if (answer == 0)
        package->applyAction = implied;
    package->markedBy = nullptr;
    log(Log::Kind::Normal, 4,
        tr("Manually resolving conflict: marking package %1 for %3")
            .arg(package->name, actionName(package->applyAction)));
    return 1;
}

void YumIO::applyGrpLog(const Package::Entry *group, const Package::Entry *package)
{
    log(Log::Kind::Normal, markLevel,
        tr("For group %1, marking package %2 for %3")
            .arg(group->name, package->name, actionName(package->applyAction)));
}

void YumIO::applyGrpLogWas(const Package::Entry *group, const Package::Entry *package)
{
    log(Log::Kind::Normal, markLevel,
        tr("For group %1, package %2 already was marked for %3")
            .arg(group->name, package->name, actionName(package->applyAction)));
}

void YumIO::applyGrpLogNot(const Package::Entry *group, const Package::Entry *package,
                           Package::Action action, const QString &reason)
{
    log(Log::Kind::Normal, markLevel,
        tr("For group %1, not marking package %2 for %3, becuase %4")
            .arg(group->name, package->name, actionName(action), reason));
}

// True when the package that a conditional member depends on is there or will be, be it as one of
// the `others` that the group brings.
bool YumIO::conditionHolds(PyObject *conditional, const QString &member, const QStringList &others)
{
    const PyRef condition(PyMapping_GetItemString(conditional, member.toUtf8().constData()));
    PyErr_Clear();
    if (!condition || !PyUnicode_Check(condition.get()))
        return false;
    const QString name = pyString(condition.get());
    const Package::Entry *package = findPackage(name);
    if (!package || package->applyAction == Package::Action::Remove)
        return false;
    return package->state != Package::State::Installable ||
           package->applyAction == Package::Action::Install || others.contains(name);
}

// Appends the names of the group's members of these kinds, each once.
bool YumIO::groupMembers(const Package::Entry *group, std::initializer_list<MemberKind> kinds,
                         QStringList &names)
{
    static const char *const attributes[] = {"mandatory_packages", "default_packages",
                                             "optional_packages", "conditional_packages",
                                             "conditional_packages"};
    QSet<QString> seen(names.cbegin(), names.cend());
    for (const MemberKind kind : kinds) {
        const PyRef members = attribute(group->po, attributes[kind]);
        if (!members) {
            return fail(tr("Internal error: group %1.%2 not evaluable")
                            .arg(group->name, QLatin1String(attributes[kind])));
        }
        const PyRef keys(pyMethodCall(members.get(), "keys", "()"));
        QStringList found;
        if (!keys ||
            !appendNames(keys.get(), tr("read the members of group %1").arg(group->name), found)) {
            PyErr_Clear();
            return false;
        }
        for (const QString &name : std::as_const(found)) {
            if (kind != ConditionalThatHolds || conditionHolds(members.get(), name, names))
                appendUnique(names, name, seen);
        }
    }
    return true;
}

// Appends the names that the script's method gives for one package name. A failure is reported.
bool YumIO::scriptNames(const char *method, const QString &name, QStringList &names)
{
    const QString what = tr("find the packages that %1 stands for in a group").arg(name);
    pyExceptStart();
    commExceptSetup();
    const PyRef result(pyMethodCall(m_session.yumIO, method, "(s)", name.toUtf8().constData()));
    commExceptRaised(result.get(), what);
    pyExceptClear();
    return result && appendNames(result.get(), what, names);
}

// Appends the texts of an iterable. A failure is reported as "Unable to `what`".
bool YumIO::appendNames(PyObject *iterable, const QString &what, QStringList &names)
{
    const PyRef iterator(PyObject_GetIter(iterable));
    while (const PyRef item = PyRef(iterator ? PyIter_Next(iterator.get()) : nullptr))
        names.append(pyString(item.get()));
    if (!PyErr_Occurred())
        return true;
    reportPending(what);
    return false;
}

bool YumIO::requiredPkgs(const Package::Entry *group, QSet<QString> &names)
{
    QStringList members;
    if (!groupMembers(group, {Mandatory, Default}, members))
        return false;
    QStringList required = members;
    for (const QString &name : std::as_const(members)) {
        if (!scriptNames("requiredPkgs", name, required))
            return false;
    }
    names.unite(QSet<QString>(required.cbegin(), required.cend()));
    return true;
}

bool YumIO::allPkgs(const Package::Entry *group, QSet<QString> &names)
{
    QStringList members;
    if (!requiredPkgs(group, names) || !groupMembers(group, {Optional, Conditional}, members))
        return false;
    names.unite(QSet<QString>(members.cbegin(), members.cend()));
    return true;
}

bool YumIO::pkgTree(const QString &name, QStringList &names)
{
    return scriptNames("pkgTree", name, names);
}

// What the members' trees hold, each name once. A member that others replace is not in its own tree.
bool YumIO::groupTree(const QStringList &members, QStringList &names)
{
    QSet<QString> seen;
    for (const QString &member : members) {
        QStringList tree;
        if (!pkgTree(member, tree))
            return false;
        for (const QString &name : std::as_const(tree))
            appendUnique(names, name, seen);
    }
    return true;
}
