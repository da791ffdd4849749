// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "python/pyref.h"

#include <QString>

// Attributes of the script's objects. One that is missing raises nothing.

// An attribute as text; empty for None and for what has no text.
QString attributeText(PyObject *object, const char *name);
// An attribute, or null.
PyRef attribute(PyObject *object, const char *name);
