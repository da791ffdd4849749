// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/mainwindow.h"

#include "app/share.h"
#include "app/version.h"
#include "widgets/helper.h"
#include "widgets/messagebox.h"

#include <QDir>
#include <QFileInfo>

namespace {

// The manuals lie beside the share directory, wherever that is.
QString manual(const QString &name)
{
    const QString path = Share::absolute(QStringLiteral("../doc/vok-" VOK_VERSION "/") + name);
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

void MainWindow::manualHtml()
{
    const QString file = manual(QStringLiteral("html/index.html"));
    showManual(QStringLiteral("webbrowser"), {file}, file);
}

void MainWindow::manualPdf()
{
    const QString file = manual(QStringLiteral("manual.pdf"));
    showManual(QStringLiteral("mimeviewer"), {QStringLiteral("application/pdf"), file}, file);
}

void MainWindow::showManual(const QString &helper, const QStringList &arguments,
                            const QString &file)
{
    QString text;
    QString reason;
    if (!QFileInfo::exists(file))
        text = tr("The manual is missing: there is no file\n%1\n\nIt is installed together with "
                  "VOK, unless VOK was built without the programs that make it.");
    else if (!Helper::start(this, helper, arguments, reason))
        text = tr("The manual cannot be opened:\n%1\n\n%2");
    else
        return;
    showMessageBox(QMessageBox::Critical, this, tr("Help"),
                   reason.isEmpty() ? text.arg(file) : text.arg(file, reason));
}
