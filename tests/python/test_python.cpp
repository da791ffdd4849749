#include "python/pyref.h"

#include "python/python.h"

#include <QStringList>
#include <QTest>
#include <QThread>

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

const QString unexpected =
    QStringLiteral("Internal error: python exception occurred from C code.\n"
                   "When reporting this issue, please include the contents of the\n"
                   "Log window, which should contain a walkback.");

QString internal(const char *format, const char *name)
{
    return QStringLiteral("Internal error: ") + QString::asprintf(format, name);
}

} // namespace

class TestPython : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void lookup_data();
    void lookup();
    void calls_data();
    void calls();
    void methodCalls();
    void statementsAndExpressions();
    void formatsThatDoNotFit();
    void values();
    void texts();
    void expectedExceptions();
    void expectationsNest();
    void exceptionTexts();
    void unexpectedExceptionIsPrinted();
    void lockChangesHands();
    void endsWithTheLibraryLoaded(); // the last: it ends the interpreter

private:
    QString printed();

    std::unique_ptr<Recorder> m_python = std::make_unique<Recorder>();
};

void TestPython::initTestCase()
{
    // What the environment says about interpreters is not for this one.
    qputenv("PYTHONPATH", "/nonexistent");
    qputenv("PYTHONHOME", "/nonexistent");
    QVERIFY(m_python->initialize());
    m_python->py("import io, sys\n"
                 "sys.stderr = io.StringIO()\n"
                 "number = 3\n"
                 "table = {'key': 'value', 'inner': {'deep': 1}}\n"
                 "def add(a, b): return a + b\n"
                 "def fail(kind, *args): raise kind(*args)\n"
                 "class Thing:\n"
                 "    attribute = 7\n"
                 "    def twice(self, x): return 2 * x\n"
                 "    def bad(self): raise KeyError('bad')\n"
                 "thing = Thing()\n"
                 "class Told(Exception):\n"
                 "    def __init__(self, value): self.value = value\n");
    // Again: nothing is run afresh.
    QVERIFY(m_python->initialize());
    QVERIFY(m_python->pyLookup("number", false));
    const PyRef isolated(m_python->pyr("'/nonexistent' not in sys.path and "
                                       "sys.getfilesystemencoding() == 'utf-8'"));
    QCOMPARE(isolated.get(), Py_True);
    QCOMPARE(m_python->take(), QStringList());
}

void TestPython::cleanup()
{
    if (!m_python)
        return;
    QVERIFY(!PyErr_Occurred());
    m_python->errors.clear();
    m_python->expected = 0;
    printed();
}

QString TestPython::printed()
{
    const PyRef text(m_python->pyr("sys.stderr.getvalue()"));
    const QString result = QString::fromUtf8(m_python->pyString(text.get()));
    m_python->py("sys.stderr.seek(0); sys.stderr.truncate()");
    return result;
}

void TestPython::lookup_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("missing"); // the segment reported, empty when found

    QTest::newRow("global") << QByteArray("number") << QString();
    QTest::newRow("module imported on demand") << QByteArray("colorsys.rgb_to_hsv") << QString();
    QTest::newRow("dictionary") << QByteArray("table.inner.deep") << QString();
    QTest::newRow("builtin") << QByteArray("__builtins__.str") << QString();
    QTest::newRow("first missing") << QByteArray("nowhere.at.all") << QStringLiteral("nowhere");
    QTest::newRow("later missing") << QByteArray("sys.nothing.more") << QStringLiteral("nothing");
    QTest::newRow("attribute of an object")
        << QByteArray("thing.attribute") << QStringLiteral("attribute");
}

void TestPython::lookup()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, missing);

    QCOMPARE(m_python->pyLookup(name, true) != nullptr, missing.isEmpty());
    QCOMPARE(m_python->take(), QStringList());
    QCOMPARE(m_python->pyLookup(name, false) != nullptr, missing.isEmpty());
    if (!missing.isEmpty())
        QCOMPARE(m_python->take(), QStringList(internal("%s not found\n", qPrintable(missing))));
}

void TestPython::calls_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QStringList>("reports");

    QTest::newRow("works") << QByteArray("add") << QStringList();
    QTest::newRow("missing") << QByteArray("sys.missing")
                             << QStringList{internal("%s not found\n", "missing"),
                                            internal("%s not found\n", "sys.missing")};
    QTest::newRow("not callable") << QByteArray("number")
                                  << QStringList(internal("%s not callable\n", "number"));
    QTest::newRow("raises") << QByteArray("colorsys.rgb_to_hsv") << QStringList(unexpected);
}

