// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pyref.h"

#include "python.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

constexpr size_t statementSize = 10240;
constexpr qsizetype messageSize = 1023;

// The interpreter of the distribution: neither the user's environment nor the locale, which is the
// program's own affair, has a say in what it loads and how it reads texts.
bool startInterpreter()
{
    PyPreConfig preConfig;
    PyPreConfig_InitIsolatedConfig(&preConfig);
    preConfig.utf8_mode = 1;
    if (PyStatus_Exception(Py_PreInitialize(&preConfig)))
        return false;
    PyConfig config;
    PyConfig_InitIsolatedConfig(&config);
    config.install_signal_handlers = 1; // so that there is a SIGINT handler to put back
    config.write_bytecode = 0;
    PyStatus status = PyConfig_SetString(&config, &config.program_name, L"/usr/bin/python3");
    if (!PyStatus_Exception(status))
        status = Py_InitializeFromConfig(&config);
    PyConfig_Clear(&config);
    return !PyStatus_Exception(status);
}

} // namespace

bool Python::s_initialized = false;
PyObject *Python::s_mainDict = nullptr;

Python::PyGILStateWrapper::PyGILStateWrapper(bool enabled) : m_enabled(enabled)
{
    ensure();
}

Python::PyGILStateWrapper::~PyGILStateWrapper()
{
    release();
}

void Python::PyGILStateWrapper::ensure()
{
    if (m_enabled)
        m_state = PyGILState_Ensure();
}

void Python::PyGILStateWrapper::release()
{
    if (m_enabled)
        PyGILState_Release(static_cast<PyGILState_STATE>(m_state));
}

Python::PyThreadStateWrapper::PyThreadStateWrapper()
{
    save();
}

Python::PyThreadStateWrapper::~PyThreadStateWrapper()
{
    restore();
}

void Python::PyThreadStateWrapper::save()
{
    m_saved = PyEval_SaveThread();
}

void Python::PyThreadStateWrapper::restore()
{
    PyEval_RestoreThread(m_saved);
}

Python::~Python()
{
    if (!s_initialized)
        return;
    PyGILState_Ensure();
    Py_FinalizeEx();
    s_initialized = false;
    s_mainDict = nullptr;
}

bool Python::initialize()
{
    if (s_initialized)
        return true;
    if (!Py_IsInitialized() && !startInterpreter()) {
        error(QT_TRANSLATE_NOOP("Python", "Internal error: cannot start the python interpreter\n"));
        return false;
    }
    s_initialized = true;

    const PyGILStateWrapper lock(true);
    py("import signal\ndefaultSigIntSigaction = signal.getsignal(signal.SIGINT)");
    PyObject *main = PyImport_AddModule("__main__");
    if (!main) {
        PyErr_Clear();
        error(QT_TRANSLATE_NOOP("Python", "Internal error: cannot find python __main__ module\n"));
        return false;
    }
    s_mainDict = PyModule_GetDict(main);
    if (!s_mainDict) {
        error(QT_TRANSLATE_NOOP("Python", "Internal error: cannot find python __main__ dict\n"));
        return false;
    }
    return true;
}

// `format`, looked up for translation before its arguments are filled in, has a "%s" for each.
void Python::report(const char *format, const char *first, const char *second)
{
    QString message = QCoreApplication::translate("Python", format);
    qsizetype place = 0;
    for (const char *argument : {first, second}) {
        place = message.indexOf(QLatin1String("%s"), place);
        if (place == -1)
            break;
        const QString text = QString::fromUtf8(argument);
        message.replace(place, 2, text);
        place += text.size();
    }
    error(message.left(messageSize).toUtf8().constData());
}

void Python::py(const char *text)
{
    // Not PyRun_SimpleString: that prints and clears the exception before anybody can decide.
    PyObject *main = PyImport_AddModule("__main__");
    PyObject *dict = main ? PyModule_GetDict(main) : nullptr;
    const PyRef result(dict ? PyRun_String(text, Py_file_input, dict, dict) : nullptr);
    if (!result && PyErr_Occurred())
        handleException();
}

PyObject *Python::pyr(const char *text)
{
    PyObject *result = PyRun_String(text, Py_eval_input, s_mainDict, s_mainDict);
    if (!result && PyErr_Occurred())
        handleException();
    return result;
}

void Python::pyf(const char *format, ...)
{
    char text[statementSize];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (length < 0 || size_t(length) >= sizeof text)
        error(QT_TRANSLATE_NOOP("Python", "Internal error: python statement too long\n"));
    else
        py(text);
}

PyObject *Python::pyrf(const char *format, ...)
{
    char text[statementSize];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (length < 0 || size_t(length) >= sizeof text) {
        error(QT_TRANSLATE_NOOP("Python", "Internal error: python expression too long\n"));
        return nullptr;
    }
    return pyr(text);
}

PyObject *Python::pyCall(const char *name, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    PyObject *result = pyVCall(name, format, arguments);
    va_end(arguments);
    return result;
}

