// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "saverow.h"

#include "app/harmless.h"
#include "messagebox.h"

#include <QAbstractScrollArea>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>

#include <utility>

SaveRow::SaveRow(QAbstractScrollArea *area, const QString &whole)
    : QWidget(area), m_area(area), m_whole(whole)
{
    setObjectName(QStringLiteral("saveRow"));
    setAutoFillBackground(true);
    auto *label = new QLabel(tr("This text is too long to be shown whole."), this);
    auto *button = new QPushButton(tr("&Save..."), this);
    button->setObjectName(QStringLiteral("saveTextButton"));
    button->setToolTip(tr("Save the whole text to a file"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &SaveRow::saveAs);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(label, 1);
    layout->addWidget(button);
}

int SaveRow::update(SaveRow *&row, QAbstractScrollArea *area, const QString &whole,
                    const QString &shown)
{
    delete std::exchange(row, nullptr);
    if (shown == harmless(whole))
        return 0;
    row = new SaveRow(area, whole);
    row->place();
    row->show();
    return row->sizeHint().height();
}

void SaveRow::place()
{
    const int frame = m_area->frameWidth();
    const int height = sizeHint().height();
    setGeometry(frame, m_area->height() - frame - height, m_area->width() - 2 * frame, height);
}

void SaveRow::saveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save Text"));
    if (!path.isEmpty())
        save(path);
}

void SaveRow::save(const QString &path)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (file.open(QIODevice::WriteOnly) && file.write(m_whole.toUtf8()) != -1 && file.commit())
        return;
    showMessageBox(QMessageBox::Critical, this, tr("VOK Error"),
                   tr("Unable to save the text to %1:\n%2").arg(path, file.errorString()));
}
