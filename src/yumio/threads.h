// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QEventLoop>
#include <QHash>
#include <QStringList>
#include <QThread>

class YumIO;
struct RepoTest;
struct SearchRequest;

// The worker of one job: runs it and ends the event loop in which the GUI thread waits.
class WorkThread : public QThread
{
public:
    WorkThread(YumIO *engine, QEventLoop &loop) : m_engine(engine), m_loop(loop) {}
    bool result() const { return m_result; }

protected:
    virtual bool work() = 0;
    void run() override;

    YumIO *m_engine;

private:
    QEventLoop &m_loop;
    bool m_result = false;
};

class CollectThread : public WorkThread
{
public:
    CollectThread(YumIO *engine, QEventLoop &loop, const QHash<QString, bool> &reposUsed,
                  const QStringList &leftOut)
        : WorkThread(engine, loop), m_reposUsed(reposUsed), m_leftOut(leftOut)
    {
    }

protected:
    bool work() override;

private:
    const QHash<QString, bool> m_reposUsed;
    const QStringList m_leftOut;
};

class ClearEntriesThread : public WorkThread
{
public:
    using WorkThread::WorkThread;

protected:
    bool work() override;
};

class CollectFileListsThread : public WorkThread
{
public:
    using WorkThread::WorkThread;

protected:
    bool work() override;
};

class CollectOtherDataThread : public WorkThread
{
public:
    using WorkThread::WorkThread;

protected:
    bool work() override;
};

class SearchThread : public WorkThread
{
public:
    SearchThread(YumIO *engine, QEventLoop &loop, SearchRequest &request)
        : WorkThread(engine, loop), m_request(request)
    {
    }

protected:
    bool work() override;

private:
    SearchRequest &m_request;
};

class RepoTestThread : public WorkThread
{
public:
    RepoTestThread(YumIO *engine, QEventLoop &loop, RepoTest &test)
        : WorkThread(engine, loop), m_test(test)
    {
    }

protected:
    bool work() override;

private:
    RepoTest &m_test;
};

class ApplyThread : public WorkThread
{
public:
    using WorkThread::WorkThread;

protected:
    bool work() override;
};
