// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHashFunctions>
#include <QList>
#include <QMetaType>
#include <QString>

struct _object;
typedef struct _object PyObject;

// What the package table shows and the transaction acts on.
namespace Package {

enum class State { Updatable = 0, Installable = 1, Installed = 2 };
enum class Action { Update = 0, Install = 1, Remove = 2, None = 3 };
enum class Kind { Suite = 0, Group = 1, Package = 2 };

// Whether a row in that state can be marked so.
bool allows(State state, Action action);

// One package, group or suite. Entries are created and destroyed on a worker thread that holds the
// interpreter lock; the GUI thread reads them and sets only `action`.
class Entry
{
public:
    Entry() = default;
    Entry(const Entry &) = delete;
    Entry &operator=(const Entry &) = delete;
    // Deletes the chain behind the entry. `po` must have been released and set to null before.
    ~Entry();

    Action action = Action::None;
    State state = State::Installable;
    Kind kind = Kind::Package;
    QString name;
    QString verRel; // epoch:version-release, the epoch only when it is not zero
    QString repo;
    QString arch;
    QString biArch;  // the family of `arch`; packages of one family share a row
    qint64 size = 0; // bytes
    QString sizeText;
    QString summary;
    qint64 buildTime = 0; // seconds since the epoch
    QString buildTimeText;
    PyObject *po = nullptr; // owned reference to the script's package or group object
    bool duplicate = false; // another entry of this name is the better one
    Entry *next = nullptr;  // owned; the next installed version with the same key

    // Valid during an apply only.
    Action applyAction = Action::None; // copy of `action`, changed by group marks and resolution
    // Itself, the group that marked it, or null after a conflict answer.
    const Entry *markedBy = nullptr;
    bool started = false; // the rpm transaction has begun this element
};

// Owns its entries.
class EntryList : public QList<Entry *>
{
public:
    EntryList() = default;
    EntryList(EntryList &&) noexcept = default;
    EntryList &operator=(EntryList &&other) noexcept
    {
        swap(other);
        return *this;
    }
    ~EntryList();
};

} // namespace Package

Q_DECLARE_METATYPE(Package::Entry *)
