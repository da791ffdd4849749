// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rows.h"

#include "python/pyref.h"

#include "python/python.h"

#include <QStringList>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

// The base with its reports kept.
class Recorder : public Python
{
public:
    void error(const char *message) override { errors.append(QString::fromUtf8(message)); }
    void warning(const char *message) override { errors.append(QString::fromUtf8(message)); }
    void exceptionExpected() override { ++expected; }

    QStringList take() { return std::exchange(errors, {}); }

    QStringList errors;
    int expected = 0;
};

const QString unexpected = u"Internal error: python exception occurred from C code.\n"
                           "When reporting this issue, please include the contents of the\n"
                           "Log window, which should contain a walkback."_s;

QString internal(const char *format, const char *name)
{
    return u"Internal error: "_s + QString::asprintf(format, name);
}

} // namespace

class TestPython : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // What the environment says about interpreters is not for this one.
        qputenv("PYTHONPATH", "/nonexistent");
        qputenv("PYTHONHOME", "/nonexistent");
        QVERIFY(m_python->initialize());
        m_python->py("import io, sys\n"
                     "sys.stderr = io.StringIO()\n"
                     "number = 3\n"
                     "def add(a, b): return a + b\n"
                     "def fail(kind, *args): raise kind(*args)\n"
                     "class Told(Exception):\n"
                     "    def __init__(self, value): self.value = value\n");
        QCOMPARE(m_python->take(), QStringList());
    }

    void cleanup()
    {
        if (!m_python)
            return;
        QVERIFY(!PyErr_Occurred());
        m_python->errors.clear();
        m_python->expected = 0;
        printed();
    }

    void calls_data()
    {
        columns<QByteArray, QStringList>("name", "reports");

        row("works", QByteArray("add"), QStringList());
        row("missing", QByteArray("sys.missing"),
            QStringList{internal("%s not found\n", "missing"),
                        internal("%s not found\n", "sys.missing")});
        row("not callable", QByteArray("number"),
            QStringList(internal("%s not callable\n", "number")));
        row("raises", QByteArray("colorsys.rgb_to_hsv"), QStringList(unexpected));
    }

    void calls()
    {
        QFETCH(QByteArray, name);
        QFETCH(QStringList, reports);

        const PyRef result(m_python->pyCall(name, "(s,s)", "a", "\xc3\xa4"));
        QCOMPARE(m_python->take(), reports);
        QCOMPARE(bool(result), reports.isEmpty());
        if (result)
            QCOMPARE(m_python->pyString(result.get()), "a\xc3\xa4");
    }

    // What does not fit is refused or cut, not overrun.
    void formatsThatDoNotFit()
    {
        const QByteArray name(10239 - qstrlen("fits = ''"),
                              'x'); // with its terminating zero it fits
        m_python->pyf("fits = '%s'", name.constData());
        QCOMPARE(m_python->take(), QStringList());
        m_python->pyf("fits = '%sy'", name.constData());
        QVERIFY(!m_python->pyrf("'%s' + '123456789'", name.constData()));
        QCOMPARE(m_python->take().filter(u"Internal error: "_s).size(), 2);
        QCOMPARE(PyUnicode_GetLength(m_python->pyLookup("fits", false)), Py_ssize_t(name.size()));
        QVERIFY(!m_python->pyCall(QByteArray(5000, 'n'), "()"));
        for (const QString &report : m_python->take())
            QVERIFY(report.size() < 1024 && report.startsWith(u"Internal error: nnn"_s));
    }

    void texts()
    {
        const PyRef bytes(PyBytes_FromString("raw\xff"));
        QCOMPARE(m_python->pyString(bytes.get()), "raw\xff");
        QVERIFY(!m_python->pyString(Py_None));
        QCOMPARE(m_python->take(), QStringList());

        QVERIFY(!m_python->pyString(m_python->pyLookup("number", false)));
        const PyRef surrogate(m_python->pyr("'\\udc80'"));
        QVERIFY(!m_python->pyString(surrogate.get()));
        QCOMPARE(m_python->take(), QStringList({unexpected, unexpected}));
    }

    void expectedExceptions()
    {
        m_python->pyExceptStart();
        m_python->pyExceptExpect(PyExc_KeyError);
        m_python->pyExceptExpect(PyExc_OSError);
        // A subclass of an expected type is expected.
        QVERIFY(!m_python->pyCall("fail", "(O,i,s)", PyExc_FileNotFoundError, 2, "gone"));
        QCOMPARE(m_python->expected, 1);
        QVERIFY(m_python->pyExceptMatches(nullptr, PyExc_OSError));
        QVERIFY(!m_python->pyExceptMatches(nullptr, PyExc_KeyError));
        PyErr_Clear();
        QVERIFY(!m_python->pyExceptMatches(nullptr, PyExc_OSError));

        m_python->pyExceptClear();
        QVERIFY(!PyErr_Occurred());
        QCOMPARE(m_python->take(), QStringList());

        // With nothing expected any more it is an error, and is printed.
        QVERIFY(!m_python->pyCall("fail", "(O,s)", PyExc_ValueError, "the reason"));
        QCOMPARE(m_python->take(), QStringList(unexpected));
        const QString text = printed();
        QVERIFY2(text.contains(u"Traceback"_s), qPrintable(text));
        QVERIFY2(text.contains(u"ValueError: the reason"_s), qPrintable(text));
    }

    void exceptionTexts()
    {
        m_python->pyExceptStart();
        m_python->pyExceptExpect(PyExc_Exception);
        QVERIFY(!m_python->pyCall("fail", "(O,s)", m_python->pyLookup("Told", false), "by value"));
        QVERIFY(PyErr_Occurred());
        const PyRef told(m_python->pyExceptValuef());
        QCOMPARE(m_python->pyString(told.get()), "by value");
        PyErr_Clear();

        QVERIFY(!m_python->pyCall("fail", "(O,s)", PyExc_ValueError, "by str"));
        const PyRef plain(m_python->pyExceptValuef());
        QCOMPARE(m_python->pyString(plain.get()), "by str");
        PyErr_Clear();

        // One that the interpreter has not made an object of yet.
        PyErr_SetString(PyExc_SystemExit, "by C");
        const PyRef raw(m_python->pyExceptValuef());
        QCOMPARE(m_python->pyString(raw.get()), "by C");
        QVERIFY(m_python->pyExceptMatches(nullptr, PyExc_SystemExit));
        m_python->pyExceptClear();
        QCOMPARE(m_python->take(), QStringList());
    }

    void lockChangesHands()
    {
        for (int round = 0; round < 3; ++round) {
            const Python::PyThreadStateWrapper given;
            const std::unique_ptr<QThread> worker(QThread::create([&] {
                const Python::PyGILStateWrapper lock(true);
                m_python->pyf("from_worker = %d", round);
            }));
            worker->start();
            // Meanwhile this thread takes its turns.
            while (!worker->isFinished()) {
                const Python::PyGILStateWrapper lock(true);
                m_python->py("number = number");
            }
            worker->wait();
        }
        QCOMPARE(PyLong_AsLong(m_python->pyLookup("from_worker", false)), 2L);
    }

    // the last: it ends the interpreter
    void endsWithTheLibraryLoaded()
    {
        m_python->py("import dnf, hawkey, rpm, sqlite3, threading\n"
                     "kept = dnf.Base()\n"
                     "sys.stderr = sys.__stderr__\n");
        QCOMPARE(m_python->take(), QStringList());
        m_python.reset();
        QVERIFY(!Py_IsInitialized());
    }

private:
    QString printed()
    {
        const PyRef text(m_python->pyr("sys.stderr.getvalue()"));
        const QString result = QString::fromUtf8(m_python->pyString(text.get()));
        m_python->py("sys.stderr.seek(0); sys.stderr.truncate()");
        return result;
    }

    std::unique_ptr<Recorder> m_python = std::make_unique<Recorder>();
};

QTEST_GUILESS_MAIN(TestPython)
#include "test_python.moc"
