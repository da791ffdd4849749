// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "python/pyref.h"

#include <array>

// The lists of a resolved transaction, borrowed from the objects that are held here.
struct TransactionLists
{
    PyRef tsInfo;
    PyRef made;
    std::array<PyRef, 11> kept;
    PyObject *updated = nullptr;
    PyObject *installed = nullptr;
    PyObject *removed = nullptr;
    PyObject *obsoleted = nullptr;
    PyObject *depupdated = nullptr;
    PyObject *depinstalled = nullptr;
    PyObject *depremoved = nullptr;
    // Null where the script does not list these apart.
    PyObject *downgraded = nullptr;
    PyObject *reinstalled = nullptr;
    PyObject *depdowngraded = nullptr;
    PyObject *depreinstalled = nullptr;
};
