// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPlainTextEdit>

class SaveRow;

// A text of unknown origin and any length, for reading. What is too long to be laid out is shown in part and can be
// saved.
class LongText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LongText(QWidget *parent);

    void setText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    SaveRow *m_saveRow = nullptr;
};
