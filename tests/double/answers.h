// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QList>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>

#include <functional>

// Answers every dialog that is shown, as soon as the event loop comes round, by pressing the button
// whose text is next in the list; the first button when the list is used up. Keeps what was shown.
// Dialogs whose text holds `probeText` only serve to look at the program: the result of `observe`
// is kept, and they are counted nowhere else.
class Answers : public QObject
{
public:
    struct Shown
    {
        QString title;
        QString text;
        QStringList buttons;
    };

    explicit Answers(const QStringList &answers = {}) : answers(answers)
    {
        qApp->installEventFilter(this);
    }

    QStringList texts() const
    {
        QStringList result;
        for (const Shown &dialog : shown)
            result.append(dialog.text);
        return result;
    }

    QStringList titles() const
    {
        QStringList result;
        for (const Shown &dialog : shown)
            result.append(dialog.title);
        return result;
    }

    QStringList answers;
    QList<Shown> shown;
    QString probeText;
    std::function<QString()> observe;
    QStringList observed;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(object);
        if (dialog && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(
                dialog, [this, dialog] { answer(dialog); }, Qt::QueuedConnection);
        return false;
    }

private:
    void answer(QDialog *dialog)
    {
        Shown record{dialog->windowTitle(), QString(), {}};
        if (auto *box = qobject_cast<QMessageBox *>(dialog))
            record.text = box->text();
        else if (auto *edit = dialog->findChild<QPlainTextEdit *>())
            record.text = edit->toPlainText();
        if (observe && record.text.contains(probeText)) {
            observed.append(observe());
            dialog->findChild<QPushButton *>()->click();
            return;
        }
        const QString wanted = answers.isEmpty() ? QString() : answers.takeFirst();
        QPushButton *pressed = nullptr;
        for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
            const QString text = button->text().remove(QLatin1Char('&'));
            record.buttons.append(text);
            if (text == wanted || (wanted.isEmpty() && !pressed))
                pressed = button;
        }
        shown.append(record);
        if (pressed)
            pressed->click();
        else
            dialog->reject();
    }
};
