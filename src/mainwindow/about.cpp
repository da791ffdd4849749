// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/mainwindow.h"

#include "app/version.h"
#include "widgets/webbrowser.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

// The link opens as all addresses do, as the invoking user, which the toolkit's own way would not.
void MainWindow::about()
{
    const QString version = QStringLiteral(VOK_VERSION);
    const QString page = QStringLiteral(VOK_PROJECT_URL);
    const QString text =
        tr("<h3>VOK %1</h3><hr><p>VOK, Vokmanager, is a graphical user interface which allows a "
           "user to make modifications to the installed rpm packages on a system.</p>"
           "<p>Capabilities:<p><ul><li>Install new packages or update existing packages by "
           "downloading them from a yum package repository</li><li>Remove existing "
           "packages.</li><li>Configure sets of repositories from which to obtain new and updated "
           "packages.</li><li>Examine installed packages or packages available for installation or "
           "update</li><li>Install, update, or remove groups of packages</li><li>Install or update "
           "suites of packages</li></ul>")
            .arg(version) +
        tr("<p>More information is on the web page <a href=\"%1\">%1</a>.</p>")
            .arg(page.toHtmlEscaped());
    QMessageBox box(QMessageBox::NoIcon, tr("About"), text, QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("aboutBox"));
    box.setTextInteractionFlags(Qt::TextBrowserInteraction);
    box.setIconPixmap(QApplication::windowIcon().pixmap(64));
    box.button(QMessageBox::Ok)->setIcon(QIcon());
    for (auto *label : box.findChildren<QLabel *>()) {
        label->setOpenExternalLinks(false);
        connect(label, &QLabel::linkActivated, &box,
                [&box](const QString &address) { WebBrowser::open(&box, address); });
    }
    box.exec();
}
