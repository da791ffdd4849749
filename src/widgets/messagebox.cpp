#include "messagebox.h"

int showMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                   const QString &text, const QString &button0, const QString &button1,
                   const QString &button2, int defaultButton, int escapeButton)
{
    QMessageBox box(icon, title, QString(), QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    QAbstractButton *buttons[3] = {};
    const QString texts[3] = {button0, button1, button2};
    for (int i = 0; i < 3; ++i) {
        if (!texts[i].isEmpty())
            buttons[i] = box.addButton(texts[i], QMessageBox::ActionRole);
    }
    if (box.buttons().isEmpty())
        buttons[0] = box.addButton(QMessageBox::Ok);
    for (int i = 0; i < 3; ++i) {
        if (buttons[i] && i == defaultButton)
            box.setDefaultButton(static_cast<QPushButton *>(buttons[i]));
        if (buttons[i] && i == escapeButton)
            box.setEscapeButton(buttons[i]);
    }
    box.exec();
    for (int i = 0; i < 3; ++i) {
        if (buttons[i] && buttons[i] == box.clickedButton())
            return i;
    }
    return escapeButton;
}
