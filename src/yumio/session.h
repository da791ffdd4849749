// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sources.h"

#include <QString>
#include <QStringList>

#include <optional>

struct _object;
typedef struct _object PyObject;

namespace Engine {

// Exceptions that the engine tells apart.
enum ExceptionType {
    BdbQuit,
    YumBaseError,
    RepoError,
    SqliteOperationalError,
    LockError,
    GroupsError,
    NoMoreMirrorsRepoError,
    ExceptionTypeCount
};

// What lasts as long as the interpreter: the script's class, its exceptions, the lock, and what was
// asked of the library once.
struct Script
{
    PyObject *yumIOClass = nullptr;                    // owned
    PyObject *rpmDict = nullptr;                       // borrowed from the module
    PyObject *exceptionTypes[ExceptionTypeCount] = {}; // borrowed, null where there is none
    bool locked = false;
    std::optional<QString> version;
    std::optional<bool> sqlite, presto, multiProgress;
    MissingRights missing;
};

// One object of the script with what was read through it. An owner of the reference releases it
// before the session is assigned to.
struct Session
{
    PyObject *yumIO = nullptr; // owned
    QStringList enabledRepos;
    QString basearch;
    bool fileLists = false; // are loaded
    bool otherData = false; // is loaded
    Sources sources;
    QList<Replacement> replacements;
    bool spent = false;  // a transaction ran: the rows are out of date
    QStringList changes; // of another program to what was read, in words
};

// How far a collection came, as far as that decides what can be done next.
enum class Collected {
    All,
    Cancelled,
    NotRpm,
    NoRepositories,
    NoneEnabled,
    RepositoriesFailed,
    Failed
};

// A repository that could not be used.
struct FailedRepo
{
    QString id;
    QString text;         // the reason
    bool refused = false; // the server refused user name and password
};

// Those of a job, with the report of what it could not do because of them; that is empty when it went
// on without them.
struct FailedRepos
{
    QList<FailedRepo> repos;
    QString report;
};

} // namespace Engine
