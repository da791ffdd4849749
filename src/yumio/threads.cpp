// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "threads.h"

#include "yumio.h"

void WorkThread::run()
{
    m_result = work();
    m_loop.exit(0);
}

bool CollectThread::work()
{
    return m_engine->collectReal(m_reposUsed, m_leftOut);
}

bool ClearEntriesThread::work()
{
    m_engine->clearEntriesReal();
    return true;
}

bool CollectFileListsThread::work()
{
    return m_engine->collectFileListsReal();
}

bool CollectOtherDataThread::work()
{
    return m_engine->collectOtherDataReal();
}

bool SearchThread::work()
{
    return m_engine->searchReal(m_request);
}

bool RepoTestThread::work()
{
    return m_engine->testRepositoryReal(m_test);
}

bool ApplyThread::work()
{
    return m_engine->applyReal();
}
