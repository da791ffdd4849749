// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "log.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class HTextEdit;
class QSpinBox;

namespace Log {

class FindBar;

// Shows a list of entries as coloured text, as far as the detail level lets them through. Many
// entries are rendered in slices, between which events are served. Hidden it costs nothing: it then
// holds no text and does not listen.
class Window : public QWidget
{
    Q_OBJECT

public:
    explicit Window(EntryList &list, QWidget *parent = nullptr);

    void setVisible(bool visible) override;

    // Escapes plain text for rich text, in place. An ampersand stays, so entities are interpreted.
    static void htmlProtect(QString &text);

public Q_SLOTS:
    // Renders what is new in the list, or begins to.
    void appended();
    void levelChanged(int level);
    // Asks for a file and writes to it the entries that the detail level lets through, whole.
    void saveAs();
    // The same to a given file; a failure is shown.
    void save(const QString &path);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void createLayout();
    QWidget *createButtonRow();
    void listen(bool on);
    void clear();
    void continueRendering();
    bool renderSlice();
    bool render();
    QList<Entry> takeShown(qsizetype most);
    static QString toHtml(const Entry &entry);

    EntryList &m_list;
    QSpinBox *m_levelSpin;
    HTextEdit *m_text;
    FindBar *m_findBar;
    qsizetype m_shownCount = 0; // entries already considered
    bool m_listening = false;
    bool m_rendering = false;
    QTimer m_sliceTimer;
    QElapsedTimer m_eventsClock; // since events were last served out of appended()
};

} // namespace Log
