// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "maskedfield.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QWidget>

#include <algorithm>

namespace {

void maskCaptures(QString &text, const QRegularExpressionMatch &match, QChar mask)
{
    for (int i = 1; i <= match.lastCapturedIndex(); ++i) {
        const qsizetype length = match.capturedLength(i);
        if (length > 0)
            std::fill_n(text.begin() + match.capturedStart(i), length, mask);
    }
}

// The clipboard hands out the object that this process put into it, as long as it is there.
class MaskedCopy : public QMimeData
{
public:
    explicit MaskedCopy(const QString &realText) : real(realText) {}

    const QString real;
};

// An object without text, name, value or children.
class Mute : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(object()->parent());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text) const override { return QString(); }
    QAccessible::Role role() const override { return QAccessible::NoRole; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = true;
        state.disabled = true;
        return state;
    }
};

QAccessibleInterface *mute(const QString &className, QObject *object)
{
    if (object && (className == QLatin1String("PasswdRealLineEdit") ||
                   className == QLatin1String("PasswdRealTextEdit")))
        return new Mute(object);
    return nullptr;
}

} // namespace

QString MaskedField::maskAll(const QString &text, const QRegularExpression &expression, QChar mask)
{
    QString masked = text;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext())
        maskCaptures(masked, matches.next(), mask);
    return masked;
}

MaskedField::Edit MaskedField::difference(const QString &before, const QString &after,
                                          qsizetype cursor)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype ahead = 0, behind = 0;
    while (ahead < shorter && before.at(ahead) == after.at(ahead))
        ++ahead;
    while (behind < shorter &&
           before.at(before.size() - 1 - behind) == after.at(after.size() - 1 - behind))
        ++behind;
    // Among characters that look the same an insertion or a removal may have been in several
    // places; the cursor, which stands behind it, says in which.
    const qsizetype inserted = std::max<qsizetype>(after.size() - shorter, 0);
    if (ahead + behind >= shorter)
        ahead = std::clamp(cursor - inserted, shorter - behind, ahead);
    behind = std::min(behind, shorter - ahead);
    return {ahead, before.size() - behind - ahead, after.mid(ahead, after.size() - behind - ahead)};
}

qsizetype MaskedField::wholeCharacter(const QString &text, qsizetype position)
{
    const bool inside = position > 0 && position < text.size() &&
                        text.at(position - 1).isHighSurrogate() &&
                        text.at(position).isLowSurrogate();
    return inside ? position + 1 : position;
}

bool MaskedField::editsText(const QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete ||
        event->matches(QKeySequence::DeleteStartOfWord) ||
        event->matches(QKeySequence::DeleteEndOfWord))
        return true;
    const auto modifiers = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (event->text().isEmpty() || modifiers == Qt::ControlModifier)
        return false;
    const QChar first = event->text().at(0);
    return first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_Format ||
           first.category() == QChar::Other_PrivateUse;
}

QList<QInputMethodEvent::Attribute>
MaskedField::withoutSelection(const QList<QInputMethodEvent::Attribute> &attributes)
{
    QList<QInputMethodEvent::Attribute> result = attributes;
    result.removeIf([](const auto &one) { return one.type == QInputMethodEvent::Selection; });
    return result;
}

QMimeData *MaskedField::copied(const QString &shown, const QString &real)
{
    auto *data = new MaskedCopy(real);
    data->setText(shown);
    return data;
}

QString MaskedField::pasted(const QMimeData *source, bool *restored)
{
    const auto *own = dynamic_cast<const MaskedCopy *>(source);
    if (restored)
        *restored = own;
    return own ? own->real : source ? source->text() : QString();
}

void MaskedField::hideFromAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(mute);
        return true;
    }();
    Q_UNUSED(installed);
}
