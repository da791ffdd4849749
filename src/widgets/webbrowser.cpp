// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "webbrowser.h"

#include "helper.h"
#include "messagebox.h"

#include <QCoreApplication>

namespace {

class WebBrowserTexts
{
    Q_DECLARE_TR_FUNCTIONS(WebBrowser)
};

} // namespace

void WebBrowser::open(QWidget *parent, const QString &address)
{
    QString reason;
    if (Helper::start(parent, QStringLiteral("webbrowser"), {address}, reason))
        return;
    showMessageBox(
        QMessageBox::Critical, parent, WebBrowserTexts::tr("Browse"),
        WebBrowserTexts::tr("The address cannot be opened:\n%1\n\n%2").arg(address, reason));
}
