// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>
#include <QTextEdit>

#include <utility>

class SaveRow;

namespace PackageTable {

// Titles with their values in a column beside them, as one text that can only be read, selected and
// copied. A value is plain text of unknown origin, of one line or several; it is wrapped, within a word
// where it must be.
class FieldsText : public QTextEdit
{
    Q_OBJECT

public:
    using Field = std::pair<QString, QString>;

    explicit FieldsText(QWidget *parent = nullptr);

    void setFields(const QList<Field> &fields);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    SaveRow *m_saveRow = nullptr;
};

} // namespace PackageTable
