// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "widgets/hdialog.h"
#include "yumconfio.h"

#include <QTextCursor>

class HTextEdit;

namespace RepoEditor {

// Shows what Apply would change in which file, line by line, without passwords.
class PreviewDialog : public HDialog
{
    Q_OBJECT

public:
    PreviewDialog(const YumConfIO::Preview &preview, QWidget *parent);

private:
    enum Style { Plain, Heading, Good, Bad };

    void put(const QString &line, Style style);
    void putChange(const YumConfIO::FileChange &change);

    HTextEdit *m_text;
    QTextCursor m_cursor;
};

} // namespace RepoEditor
