// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "package.h"

#include <cstdio>

bool Package::allows(State state, Action action)
{
    switch (action) {
    case Action::Update:
        return state == State::Updatable;
    case Action::Install:
        return state == State::Installable;
    case Action::Remove:
        return state != State::Installable;
    case Action::None:
        return true;
    }
    return false;
}

Package::Entry::~Entry()
{
    static bool warned = false;
    if (po && !warned) {
        warned = true;
        std::fprintf(stderr,
                     "Internal error: attempt to delete Package::Entry %p with extant python obj "
                     "%p\n",
                     static_cast<void *>(this), static_cast<void *>(po));
    }
    // Not recursive: a chain may be long.
    while (next) {
        Entry *follower = next;
        next = follower->next;
        follower->next = nullptr;
        delete follower;
    }
}

Package::EntryList::~EntryList()
{
    qDeleteAll(*this);
}
