// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What became of a transaction, and of one that was cut off before this run.

#include "python/pyref.h"

#include "guiquestions.h"
#include "yumio.h"

PyObject *YumIO::transactionReport(PyObject *, PyObject *args)
{
    PyObject *elements;
    if (!PyArg_ParseTuple(args, "O", &elements))
        return nullptr;
    const PyRef iterator(PyObject_GetIter(elements));
    if (!iterator)
        return nullptr;
    QStringList done, troubled, failed, skipped, tested;
    while (const PyRef element = PyRef(PyIter_Next(iterator.get()))) {
        const char *name, *outcome, *reason;
        const PyRef fields(PySequence_Tuple(element.get()));
        if (!fields || !PyArg_ParseTuple(fields.get(), "sss", &name, &outcome, &reason))
            return nullptr;
        QString line = QLatin1Char('\t') + QString::fromUtf8(name);
        if (*reason)
            line += QStringLiteral(": ") + QString::fromUtf8(reason);
        const bool isDone = qstrcmp(outcome, "done") == 0;
        const bool isSkipped = qstrcmp(outcome, "skipped") == 0;
        const bool isTested = qstrcmp(outcome, "tested") == 0;
        (isDone      ? (*reason ? troubled : done)
         : isSkipped ? skipped
         : isTested  ? tested
                     : failed)
            .append(line);
    }
    if (PyErr_Occurred())
        return nullptr;
    if (!tested.isEmpty()) {
        reportTest(tested);
        Py_RETURN_NONE;
    }

    const QString summary = tr("Transaction: %1 done, %2 failed, %3 skipped")
                                .arg(done.size() + troubled.size())
                                .arg(failed.size())
                                .arg(skipped.size());
    // One that is there although its last scriptlet failed is done, but not as it should be.
    const bool complete = failed.isEmpty() && skipped.isEmpty() && troubled.isEmpty();
    log(complete ? Log::Kind::Ok : Log::Kind::Error, 0, summary);

    QString text = summary + QLatin1Char('\n');
    const auto section = [&](const QString &title, const QStringList &lines, Log::Kind kind) {
        if (lines.isEmpty())
            return;
        const QString part = title + QLatin1Char('\n') + lines.join(QLatin1Char('\n'));
        if (!complete)
            log(kind, 0, part);
        text += QLatin1Char('\n') + part + QLatin1Char('\n');
    };
    section(tr("Failed:"), failed, Log::Kind::Error);
    section(tr("Skipped:"), skipped, Log::Kind::Warning);
    section(tr("Done, with errors:"), troubled, Log::Kind::Warning);
    section(tr("Done:"), done, Log::Kind::Ok);
    m_apply.outcome = text;
    m_apply.isComplete = complete;
    // Now, because the script removes the marker of the transaction next.
    if (!m_reports.texts.isEmpty())
        keepReport(m_reports.texts.join(QLatin1String("\n\n")));
    if (!complete)
        keepReport(text);
    Py_RETURN_NONE;
}

void YumIO::reportTest(const QStringList &lines)
{
    m_apply.outcome = tr("The transaction was only tested, because the configuration has "
                         "tsflags=test. The test succeeded. No package was changed.") +
                      QLatin1String("\n\n") + tr("Tested:") + QLatin1Char('\n') +
                      lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
    m_apply.isComplete = false;
    log(Log::Kind::Ok, 0, m_apply.outcome);
}

void YumIO::keepReport(const QString &text)
{
    if (m_keeper.add)
        m_keeper.add(text);
}

// Shows a report that is kept until it has been read.
void YumIO::showKept(const QString &title, const QString &text)
{
    keepReport(text);
    if (m_dialogs && m_dialogs->scrollable(title, text) && !m_unattended && m_keeper.remove)
        m_keeper.remove(text);
}

// For whoever has left: what rpm has done, even if it did everything.
void YumIO::keepOutcome()
{
    if (m_unattended && !m_apply.outcome.isEmpty())
        keepReport(m_apply.outcome);
}

void YumIO::reportInterrupted()
{
    if (!m_session.yumIO || !PyObject_HasAttrString(m_session.yumIO, "interrupted"))
        return;
    const PyRef result(pyMethodCall(m_session.yumIO, "interrupted", "()"));
    const PyRef iterator(result && result.get() != Py_None ? PyObject_GetIter(result.get())
                                                           : nullptr);
    QStringList lines;
    while (iterator) {
        const PyRef line(PyIter_Next(iterator.get()));
        if (!line)
            break;
        lines.append(pyString(line.get()));
    }
    PyErr_Clear();
    if (lines.isEmpty())
        return;
    const QString text = lines.join(QLatin1Char('\n'));
    log(Log::Kind::Warning, 0, text);
    if (m_dialogs && m_dialogs->scrollable(tr("VOK Interrupted Transaction"), text) &&
        !m_unattended && PyObject_HasAttrString(m_session.yumIO, "forgetInterrupted"))
        const PyRef forgotten(pyMethodCall(m_session.yumIO, "forgetInterrupted", "()"));
}
