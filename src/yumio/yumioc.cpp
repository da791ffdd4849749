// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/pyref.h"

#include "yumio.h"
#include "yumioc.h"

#include <QCoreApplication>

namespace {

// A text of the script in the user's language. The catalogues may be asked from any thread.
PyObject *translate(PyObject *, PyObject *args)
{
    const char *text;
    if (!PyArg_ParseTuple(args, "s", &text))
        return nullptr;
    const QByteArray translated = QCoreApplication::translate("YumIO script", text).toUtf8();
    return PyUnicode_FromStringAndSize(translated.constData(), translated.size());
}

} // namespace

YumIO *YumIOC::s_engine = nullptr;

#define VOK_CALLBACK(name, flags)                                                                  \
    {                                                                                              \
#name,                                                                                     \
            [](PyObject *self, PyObject *args) -> PyObject * {                                     \
                if (!s_engine) {                                                                   \
                    PyErr_SetString(PyExc_RuntimeError, "the program has no engine");              \
                    return nullptr;                                                                \
                }                                                                                  \
                return s_engine->name(self, args);                                                 \
            },                                                                                     \
            flags, nullptr       \
    }

PyMethodDef YumIOC::s_methods[] = {
    VOK_CALLBACK(stdoutWrite, METH_VARARGS),
    VOK_CALLBACK(stderrWrite, METH_VARARGS),
    VOK_CALLBACK(log, METH_VARARGS),
    VOK_CALLBACK(errorlog, METH_VARARGS),
    VOK_CALLBACK(collectProgress, METH_VARARGS),
    VOK_CALLBACK(collectGrabMeterStart, METH_VARARGS),
    VOK_CALLBACK(collectGrabMeterUpdate, METH_VARARGS),
    VOK_CALLBACK(collectGrabMeterEnd, METH_VARARGS),
    VOK_CALLBACK(collectGrabMeterFailure, METH_VARARGS),
    VOK_CALLBACK(collectGrabMultiMeterStart, METH_VARARGS),
    VOK_CALLBACK(collectGrabMultiMeterNew, METH_VARARGS),
    VOK_CALLBACK(collectGrabMultiMeterRemove, METH_VARARGS),
    VOK_CALLBACK(collectGrabMultiMeterEnd, METH_VARARGS),
    VOK_CALLBACK(applyGrabMeterStart, METH_VARARGS),
    VOK_CALLBACK(applyGrabMeterUpdate, METH_VARARGS),
    VOK_CALLBACK(applyGrabMeterEnd, METH_VARARGS),
    VOK_CALLBACK(applyGrabMeterFailure, METH_VARARGS),
    VOK_CALLBACK(applyGrabMultiMeterStart, METH_VARARGS),
    VOK_CALLBACK(applyGrabMultiMeterNew, METH_VARARGS),
    VOK_CALLBACK(applyGrabMultiMeterRemove, METH_VARARGS),
    VOK_CALLBACK(applyGrabMultiMeterEnd, METH_VARARGS),
    VOK_CALLBACK(dsTsCheck, METH_NOARGS),
    VOK_CALLBACK(dsRestartLoop, METH_NOARGS),
    VOK_CALLBACK(userconfirm, METH_NOARGS),
    VOK_CALLBACK(reportDownloadSize, METH_VARARGS),
    VOK_CALLBACK(reportLocalSize, METH_VARARGS),
    VOK_CALLBACK(listingNote, METH_VARARGS),
    VOK_CALLBACK(listTransaction, METH_VARARGS),
    VOK_CALLBACK(tsInitCallback, METH_VARARGS),
    VOK_CALLBACK(tsCallback, METH_VARARGS),
    VOK_CALLBACK(tsEvent, METH_VARARGS),
    VOK_CALLBACK(postTransactionOutput, METH_VARARGS),
    VOK_CALLBACK(gpgsigcheck, METH_VARARGS),
    VOK_CALLBACK(cancelled, METH_NOARGS),
    VOK_CALLBACK(jobState, METH_VARARGS),
    VOK_CALLBACK(lockWait, METH_VARARGS),
    VOK_CALLBACK(keyQuestion, METH_VARARGS),
    VOK_CALLBACK(confirmRemovals, METH_VARARGS),
    VOK_CALLBACK(repositoryFailed, METH_VARARGS),
    VOK_CALLBACK(scriptletStuck, METH_VARARGS),
    VOK_CALLBACK(transactionReport, METH_VARARGS),
    {"tr", translate, METH_VARARGS, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

#undef VOK_CALLBACK

bool YumIOC::initialize(YumIO *engine)
{
    static PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                                     "yumIOC",
                                     nullptr,
                                     -1,
                                     s_methods,
                                     nullptr,
                                     nullptr,
                                     nullptr,
                                     nullptr};
    s_engine = engine;
    PyObject *modules = PyImport_GetModuleDict();
    if (PyDict_GetItemString(modules, "yumIOC"))
        return true;
    const PyRef module(PyModule_Create(&definition));
    return module && PyDict_SetItemString(modules, "yumIOC", module.get()) == 0;
}
