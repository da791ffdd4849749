// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The interpreter's headers come before any of Qt's.
#include <Python.h>

#include <utility>

// Owns one reference to an interpreter object, or none. Construct and destroy it with the
// interpreter lock held.
class PyRef
{
public:
    PyRef() = default;
    // Takes over a new reference; null is allowed.
    explicit PyRef(PyObject *owned) : m_object(owned) {}
    // Takes a reference of its own to a borrowed object; null is allowed.
    static PyRef share(PyObject *borrowed)
    {
        Py_XINCREF(borrowed);
        return PyRef(borrowed);
    }
    PyRef(PyRef &&other) noexcept : m_object(other.release()) {}
    PyRef(const PyRef &other) : PyRef(share(other.m_object)) {}
    PyRef &operator=(PyRef other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~PyRef() { Py_XDECREF(m_object); }

    PyObject *get() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    // Gives the reference away.
    PyObject *release() { return std::exchange(m_object, nullptr); }

private:
    PyObject *m_object = nullptr;
};
