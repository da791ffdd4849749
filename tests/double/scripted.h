// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "answers.h"

#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QFile>
#include <QMutexLocker>
#include <QTemporaryDir>
#include <QTest>

inline QString s(const char *text)
{
    return QString::fromUtf8(text);
}

// An engine over the scripted packages of python/. The interpreter exists once in a process, so a
// test program has one of these.
class Scripted
{
    QTemporaryDir m_dir;
    QString m_scenario = m_dir.filePath(QStringLiteral("scenario"));
    QString m_step = m_dir.filePath(QStringLiteral("step"));
    QWidget m_window;
    qsizetype m_logStart = 0;

public:
    // Starts the engine with a scenario that is there, or an empty one.
    bool start(const char *scenario = nullptr)
    {
        write(m_scenario, QByteArray());
        write(m_step, QByteArray());
        qputenv("VOK_TEST_SCENARIO",
                scenario ? QByteArray(VOK_DOUBLE "/python/") + scenario : m_scenario.toUtf8());
        qputenv("VOK_TEST_STEP", m_step.toUtf8());
        qputenv("VOKSHARE", VOK_DOUBLE);
        engine.setup(&m_window, &totalBar, &itemBar);
        return engine.initialize();
    }

    // Collects the packages of a scenario that is written here.
    bool collect(const QByteArray &scenario, const QHash<QString, bool> &reposUsed = {})
    {
        write(m_scenario, scenario);
        engine.clear();
        m_logStart = logSize();
        return engine.collect(reposUsed);
    }

    // Collects afresh and marks rows: "name action" items, groups as "@name action".
    bool mark(const QStringList &marks)
    {
        write(m_step, QByteArray());
        engine.clear();
        if (!engine.collect({}))
            return false;
        for (const QString &mark : marks) {
            Package::Entry *marked = row(mark.section(u' ', 0, 0));
            if (!marked)
                return false;
            marked->action = actionOf(mark.section(u' ', 1));
        }
        m_logStart = logSize();
        return true;
    }

    // What the scenario runs at its next step.
    void setStep(const QString &source) { write(m_step, source.toUtf8()); }

    // Runs `source` as the transaction of these marks.
    bool apply(const QStringList &marks, const QString &source, Answers &answers)
    {
        if (!mark(marks))
            return false;
        setStep(source);
        observeBars(answers);
        return engine.apply();
    }

    // At each probe of the script: the total's value and maximum, the item's maximum and text.
    void observeBars(Answers &answers)
    {
        answers.probeText = QStringLiteral("Key: probe");
        answers.observe = [this] {
            return QStringLiteral("%1/%2 %3 %4")
                .arg(totalBar.value())
                .arg(totalBar.maximum())
                .arg(itemBar.maximum())
                .arg(itemBar.text().section(QStringLiteral(" ("), 0, 0));
        };
    }

    // A group as "@name".
    Package::Entry *row(const QString &name) const
    {
        const bool isGroup = name.startsWith(u'@');
        for (Package::Entry *row : engine) {
            if ((row->kind == Package::Kind::Group) == isGroup && row->name == name.mid(isGroup))
                return row;
        }
        return nullptr;
    }

    // The rows in order of their texts: "kind state name version arch family repo", "dup" for a
    // duplicate, and the versions of the chain behind " < ".
    QStringList rows() const
    {
        QStringList result;
        for (const Package::Entry *row : engine) {
            QString text = QStringLiteral("%1%2 %3 %4 %5 %6 %7%8")
                               .arg(int(row->kind))
                               .arg(int(row->state))
                               .arg(row->name, row->verRel, row->arch, row->biArch, row->repo,
                                    row->duplicate ? QStringLiteral(" dup") : QString());
            for (const Package::Entry *old = row->next; old; old = old->next)
                text += QStringLiteral(" < ") + old->verRel + u' ' + old->arch;
            result.append(text.simplified());
        }
        result.sort();
        return result;
    }

    // What was logged since the last collection began or the marks were set, as "kind/level text".
    QStringList logged()
    {
        QMutexLocker lock(&engine.logList().mutex());
        QStringList result;
        for (const Log::Entry &entry : engine.logList().entries().mid(m_logStart)) {
            result.append(
                QStringLiteral("%1/%2 %3").arg(int(entry.kind)).arg(entry.level).arg(entry.text));
        }
        return result;
    }

    // The script's methods that were called since then.
    QStringList calls()
    {
        QStringList result = logged().filter(QRegularExpression(QStringLiteral("^0/9 ")));
        for (QString &call : result)
            call.remove(0, 4);
        return result;
    }

    HProgressBar totalBar;
    HProgressBar itemBar;
    YumIO engine;

private:
    static void write(const QString &path, const QByteArray &source)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    static Package::Action actionOf(const QString &name)
    {
        return name == QLatin1String("update")    ? Package::Action::Update
               : name == QLatin1String("install") ? Package::Action::Install
                                                  : Package::Action::Remove;
    }

    qsizetype logSize()
    {
        QMutexLocker lock(&engine.logList().mutex());
        return engine.logList().entries().size();
    }
};
