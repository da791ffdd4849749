// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "logwindow.h"

#include "findbar.h"

#include "app/colors.h"
#include "app/harmless.h"
#include "widgets/htextedit.h"
#include "widgets/messagebox.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QShortcut>
#include <QSpinBox>
#include <QTextCursor>

namespace {

constexpr int highestLevel = 10;
constexpr int defaultLevel = 2;

// One slice of rendering, and what is rendered between two looks at the clock.
constexpr qint64 sliceMs = 10;
constexpr qsizetype batchEntries = 25;
// Entries looked at in one go when few of them are shown.
constexpr qsizetype batchScan = 20000;
constexpr qint64 eventsMs = 50;

// Laying out a longer line takes too long; it is shown in part.
constexpr qsizetype longestText = 10000;

bool isAtEnd(const QScrollBar *bar)
{
    return bar->value() >= bar->maximum();
}

} // namespace

Log::Window::Window(EntryList &list, QWidget *parent)
    : QWidget(parent, Qt::Window), m_list(list), m_levelSpin(new QSpinBox(this)),
      m_text(new HTextEdit(25, 100, this)), m_findBar(new FindBar(m_text, this))
{
    setObjectName(QStringLiteral("logWindow"));
    setWindowTitle(tr("VOK Log"));
    m_text->setObjectName(QStringLiteral("text"));
    m_text->setAccessibleName(tr("Log"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setLineWrapMode(QTextEdit::NoWrap);
    m_text->setUndoRedoEnabled(false);
    m_levelSpin->setObjectName(QStringLiteral("levelSpin"));
    m_levelSpin->setRange(0, highestLevel);
    m_levelSpin->setValue(defaultLevel);
    m_levelSpin->setToolTip(tr("Threshold beyond which more detailed log messages are omitted.\n"
                               "Higher levels show more detail.\n"
                               "The valid range is 0 .. %1.\n"
                               "The default is %2.\n"
                               "Higher levels contain debug information.\n"
                               "This corresponds to yum's debuglevel (-d) option.")
                                .arg(highestLevel)
                                .arg(defaultLevel));
    createLayout();
    // The log is there to be read, and keys are to scroll it.
    setTabOrder(m_text, m_levelSpin);
    m_text->setFocus();
    m_findBar->hide();
    m_sliceTimer.setSingleShot(true);
    connect(&m_sliceTimer, &QTimer::timeout, this, &Window::continueRendering);
    connect(m_levelSpin, &QSpinBox::valueChanged, this, &Window::levelChanged);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_findBar,
            &FindBar::open);
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, m_findBar,
            &FindBar::findNext);
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, m_findBar,
            &FindBar::findPrevious);
}

void Log::Window::createLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_findBar);
    layout->addWidget(createButtonRow());
}

QWidget *Log::Window::createButtonRow()
{
    const auto makeButton = [this](const QString &text, const char *name, const QString &tip) {
        auto *button = new QPushButton(text, this);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(tip);
        return button;
    };
    auto *label = new QLabel(tr("Detail level"), this);
    label->setBuddy(m_levelSpin);
    QPushButton *find =
        makeButton(tr("&Find"), "findButton", tr("Find a text in the Log Window (Ctrl+F)"));
    QPushButton *save = makeButton(tr("&Save..."), "saveButton",
                                   tr("Save the log messages up to the Detail level to a file"));
    QPushButton *close = makeButton(tr("&Close"), "closeButton", tr("Close the Log Window"));
    connect(find, &QPushButton::clicked, m_findBar, &FindBar::open);
    connect(save, &QPushButton::clicked, this, &Window::saveAs);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);

    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_levelSpin);
    layout->addStretch();
    layout->addWidget(find);
    layout->addWidget(save);
    layout->addWidget(close);
    return row;
}

void Log::Window::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        clear();
        listen(true);
        appended();
        m_text->verticalScrollBar()->setValue(m_text->verticalScrollBar()->maximum());
    } else if (!visible && isVisible()) {
        listen(false);
        clear();
    }
    QWidget::setVisible(visible);
}

void Log::Window::listen(bool on)
{
    QMutexLocker lock(&m_list.mutex());
    m_listening = on;
    if (on)
        connect(&m_list, &EntryList::appended, this, &Window::appended, Qt::UniqueConnection);
    else
        disconnect(&m_list, &EntryList::appended, this, &Window::appended);
}

void Log::Window::clear()
{
    m_sliceTimer.stop();
    m_shownCount = 0;
    m_text->clear();
}

void Log::Window::levelChanged(int)
{
    clear();
    appended();
}

// Announcements that were on their way when the window was hidden still arrive; those that arrive
// while events are served from here find their entries rendered by the slice timer.
void Log::Window::appended()
{
    if (!m_listening || m_rendering || m_sliceTimer.isActive() || !render())
        return;
    if (m_eventsClock.isValid() && m_eventsClock.elapsed() < eventsMs)
        return;
    m_rendering = true;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_rendering = false;
    m_eventsClock.start();
    continueRendering();
}

