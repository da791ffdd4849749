// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLayout>

// A row of widgets that goes on in further lines where the window is too narrow for it. In each
// line what is left over goes to the items that expand.
class WrapLayout : public QLayout
{
    Q_OBJECT

public:
    WrapLayout() = default;
    ~WrapLayout() override;

    void addStretch();

    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    using Line = QList<QLayoutItem *>;
    QList<Line> lines(int width) const;
    static int lineHeight(const Line &line);
    int lineWidth(const Line &line) const;
    void placeLine(const Line &line, const QRect &rect) const;

    QList<QLayoutItem *> m_items;
};
