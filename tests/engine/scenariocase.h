#pragma once

#include "answers.h"

#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QMutexLocker>
#include <QTemporaryFile>

// An engine over the scripted packages of scenario/. The interpreter exists once in a process, so a
// test program has one of these.
class ScenarioCase
{
public:
    // Starts the engine with an empty scenario.
    bool start()
    {
        if (!m_file.open())
            return false;
        qputenv("VOK_TEST_SCENARIO", m_file.fileName().toUtf8());
        qputenv("VOKSHARE", ENGINE_SCENARIO_DIR);
        engine.setup(&window, &totalBar, &itemBar);
        return engine.initialize();
    }

    // The scenario of the script object that the next clear makes.
    void write(const QByteArray &source)
    {
        m_file.resize(0);
        m_file.seek(0);
        m_file.write(source);
        m_file.flush();
    }

    bool collect(const QByteArray &source, const QHash<QString, bool> &reposUsed = {})
    {
        write(source);
        engine.clear();
        m_logStart = logSize();
        return engine.collect(reposUsed);
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

    Package::Entry *row(const QString &name) const
    {
        for (Package::Entry *row : engine) {
            if (row->name == name)
                return row;
        }
        return nullptr;
    }

    // The script's methods that were called since the last collection began.
    QStringList calls()
    {
        return logged([](const Log::Entry &entry) { return entry.level == 9; });
    }

    // Errors and warnings since then.
    QStringList complaints()
    {
        return logged([](const Log::Entry &entry) {
            return entry.kind == Log::Kind::Error || entry.kind == Log::Kind::Warning;
        });
    }

    QWidget window;
    HProgressBar totalBar;
    HProgressBar itemBar;
    YumIO engine;

private:
    qsizetype logSize()
    {
        QMutexLocker lock(&engine.logList().mutex());
        return engine.logList().entries().size();
    }

    QStringList logged(const std::function<bool(const Log::Entry &)> &wanted)
    {
        QMutexLocker lock(&engine.logList().mutex());
        QStringList result;
        const QList<Log::Entry> &entries = engine.logList().entries();
        for (qsizetype i = m_logStart; i < entries.size(); ++i) {
            if (wanted(entries[i]))
                result.append(entries[i].text);
        }
        return result;
    }

    QTemporaryFile m_file;
    qsizetype m_logStart = 0;
};
