// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturers.h"

#include "yumio.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QThread>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>
#include <utility>

namespace {

constexpr qsizetype chunkSize = 64 * 1024;
constexpr qsizetype notificationLimit = 4 * chunkSize;
constexpr qsizetype defaultPipeSize = 1024 * 1024;

std::mutex messageMutex; // guards the next
int messageFd = -1;

std::mutex minionsMutex;
QList<YumIOCapturersMinion *> minions; // guarded by it

// During a capture descriptor 2 is a pipe that the GUI thread reads, so a message of the GUI thread
// itself could wait for ever in a full one.
void writeMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    const QByteArray line = text.toLocal8Bit() + '\n';
    const std::lock_guard lock(messageMutex);
    [[maybe_unused]] const auto written = ::write(messageFd, line.constData(), size_t(line.size()));
}

// How many bytes at the end begin a UTF-8 character that is not complete. A stateful decoder would
// do, but Qt's loses the byte behind a character that is cut off between two reads.
qsizetype unfinished(const QByteArray &bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(3, bytes.size()); ++length) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - length]);
        if ((byte & 0xc0) == 0x80)
            continue;
        const qsizetype needed = byte >= 0xf0 ? 4 : byte >= 0xe0 ? 3 : byte >= 0xc0 ? 2 : 1;
        return needed > length ? length : 0;
    }
    return 0;
}

void closeFd(int &fd)
{
    if (fd != -1)
        ::close(fd);
    fd = -1;
}

} // namespace

YumIOCapturersMinion::YumIOCapturersMinion(YumIO *engine, int stdoutFd, int stderrFd)
    : m_engine(engine), m_stdout{stdoutFd, &YumIO::writeStdout}, m_stderr{stderrFd,
                                                                          &YumIO::writeStderr}
{
    const std::lock_guard lock(minionsMutex);
    minions.append(this);
}

YumIOCapturersMinion::~YumIOCapturersMinion()
{
    {
        const std::lock_guard lock(minionsMutex);
        minions.removeOne(this);
    }
    for (Stream *stream : {&m_stdout, &m_stderr}) {
        delete stream->notifier;
        stream->notifier = nullptr;
        // The worker may be writing by now, so an unfinished line waits for its end.
        if (m_engine)
            drain(*stream);
        closeFd(stream->fd);
    }
}

void YumIOCapturersMinion::activate()
{
    moveToThread(QCoreApplication::instance()->thread());
    QMetaObject::invokeMethod(this, &YumIOCapturersMinion::initialize, Qt::QueuedConnection);
}

void YumIOCapturersMinion::deactivate()
{
    m_semaphore.acquire();
    if (QThread::currentThread() == thread()) {
        finalize();
    } else {
        QMetaObject::invokeMethod(this, &YumIOCapturersMinion::finalize, Qt::QueuedConnection);
    }
    m_semaphore.acquire();
    m_semaphore.release();
}

void YumIOCapturersMinion::serveAll()
{
    QList<YumIOCapturersMinion *> all;
    {
        const std::lock_guard lock(minionsMutex);
        all = minions;
    }
    for (YumIOCapturersMinion *minion : std::as_const(all)) {
        if (minion->thread() != QThread::currentThread())
            continue; // not activated yet
        QCoreApplication::sendPostedEvents(minion, QEvent::MetaCall);
        if (minion->m_initialized) {
            minion->readStdout();
            minion->readStderr();
        }
    }
}

void YumIOCapturersMinion::initialize()
{
    if (m_initialized)
        return;
    m_stdout.notifier = new QSocketNotifier(m_stdout.fd, QSocketNotifier::Read, this);
    m_stderr.notifier = new QSocketNotifier(m_stderr.fd, QSocketNotifier::Read, this);
    connect(m_stdout.notifier, &QSocketNotifier::activated, this,
            &YumIOCapturersMinion::readStdout);
    connect(m_stderr.notifier, &QSocketNotifier::activated, this,
            &YumIOCapturersMinion::readStderr);
    m_initialized = true;
}

void YumIOCapturersMinion::finalize()
{
    for (Stream *stream : {&m_stdout, &m_stderr}) {
        if (stream->notifier) {
            stream->notifier->setEnabled(false);
            stream->notifier->disconnect(this);
        }
        drain(*stream);
    }
    m_engine->flushTails();
    m_initialized = false;
    m_semaphore.release();
}

