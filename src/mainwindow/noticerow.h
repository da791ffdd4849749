// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>
#include <functional>

class HElidedLabel;
class QToolButton;

// A row of the main window in which quiet notices stand side by side, each with at most one button.
// Its height is that of one line, with and without notices.
class NoticeRow : public QWidget
{
    Q_OBJECT

public:
    // Which of them it is; also their order.
    enum Notice { Rights, Outdated, LeftOut, Replacements };

    explicit NoticeRow(QWidget *parent);

    // Shows a notice, or changes it; screen readers are told what it says. The tip is the text with
    // `toolTip` behind it. Without a text for the button there is none; pressed, it calls `slot`,
    // which may change the notices.
    void setNotice(Notice which, const QString &text, const QString &toolTip = QString(),
                   const QString &buttonText = QString(), const std::function<void()> &slot = {});
    void clear(Notice which);
    bool has(Notice which) const { return !m_places[which].widget->isHidden(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    static constexpr int count = Replacements + 1;
    struct Place
    {
        QWidget *widget = nullptr;
        HElidedLabel *label = nullptr;
        QToolButton *button = nullptr;
        std::function<void()> slot;
    };

    void createPlace(Notice which, const QString &name);
    QSize withHeight(const QSize &size) const;

    std::array<Place, count> m_places;
};
