// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QAbstractScrollArea;

// A row at the lower edge of a text that is shown in part: it says so, and its button saves the whole text.
class SaveRow : public QWidget
{
    Q_OBJECT

public:
    // Shows the row in `area`, of which `row` is the one so far, if `shown`, what is shown of the text `whole`, is not
    // all of it; else `row` becomes null. Returns the height that the viewport must leave.
    static int update(SaveRow *&row, QAbstractScrollArea *area, const QString &whole,
                      const QString &shown);
    // To be called when the area was resized.
    void place();

    // Writes the whole text to a file; a failure is shown.
    void save(const QString &path);

private:
    SaveRow(QAbstractScrollArea *area, const QString &whole);
    void saveAs();

    QAbstractScrollArea *m_area;
    QString m_whole;
};
