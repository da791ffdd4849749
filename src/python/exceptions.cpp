// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pyref.h"

#include "python.h"

#include <QtGlobal>

// Exception steering and reporting.

void Python::pyExceptStart()
{
    m_expected.emplace_back();
}

void Python::pyExceptExpect(PyObject *type)
{
    if (!type)
        error(QT_TRANSLATE_NOOP("Python", "Internal error: pyExceptExpect called with NULL\n"));
    if (m_expected.empty())
        m_expected.emplace_back();
    m_expected.back().push_back(type);
}

void Python::pyExceptClear()
{
    if (!m_expected.empty())
        m_expected.pop_back();
    PyErr_Clear();
}

bool Python::pyExceptMatches(PyObject *result, PyObject *type)
{
    return !result && type && PyErr_Occurred() && PyErr_ExceptionMatches(type);
}

void Python::handleException()
{
    if (!m_expected.empty()) {
        for (PyObject *type : m_expected.back()) {
            if (type && PyErr_ExceptionMatches(type)) {
                exceptionExpected();
                return;
            }
        }
    }
    exceptionError();
}

void Python::exceptionExpected() {}

void Python::exceptionError()
{
    PyObject *type, *value, *traceback;
    PyErr_Fetch(&type, &value, &traceback);
    PyErr_NormalizeException(&type, &value, &traceback);
    const PyRef typeRef(type), valueRef(value), tracebackRef(traceback);
    if (!type) {
        PyErr_Clear();
        error(QT_TRANSLATE_NOOP(
            "Python",
            "Internal error: python exception occurred, but exception information was empty."));
        return;
    }
    if (value && traceback)
        PyException_SetTraceback(value, traceback);
    PyErr_Display(type, value, traceback);
    PyErr_Clear();
    error(QT_TRANSLATE_NOOP("Python",
                            "Internal error: python exception occurred from C code.\n"
                            "When reporting this issue, please include the contents of the\n"
                            "Log window, which should contain a walkback."));
}

PyObject *Python::pyExceptValue()
{
    PyObject *type, *value, *traceback;
    PyErr_Fetch(&type, &value, &traceback);
    PyObject *localType = PyRef::share(type).release();
    PyObject *localValue = PyRef::share(value).release();
    PyObject *localTraceback = PyRef::share(traceback).release();
    // With nothing pending: making the value's object runs interpreter code.
    if (localType)
        PyErr_NormalizeException(&localType, &localValue, &localTraceback);
    PyErr_Restore(type, value, traceback);
    Py_XDECREF(localType);
    Py_XDECREF(localTraceback);
    return localValue;
}

PyObject *Python::pyExceptValuef()
{
    const PyRef exception(pyExceptValue());
    PyObject *type, *value, *traceback;
    PyErr_Fetch(&type, &value, &traceback);
    PyObject *result = nullptr;
    if (exception) {
        result = PyObject_GetAttrString(exception.get(), "value");
        PyErr_Clear();
        if (!result)
            result = pyCall("__builtins__.str", "(O)", exception.get());
    }
    PyErr_Restore(type, value, traceback);
    return result;
}

void Python::setEnablePythonSIGINTHandler(bool on)
{
    py(on ? "signal.signal(signal.SIGINT, defaultSigIntSigaction)"
          : "signal.signal(signal.SIGINT, signal.SIG_DFL)");
}

void Python::pyDebug(PyObject *obj)
{
    PyErr_Clear();
    pyAssignGlobal("dbg", obj);
    py("import sys\nsys.stdout = sys.__stdout__\nsys.stderr = sys.__stderr__\n"
       "import pdb\npdb.set_trace()");
    PyErr_Clear();
}
