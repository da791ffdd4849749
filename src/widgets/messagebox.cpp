// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "messagebox.h"

#include "app/harmless.h"
#include "summon.h"

#include <QPushButton>

namespace {

// A box is as high as its text. What goes beyond these is shown on demand, where it scrolls.
constexpr qsizetype longestText = 2000;
constexpr qsizetype mostLines = 25;

const QString buttonName = QStringLiteral("button%1");

void setText(QMessageBox &box, const QString &given)
{
    const QString text = harmless(given);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    qsizetype end = text.size();
    if (text.count(u'\n') >= mostLines) {
        end = -1;
        for (qsizetype line = 0; line < mostLines; ++line)
            end = text.indexOf(u'\n', end + 1);
    }
    end = qMin(end, longestText);
    if (end == text.size()) {
        box.setText(text);
    } else {
        box.setText(text.left(end) + QStringLiteral("\n..."));
        box.setDetailedText(harmlessPage(given));
    }
}

void fill(QMessageBox &box, const QString &text, const QString (&texts)[3], int defaultButton,
          int escapeButton)
{
    box.setObjectName(QStringLiteral("messageBox"));
    setText(box, text);
    QPushButton *buttons[3] = {};
    for (int i = 0; i < 3; ++i) {
        if (!texts[i].isEmpty())
            buttons[i] = box.addButton(texts[i], QMessageBox::ActionRole);
    }
    if (!buttons[0] && !buttons[1] && !buttons[2])
        buttons[0] = box.addButton(QMessageBox::Ok);
    // Buttons with texts of their own have no icon, whatever the style gives the standard ones.
    for (int i = 0; i < 3; ++i) {
        if (!buttons[i])
            continue;
        buttons[i]->setIcon(QIcon());
        buttons[i]->setObjectName(buttonName.arg(i));
        if (i == defaultButton)
            box.setDefaultButton(buttons[i]);
        if (i == escapeButton)
            box.setEscapeButton(buttons[i]);
    }
    box.setAccessibleDescription(box.text()); // which readers speak when it opens
    summon(&box);
}

int pressed(const QMessageBox &box, int escapeButton)
{
    const QAbstractButton *clicked = box.clickedButton();
    for (int i = 0; i < 3; ++i) {
        if (clicked && clicked->objectName() == buttonName.arg(i))
            return i;
    }
    return escapeButton;
}

} // namespace

int showMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                   const QString &text, const QString &button0, const QString &button1,
                   const QString &button2, int defaultButton, int escapeButton)
{
    QMessageBox box(icon, title, QString(), QMessageBox::NoButton, parent);
    fill(box, text, {button0, button1, button2}, defaultButton, escapeButton);
    box.exec();
    return pressed(box, escapeButton);
}

QMessageBox *openMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                            const QString &text, const QString &button0, const QString &button1,
                            int defaultButton, int escapeButton,
                            const std::function<void(int)> &answered, Qt::WindowModality modality)
{
    auto *box = new QMessageBox(icon, title, QString(), QMessageBox::NoButton, parent);
    fill(*box, text, {button0, button1, QString()}, defaultButton, escapeButton);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QDialog::finished, parent,
                     [=] { answered(pressed(*box, escapeButton)); });
    box->setWindowModality(modality);
    box->show();
    return box;
}
