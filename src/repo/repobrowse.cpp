// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "repobrowse.h"

#include "repoentry.h"
#include "widgets/messagebox.h"
#include "widgets/webbrowser.h"
#include "yumconfio.h"
#include "yumio/passwordsintext.h"
#include "yumio/yumio.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {

class RepoBrowseTexts
{
    Q_DECLARE_TR_FUNCTIONS(RepoBrowse)
};

} // namespace

void RepoBrowse::open(QWidget *parent, const QString &url)
{
    const QString address = withoutPasswords(url);
    if (address != url) {
        const QString text = RepoBrowseTexts::tr("The address holds a password, which is left out, "
                                                 "because other users could read it:\n%1");
        const int pressed = showMessageBox(QMessageBox::Information, parent,
                                           RepoBrowseTexts::tr("Browse"), text.arg(address));
        if (pressed == -1) // the program ends
            return;
    }
    WebBrowser::open(parent, address);
}

void RepoBrowse::browse(QWidget *parent, const Repo::Entry &entry, YumIO *yumIO)
{
    static const QRegularExpression space(QStringLiteral("\\s+"));
    QString url = entry.baseurl.split(space, Qt::SkipEmptyParts).value(0);
    if (url.isEmpty())
        url = entry.mirrorlist.trimmed();
    if (url.isEmpty()) {
        showMessageBox(QMessageBox::Critical, parent, RepoBrowseTexts::tr("Error"),
                       RepoBrowseTexts::tr("Repository configuration has no URL"));
        return;
    }
    // The longest first: the others are its beginning or its end.
    for (const char *name : {"basearch", "arch", "releasever"}) {
        const QString variable = u'$' + QLatin1String(name);
        if (url.contains(variable))
            url.replace(variable, yumIO->getYumVar(QLatin1String(name)));
    }
    open(parent, url);
}

void RepoBrowse::browse(QWidget *parent, const QString &id, YumIO *yumIO, YumConfIO *yumConfIO)
{
    if (!yumConfIO)
        return;
    const auto &repos = yumConfIO->repos;
    const auto entry = std::find_if(repos.begin(), repos.end(),
                                    [&](const Repo::Entry &one) { return one.id == id; });
    if (entry != repos.end())
        browse(parent, *entry, yumIO);
}
