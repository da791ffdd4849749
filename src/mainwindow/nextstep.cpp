// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "mainwindow/nextstep.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(NextStep)
};

} // namespace

QString nextStep(Engine::Collected collected)
{
    switch (collected) {
    case Engine::Collected::All:
        break;
    case Engine::Collected::Cancelled:
        return Texts::tr("The packages were not read, because that was cancelled.\nRefresh reads "
                         "them.");
    case Engine::Collected::NotRpm:
        return YumIO::notRpmText();
    case Engine::Collected::NoRepositories:
        return Texts::tr("No repositories are configured.\nEdit Configuration in the Repositories "
                         "menu (Ctrl+E) adds one.");
    case Engine::Collected::NoneEnabled:
        return Texts::tr(
            "No repositories are enabled.\nEdit Configuration in the Repositories "
            "menu (Ctrl+E) enables one: check Sess for this session, and Perm for later ones.");
    case Engine::Collected::RepositoriesFailed:
        return Texts::tr("The repositories could not be read.\nRefresh tries again, for example "
                         "when the network is there. To do without a repository, uncheck its Sess "
                         "under Edit Configuration in the Repositories menu (Ctrl+E).");
    case Engine::Collected::Failed:
        return Texts::tr("The packages could not be read.\nThe log (Ctrl+L) tells why. Refresh "
                         "tries again.");
    }
    return QString();
}

bool nothingIsInstalled(const YumIO &yumIO)
{
    return yumIO.count() > 0 && std::all_of(yumIO.begin(), yumIO.end(), [](const auto *entry) {
               return entry->state == Package::State::Installable ||
                      entry->kind == Package::Kind::Group;
           });
}
