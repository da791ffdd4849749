// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "repoentry.h"
#include "yumrepoenabled.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QWidget>

#include <cstdio>
#include <memory>

// Reads the main configuration file and every repository definition file, keeps the definitions as
// a list, and writes an edited list back. The only one that touches these files.
//
// Options that it does not know are kept as lines. Each file whose bytes change is written beside
// its target and renamed over it, so that at any moment it is whole; what a file held before the
// first change stays beside it with the suffix ".vok-orig". Paths are those inside the system root.
// GUI thread only: failures and questions are modal boxes.
class YumConfIO : public QObject
{
    Q_OBJECT

public:
    // Both are the caller's and must outlive this object. `reposUsed` is filled by read() and never
    // cleared: an identifier that it holds already keeps its value.
    YumConfIO(const QList<YumRepoEnabled> &repoEnabled, QHash<QString, bool> &reposUsed);

    // The main configuration file, found afresh at each call.
    static QString fileName();

    // Reads everything anew. False once a failure was shown; `repos` then holds what was read
    // before. A file that the user may not read is no failure: it is left out.
    bool read(QWidget *parent);
    // The files that the last read() left out, to be shown. Nothing is written while there are any.
    const QStringList &unreadable() const { return m_unreadable; }
    // Why nothing may be written, in words, for those that would offer it; empty when it may.
    void setLookOnly(const QString &reason) { m_lookOnly = reason; }
    const QString &lookOnly() const { return m_lookOnly; }
    // Checks, asks, writes all files and removes those that hold no repository any more. False when
    // the user declined, or when it was shown why nothing or not everything was written; what was
    // written until then stays written, and `repos` is as it was.
    bool write(QWidget *parent);
    // What a file holds of a repository.
    static QString sectionText(const Repo::Entry &entry);
    // Whether a password stands in one of its fields.
    static bool carriesPassword(const Repo::Entry &entry);
    // The passwords of an entry that consist of mask characters alone, without those that `before`,
    // the same entry as it was read, has too. `mask` is the style's mask character.
    static QStringList maskedPasswords(const Repo::Entry &entry, const Repo::Entry &before,
                                       QChar mask = QChar(0x25cf));

    // What write() would make of one file, as text.
    struct FileChange
    {
        QString path;
        bool existed = false;
        bool removed = false;
        QString before, after;
        QString copy = {}; // of what it holds now, when the write makes one
    };
    struct Preview
    {
        QStringList refusals;      // why nothing would be written; empty when it would
        QStringList notes;         // what is worth knowing before
        QList<FileChange> changes; // only of files that would be other ones afterwards
    };
    // Asks and touches nothing.
    Preview preview();
    // The path of the file that an entry is written to.
    QString fileOf(const Repo::Entry &entry) const;
    // Whether others can read the file, and cannot any more once it has its first password.
    bool losesReaders(const QString &path) const;

    QString cachedir;
    QStringList reposdirs;
    bool mainEnabled = false;
    bool mainGpgcheck = false;
    QList<Repo::Entry> repos; // edited in place between read() and write()
    const QList<YumRepoEnabled> &repoEnabled;
    QHash<QString, bool> &reposUsed;

    // One open file each: the parts of read() and write().
    bool readConfFile(FILE *file);
    bool readRepoFile(FILE *file, const QString &path);
    bool writeRepo(FILE *file, const Repo::Entry &entry) const;

    // The value of `line` if it sets `option`: the name from the first column, then blanks or tabs,
    // then ":" or "=".
    static bool isOption(const QString &line, const QString &option, QString &value);
    static bool filePositionLessThan(const Repo::Entry &a, const Repo::Entry &b);

Q_SIGNALS:
    void changed(); // after a complete read()

private:
    enum LineResult { LineRead = 0, EndOfFile = 1, ReadError = 2 };

    // What is known of a file that was read, by the path it was read under.
    struct FileState
    {
        QByteArray digest;    // of its bytes
        bool latin1 = false;  // not UTF-8: its bytes stand for the first 256 characters
        bool bom = false;     // began with a byte order mark
        bool secret = false;  // holds a password
        QSet<QString> idents; // the repositories in it
    };

