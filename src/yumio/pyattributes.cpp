// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pyattributes.h"

QString attributeText(PyObject *object, const char *name)
{
    const PyRef value(PyObject_GetAttrString(object, name));
    if (!value)
        PyErr_Clear();
    const PyRef text(value && value.get() != Py_None ? PyObject_Str(value.get()) : nullptr);
    const char *utf8 = text ? PyUnicode_AsUTF8(text.get()) : nullptr;
    if (!utf8)
        PyErr_Clear();
    return QString::fromUtf8(utf8);
}

PyRef attribute(PyObject *object, const char *name)
{
    PyRef value(PyObject_GetAttrString(object, name));
    if (!value)
        PyErr_Clear();
    return value;
}
