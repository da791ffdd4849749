// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "uninterrupted.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <unistd.h>
#include <utility>

namespace {

std::mutex mutex; // guards the next four; locked for good once the process may end
std::condition_variable ended;
bool underWay = false;
std::function<void()> abandonWorker;
std::function<bool()> serveWorker;  // called on the GUI thread, without the mutex
std::atomic<pid_t> leaver = 0;      // the thread that locked the mutex for good
thread_local bool isWorker = false; // this thread does the work

bool isGuiThread()
{
    return gettid() == getpid();
}

} // namespace

Uninterrupted::Uninterrupted()
{
    const std::lock_guard lock(mutex);
    underWay = isWorker = true;
}

Uninterrupted::~Uninterrupted()
{
    {
        const std::lock_guard lock(mutex);
        underWay = isWorker = false;
    }
    ended.notify_all();
}

Uninterrupted::Server::Server(std::function<void()> abandon, std::function<bool()> serve)
{
    const std::lock_guard lock(mutex);
    abandonWorker = std::move(abandon);
    serveWorker = std::move(serve);
}

Uninterrupted::Server::~Server()
{
    const std::lock_guard lock(mutex);
    abandonWorker = nullptr;
    serveWorker = nullptr;
}

Uninterrupted::Leave Uninterrupted::leave()
{
    // Nobody else can finish the work; and an exit handler may call exit.
    if (isWorker || leaver == gettid())
        return Leave::AtOnce;
    std::unique_lock lock(mutex);
    const bool hasWorker = abandonWorker != nullptr;
    if (hasWorker)
        abandonWorker();
    if (hasWorker && underWay && isGuiThread()) {
        lock.unlock();
        while (!serveWorker()) {
        }
        lock.lock();
    }
    ended.wait(lock, [] { return !underWay; });
    leaver = gettid();
    lock.release();
    return hasWorker || !isGuiThread() ? Leave::AtOnce : Leave::Orderly;
}
