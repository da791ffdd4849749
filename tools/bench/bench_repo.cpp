// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// Measures reading and writing many repository files, against the budgets and against a loop that
// writes the same bytes with the same syncs. Medians of five; tools/bench-repo builds and runs it.

#include "configroot.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <unistd.h>

namespace {

double timed(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(QList<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

QByteArray section(int number)
{
    const QByteArray id = QByteArray::number(number);
    return "[repository-" + id + "]\nname=Repository " + id +
           " - $basearch\nbaseurl=https://mirror.example/" + id +
           "/$releasever/$basearch/os/\n        https://other.example/" + id +
           "/\nmirrorlist=https://mirrors.example/?repo=" + id +
           "&arch=$basearch\nenabled=" + (number % 3 ? "1" : "0") +
           "\ngpgcheck=1\ngpgkey=file:///etc/pki/rpm-gpg/KEY-" + id +
           "\nmetadata_expire=6h\nskip_if_unavailable=False\n";
}

// Five repositories to two files.
void fill(const ConfigRoot &root, int files)
{
    int number = 0;
    for (int i = 0; i < files; ++i) {
        QByteArray bytes;
        for (int left = i % 2 ? 3 : 2; left > 0; --left)
            bytes += section(number++) + (left > 1 ? "\n" : "");
        root.put(ConfigRoot::repo(QString::number(i)), bytes);
    }
}

void need(bool condition)
{
    if (!condition)
        qFatal("a system call failed");
}

void plainLoop(const QString &directory, const QList<QByteArray> &contents)
{
    const QByteArray base = directory.toLocal8Bit();
    for (qsizetype i = 0; i < contents.size(); ++i) {
        const QByteArray path = base + '/' + QByteArray::number(i), fresh = path + ".new";
        const int fd = open(fresh, O_WRONLY | O_CREAT | O_TRUNC, 0644);
        need(fd >= 0);
        need(::write(fd, contents[i].constData(), size_t(contents[i].size())) ==
             contents[i].size());
        need(fsync(fd) == 0);
        close(fd);
        need(rename(fresh, path) == 0);
        const int folder = open(base, O_RDONLY | O_DIRECTORY);
        need(fsync(folder) == 0);
        close(folder);
    }
}

struct Result
{
    double read, first, write, plain;
    qsizetype repos;
};

Result measure(int files)
{
    ConfigRoot root;
    fill(root, files);
    Result result = {};
    const auto read = [&] { need(root.io.read(nullptr)); };
    const auto write = [&] { need(root.io.write(nullptr)); };
    QList<double> reads, writes, plains;
    for (int i = 0; i < 5; ++i)
        reads += timed(read);
    result.repos = root.io.repos.size();
    result.first = timed(write);

    QList<QByteArray> contents = {root.get(ConfigRoot::mainFile())};
    for (int i = 0; i < files; ++i)
        contents += root.get(ConfigRoot::repo(QString::number(i)));
    const QString directory = root.real(QStringLiteral("/plain"));
    QDir().mkpath(directory);
    plainLoop(directory, contents); // the files are there already, as the others are
    for (int i = 0; i < 5; ++i) {   // by turns: the disk has its moods
        plains += timed([&] { plainLoop(directory, contents); });
        writes += timed(write);
    }
    result.read = median(reads);
    result.write = median(writes);
    result.plain = median(plains);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    printf("%6s %6s %10s %12s %10s %10s %7s\n", "files", "repos", "read ms", "1st write ms",
           "write ms", "plain ms", "ratio");
    bool good = true;
    double perFile = 0;
    for (const int files : {500, 2000, 4000}) {
        const Result result = measure(files);
        const double ratio = result.write / result.plain;
        printf("%6d %6d %10.1f %12.1f %10.1f %10.1f %7.2f\n", files, int(result.repos), result.read,
               result.first, result.write, result.plain, ratio);
        fflush(stdout);
        if (files == 500)
            perFile = result.read / files;
        if (files == 2000)
            good = good && result.read <= 150 && ratio <= 1.5;
        if (files == 4000)
            good = good && result.read / files <= 1.5 * perFile; // linear
    }
    puts(good ? "within the budgets" : "over the budgets");
    return good ? 0 : 1;
}