    struct FileContent
    {
        QString path;
        QList<Repo::Entry> entries;
        QByteArray bytes = {};  // as it is to be
        FileState state = {};   // once it is so
        bool existed = false;   // as it is on the disk
        QByteArray before = {}; // the same; not known when it cannot be read

        bool isChange() const { return !existed || bytes != before; }
    };

    // A write in memory.
    struct Plan
    {
        QList<Repo::Entry> list; // the repositories afterwards
        QList<FileContent> contents;
        QSet<QString> used; // the paths of files with repositories
        QStringList refusals;
        QStringList notes;
        bool drops = false; // repositories without a name of their own
    };

    // What the reader makes of the bytes of one file.
    struct ReadBack
    {
        QList<Repo::Entry> repos;
        QString mainText;
        QString fault;
    };

    using File = std::unique_ptr<FILE, int (*)(FILE *)>;
    enum OpenResult { Opened, LeftOut, Failed };

    // The names in a directory that end in ".repo", in the directory's order, as paths.
    static QStringList repoFiles(const QString &directory);
    OpenResult openForReading(const QString &path, const QByteArray &located,
                              const QString &failure, File &file);
    static FileState examine(FILE *file);
    void noteRead(const QString &path, FileState state, qsizetype firstRepo);
    bool readMainFile();
    bool readReposDir(const QString &directory);
    bool readReposFile(const QString &path, const QByteArray &real);
    int readLogicalLine(FILE *file, const QString &path, QString &line);
    int readLine(FILE *file, const QString &path, QString &line);
    void unreadLine(const QString &line);
    void readMainOption(const QString &line);
    void readOption(const QString &line, bool first, Repo::Entry &entry);
    void finishSection(Repo::Entry &entry, bool first);
    static void cleanupRead(Repo::Entry &entry);
    void applyUsedOptions(const Repo::Entry &entry);

    static FileState stateOf(const QByteArray &bytes);
    static QString toText(const QByteArray &bytes);
    ReadBack readBack(const QByteArray &bytes, bool isMain) const;

    Plan makePlan();
    static void normalise(Repo::Entry &entry);
    void cleanupWrite(QList<Repo::Entry> &list) const;
    QList<FileContent> sortedContents(QList<Repo::Entry> sorted) const;
    void render(FileContent &content);
    QByteArray bytesOf(const FileContent &content, bool latin1, bool bom);
    void put(FILE *file, const QString &text) const;
    bool writeContents(const QList<FileContent> &contents);
    bool writeFile(const FileContent &content);
    QStringList unusedFiles(const QSet<QString> &usedFiles, bool *failed) const;
    bool removeUnusedFiles(const QSet<QString> &usedFiles);

    static bool hasEmptyId(const QList<Repo::Entry> &list);
    static QString getDuplicateId(const QList<Repo::Entry> &list);
    static QStringList checkErrors(QList<Repo::Entry> &list);
    QStringList refusals(const FileContent &content);
    Repo::Entry asRead(const Repo::Entry &entry) const;
    QString refusal(const Repo::Entry &entry, const QString &path);
    QStringList warnings(const QList<Repo::Entry> &list) const;
    QStringList changedOnDisk(const Plan &plan) const;
    static QString changedOnDiskNote(const QStringList &files);

    // `loses`: a yes takes something away.
    bool ask(const QString &question, bool loses);
    // `more` is shown behind the reason.
    void error(const QString &message, const QString &more = QString()) const;

    QString m_mainText; // the main file up to its first repository section
    QPointer<QWidget> m_parent;
    QStringList m_pendingLines; // look-ahead and pushed-back lines
    bool m_latin1 = false;      // how the file at hand is decoded and encoded
    QHash<QString, FileState> m_files;
    QStringList m_unreadable;
    QString m_lookOnly;
    QList<Repo::Entry> m_asRead; // or as last written
    QString *m_fault = nullptr;  // where given, failures go there and are not shown
};
