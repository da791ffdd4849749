// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the repository form asks: whether a repository can be reached, what options there are, what
// variables stand for.

#include "python/pyref.h"

#include "guiquestions.h"
#include "passwordsintext.h"
#include "progress/progress.h"
#include "repotest.h"
#include "threads.h"
#include "yumio.h"

#include <QEventLoop>

#include <array>

namespace {

constexpr std::array<const char *, 13> kinds = {
    "good",   "password", "host",    "refused", "timeout", "certificate", "missing",
    "nolist", "proxy",    "nothing", "empty",   "other",   "definition"};

RepoAnswer::Kind kindOf(const char *name)
{
    for (size_t i = 0; i < kinds.size(); ++i) {
        if (qstrcmp(kinds[i], name) == 0)
            return RepoAnswer::Kind(i);
    }
    return RepoAnswer::Kind::Other;
}

} // namespace

bool YumIO::canTestRepositories()
{
    if (!m_session.yumIO)
        return false;
    const PyGILStateWrapper lock(true);
    return PyObject_HasAttrString(m_session.yumIO, "testRepo");
}

std::optional<QList<RepoAnswer>> YumIO::testRepository(const QString &section)
{
    RepoTest test{section, {}};
    QEventLoop loop;
    RepoTestThread thread(this, loop, test);
    execWorkThread(loop, thread);
    if (!thread.result())
        return std::nullopt;
    return test.answers;
}

bool YumIO::testRepositoryReal(RepoTest &test)
{
    m_blocker.block();
    const Progress::User progressUser(m_progress, m_surface.totalBar, m_surface.itemBar);
    const YumIODialogsUser dialogsUser(m_dialogs, m_surface.parent);
    log(Log::Kind::Action, 0, tr("Testing a repository"));
    const PyGILStateWrapper lock(true);
    Q_EMIT jobState(QStringLiteral("test"), true);
    m_progress->startTotal(tr("Testing the repository"), 1);
    pyExceptStart();
    commExceptSetup();
    const PyRef result(
        pyMethodCall(m_session.yumIO, "testRepo", "(y)", test.section.toUtf8().constData()));
    const PyRef iterator(result ? PyObject_GetIter(result.get()) : nullptr);
    while (const PyRef item =
               PyRef(iterator && !m_cancelled ? PyIter_Next(iterator.get()) : nullptr)) {
        if (!takeRepoAnswer(item.get(), test))
            break;
    }
    const bool failed = !iterator || PyErr_Occurred();
    if (failed && !commExceptRaised(nullptr, tr("test the repository")))
        fail(tr("Internal error: execution of yumIO.%1 failed").arg(QLatin1String("testRepo")));
    pyExceptClear();
    m_progress->reset();
    return !failed && !m_cancelled;
}

// False, with the interpreter's error set, for something that is no answer.
bool YumIO::takeRepoAnswer(PyObject *item, RepoTest &test)
{
    if (PyLong_Check(item)) {
        m_progress->startTotal(tr("Testing the repository"), Steps(PyLong_AsLong(item)));
        return true;
    }
    const char *kind, *url, *detail;
    if (!PyArg_ParseTuple(item, "sss", &kind, &url, &detail))
        return false;
    const QString place = maskPasswords(QString::fromUtf8(url));
    if (qstrcmp(kind, "trying") == 0) {
        m_progress->startItem(place, 1, 1);
        return true;
    }
    const RepoAnswer answer{kindOf(kind), place, maskPasswords(QString::fromUtf8(detail))};
    log(Log::Kind::Normal, 3,
        QStringLiteral("%1: %2 %3").arg(QLatin1String(kind), answer.url, answer.detail));
    test.answers.append(answer);
    return true;
}

QStringList YumIO::repositoryOptions()
{
    if (!m_session.yumIO)
        return {};
    const PyGILStateWrapper lock(true);
    if (!PyObject_HasAttrString(m_session.yumIO, "repoOptions"))
        return {};
    const PyRef names(pyMethodCall(m_session.yumIO, "repoOptions", "()"));
    return names ? textsOf(names.get()) : QStringList();
}

QString YumIO::expandVariables(const QString &text)
{
    if (!m_session.yumIO)
        return text;
    const PyGILStateWrapper lock(true);
    if (!PyObject_HasAttrString(m_session.yumIO, "expanded"))
        return text;
    const PyRef expanded(
        pyMethodCall(m_session.yumIO, "expanded", "(s)", text.toUtf8().constData()));
    return expanded ? pyString(expanded.get()) : text;
}
