#include "messagebox.h"

#include "summon.h"

#include <QPushButton>

namespace {

// A box is as high as its text. What goes beyond these is shown on demand, where it scrolls.
constexpr qsizetype longestText = 2000;
constexpr qsizetype mostLines = 25;

void setText(QMessageBox &box, const QString &text)
{
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
        box.setDetailedText(text);
    }
}

} // namespace

int showMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                   const QString &text, const QString &button0, const QString &button1,
                   const QString &button2, int defaultButton, int escapeButton)
{
    QMessageBox box(icon, title, QString(), QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("messageBox"));
    setText(box, text);
    const QString texts[] = {button0, button1, button2};
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
        buttons[i]->setObjectName(QStringLiteral("button%1").arg(i));
        if (i == defaultButton)
            box.setDefaultButton(buttons[i]);
        if (i == escapeButton)
            box.setEscapeButton(buttons[i]);
    }
    summon(&box);
    box.exec();
    for (int i = 0; i < 3; ++i) {
        if (buttons[i] && buttons[i] == box.clickedButton())
            return i;
    }
    return escapeButton;
}
