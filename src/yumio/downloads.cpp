// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

// What the script tells of downloads: metadata during a collection, packages during an apply.
//
// A meter is one download. Metadata comes one repository after the other, so each is an act of its
// own with a single thread; packages come in parallel, as the threads of one act that counts bytes.

#include "python/pyref.h"

#include "passwordsintext.h"
#include "progress/progress.h"
#include "weights.h"
#include "yumio.h"

#include <algorithm>

namespace {

constexpr quint32 actsPerRepo = 6;

const QLatin1String deltaRebuild("<delta rebuild>");

// The text of a string object; empty for any other object.
QString textOf(PyObject *object)
{
    const char *utf8 = PyUnicode_Check(object) ? PyUnicode_AsUTF8(object) : nullptr;
    if (!utf8)
        PyErr_Clear();
    return QString::fromUtf8(utf8);
}

// Reads a size in bytes, None standing for an unknown one; false for anything else.
bool sizeFrom(PyObject *object, bool &known, quint64 &size)
{
    known = object != Py_None;
    size = 0;
    if (!known)
        return true;
    const PyRef number(PyNumber_Check(object) ? PyNumber_Long(object) : nullptr);
    const long long value = number ? PyLong_AsLongLong(number.get()) : -1;
    PyErr_Clear();
    known = value > 0;
    size = known ? quint64(value) : 0;
    return value >= 0;
}

} // namespace

// The six objects of a ...GrabMeterStart.
struct YumIO::MeterStart
{
    QString id, filename, url, basename, text;
    PyObject *sizeObject = nullptr;
    bool sized = false;
    quint64 size = 0;

    bool parse(PyObject *args)
    {
        PyObject *idObject, *filenameObject, *urlObject, *basenameObject, *textObject;
        if (!PyArg_ParseTuple(args, "OOOOOO", &idObject, &filenameObject, &urlObject,
                              &basenameObject, &sizeObject, &textObject))
            return false;
        id = textOf(idObject);
        filename = textOf(filenameObject);
        url = textOf(urlObject);
        basename = textOf(basenameObject);
        text = textOf(textObject);
        return true;
    }
};

PyObject *YumIO::collectProgress(PyObject *, PyObject *args)
{
    long current, total;
    PyObject *textObject;
    if (!PyArg_ParseTuple(args, "llO", &current, &total, &textObject))
        return nullptr;
    const QString text = textOf(textObject);
    if (text.isEmpty())
        error(tr("Internal error: unexpected progress name"));
    else if (m_progress && text == QLatin1String("<installed>"))
        m_progress->changeItemActivity(tr("Reading installed packages"));
    else if (m_progress)
        m_progress->changeItemActivity(tr("Reading repository %1").arg(text));
    Py_RETURN_NONE;
}

QString YumIO::metadataText(const MeterStart &start, bool isFirst)
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("mirrorlist"), tr("mirror list")},
        {QStringLiteral("metalink"), tr("mirror list")},
        {QStringLiteral("comps"), tr("groups")},
    };
    const QString kind = names.value(start.basename, start.basename);
    if (start.text.isEmpty())
        return tr("Downloading repository %1").arg(kind);
    // The index of a repository comes first; what grows behind it is its contents.
    if (kind.isEmpty() || (!isFirst && kind == QLatin1String("repomd")))
        return tr("Downloading repository %1").arg(start.text);
    return tr("Downloading repository %1 for %2").arg(kind, start.text);
}

// The act that a repository's next download reaches: the first of its six, or the one after the
// present. The last is never passed, however often a download grows.
quint32 YumIO::nextCollectAct(const QString &repo, bool isFirst)
{
    const quint32 index = quint32(std::max<qsizetype>(m_session.enabledRepos.indexOf(repo), 0));
    const quint32 first = index * actsPerRepo + 1;
    const quint32 last = first + actsPerRepo - 1;
    if (isFirst)
        return std::max(m_metadata.act, first);
    return std::max(m_metadata.act, std::min(m_metadata.act + 1, last));
}

