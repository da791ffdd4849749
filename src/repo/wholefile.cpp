// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wholefile.h"

#include <QList>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr char copySuffix[] = ".vok-orig";

// A descriptor that closes itself and leaves errno alone.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        const int kept = errno;
        if (m_fd >= 0)
            ::close(m_fd);
        errno = kept;
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int get() const { return m_fd; }
    bool isOpen() const { return m_fd >= 0; }

private:
    int m_fd;
};

bool fail(int error)
{
    errno = error;
    return false;
}

void removeQuietly(const QByteArray &path)
{
    const int kept = errno;
    unlink(path.constData());
    errno = kept;
}

bool writeAll(int fd, const QByteArray &content)
{
    const char *data = content.constData();
    size_t left = size_t(content.size());
    while (left > 0) {
        const ssize_t written = ::write(fd, data, left);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return written < 0 ? false : fail(EIO);
        data += written;
        left -= size_t(written);
    }
    return true;
}

bool syncDirectoryOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray directory = slash > 0 ? path.left(slash) : QByteArray("/");
    const Descriptor fd(open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!fd.isOpen())
        return false;
    // Some file systems cannot do it for a directory, and need it as little.
    return fsync(fd.get()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// Attributes that describe the bytes and not the file; the kernel makes them anew.
bool belongsToContent(const QByteArray &name)
{
    return name == "security.ima" || name == "security.evm";
}

QByteArray attribute(const QByteArray &path, const char *name, bool &found)
{
    QByteArray value;
    ssize_t size = lgetxattr(path.constData(), name, nullptr, 0);
    if (size > 0) {
        value.resize(size);
        size = lgetxattr(path.constData(), name, value.data(), size_t(size));
    }
    found = size >= 0;
    value.truncate(found ? size : 0);
    return value;
}

// Access lists and the security label are extended attributes like any other.
bool copyAttributes(const QByteArray &from, const QByteArray &to)
{
    const ssize_t size = llistxattr(from.constData(), nullptr, 0);
    if (size <= 0)
        return size == 0 || errno == ENOTSUP;
    QByteArray names(size, '\0');
    const ssize_t length = llistxattr(from.constData(), names.data(), size_t(size));
    if (length < 0)
        return false;
    names.truncate(length);
    for (const QByteArray &name : names.split('\0')) {
        if (name.isEmpty() || belongsToContent(name))
            continue;
        bool found = false, same = false;
        const QByteArray value = attribute(from, name.constData(), found);
        if (!found)
            continue; // gone meanwhile
        if (lsetxattr(to.constData(), name.constData(), value.constData(), size_t(value.size()),
                      0) == 0)
            continue;
        const int error = errno;
        if (attribute(to, name.constData(), same) != value || !same)
            return fail(error);
    }
    return true;
}

// The new file is its owner's alone until it belongs to whom it shall.
bool copyIdentity(const struct stat &status, const QByteArray &from, int fd, const QByteArray &to)
{
    struct stat own;
    if (fstat(fd, &own) != 0)
        return false;
    if ((own.st_uid != status.st_uid || own.st_gid != status.st_gid) &&
        fchown(fd, status.st_uid, status.st_gid) != 0)
        return false;
    // The mode comes last: an access list brings one of its own.
    return copyAttributes(from, to) && fchmod(fd, status.st_mode & 07777) == 0;
}

// Writes a complete new file `path`. `like`, where given, is the file whose identity it gets.
bool create(const QByteArray &path, const QByteArray &content, const struct stat *like,
            const QByteArray &likePath, mode_t newMode)
{
    // A stale one is of a writer that was killed.
    if (unlink(path.constData()) != 0 && errno != ENOENT)
        return false;
    const Descriptor fd(
        open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!fd.isOpen())
        return false;
    const bool identity =
        like ? copyIdentity(*like, likePath, fd.get(), path) : fchmod(fd.get(), newMode) == 0;
    if (identity && writeAll(fd.get(), content) && fsync(fd.get()) == 0)
        return true;
    removeQuietly(path);
    return false;
}

} // namespace

bool WholeFile::read(const QByteArray &path, QByteArray &content)
{
    const Descriptor fd(open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status;
    if (!fd.isOpen() || fstat(fd.get(), &status) != 0)
        return false;
    if (!S_ISREG(status.st_mode))
        return fail(S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP);
    content.resize(status.st_size + 1); // one more, to see the end at once
    qsizetype length = 0;
    for (;;) {
        const ssize_t got =
            ::read(fd.get(), content.data() + length, size_t(content.size() - length));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return false;
        length += got;
        if (got == 0)
            break;
        if (length == content.size())
            content.resize(content.size() * 2);
    }
    content.truncate(length);
    return true;
}

QByteArray WholeFile::missingCopy(const QByteArray &path)
{
    const QByteArray copy = path + copySuffix;
    struct stat status;
    const bool isMissing = lstat(path.constData(), &status) == 0 && S_ISREG(status.st_mode) &&
                           lstat(copy.constData(), &status) != 0;
    return isMissing ? copy : QByteArray();
}

bool WholeFile::keep(const QByteArray &path)
{
    const QByteArray original = path + copySuffix;
    struct stat status;
    if (lstat(original.constData(), &status) == 0)
        return true;
    // A second name for the file itself: it takes no space and has no rights of its own. The first
    // name then goes to another file.
    if (link(path.constData(), original.constData()) == 0 || errno == EEXIST)
        return true;
    if (errno != EPERM && errno != EMLINK && errno != ENOTSUP && errno != ENOSYS)
        return false;

    QByteArray content;
    const QByteArray fresh = original + ".vok-new";
    if (lstat(path.constData(), &status) != 0 || !read(path, content) ||
        !create(fresh, content, &status, path, 0600))
        return false;
    if (rename(fresh.constData(), original.constData()) == 0)
        return true;
    removeQuietly(fresh);
    return false;
}

bool WholeFile::replace(const QByteArray &path, const QByteArray &content, mode_t newMode,
                        mode_t taken)
{
    struct stat status;
    const bool exists = lstat(path.constData(), &status) == 0;
    if (!exists && errno != ENOENT)
        return false;
    if (exists && !S_ISREG(status.st_mode))
        return fail(S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP);
    // Renaming asks the directory only; whoever took the right to write from the file meant it.
    if (exists && faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) != 0)
        return false;
    status.st_mode &= ~taken;

    const QByteArray fresh = path + ".vok-new";
    if (!create(fresh, content, exists ? &status : nullptr, path, newMode))
        return false;
    if ((!exists || keep(path)) && rename(fresh.constData(), path.constData()) == 0)
        return syncDirectoryOf(path);
    removeQuietly(fresh);
    return false;
}

bool WholeFile::remove(const QByteArray &path)
{
    struct stat status;
    if (lstat(path.constData(), &status) != 0 || (S_ISREG(status.st_mode) && !keep(path)))
        return false;
    return unlink(path.constData()) == 0 && syncDirectoryOf(path);
}
