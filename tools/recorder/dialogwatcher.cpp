// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogwatcher.h"

#include <QApplication>
#include <QDialog>
#include <QJsonObject>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

QString plain(QString text)
{
    return text.remove(u'&');
}

QString textOf(QWidget *dialog)
{
    if (const auto *box = qobject_cast<QMessageBox *>(dialog))
        return box->detailedText().isEmpty() ? box->text() : box->detailedText();
    if (const auto *text = dialog->findChild<QPlainTextEdit *>())
        return text->toPlainText();
    return QString();
}

} // namespace

QJsonArray DialogWatcher::takeDialogs()
{
    QJsonArray result;
    result.swap(m_dialogs);
    return result;
}

bool DialogWatcher::isOpen() const
{
    return QApplication::activeModalWidget();
}

void DialogWatcher::look()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog || dialog == m_known || !dialog->isVisible())
        return;
    m_known = dialog;
    QJsonArray buttons;
    QPushButton *standard = nullptr;
    for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
        if (!button->isVisible())
            continue;
        buttons.append(plain(button->text()));
        if (button->isDefault())
            standard = button;
    }
    const QString title = dialog->windowTitle();
    m_dialogs.append(QJsonObject{
        {QStringLiteral("title"), title},
        {QStringLiteral("text"), textOf(dialog)},
        {QStringLiteral("buttons"), buttons},
        {QStringLiteral("class"), QString::fromLatin1(dialog->metaObject()->className())}});
    bool hold = false;
    const QString wanted = chooseButton(title, hold);
    if (hold || (!wanted.isEmpty() && press(wanted)))
        return;
    if (standard)
        QMetaObject::invokeMethod(standard, "click", Qt::QueuedConnection);
    else
        QMetaObject::invokeMethod(dialog, "close", Qt::QueuedConnection);
}

QString DialogWatcher::chooseButton(const QString &title, bool &hold)
{
    for (qsizetype i = 0; i < m_rules.size(); ++i) {
        QJsonObject rule = m_rules[i].toObject();
        const int times = rule.value(QStringLiteral("times")).toInt(-1);
        if (times == 0 || !title.contains(rule.value(QStringLiteral("title")).toString()))
            continue;
        if (times > 0) {
            rule.insert(QStringLiteral("times"), times - 1);
            m_rules[i] = rule;
        }
        const QString button = rule.value(QStringLiteral("button")).toString();
        hold = button.isEmpty();
        return button;
    }
    return QString();
}

bool DialogWatcher::press(const QString &text)
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return false;
    for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
        if (plain(button->text()) == text && button->isVisible()) {
            QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
            return true;
        }
    }
    return false;
}
