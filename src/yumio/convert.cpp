// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// From interpreter values to texts, numbers and times.

#include "python/pyref.h"

#include "yumio.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

QString YumIO::pyString(PyObject *obj)
{
    if (!obj) {
        warning(tr("Internal error: YumIO::pyString called with NULL"));
        return QString();
    }
    if (PyUnicode_Check(obj)) {
        Py_ssize_t size;
        if (const char *text = PyUnicode_AsUTF8AndSize(obj, &size))
            return QString::fromUtf8(text, size);
        // Lone surrogates, which UTF-8 cannot carry.
        PyErr_Clear();
        const PyRef bytes(PyUnicode_AsEncodedString(obj, "utf-8", "replace"));
        PyErr_Clear();
        return bytes ? QString::fromUtf8(PyBytes_AsString(bytes.get())) : QString();
    }
    if (PyBytes_Check(obj))
        return QString::fromUtf8(PyBytes_AsString(obj), PyBytes_Size(obj));
    if (obj != Py_None)
        warning(tr("Internal error: YumIO::pyString did not understand type"));
    return QString();
}

QString YumIO::pyStringDec(PyObject *obj)
{
    const PyRef owned(obj);
    return pyString(obj);
}

QString YumIO::pyStringX(PyObject *obj)
{
    if (!obj || obj == Py_None || PyUnicode_Check(obj) || PyBytes_Check(obj))
        return pyString(obj);
    if (PyList_Check(obj) || PyTuple_Check(obj)) {
        const Py_ssize_t size = PySequence_Size(obj);
        if (size == 0)
            return QString();
        QStringList items;
        for (Py_ssize_t i = 0; i < size; ++i) {
            const PyRef item(PySequence_GetItem(obj, i));
            items.append(pyStringX(item.get()));
        }
        const QString separator = PyList_Check(obj) ? QStringLiteral(",\n ") : QStringLiteral(",");
        return QLatin1Char('(') + items.join(separator) + QLatin1Char(')');
    }
    if (PyLong_Check(obj)) {
        const PyRef text(PyObject_Str(obj));
        return pyString(text.get());
    }
    warning(tr("Internal error: YumIO::pyStringX did not understand type"));
    return QString();
}

QString YumIO::pyStringXDec(PyObject *obj)
{
    const PyRef owned(obj);
    return pyStringX(obj);
}

qint64 YumIO::pyTime(PyObject *obj)
{
    if (obj && PyLong_Check(obj)) {
        const long long value = PyLong_AsLongLong(obj);
        PyErr_Clear();
        return value;
    }
    if (obj && (PyUnicode_Check(obj) || PyBytes_Check(obj))) {
        const QString text = pyString(obj);
        errno = 0;
        const auto value = std::strtoul(text.toUtf8().constData(), nullptr, 10);
        if (errno)
            warning(tr("Internal error: time not understood: %1").arg(text));
        return qint64(value);
    }
    warning(tr("Internal error: time not understood"));
    return 0;
}

qint64 YumIO::pyTimeDec(PyObject *obj)
{
    const PyRef owned(obj);
    return pyTime(obj);
}

// A size that is a number or a decimal text; false for any other object.
bool YumIO::readSize(PyObject *obj, quint64 &size)
{
    if (PyLong_Check(obj)) {
        size = PyLong_AsUnsignedLongLongMask(obj);
        PyErr_Clear();
        return true;
    }
    if (!PyUnicode_Check(obj) && !PyBytes_Check(obj))
        return false;
    const QString text = pyString(obj);
    errno = 0;
    size = std::strtoull(text.toUtf8().constData(), nullptr, 10);
    if (errno) {
        warning(tr("Internal error: package size not understood: %1").arg(text));
        size = 0;
    }
    return true;
}

quint64 YumIO::sizeOf(PyObject *po)
{
    quint64 size = 0;
    const PyRef attribute(PyObject_GetAttrString(po, "size"));
    PyErr_Clear();
    if (attribute && readSize(attribute.get(), size))
        return size;
    if (!attribute || !PyCallable_Check(attribute.get())) {
        warning(tr("Internal error: package size not understood"));
        return 0;
    }
    const PyRef result(PyObject_CallNoArgs(attribute.get()));
    if (!result && PyErr_Occurred())
        handleException();
    if (!result || !readSize(result.get(), size)) {
        warning(tr("Internal error: package size result not understood"));
        return 0;
    }
    return size;
}

qint64 YumIO::buildTimeOf(PyObject *po)
{
    pyExceptStart();
    pyExceptExpect(PyExc_KeyError);
    PyObject *time = pyMethodCall(po, "returnSimple", "(s)", "buildtime");
    pyExceptClear();
    return time ? pyTimeDec(time) : 0;
}

const char *YumIO::pyDescribe(PyObject *obj)
{
    static QByteArray text;
    if (!obj || obj == Py_None) {
        text = "*None*";
    } else if (PyUnicode_Check(obj) || PyBytes_Check(obj)) {
        text = pyString(obj).toUtf8();
    } else if (PyLong_Check(obj)) {
        text = QByteArray::number(PyLong_AsLongLong(obj));
        PyErr_Clear();
    } else {
        const PyRef described(PyObject_Str(obj));
        PyErr_Clear();
        text = described ? pyString(described.get()).toUtf8() + "(*Obj*)" : "*Obj-no-str*";
    }
    return text.constData();
}

QString YumIO::makeSorted(QStringList &list)
{
    std::sort(list.begin(), list.end());
    return list.join(u'\n');
}

QString YumIO::makeSortedUniq(QStringList &list)
{
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    return list.join(u'\n');
}

QString YumIO::simpleString(PyObject *po, const char *key)
{
    pyExceptStart();
    pyExceptExpect(PyExc_KeyError);
    PyObject *value = pyMethodCall(po, "returnSimple", "(s)", key);
    pyExceptClear();
    if (!value || value == Py_None) {
        Py_XDECREF(value);
        return QString();
    }
    return fieldText(pyStringXDec(value));
}

// The text of a simple field, without the line feeds at its end.
QString YumIO::fieldText(QString text)
{
    while (text.endsWith(u'\n'))
        text.chop(1);
    return text;
}
