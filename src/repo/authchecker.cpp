// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "authchecker.h"

#include "app/harmless.h"
#include "authdialog.h"
#include "kivvet/kivvet.h"
#include "kivvet/url.h"
#include "rootpath.h"
#include "yumconfio.h"

#include <QHash>

#include <optional>

namespace RepoAuth {

namespace {

// Whether the URLs have room for credentials; `auth` gets what stands there.
bool readAuth(const Repo::Entry &entry, Checker::Auth &auth)
{
    QString nameKey, passwordKey;
    return Repo::Kivvet::getAuth(entry, nameKey, auth.name, passwordKey, auth.password);
}

// Whether neither a name nor a password stands where there is room for both.
bool lacksAuth(const Repo::Entry &entry)
{
    Checker::Auth auth;
    return readAuth(entry, auth) && auth.name.isEmpty() && auth.password.isEmpty();
}

QString hostOf(const Repo::Entry &entry)
{
    const QString host = URL::getHost(entry.baseurl);
    return host.isEmpty() ? URL::getHost(entry.mirrorlist) : host;
}

} // namespace

Checker::Checker(QWidget *parent, YumConfIO *yumConfIO) : m_parent(parent), m_yumConfIO(yumConfIO)
{
    yumConfIO->read(parent);
    check();
    if (m_dialog)
        m_dialog->hide();
    if (changed)
        yumConfIO->write(parent);
}

Checker::~Checker()
{
    delete m_dialog;
}

void Checker::check()
{
    std::optional<Auth> forAll;
    QHash<QString, Auth> forHost;
    for (qsizetype i = 0; i < m_yumConfIO->repos.size(); ++i) {
        Repo::Entry &entry = m_yumConfIO->repos[i];
        Auth auth;
        if (!m_yumConfIO->reposUsed.value(entry.id) || !lacksAuth(entry))
            continue;
        if (!skipped.isEmpty()) {
            skipped.append(entry.id);
            continue;
        }
        const QString host = hostOf(entry);
        if (forAll || forHost.contains(host)) {
            replace(entry, forAll ? *forAll : forHost.value(host));
            continue;
        }
        if (!m_dialog)
            m_dialog = new Dialog(m_parent);
        m_dialog->setLookOnly(m_yumConfIO->lookOnly());
        const int answer = m_dialog->exec(&entry, warning(i));
        quit = answer == Dialog::Quit;
        if (quit)
            return;
        if (answer == Dialog::SkipAll)
            skipped.append(entry.id);
        if (answer == Dialog::Disable)
            m_yumConfIO->reposUsed.insert(entry.id, false);
        if (answer != Dialog::OK && answer != Dialog::ApplyAll && answer != Dialog::ApplyHost)
            continue;
        readAuth(entry, auth);
        changed = changed || !auth.name.isEmpty() || !auth.password.isEmpty();
        if (answer == Dialog::ApplyAll)
            forAll = auth;
        else if (answer == Dialog::ApplyHost)
            forHost.insert(host, auth);
    }
}

// An answer for several repositories may write to the files of all that are still to be asked about.
QString Checker::warning(qsizetype at) const
{
    if (!m_yumConfIO->lookOnly().isEmpty())
        return m_yumConfIO->lookOnly();
    const auto shown = [this](const Repo::Entry &entry) {
        return m_yumConfIO->losesReaders(entry.file) ? harmless(RootPath::shown(entry.file))
                                                     : QString();
    };
    const QString own = shown(m_yumConfIO->repos.at(at));
    QStringList others;
    for (const Repo::Entry &entry : m_yumConfIO->repos.mid(at + 1)) {
        const QString file = shown(entry);
        if (!file.isEmpty() && file != own && !others.contains(file) &&
            m_yumConfIO->reposUsed.value(entry.id) && lacksAuth(entry))
            others += file;
    }
    QStringList text;
    if (!own.isEmpty())
        text += tr("The password will be written to %1.").arg(own);
    if (!others.isEmpty())
        text +=
            tr("An answer for several repositories may write it to: %1.").arg(others.join(u", "));
    if (!text.isEmpty())
        text += tr("A file that gets its first password can no longer be read by other users.");
    return text.join(u' ');
}

void Checker::replace(Repo::Entry &entry, const Auth &auth)
{
    for (QString *urls : {&entry.baseurl, &entry.mirrorlist})
        *urls = Repo::Kivvet::replaceAuth(*urls, auth.name, auth.password);
}

} // namespace RepoAuth