PyObject *Python::callAndRelease(PyObject *callable, const char *format, va_list arguments)
{
    const PyRef args(Py_VaBuildValue(format, arguments));
    PyObject *result = args ? PyObject_Call(callable, args.get(), nullptr) : nullptr;
    if (!result && PyErr_Occurred())
        handleException();
    return result;
}

PyObject *Python::pyVCall(const char *name, const char *format, va_list arguments)
{
    PyObject *callable = pyLookup(name, false);
    if (!callable) {
        report(QT_TRANSLATE_NOOP("Python", "Internal error: %s not found\n"), name);
        return nullptr;
    }
    if (!PyCallable_Check(callable)) {
        report(QT_TRANSLATE_NOOP("Python", "Internal error: %s not callable\n"), name);
        return nullptr;
    }
    return callAndRelease(callable, format, arguments);
}

PyObject *Python::pyMethodCall(PyObject *self, const char *method, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    PyObject *result = pyVMethodCall(self, method, format, arguments);
    va_end(arguments);
    return result;
}

PyObject *Python::pyVMethodCall(PyObject *self, const char *method, const char *format,
                                va_list arguments)
{
    if (!self) {
        report(
            QT_TRANSLATE_NOOP("Python", "Internal error: method %s call attemped with NULL self\n"),
            method);
        return nullptr;
    }
    const PyRef callable(PyObject_GetAttrString(self, method));
    if (!callable) {
        report(QT_TRANSLATE_NOOP("Python", "Internal error: method %s not found\n"), method);
        return nullptr;
    }
    if (!PyCallable_Check(callable.get())) {
        report(QT_TRANSLATE_NOOP("Python", "Internal error: method %s not callable\n"), method);
        return nullptr;
    }
    return callAndRelease(callable.get(), format, arguments);
}

PyObject *Python::pyLookup(const char *name, bool quiet)
{
    const auto fail = [&](const char *format, const std::string &segment) -> PyObject * {
        if (!quiet)
            report(format, segment.c_str());
        return nullptr;
    };

    PyObject *object = nullptr;
    const std::string path(name);
    for (size_t begin = 0; begin <= path.size();) {
        const size_t dot = std::min(path.find('.', begin), path.size());
        const std::string segment = path.substr(begin, dot - begin);
        if (begin == 0) {
            object = PyDict_GetItemString(s_mainDict, segment.c_str());
            if (!object) {
                PyErr_Clear();
                const PyRef module(PyImport_ImportModule(segment.c_str()));
                PyErr_Clear();
                object = module.get(); // kept alive by sys.modules
            }
        } else {
            PyObject *dict = object;
            if (PyModule_Check(object))
                dict = PyModule_GetDict(object);
            if (!dict)
                return fail(
                    QT_TRANSLATE_NOOP("Python", "Internal error: module %s lacks dictionary\n"),
                    segment);
            object = PyDict_Check(dict) ? PyDict_GetItemString(dict, segment.c_str()) : nullptr;
        }
        if (!object)
            return fail(QT_TRANSLATE_NOOP("Python", "Internal error: %s not found\n"), segment);
        begin = dot + 1;
    }
    return object;
}

// The dictionary of a module, or the object itself: borrowed.
PyObject *Python::moduleDict(const char *path)
{
    PyObject *object = pyLookup(path, false);
    if (!object) {
        report(QT_TRANSLATE_NOOP("Python", "Internal error: %s not found\n"), path);
        return nullptr;
    }
    if (!PyModule_Check(object))
        return object;
    PyObject *dict = PyModule_GetDict(object);
    if (!dict)
        report(QT_TRANSLATE_NOOP("Python", "Internal error: module %s lacks dictionary\n"), path);
    return dict;
}

PyObject *Python::pyValue(const char *module, const char *name)
{
    PyObject *dict = moduleDict(module);
    if (!dict)
        return nullptr;
    PyObject *value = PyDict_GetItemString(dict, name);
    if (!value && PyErr_Occurred())
        handleException();
    return value;
}

void Python::pyAssign(const char *module, const char *name, PyObject *value)
{
    PyObject *dict = moduleDict(module);
    if (!dict || PyDict_SetItemString(dict, name, value) != -1)
        return;
    if (PyErr_Occurred())
        handleException();
    else
        report(QT_TRANSLATE_NOOP("Python", "Internal error: cannot assign %s.%s\n"), module, name);
}

int Python::pyAssignGlobal(const char *name, PyObject *value)
{
    return PyDict_SetItemString(s_mainDict, name, value);
}

const char *Python::pyString(PyObject *obj)
{
    if (!obj) {
        error(QT_TRANSLATE_NOOP("Python", "Internal error: pyString passed NULL python object\n"));
        return nullptr;
    }
    if (obj == Py_None)
        return nullptr;
    const char *text = PyBytes_Check(obj) ? PyBytes_AsString(obj) : PyUnicode_AsUTF8(obj);
    if (!text && PyErr_Occurred())
        handleException();
    return text;
}

long Python::pyVersion()
{
    PyObject *version = pyValue("sys", "hexversion");
    return version ? PyLong_AsLong(version) : 0;
}
