// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/pyref.h"

#include "passwordsintext.h"
#include "yumio.h"

#include <QMutexLocker>
#include <QRegularExpression>

namespace {

// A line that does not end is logged in pieces of this many characters.
constexpr qsizetype tailLimit = 1024 * 1024;

} // namespace

// The list's mutex guards the tails too: the interpreter writes on the worker thread, the reader of
// a capture on the GUI thread.
void YumIO::write(const QString &text, Log::Kind kind, unsigned int level, QString &tail)
{
    bool appended = false;
    {
        QMutexLocker lock(&m_log.mutex());
        const auto append = [&](const QString &line) {
            m_log.entries().append(Log::Entry(kind, level, maskPasswords(line)));
            appended = true;
        };
        qsizetype begin = 0;
        for (;;) {
            const qsizetype end = text.indexOf(QLatin1Char('\n'), begin);
            if (end == -1)
                break;
            tail += QStringView(text).mid(begin, end - begin);
            append(tail);
            tail.clear();
            begin = end + 1;
        }
        tail += QStringView(text).mid(begin);
        if (tail.size() > tailLimit) {
            append(tail);
            tail.clear();
        }
    }
    if (appended)
        m_log.emitAppended();
}

void YumIO::writeStdout(const QString &text)
{
    write(text, Log::Kind::Ok, 0, m_capture.stdoutTail);
}

void YumIO::writeStderr(const QString &text)
{
    write(text, Log::Kind::Error, 0, m_capture.stderrTail);
}

void YumIO::flushTails()
{
    bool appended = false;
    {
        QMutexLocker lock(&m_log.mutex());
        const auto flush = [&](QString &tail, Log::Kind kind, unsigned int level) {
            if (tail.isEmpty())
                return;
            m_log.entries().append(Log::Entry(kind, level, maskPasswords(tail)));
            tail.clear();
            appended = true;
        };
        flush(m_capture.stdoutTail, Log::Kind::Ok, 0);
        flush(m_capture.stderrTail, m_capture.stderrKind, m_capture.stderrLevel);
    }
    if (appended)
        m_log.emitAppended();
}

void YumIO::log(Log::Kind kind, unsigned int level, QString text)
{
    static const QRegularExpression errnoDetail(QStringLiteral(": (\\[Errno [0-9]*\\] )"));
    text.replace(errnoDetail, QStringLiteral(":\n\\1"));
    const QStringList lines = maskPasswords(text).split(QLatin1Char('\n'));
    {
        QMutexLocker lock(&m_log.mutex());
        for (const QString &line : lines)
            m_log.entries().append(Log::Entry(kind, level, line));
    }
    m_log.emitAppended();
}

PyObject *YumIO::stdoutWrite(PyObject *, PyObject *args)
{
    const char *text;
    if (!PyArg_ParseTuple(args, "s", &text))
        return nullptr;
    writeStdout(QString::fromUtf8(text));
    Py_RETURN_NONE;
}

PyObject *YumIO::stderrWrite(PyObject *, PyObject *args)
{
    const char *text;
    if (!PyArg_ParseTuple(args, "s", &text))
        return nullptr;
    write(QString::fromUtf8(text), m_capture.stderrKind, m_capture.stderrLevel,
          m_capture.stderrTail);
    Py_RETURN_NONE;
}

// Logs a line of the script, which the next confirmation shows too unless it has its listing. The
// line's text; null with the interpreter's error set when the arguments do not parse.
const char *YumIO::scriptLine(PyObject *args, Log::Kind kind)
{
    long level;
    const char *text;
    if (!PyArg_ParseTuple(args, "ls", &level, &text))
        return nullptr;
    const QString message = QString::fromUtf8(text);
    if (!m_confirmation.listingShown)
        m_confirmation.text += message + QLatin1Char('\n');
    log(kind, static_cast<unsigned int>(level), message);
    return text;
}

PyObject *YumIO::log(PyObject *, PyObject *args)
{
    const char *text = scriptLine(args, Log::Kind::Normal);
    if (!text)
        return nullptr;
    static constexpr char tsInfo[] = "TSINFO: ";
    if (qstrncmp(text, tsInfo, sizeof tsInfo - 1) == 0)
        dsTsInfo(text + sizeof tsInfo - 1);
    Py_RETURN_NONE;
}

PyObject *YumIO::errorlog(PyObject *, PyObject *args)
{
    if (!scriptLine(args, Log::Kind::Error))
        return nullptr;
    Py_RETURN_NONE;
}
