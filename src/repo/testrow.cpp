// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "testrow.h"

#include "app/colors.h"
#include "app/harmless.h"
#include "widgets/htextedit.h"
#include "yumio/jobprogress.h"
#include "yumio/passwordsintext.h"
#include "yumio/repotest.h"
#include "yumio/yumio.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace RepoEditor {

namespace {

constexpr int resultRows = 4;
constexpr int resultColumns = 40;

bool isDefinition(const RepoAnswer &answer)
{
    return answer.kind == RepoAnswer::Kind::Definition;
}

bool isGood(const RepoAnswer &answer)
{
    return answer.kind == RepoAnswer::Kind::Good;
}

// The library takes what it finds first, whatever it is.
bool isFound(const RepoAnswer &answer)
{
    return isGood(answer) || answer.kind == RepoAnswer::Kind::Nothing;
}

// Whether a server answered something else to a URL with the path in its query. librepo puts the
// path of a file in front of the query.
bool isAnswerToQuery(const RepoAnswer &answer)
{
    using enum RepoAnswer::Kind;
    return (answer.kind == Missing || answer.kind == Password || answer.kind == Nothing ||
            answer.kind == Other) &&
           answer.url.contains(QLatin1String("/kivvet?")) &&
           answer.url.contains(QLatin1String("&path="));
}

} // namespace

TestRow::TestRow(QWidget *parent) : QWidget(parent)
{
    m_button = new QPushButton(tr("&Test"), this);
    m_button->setObjectName(QStringLiteral("testButton"));
    m_button->setToolTip(tr("Try to reach the repository as it is described here.  Nothing is "
                            "saved"));
    m_button->setAutoDefault(false);
    connect(m_button, &QPushButton::clicked, this, &TestRow::testAsked);
    m_result = new HTextEdit(resultRows, resultColumns, this);
    m_result->setObjectName(QStringLiteral("testResult"));
    m_result->setAccessibleName(tr("Result of the test"));
    m_result->setReadOnly(true);
    m_result->setTabChangesFocus(true);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_result->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_result->setFixedHeight(m_result->sizeHint().height());
    m_result->hide();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_button, 0, Qt::AlignTop);
    m_progress = new JobProgress(QStringLiteral("test"), tr("C&ancel Test"),
                                 tr("Stops the test; the dialog stays open"), this);
    row->addWidget(m_progress, 1);
    row->addWidget(m_result, 1);
    row->addStretch();
    hide();
}

void TestRow::setEngine(YumIO *yumIO, JobRunner runner)
{
    m_yumIO = yumIO;
    m_runJob = std::move(runner);
}

void TestRow::test(const QString &section)
{
    if (m_testing || !m_yumIO || !m_runJob)
        return;
    m_testing = true;
    m_outdated = false;
    m_result->hide();
    std::optional<QList<RepoAnswer>> answers;
    const auto [ran, said] = m_progress->run(
        m_yumIO, m_runJob, [&] { answers = m_yumIO->testRepository(section); }, m_button);
    m_testing = false;
    if (answers)
        showAnswers(*answers, hasOptionPasswords(section));
    else if (!ran)
        showResult(tr("Another operation is running."), Colors::makeWarning(palette()));
    else if (m_yumIO->wasCancelled())
        showResult(tr("The test was cancelled."), Colors::makeWarning(palette()));
    else
        showResult(maskPasswords(said), Colors::makeError(palette()));
}

void TestRow::cancel()
{
    m_progress->cancel();
}

void TestRow::outdate()
{
    m_outdated = true;
    if (!m_testing)
        m_result->hide();
}

void TestRow::clear()
{
    setVisible(m_yumIO && m_runJob && m_yumIO->canTestRepositories());
    m_result->hide();
}

void TestRow::showAnswers(const QList<RepoAnswer> &answers, bool hasPassword)
{
    const auto found = std::find_if(answers.begin(), answers.end(), isFound);
    const bool reached = found != answers.end() && isGood(*found);
    const bool complete = reached && std::all_of(answers.begin(), answers.end(), isGood);
    QStringList lines;
    if (m_outdated)
        lines += tr("This is of the repository before the last changes.");
    if (answers.isEmpty())
        lines += tr("There is no URL to test.");
    else if (reached)
        lines += tr("The repository can be reached.");
    else if (!isDefinition(answers.last())) // of that, what follows is all there is to say
        lines += tr("The repository cannot be reached.");
    if (std::any_of(answers.begin(), answers.end(), isAnswerToQuery))
        lines += tr("DNF inserts the path of a file before the \"?\" of a URL.  It cannot use a "
                    "server that expects that path in the query.");
    for (const RepoAnswer &answer : answers) {
        lines += textOf(answer, hasPassword);
        if (!answer.detail.isEmpty() && !isDefinition(answer))
            lines += QStringLiteral("    ") + answer.detail;
    }
    showResult(lines.join(u'\n'), complete  ? Colors::makeOK(palette())
                                  : reached ? Colors::makeWarning(palette())
                                            : Colors::makeError(palette()));
}

void TestRow::showResult(const QString &text, const QPalette &palette)
{
    m_result->setPalette(palette);
    m_result->setPlainText(harmless(text));
    m_result->setVisible(!text.isEmpty());
}

QString TestRow::textOf(const RepoAnswer &answer, bool hasPassword)
{
    using enum RepoAnswer::Kind;
    switch (answer.kind) {
    case Good:
        return tr("%1 has repository metadata.").arg(answer.url);
    case Password:
        return (hasPassword ? tr("%1 refuses the user name or the password.")
                            : tr("%1 wants a user name and a password, or lets nobody in."))
            .arg(answer.url);
    case Host:
        return tr("The host of %1 is unknown.").arg(answer.url);
    case Refused:
        return tr("The host of %1 refuses the connection.").arg(answer.url);
    case Timeout:
        return tr("%1 does not answer in time.").arg(answer.url);
    case Certificate:
        return tr("The certificate of %1 is not accepted.").arg(answer.url);
    case Missing:
        return tr("%1 has no repodata/repomd.xml.").arg(answer.url);
    case NoList:
        return tr("There is no list of mirrors at %1.").arg(answer.url);
    case Proxy:
        return tr("The proxy on the way to %1 cannot be reached or used.").arg(answer.url);
    case Nothing:
        return tr("What %1 has as repodata/repomd.xml is no repository metadata.  DNF takes the "
                  "first that it finds.")
            .arg(answer.url);
    case Empty:
        return tr("The list of mirrors at %1 names none.").arg(answer.url);
    case Definition:
        return tr("DNF does not take it as it is: %1").arg(answer.detail);
    case Other:
        break;
    }
    return tr("%1 cannot be read.").arg(answer.url);
}

} // namespace RepoEditor
