// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdarg>
#include <vector>

struct _object;
typedef struct _object PyObject;
struct _ts;
typedef struct _ts PyThreadState;

// The embedded interpreter: runs statements and expressions, calls functions and methods, resolves
// names, and routes every failure to handleException, which a caller steers by declaring the
// exception types that it expects. There is one interpreter in a process.
//
// The caller holds the interpreter lock for every operation but initialize, which leaves the lock
// with the calling thread. Nothing throws: failures are reported through error() or
// handleException() and give null, false or nothing. Texts are UTF-8.
class Python
{
public:
    // Holds the interpreter lock while it lives, if enabled.
    class PyGILStateWrapper
    {
    public:
        explicit PyGILStateWrapper(bool enabled);
        PyGILStateWrapper(const PyGILStateWrapper &) = delete;
        PyGILStateWrapper &operator=(const PyGILStateWrapper &) = delete;
        ~PyGILStateWrapper();
        void ensure();
        void release();

    private:
        bool m_enabled;
        int m_state = 0;
    };

    // Gives up the calling thread's interpreter lock while it lives.
    class PyThreadStateWrapper
    {
    public:
        PyThreadStateWrapper();
        PyThreadStateWrapper(const PyThreadStateWrapper &) = delete;
        PyThreadStateWrapper &operator=(const PyThreadStateWrapper &) = delete;
        ~PyThreadStateWrapper();
        void save();
        void restore();

    private:
        PyThreadState *m_saved = nullptr;
    };

    Python() = default;
    Python(const Python &) = delete;
    Python &operator=(const Python &) = delete;
    // Ends the interpreter if it runs.
    virtual ~Python();

    // Exception steering: start, any number of expect, the calls, matches, clear. Lists nest.
    virtual void pyExceptStart();
    virtual void pyExceptExpect(PyObject *type);
    virtual void pyExceptClear();
    // True when `result` is null and the pending exception is a `type`.
    virtual bool pyExceptMatches(PyObject *result, PyObject *type);
    virtual void error(const char *message) = 0;
    virtual void warning(const char *message) = 0;
    // Decides about the pending exception: left pending when expected, else reported and cleared.
    virtual void handleException();
    virtual void exceptionExpected();
    // Prints the pending exception with its traceback to the interpreter's standard error, clears
    // it and reports.
    virtual void exceptionError();

    // Starts the interpreter; true at once when it runs.
    bool initialize();
    static bool isInitialized() { return s_initialized; }

    // Run statements.
    void py(const char *text);
    void pyf(const char *format, ...) __attribute__((format(printf, 2, 3)));
    // Evaluate an expression: a new reference or null.
    PyObject *pyr(const char *text);
    PyObject *pyrf(const char *format, ...) __attribute__((format(printf, 2, 3)));

    // Call a function by its dotted name, or a method, with arguments built as Py_BuildValue does
    // from a parenthesised format: a new reference or null.
    PyObject *pyCall(const char *name, const char *format, ...);
    PyObject *pyVCall(const char *name, const char *format, va_list arguments);
    PyObject *pyMethodCall(PyObject *self, const char *method, const char *format, ...);
    PyObject *pyVMethodCall(PyObject *self, const char *method, const char *format,
                            va_list arguments);

    // Resolves module paths and dictionary items; attributes of other objects are not reachable.
    // A borrowed reference or null, reported unless `quiet`.
    PyObject *pyLookup(const char *name, bool quiet);
    PyObject *pyValue(const char *module, const char *name); // borrowed
    void pyAssign(const char *module, const char *name, PyObject *value);
    int pyAssignGlobal(const char *name, PyObject *value);

    // A text's bytes, owned by `obj`; null for None.
    const char *pyString(PyObject *obj);
    long pyVersion(); // sys.hexversion

    // The pending exception's value, normalised, and its text form: new references. The exception
    // stays pending.
    PyObject *pyExceptValue();
    PyObject *pyExceptValuef();

    void setEnablePythonSIGINTHandler(bool on);
    // Developer aid: a debugger on `obj`.
    void pyDebug(PyObject *obj);

private:
    void report(const char *format, const char *first, const char *second = "");
    PyObject *moduleDict(const char *path);
    PyObject *callAndRelease(PyObject *callable, const char *format, va_list arguments);

    static bool s_initialized;
    static PyObject *s_mainDict; // borrowed

    std::vector<std::vector<PyObject *>> m_expected;
};