void Log::Window::continueRendering()
{
    if (m_listening && !m_rendering)
        render();
}

// Renders a slice, and has the rest rendered by the timer. False when there was nothing new.
bool Log::Window::render()
{
    QScrollBar *bar = m_text->verticalScrollBar();
    const bool follow = isAtEnd(bar);
    const qsizetype before = m_shownCount;
    const int end = m_text->document()->characterCount() - 1;
    if (renderSlice())
        m_sliceTimer.start(0);
    m_findBar->textGrew(end);
    if (follow)
        bar->setValue(bar->maximum());
    return m_shownCount != before;
}

// True when entries are left.
bool Log::Window::renderSlice()
{
    QElapsedTimer clock;
    clock.start();
    do {
        const qsizetype before = m_shownCount;
        const QList<Entry> entries = takeShown(batchEntries);
        if (m_shownCount == before)
            return false;
        if (entries.isEmpty())
            continue;
        QTextCursor batch(m_text->document());
        batch.beginEditBlock();
        for (const Entry &entry : entries)
            m_text->appendCompact(toHtml(entry));
        batch.endEditBlock();
    } while (clock.elapsed() < sliceMs);
    return true;
}

// The next entries that the level lets through. Moves the count past all that were considered.
QList<Log::Entry> Log::Window::takeShown(qsizetype most)
{
    const unsigned int level = static_cast<unsigned int>(m_levelSpin->value());
    QList<Entry> result;
    QMutexLocker lock(&m_list.mutex());
    const QList<Entry> &entries = m_list.entries();
    const qsizetype end = qMin(entries.size(), m_shownCount + batchScan);
    for (; m_shownCount < end && result.size() < most; ++m_shownCount) {
        if (entries.at(m_shownCount).level <= level)
            result.append(entries.at(m_shownCount));
    }
    return result;
}

QString Log::Window::toHtml(const Entry &entry)
{
    QString text = entry.text;
    QString note;
    if (text.size() > longestText) {
        note = tr(" ... (%n characters more; Save writes them all)", nullptr,
                  int(text.size() - longestText));
        text.truncate(longestText);
    }
    text = harmless(text);
    htmlProtect(text);
    text += note;
    const auto colored = [&text](const QString &before, const QColor &color,
                                 const QString &after) -> QString {
        return before.arg(color.name()) + text + after;
    };
    switch (entry.kind) {
    case Kind::Normal:
        if (entry.level < highestLevel)
            return QStringLiteral("<font>") + text + QStringLiteral("</font>");
        return colored(QStringLiteral("<font color=\"%1\">"), Colors::minor(),
                       QStringLiteral("</font>"));
    case Kind::Ok:
        return colored(QStringLiteral("<font color=\"%1\">"), Colors::ok(),
                       QStringLiteral("</font>"));
    case Kind::Warning:
        return colored(QStringLiteral("<font color=\"%1\">"), Colors::warning(),
                       QStringLiteral("</font>"));
    case Kind::Action:
        return colored(QStringLiteral("<h2><font color=\"%1\">"), Colors::action(),
                       QStringLiteral("</font></h2>"));
    case Kind::Error:
        break;
    }
    return colored(QStringLiteral("<font color=\"%1\">"), Colors::error(),
                   QStringLiteral("</font>"));
}

void Log::Window::htmlProtect(QString &text)
{
    // References by which a message could hide or reorder what is around it show as they are.
    text.replace(QStringLiteral("&#"), QStringLiteral("&amp;#"));
    text.replace(QStringLiteral("&lrm"), QStringLiteral("&amp;lrm"));
    text.replace(QStringLiteral("&rlm"), QStringLiteral("&amp;rlm"));
    text.replace(u'<', QStringLiteral("&lt;"));
    text.replace(u'>', QStringLiteral("&gt;"));
    text.replace(u' ', QStringLiteral("&#x0020;"));
    text.replace(u'\t', QStringLiteral("&#x0009;"));
}

void Log::Window::saveAs()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save Log"), QStringLiteral("vok.log"));
    if (!path.isEmpty())
        save(path);
}

void Log::Window::save(const QString &path)
{
    const unsigned int level = static_cast<unsigned int>(m_levelSpin->value());
    QList<Entry> entries;
    {
        QMutexLocker lock(&m_list.mutex());
        entries = m_list.entries();
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    bool ok = file.open(QIODevice::WriteOnly);
    for (const Entry &entry : entries) {
        if (ok && entry.level <= level)
            ok = file.write(entry.text.toUtf8() + '\n') != -1;
    }
    if (ok && file.commit())
        return;
    showMessageBox(QMessageBox::Critical, this, tr("VOK Log Error"),
                   tr("Unable to save the log to %1:\n%2").arg(path, file.errorString()));
}

void Log::Window::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}