void YumIOCapturersMinion::readStdout()
{
    read(m_stdout, notificationLimit);
}

void YumIOCapturersMinion::readStderr()
{
    read(m_stderr, notificationLimit);
}

void YumIOCapturersMinion::read(Stream &stream, qsizetype limit)
{
    std::array<char, chunkSize> buffer;
    while (limit > 0) {
        const ssize_t count = ::read(stream.fd, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0 && stream.notifier) // every writer is gone; the notifier would never rest
            stream.notifier->setEnabled(false);
        if (count <= 0)
            return;
        stream.begun.append(buffer.data(), count);
        const qsizetype complete = stream.begun.size() - unfinished(stream.begun);
        (m_engine.data()->*stream.write)(QString::fromUtf8(stream.begun.constData(), complete));
        stream.begun.remove(0, complete);
        limit -= count;
    }
}

// What was written before the end of the capture fits the pipe, so a process that goes on writing
// is not followed beyond that.
void YumIOCapturersMinion::drain(Stream &stream)
{
    const int size = ::fcntl(stream.fd, F_GETPIPE_SZ);
    read(stream, size > 0 ? size : defaultPipeSize);
    if (!stream.begun.isEmpty())
        (m_engine.data()->*stream.write)(QString::fromUtf8(stream.begun));
    stream.begun.clear();
}

YumIOCapturers::YumIOCapturers(YumIO *engine) : m_engine(engine)
{
    for (int i = 0; i < 2; ++i)
        m_saved[i] = ::fcntl(i + 1, F_DUPFD_CLOEXEC, 3);
    if (!openPipes()) {
        m_engine->error(YumIO::tr("Unable to open pipe to capture rpm transaction output"));
        return;
    }
    divertMessages();
    if (!redirect()) {
        m_engine->error(YumIO::tr("Unable to dup2 pipe to capture rpm transaction output"));
        return;
    }
    m_minion = new YumIOCapturersMinion(m_engine, m_readEnds[0], m_readEnds[1]);
    m_minion->activate();
}

bool YumIOCapturers::openPipes()
{
    for (int i = 0; i < 2; ++i) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) == -1)
            return false;
        m_readEnds[i] = ends[0];
        m_writeEnds[i] = ends[1];
        ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    }
    return true;
}

// The outermost capture sends the program's own messages to where they went before.
void YumIOCapturers::divertMessages()
{
    const std::lock_guard lock(messageMutex);
    if (messageFd != -1 || m_saved[1] == -1)
        return;
    messageFd = m_saved[1];
    m_outerHandler = qInstallMessageHandler(writeMessage);
    m_diverting = true;
}

bool YumIOCapturers::redirect()
{
    for (int i = 0; i < 2; ++i) {
        if (::dup2(m_writeEnds[i], i + 1) == -1)
            return false;
        m_redirected[i] = true;
    }
    return true;
}

// True when both descriptors are what they were. One that was closed before is closed again.
bool YumIOCapturers::restore()
{
    for (int i = 0; i < 2; ++i) {
        if (!m_redirected[i])
            continue;
        if (m_saved[i] == -1)
            ::close(i + 1);
        else if (::dup2(m_saved[i], i + 1) == -1)
            return false;
    }
    return true;
}

YumIOCapturers::~YumIOCapturers()
{
    if (!restore()) {
        m_engine->error(YumIO::tr("Unable to dup2 to restore stderr"));
        return;
    }
    closeFd(m_writeEnds[0]);
    closeFd(m_writeEnds[1]);
    if (m_minion) {
        m_minion->deactivate();
        m_minion->deleteLater();
    } else {
        closeFd(m_readEnds[0]);
        closeFd(m_readEnds[1]);
    }
    if (m_diverting) {
        qInstallMessageHandler(m_outerHandler);
        const std::lock_guard lock(messageMutex);
        messageFd = -1;
    }
    closeFd(m_saved[0]);
    closeFd(m_saved[1]);
}

YumIOCapturersUser::YumIOCapturersUser(YumIOCapturers *&slot, YumIO *engine)
    : m_slot(slot), m_outer(slot)
{
    m_slot = new YumIOCapturers(engine);
}

YumIOCapturersUser::~YumIOCapturersUser()
{
    delete m_slot;
    m_slot = m_outer;
}