void TestPython::calls()
{
    QFETCH(QByteArray, name);
    QFETCH(QStringList, reports);

    const PyRef result(m_python->pyCall(name, "(s,s)", "a", "\xc3\xa4"));
    QCOMPARE(m_python->take(), reports);
    QCOMPARE(bool(result), reports.isEmpty());
    if (result)
        QCOMPARE(m_python->pyString(result.get()), "a\xc3\xa4");
}

void TestPython::methodCalls()
{
    PyObject *thing = m_python->pyLookup("thing", false);
    const PyRef six(m_python->pyMethodCall(thing, "twice", "(i)", 3));
    QCOMPARE(PyLong_AsLong(six.get()), 6L);

    QVERIFY(!m_python->pyMethodCall(nullptr, "twice", "(i)", 3));
    QVERIFY(!m_python->pyMethodCall(thing, "absent", "()"));
    QVERIFY(PyErr_ExceptionMatches(PyExc_AttributeError));
    PyErr_Clear();
    QVERIFY(!m_python->pyMethodCall(thing, "attribute", "()"));
    QVERIFY(!m_python->pyMethodCall(thing, "bad", "()"));
    QCOMPARE(m_python->take(),
             (QStringList{internal("method %s call attemped with NULL self\n", "twice"),
                          internal("method %s not found\n", "absent"),
                          internal("method %s not callable\n", "attribute"), unexpected}));
}

void TestPython::statementsAndExpressions()
{
    m_python->pyf("made = '%s' * %d", "ab", 2);
    const PyRef made(m_python->pyrf("%s.upper()", "made"));
    QCOMPARE(m_python->pyString(made.get()), "ABAB");
    QCOMPARE(m_python->take(), QStringList());

    QVERIFY(!m_python->pyr("undefined_name"));
    m_python->py("this is no statement");
    // A statement that wants to end the program only fails.
    m_python->py("raise SystemExit(3)");
    QCOMPARE(m_python->take(), QStringList({unexpected, unexpected, unexpected}));
}

void TestPython::formatsThatDoNotFit()
{
    // With its terminating zero the first just fits.
    const QByteArray name(10239 - qstrlen("fits = ''"), 'x');
    m_python->pyf("fits = '%s'", name.constData());
    QCOMPARE(PyUnicode_GetLength(m_python->pyLookup("fits", false)), Py_ssize_t(name.size()));
    QCOMPARE(m_python->take(), QStringList());

    m_python->pyf("fits = '%sy'", name.constData());
    QVERIFY(!m_python->pyrf("'%s' + '123456789'", name.constData()));
    const QStringList reports = m_python->take();
    QCOMPARE(reports.size(), 2);
    for (const QString &report : reports)
        QVERIFY2(report.startsWith(QStringLiteral("Internal error: ")), qPrintable(report));
    QCOMPARE(PyUnicode_GetLength(m_python->pyLookup("fits", false)), Py_ssize_t(name.size()));

    // A message that is longer than its buffer is cut, not overrun.
    QVERIFY(!m_python->pyCall(QByteArray(5000, 'n'), "()"));
    for (const QString &report : m_python->take())
        QVERIFY(report.size() < 1024 && report.startsWith(QStringLiteral("Internal error: nnn")));
}

void TestPython::values()
{
    QCOMPARE(m_python->pyString(m_python->pyValue("table", "key")), "value");
    QVERIFY(!m_python->pyValue("table", "absent"));
    QCOMPARE(m_python->take(), QStringList());

    const PyRef text(PyUnicode_FromString("new"));
    m_python->pyAssign("sys", "vok_value", text.get());
    QCOMPARE(m_python->pyValue("sys", "vok_value"), text.get());
    QCOMPARE(m_python->pyAssignGlobal("vok_global", text.get()), 0);
    QCOMPARE(m_python->pyLookup("vok_global", false), text.get());
    QCOMPARE(m_python->pyVersion(), long(PY_VERSION_HEX));

    m_python->pyAssign("nowhere", "key", text.get());
    QCOMPARE(m_python->take(), QStringList({internal("%s not found\n", "nowhere"),
                                            internal("%s not found\n", "nowhere")}));
    // Not a dictionary: the interpreter's complaint is reported.
    m_python->pyAssign("number", "key", text.get());
    QCOMPARE(m_python->take(), QStringList(unexpected));
}

void TestPython::texts()
{
    const PyRef bytes(PyBytes_FromString("raw\xff"));
    QCOMPARE(m_python->pyString(bytes.get()), "raw\xff");
    QVERIFY(!m_python->pyString(Py_None));
    QCOMPARE(m_python->take(), QStringList());

    QVERIFY(!m_python->pyString(nullptr));
    QVERIFY(!m_python->pyString(m_python->pyLookup("number", false)));
    const PyRef surrogate(m_python->pyr("'\\udc80'"));
    QVERIFY(!m_python->pyString(surrogate.get()));
    QCOMPARE(m_python->take(),
             QStringList({QStringLiteral("Internal error: pyString passed NULL python object\n"),
                          unexpected, unexpected}));
}