PyObject *YumIO::collectGrabMeterStart(PyObject *, PyObject *args)
{
    MeterStart start;
    if (!start.parse(args))
        return nullptr;
    if (!sizeFrom(start.sizeObject, start.sized, start.size))
        error(tr("Internal error: collect grab size not understood"));
    if (!m_progress)
        Py_RETURN_NONE;
    Meter &meter = m_metadata.meters.byId[start.id];
    const bool isFirst = !meter.started;
    const quint32 act = nextCollectAct(start.text, isFirst);
    // Growth that no act is left for shows in the numbers that follow, not as another item.
    if (!isFirst && act == m_metadata.act)
        Py_RETURN_NONE;
    meter.started = true;
    meter.sized = start.sized;
    meter.max = start.sized ? start.size : 1;
    meter.text = maskPasswords(metadataText(start, isFirst));
    m_progress->setupItemActsThreads(meter.text, 0, act + 1, 1, meter.max);
    m_progress->startItemActThread(meter.text, 0, meter.max);
    m_metadata.act = act;
    if (meter.sized && meter.read > 0)
        m_progress->setItemActsThreadValue(0, std::min(meter.read, meter.max));
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMeterUpdate(PyObject *, PyObject *args)
{
    PyObject *id;
    long long amount;
    if (!PyArg_ParseTuple(args, "OL", &id, &amount))
        return nullptr;
    updateMeter(m_metadata.meters, id, amount);
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMeterEnd(PyObject *, PyObject *args)
{
    PyObject *id;
    long long amount;
    if (!PyArg_ParseTuple(args, "OL", &id, &amount))
        return nullptr;
    endMeter(m_metadata.meters, id);
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMeterFailure(PyObject *, PyObject *args)
{
    PyObject *id, *message;
    if (!PyArg_ParseTuple(args, "OO", &id, &message))
        return nullptr;
    failMeter(m_metadata.meters, id, message);
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMultiMeterStart(PyObject *, PyObject *args)
{
    long long count, bytes;
    if (!PyArg_ParseTuple(args, "LL", &count, &bytes))
        return nullptr;
    m_metadata.meters.byId.clear();
    if (m_progress) {
        m_progress->changeItemActivity(
            tr("Downloading repository contents for %n repositories", nullptr, int(count)));
    }
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMultiMeterNew(PyObject *, PyObject *args)
{
    PyObject *id;
    if (!PyArg_ParseTuple(args, "O", &id))
        return nullptr;
    m_metadata.meters.byId.insert(textOf(id), Meter());
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMultiMeterRemove(PyObject *, PyObject *args)
{
    PyObject *id;
    if (!PyArg_ParseTuple(args, "O", &id))
        return nullptr;
    if (m_metadata.meters.byId.remove(textOf(id)) > 0 && m_progress)
        m_progress->endItemActsThreads();
    Py_RETURN_NONE;
}

PyObject *YumIO::collectGrabMultiMeterEnd(PyObject *, PyObject *)
{
    m_metadata.meters.byId.clear();
    if (m_progress)
        m_progress->endItemActsThreads();
    Py_RETURN_NONE;
}

PyObject *YumIO::applyGrabMultiMeterStart(PyObject *, PyObject *args)
{
    long long count, bytes;
    if (!PyArg_ParseTuple(args, "LL", &count, &bytes))
        return nullptr;
    m_packages.parallel = true;
    m_packages.meters.byId.clear();
    m_packages.meters.threads = unsigned(std::clamp(count, 0LL, 1000000LL));
    m_packages.nextThread = 0;
    m_packages.left = m_packages.meters.threads;
    if (!m_progress)
        Py_RETURN_NONE;
    // A second round after the rebuilding of deltas has no units of its own left.
    if (m_packages.deltaRebuildShown) {
        m_progress->setupItemActs(0, 1);
        m_progress->setupItemActsThreads(tr("Downloading %n packages", nullptr, int(count)), 0, 1,
                                         m_packages.meters.threads, std::max(bytes, 1LL));
        Py_RETURN_NONE;
    }
    const quint64 end = std::min(m_apply.actPosition + quint64(std::max(bytes, 0LL)),
                                 std::max(quint64(m_apply.bytesToDownload), m_apply.actPosition));
    m_apply.actPosition = end;
    m_progress->setupItemActsThreads(tr("Downloading %n packages", nullptr, int(count)),
                                     Steps(m_apply.downloadBudget), end + 1,
                                     m_packages.meters.threads, std::max(bytes, 1LL));
    Py_RETURN_NONE;
}

PyObject *YumIO::applyGrabMultiMeterNew(PyObject *, PyObject *args)
{
    PyObject *id;
    if (!PyArg_ParseTuple(args, "O", &id))
        return nullptr;
    m_packages.meters.byId.insert(textOf(id), Meter());
    Py_RETURN_NONE;
}

PyObject *YumIO::applyGrabMultiMeterRemove(PyObject *, PyObject *args)
{
    PyObject *id;
    if (!PyArg_ParseTuple(args, "O", &id))
        return nullptr;
    // One that failed for good is finished too, though its bytes never came.
    const Meter meter = m_packages.meters.byId.take(textOf(id));
    if (meter.retrying)
        endMeterThread(meter);
    if (!meter.rebuild && m_packages.left > 0)
        --m_packages.left;
    startDeltaRebuild();
    Py_RETURN_NONE;
}

PyObject *YumIO::applyGrabMultiMeterEnd(PyObject *, PyObject *)
{
    m_packages.parallel = false;
    m_packages.meters.byId.clear();
    if (m_progress)
        m_progress->endItemActsThreads();
    Py_RETURN_NONE;
}

QString YumIO::packageText(const MeterStart &start)
{
    const QString name = start.text.isEmpty() ? start.basename : start.text;
    if (start.filename.endsWith(QLatin1String(".hdr")))
        return tr("Downloading %1 header").arg(name);
    if (!start.filename.endsWith(QLatin1String(".rpm")) &&
        !start.filename.endsWith(QLatin1String(".drpm")))
        error(tr("Internal error: unexpected progress filename"));
    return tr("Downloading %1").arg(name);
}

PyObject *YumIO::applyGrabMeterStart(PyObject *, PyObject *args)
{
    MeterStart start;
    if (!start.parse(args))
        return nullptr;
    if (!sizeFrom(start.sizeObject, start.sized, start.size))
        error(tr("Internal error: apply grab size not understood"));
    if (!m_progress)
        Py_RETURN_NONE;
    Meter &meter = m_packages.meters.byId[start.id];
    if (meter.started) // a size that became known
        Py_RETURN_NONE;
    meter.started = true;
    meter.sized = start.sized;
    meter.max = start.sized ? start.size : 1;
    if (start.filename == deltaRebuild) {
        meter.rebuild = true;
        meter.thread = ~0u; // shows in none
        meter.text = tr("Finishing RPM rebuild from deltas");
        startDeltaRebuild();
        Py_RETURN_NONE;
    }
    meter.text = maskPasswords(packageText(start));
    if (m_packages.parallel) {
        meter.thread = m_packages.nextThread++;
        if (meter.thread < m_packages.meters.threads)
            m_progress->startItemActThread(meter.text, meter.thread, meter.max);
    } else {
        meter.single = true;
        m_apply.actPosition += quint64(std::max(qint64(start.size), Weights::least));
        m_progress->startItemAct(meter.text, meter.max, m_apply.actPosition);
    }
    Py_RETURN_NONE;
}

// The rebuilding has an item of its own behind the downloads. While some of these are still to come
// nothing shows of it, or their numbers would end in its bar.
void YumIO::startDeltaRebuild()
{
    auto &meters = m_packages.meters.byId;
    const auto meter =
        std::find_if(meters.begin(), meters.end(), [](const Meter &one) { return one.rebuild; });
    if (!m_progress || meter == meters.end() || m_packages.deltaRebuildShown || m_packages.left > 0)
        return;
    meter->single = true;
    m_packages.deltaRebuildShown = true;
    m_progress->endItemActsThreads();
    m_progress->endItemActs();
    m_progress->startItem(meter->text, deltaRebuildUnits(), meter->max);
    m_progress->setupItemActs(0, 0);
}

PyObject *YumIO::applyGrabMeterUpdate(PyObject *, PyObject *args)
{
    PyObject *id;
    long long amount;
    if (!PyArg_ParseTuple(args, "OL", &id, &amount))
        return nullptr;
    updateMeter(m_packages.meters, id, amount);
    Py_RETURN_NONE;
}

PyObject *YumIO::applyGrabMeterEnd(PyObject *, PyObject *args)
{
    PyObject *id;
    long long amount;
    if (!PyArg_ParseTuple(args, "OL", &id, &amount))
        return nullptr;
    endMeter(m_packages.meters, id);
    Py_RETURN_NONE;
}

PyObject *YumIO::applyGrabMeterFailure(PyObject *, PyObject *args)
{
    PyObject *id, *message;
    if (!PyArg_ParseTuple(args, "OO", &id, &message))
        return nullptr;
    failMeter(m_packages.meters, id, message);
    Py_RETURN_NONE;
}

void YumIO::updateMeter(Meters &meters, PyObject *id, long long amount)
{
    const auto found = meters.byId.find(textOf(id));
    if (found == meters.byId.end() || !m_progress || !found->started)
        return;
    Meter &meter = *found;
    meter.read = amount > 0 ? quint64(amount) : 0;
    // Without a size there is nothing to compare the amount with.
    const Steps value = meter.sized ? std::min(meter.read, meter.max) : 0;
    if (meter.single) {
        m_progress->setItemValue(value);
        return;
    }
    if (meter.thread >= meters.threads)
        return;
    if (meter.retrying && meter.read > 0) {
        meter.retrying = false;
        m_progress->startItemActThread(meter.text, meter.thread, meter.max);
    }
    m_progress->setItemActsThreadValue(meter.thread, value);
}

void YumIO::endMeterThread(const Meter &meter)
{
    if (m_progress && meter.started && !meter.single && meter.thread < m_packages.meters.threads)
        m_progress->endItemActThread(meter.thread);
}

void YumIO::endMeter(Meters &meters, PyObject *id)
{
    const auto found = meters.byId.find(textOf(id));
    if (found == meters.byId.end() || !m_progress || !found->started)
        return;
    if (found->single) {
        m_progress->setItemValue(found->max);
        return;
    }
    if (found->thread >= meters.threads)
        return;
    found->retrying = false;
    m_progress->setItemActsThreadValue(found->thread, found->max);
    m_progress->endItemActThread(found->thread);
}

void YumIO::failMeter(Meters &meters, PyObject *id, PyObject *message)
{
    const auto found = meters.byId.find(textOf(id));
    if (found == meters.byId.end())
        return;
    log(Log::Kind::Warning, 1,
        tr("%1: %2").arg(found->text.isEmpty() ? textOf(id) : found->text, textOf(message)));
    found->read = 0;
    if (!m_progress || !found->started)
        return;
    if (found->single) {
        m_progress->setItemValue(0);
    } else if (found->thread < meters.threads) {
        found->retrying = true;
        m_progress->retryItemActThread(found->thread);
    }
}
