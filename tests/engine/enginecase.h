#pragma once

#include "answers.h"

#include "progress/hprogressbar.h"
#include "yumio/yumio.h"

#include <QTemporaryFile>
#include <QTest>

// An engine over the scripted packages of case/, whose next transaction is written as Python. The
// interpreter exists once in a process, so a test program has one of these.
class EngineCase
{
public:
    bool start()
    {
        if (!m_file.open())
            return false;
        qputenv("VOK_TEST_CASE", m_file.fileName().toUtf8());
        qputenv("VOKSHARE", ENGINE_CASE_DIR);
        engine.setup(&m_window, &totalBar, &itemBar);
        return engine.initialize();
    }

    void write(const QString &source)
    {
        m_file.resize(0);
        m_file.seek(0);
        m_file.write("def probe():\n    yumIOC.lockWait(0, 'probe')\n\n");
        m_file.write(source.toUtf8());
        m_file.flush();
    }

    // Collects afresh and marks rows: "name action" items, groups as "@name action".
    bool mark(const QStringList &marks)
    {
        m_file.resize(0);
        engine.clear();
        if (!engine.collect({}))
            return false;
        for (const QString &mark : marks) {
            Package::Entry *row = entry(mark.section(QLatin1Char(' '), 0, 0));
            if (!row)
                return false;
            row->action = actionOf(mark.section(QLatin1Char(' '), 1));
        }
        QMutexLocker lock(&engine.logList().mutex());
        m_logStart = engine.logList().entries().size();
        return true;
    }

    Package::Entry *entry(const QString &name)
    {
        const bool isGroup = name.startsWith(QLatin1Char('@'));
        for (Package::Entry *row : engine) {
            if ((row->kind == Package::Kind::Group) == isGroup &&
                row->name == name.mid(isGroup ? 1 : 0))
                return row;
        }
        return nullptr;
    }

    // What was logged since the marks were set, as "kind/level text".
    QStringList logged()
    {
        QMutexLocker lock(&engine.logList().mutex());
        QStringList result;
        const auto &entries = engine.logList().entries();
        for (qsizetype i = m_logStart; i < entries.size(); ++i) {
            result.append(QStringLiteral("%1/%2 %3")
                              .arg(int(entries[i].kind))
                              .arg(entries[i].level)
                              .arg(entries[i].text));
        }
        return result;
    }

    // Runs `source` as the transaction of these marks.
    bool apply(const QStringList &marks, const QString &source, Answers &answers)
    {
        if (!mark(marks))
            return false;
        write(source);
        observeBars(answers);
        return engine.apply();
    }

    // Runs `source` as the loading of the repositories' metadata.
    bool collect(const QString &source, Answers &answers)
    {
        engine.clear();
        write(source);
        observeBars(answers);
        const bool collected = engine.collect({});
        m_file.resize(0);
        return collected;
    }

    void observeBars(Answers &answers)
    {
        answers.probeText = QStringLiteral("probe (process 0)");
        answers.observe = [this] {
            return QStringLiteral("%1/%2 %3 %4")
                .arg(totalBar.value())
                .arg(totalBar.maximum())
                .arg(itemBar.maximum())
                .arg(itemBar.text().section(QStringLiteral(" ("), 0, 0));
        };
    }

    HProgressBar totalBar;
    HProgressBar itemBar;
    YumIO engine;

private:
    static Package::Action actionOf(const QString &name)
    {
        return name == QLatin1String("update")    ? Package::Action::Update
               : name == QLatin1String("install") ? Package::Action::Install
                                                  : Package::Action::Remove;
    }

    QWidget m_window;
    QTemporaryFile m_file;
    qsizetype m_logStart = 0;
};