void TestPython::expectedExceptions()
{
    m_python->pyExceptStart();
    m_python->pyExceptExpect(PyExc_KeyError);
    m_python->pyExceptExpect(PyExc_OSError);
    // A subclass of an expected type is expected.
    QVERIFY(!m_python->pyCall("fail", "(O,i,s)", PyExc_FileNotFoundError, 2, "gone"));
    QCOMPARE(m_python->expected, 1);
    QVERIFY(m_python->pyExceptMatches(nullptr, PyExc_OSError));
    QVERIFY(!m_python->pyExceptMatches(nullptr, PyExc_KeyError));
    QVERIFY(!m_python->pyExceptMatches(Py_None, PyExc_OSError));
    PyErr_Clear();
    QVERIFY(!m_python->pyExceptMatches(nullptr, PyExc_OSError));

    m_python->py("raise KeyError('from a statement')");
    QVERIFY(m_python->pyExceptMatches(nullptr, PyExc_KeyError));
    m_python->pyExceptClear();
    QVERIFY(!PyErr_Occurred());
    QCOMPARE(m_python->take(), QStringList());

    // With nothing expected any more it is an error.
    QVERIFY(!m_python->pyCall("fail", "(O)", PyExc_KeyError));
    QCOMPARE(m_python->take(), QStringList(unexpected));
}

void TestPython::expectationsNest()
{
    m_python->pyExceptStart();
    m_python->pyExceptExpect(PyExc_KeyError);
    m_python->pyExceptStart();
    m_python->pyExceptExpect(nullptr);
    QCOMPARE(m_python->take(),
             QStringList(QStringLiteral("Internal error: pyExceptExpect called with NULL\n")));
    // The inner list hides the outer, and a missing type matches nothing.
    QVERIFY(!m_python->pyCall("fail", "(O)", PyExc_KeyError));
    QVERIFY(!PyErr_Occurred());
    QCOMPARE(m_python->take(), QStringList(unexpected));
    m_python->pyExceptClear();

    QVERIFY(!m_python->pyCall("fail", "(O)", PyExc_KeyError));
    QVERIFY(m_python->pyExceptMatches(nullptr, PyExc_KeyError));
    m_python->pyExceptClear();
    QCOMPARE(m_python->take(), QStringList());
}

void TestPython::exceptionTexts()
{
    m_python->pyExceptStart();
    m_python->pyExceptExpect(PyExc_Exception);
    QVERIFY(!m_python->pyCall("fail", "(O,s)", m_python->pyLookup("Told", false), "by value"));
    QVERIFY(PyErr_Occurred());
    const PyRef told(m_python->pyExceptValuef());
    QCOMPARE(m_python->pyString(told.get()), "by value");
    const PyRef object(m_python->pyExceptValue());
    QVERIFY(PyErr_GivenExceptionMatches(object.get(), m_python->pyLookup("Told", false)));
    QVERIFY(PyErr_Occurred());
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
    PyErr_SetString(PyExc_ValueError, "the last");
    QVERIFY(m_python->pyExceptMatches(nullptr, PyExc_ValueError));
    m_python->pyExceptClear();
    QCOMPARE(m_python->take(), QStringList());
}

void TestPython::unexpectedExceptionIsPrinted()
{
    QVERIFY(!m_python->pyCall("fail", "(O,s)", PyExc_ValueError, "the reason"));
    const QString text = printed();
    QVERIFY2(text.contains(QStringLiteral("Traceback")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("ValueError: the reason")), qPrintable(text));

    m_python->exceptionError(); // with none pending
    QCOMPARE(m_python->take(),
             QStringList({unexpected,
                          QStringLiteral("Internal error: python exception occurred, but exception "
                                         "information was empty.")}));
}

void TestPython::lockChangesHands()
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
    // Does nothing, so this thread still has the lock afterwards.
    {
        const Python::PyGILStateWrapper idle(false);
    }
    QVERIFY(PyGILState_Check());
}

void TestPython::endsWithTheLibraryLoaded()
{
    m_python->py("import dnf, hawkey, rpm, sqlite3, threading\n"
                 "kept = dnf.Base()\n"
                 "sys.stderr = sys.__stderr__\n");
    QCOMPARE(m_python->take(), QStringList());
    m_python.reset();
    QVERIFY(!Py_IsInitialized());
}

QTEST_GUILESS_MAIN(TestPython)
#include "test_python.moc"
