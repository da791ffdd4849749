// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "app/main/commandline.h"
#include "app/main/defaultstyle.h"
#include "app/main/translations.h"
#include "mainwindow/mainwindow.h"

#include <QApplication>
#include <QSettings>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <getopt.h>

class TestStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void options_data()
    {
        // arguments: separated by blanks; '' is an empty one
        columns<QString, QString>("arguments", "calls");
        const auto row = [](const char *arguments, const char *calls) {
            ::row(arguments, arguments, calls);
        };
        row("-m ''", "mode 0");
        row("--mode=search", "mode 1");
        row("-s ''", "state 0");
        row("--state=rem", "state 2");
        row("-e ^kernel.*", "regexp ^kernel.*");
        row("--regexp=", "regexp ");
        row("--duplicates", "dups 0");
        row("-grl", "groups 1,editor 1,log 1");
        row("-s a -m s -s u", "state 3,mode 1,state 0");
    }

    void options()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, calls);
        QCOMPARE(apply(arguments).join(u','), calls);
    }

    void repositories()
    {
        const QStringList calls = apply(QStringLiteral("--enablerepo=a* --disablerepo b"));
        QCOMPARE(calls.size(), 2);
        QVERIFY(calls[0].startsWith(QStringLiteral("enable ")));
        QVERIFY(calls[1].startsWith(QStringLiteral("disable ")));
        // The patterns are wildcards.
        QVERIFY(YumRepoEnabled(true, QStringLiteral("a*")).matches(QStringLiteral("a/b")));
        QVERIFY(calls[0].endsWith(YumRepoEnabled(true, QStringLiteral("a*")).pattern.pattern()));
        QVERIFY(calls[1].endsWith(YumRepoEnabled(true, QStringLiteral("b")).pattern.pattern()));
    }

    void style_data()
    {
        columns<QStringList, bool, bool>("arguments", "inSettings", "isSet");
        const auto words = [](const char *text) { return QString::fromLatin1(text).split(u' '); };
        row("nothing", words("vok -l"), false, true);
        row("option", words("vok -style windows"), false, false);
        row("option with value", words("vok -l -style=windows"), false, false);
        row("two dashes", words("vok --style windows"), false, false);
        row("two dashes with value", words("vok --style=windows"), false, false);
        row("settings", words("vok"), true, false);
    }

    void style()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, inSettings);
        QFETCH(bool, isSet);
        QTemporaryDir dir;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dir.path());
        if (inSettings) {
            QSettings settings(QSettings::UserScope, QStringLiteral("Trolltech"));
            settings.setValue(QStringLiteral("Qt/style"), QStringLiteral("windows"));
        }
        QApplication::setStyle(QStringLiteral("windows"));
        QPalette odd;
        odd.setColor(QPalette::Window, Qt::magenta);
        QApplication::setPalette(odd);

        Arguments raw(arguments);
        DefaultStyle style(raw.count(), const_cast<const char **>(raw.data()));
        style.set(*qApp, QStringLiteral("plastique"));
        QCOMPARE(QApplication::style()->name(),
                 isSet ? QStringLiteral("fusion") : QStringLiteral("windows"));
        QCOMPARE(QApplication::palette().color(QPalette::Window) == QColor(Qt::magenta), !isSet);
    }

    void language_data()
    {
        columns<QString, QString, QString, QString>("LANGUAGE", "LC_ALL", "VOKLANGUAGE", "text");
        row("locale", "", "de_AT.UTF-8", "", "Hilfe");
        row("first there is", "xx:de:en", "C.UTF-8", "", "Hilfe");
        row("English first", "en_US:de", "de_DE.UTF-8", "", "Help");
        row("C", "de", "C", "", "Help");
        row("chosen", "", "C", "de", "Hilfe");
    }

    void language()
    {
        for (const char *name : {"LANGUAGE", "LC_ALL", "VOKLANGUAGE"})
            qputenv(name,
                    static_cast<QString *>(QTest::qData(name, qMetaTypeId<QString>()))->toUtf8());
        installTranslations(*qApp);
        const QString text = QCoreApplication::translate("Execute", "Help");
        qDeleteAll(qApp->findChildren<QTranslator *>());
        QTEST(text, "text");
    }

private:
    class Arguments
    {
    public:
        explicit Arguments(const QStringList &words)
        {
            for (const QString &word : words)
                m_words.append(word == QStringLiteral("''") ? QByteArray() : word.toLocal8Bit());
            for (QByteArray &word : m_words)
                m_pointers.append(word.data());
            m_pointers.append(nullptr);
        }
        int count() const { return int(m_words.size()); }
        char **data() { return m_pointers.data(); }

    private:
        QList<QByteArray> m_words;
        QList<char *> m_pointers;
    };

    static QStringList apply(const QString &arguments)
    {
        Arguments raw(QStringLiteral("vok ").append(arguments).split(u' '));
        MainWindow window;
        optind = 0; // starts anew
        applyCommandLine(raw.count(), raw.data(), window);
        return window.calls;
    }
};

QTEST_MAIN(TestStart)
#include "test_start.moc"
