// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "configform.h"

#include "app/colors.h"
#include "app/harmless.h"
#include "entrycheck.h"
#include "optionsedit.h"
#include "passwdlineedit.h"
#include "passwdtextedit.h"
#include "widgets/hframelabel.h"
#include "yumconfio.h"
#include "yumio/passwordsintext.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace RepoEditor {

namespace {

constexpr int urlRows = 3;
constexpr int optionRows = 4;
constexpr int columns = 80;
constexpr int longestKey = 24; // characters of a credential's name that its label shows
constexpr int tipColumns = 90;
constexpr int tipLines = 20;

template <typename Field> Field *named(Field *field, const char *name, const QString &toolTip)
{
    field->setObjectName(QLatin1String(name));
    field->setToolTip(toolTip);
    return field;
}

QLabel *newLabel(const QString &text, QWidget *field, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setBuddy(field);
    return label;
}

// Never lower than the rows that it asks for: the form scrolls.
template <typename Edit> Edit *textField(Edit *edit)
{
    edit->setTabChangesFocus(true);
    edit->setMinimumHeight(edit->sizeHint().height());
    return edit;
}

// The key of a credential comes from the URL and may be anything.
void showKey(QLabel *label, const QString &key, const QString &otherwise)
{
    QString text = key.isEmpty() ? otherwise : key.simplified();
    if (text.size() > longestKey)
        text = text.left(longestKey) + QChar(0x2026);
    label->setText(harmlessLabel(text));
}

// What a tip says beside `tip` of a text with variables; it has no line breaks of its own.
QString expandedTip(const QString &tip, const QString &heading, const QString &expanded)
{
    QString text = tip + QStringLiteral("\n\n") + heading;
    int lines = 0;
    for (QString line : harmless(maskPasswords(expanded)).split(u'\n', Qt::SkipEmptyParts)) {
        for (; !line.isEmpty() && lines < tipLines; ++lines) {
            text += u'\n' + line.left(tipColumns);
            line.remove(0, tipColumns);
        }
    }
    return lines < tipLines ? text : text + QStringLiteral("\n...");
}

void setTextOf(QLineEdit *edit, const QString &text)
{
    if (edit->text() != text) // or the cursor would leave where the user types
        edit->setText(text);
}

} // namespace

Config::Config(QGridLayout *layout) : QObject(layout->parentWidget())
{
    QWidget *parent = layout->parentWidget();
    m_id = named(new QLineEdit(parent), "identifier", tr("Unique identifier for the repository"));
    m_name = named(new QLineEdit(parent), "repoName", tr("Description of the repository"));
    m_urls = textField(named(
        new PasswdTextEdit(Repo::Kivvet::credentialsRegExp(), urlRows, columns, parent), "urls",
        tr("List of URLs to the repository.\nIf more than one is specified, they all should "
           "be identical mirrors,\nand will provide redundancy if some URLs are "
           "unreachable.")));
    m_mirrorList =
        named(new PasswdLineEdit(Repo::Kivvet::credentialsRegExp(), parent), "mirrorList",
              tr("URL to a file containing a list of URLs to the repository."));

    layout->addWidget(newLabel(tr("&Identifier"), m_id, parent), 0, 0);
    layout->addWidget(m_id, 0, 1);
    layout->addWidget(newLabel(tr("&Name"), m_name, parent), 1, 0);
    layout->addWidget(m_name, 1, 1);
    layout->addWidget(newLabel(tr("&URLs"), m_urls, parent), 2, 0, Qt::AlignTop);
    layout->addWidget(m_urls, 2, 1);
    layout->addWidget(newLabel(tr("&Mirror list URL"), m_mirrorList, parent), 3, 0);
    layout->addWidget(m_mirrorList, 3, 1);
    layout->addWidget(createAuth(parent), 4, 0, 1, 2);
    layout->addWidget(createOptions(parent), 5, 0, 1, 2);
    layout->addWidget(createFileInfo(parent), 6, 0, 1, 2);

    m_urlsTip = m_urls->toolTip();
    m_mirrorListTip = m_mirrorList->toolTip();

    const auto onText = qOverload<const QString &>(&Config::valueChanged);
    connect(m_id, &QLineEdit::textChanged, this, onText);
    connect(m_name, &QLineEdit::textChanged, this, onText);
    connect(m_urls, &PasswdTextEdit::realTextChanged, this, qOverload<>(&Config::urlChanged));
    connect(m_mirrorList, &PasswdLineEdit::realTextChanged, this,
            qOverload<const QString &>(&Config::urlChanged));
    connect(m_authName, &QLineEdit::textChanged, this, &Config::authChanged);
    connect(m_authPassword, &QLineEdit::textChanged, this, &Config::authChanged);
    const auto onNumber = qOverload<int>(&Config::valueChanged);
    connect(m_enabled, &QComboBox::currentIndexChanged, this, onNumber);
    connect(m_gpgcheck, &QComboBox::currentIndexChanged, this, onNumber);
    connect(m_otherOptions, &PasswdTextEdit::realTextChanged, this,
            qOverload<>(&Config::valueChanged));
    connect(m_file, &QLineEdit::textChanged, this, onText);
    connect(m_position, &QDoubleSpinBox::textChanged, this, onText);
}

QWidget *Config::createAuth(QWidget *parent)
{
    auto *group = new QGroupBox(tr("&Kivvet Authentication"), parent);
    m_authName =
        named(new QLineEdit(group), "authName",
              tr("Authentication name for a repository using the kivvet authentication method"));
    m_authPassword = named(
        new QLineEdit(group), "authPassword",
        tr("Authentication password for a repository using the kivvet authentication method"));
    m_authPassword->setEchoMode(QLineEdit::Password);
    m_authNameLabel = newLabel(tr("Name"), m_authName, group);
    m_authPasswordLabel = newLabel(tr("Password"), m_authPassword, group);
    auto *grid = new QGridLayout(group);
    grid->addWidget(m_authNameLabel, 0, 0);
    grid->addWidget(m_authName, 0, 1);
    grid->addWidget(m_authPasswordLabel, 1, 0);
    grid->addWidget(m_authPassword, 1, 1);
    return group;
}

QWidget *Config::createOptions(QWidget *parent)
{
    auto *group = new QGroupBox(tr("Repository Options"), parent);
    QWidget *simple = createSimpleOptions(group);
    m_otherOptions =
        textField(named(new OptionsEdit(optionRows, columns, group), "otherOptions",
                        tr("Any other yum options for this repository.  See yum.conf(5)")));
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(simple);
    layout->addWidget(newLabel(tr("Ot&her Options:"), m_otherOptions, group));
    layout->addWidget(m_otherOptions, 1);
    m_optionHints = new QLabel(group);
    m_optionHints->setObjectName(QStringLiteral("optionHints"));
    m_optionHints->setTextFormat(Qt::PlainText);
    m_optionHints->setWordWrap(true);
    layout->addWidget(m_optionHints);
    return group;
}

QWidget *Config::createSimpleOptions(QWidget *parent)
{
    auto *widget = new QWidget(parent);
    const auto newList = [&](const char *name, const QString &toolTip) {
        QComboBox *list = named(new QComboBox(widget), name, toolTip);
        list->addItem(tr("No"), int(Qt::Unchecked));
        list->addItem(tr("Default"), int(Qt::PartiallyChecked));
        list->addItem(tr("Yes"), int(Qt::Checked));
        return list;
    };
    m_enabled = newList("enabled", tr("Whether or not the repository is enabled for use"));
    m_gpgcheck = newList("gpgcheck", tr("Whether or not GPG key signatures of packages from the "
                                        "repository are checked to ensure authenticity"));
    auto *grid = new QGridLayout;
    grid->addWidget(newLabel(tr("&Enabled"), m_enabled, widget), 0, 0);
    grid->addWidget(m_enabled, 0, 1);
    grid->addWidget(newLabel(tr("Check &GPG Keys"), m_gpgcheck, widget), 1, 0);
    grid->addWidget(m_gpgcheck, 1, 1);
    auto *row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(grid);
    row->addStretch();
    return widget;
}

QWidget *Config::createFileInfo(QWidget *parent)
{
    auto *group = new QGroupBox(tr("Configuration File (expert)"), parent);
    m_file = named(new QLineEdit(group), "file",
                   tr("Name of the yum configuration file into which to place this repository "
                      "configuration.\nIf left blank, defaults to the repository's identifier"));
    m_position = named(new QDoubleSpinBox(group), "position",
                       tr("A numeric sort key which determines the order of this repository "
                          "configuration\nin a configuration file which contains multiple "
                          "configurations"));
    m_position->setDecimals(1);
    m_position->setSingleStep(1.0);
    m_position->setMinimum(0.0);
    m_position->setValue(0.0);
    auto *grid = new QGridLayout(group);
    grid->addWidget(newLabel(tr("&File"), m_file, group), 0, 0);
    grid->addWidget(m_file, 0, 1, 1, 2);
    grid->addWidget(newLabel(tr("Sort &Position"), m_position, group), 1, 0);
    grid->addWidget(m_position, 1, 1);
    grid->setColumnStretch(2, 1);
    return group;
}

void Config::setDefaults(bool enabled, bool gpgcheck)
{
    const auto relabel = [](QComboBox *list, bool on) {
        list->setItemText(
            int(Qt::PartiallyChecked),
            QStringLiteral("%1 %2").arg(tr("Default"), on ? tr("(Yes)") : tr("(No)")));
    };
    relabel(m_enabled, enabled);
    relabel(m_gpgcheck, gpgcheck);
}

void Config::setEntry(const Repo::Entry &entry)
{
    const QScopedValueRollback guard(m_updating, true);
    m_id->setText(entry.id);
    m_name->setText(entry.name);
    m_urls->setRealPlainText(entry.baseurl);
    m_mirrorList->setRealText(entry.mirrorlist);
    m_enabled->setCurrentIndex(int(entry.enabled));
    m_gpgcheck->setCurrentIndex(int(entry.gpgcheck));
    m_otherOptions->setRealPlainText(entry.otherOptions);
    m_file->setText(entry.file);
    m_position->setValue(entry.position);
    setEnabled(true);
    showAuth(entry);
    // Of a text that is longer than its field, the beginning says what it is.
    for (QLineEdit *edit : {m_id, m_name, static_cast<QLineEdit *>(m_mirrorList), m_file})
        edit->home(false);
    showExpanded();
    m_entry = entry;
    m_asShown = shown();
}

Repo::Entry Config::toEntry() const
{
    Repo::Entry entry = shown();
    const auto keep = [&](auto field) {
        if (entry.*field == m_asShown.*field)
            entry.*field = m_entry.*field;
    };
    keep(&Repo::Entry::id);
    keep(&Repo::Entry::name);
    keep(&Repo::Entry::baseurl);
    keep(&Repo::Entry::mirrorlist);
    keep(&Repo::Entry::otherOptions);
    keep(&Repo::Entry::file);
    keep(&Repo::Entry::position);
    return entry;
}

Repo::Entry Config::shown() const
{
    Repo::Entry entry;
    entry.id = m_id->text();
    entry.name = m_name->text();
    entry.baseurl = m_urls->realPlainText();
    entry.mirrorlist = m_mirrorList->realText();
    entry.enabled = Qt::CheckState(m_enabled->currentIndex());
    entry.gpgcheck = Qt::CheckState(m_gpgcheck->currentIndex());
    entry.otherOptions = m_otherOptions->realPlainText();
    entry.file = m_file->text();
    entry.position = m_position->value();
    return entry;
}

void Config::showAuth(const Repo::Entry &entry)
{
    QString nameKey, name, passwordKey, password;
    const bool found = Repo::Kivvet::getAuth(entry, nameKey, name, passwordKey, password);
    const QScopedValueRollback guard(m_updating, true);
    showKey(m_authNameLabel, nameKey, tr("Name"));
    showKey(m_authPasswordLabel, passwordKey, tr("Password"));
    setTextOf(m_authName, name);
    setTextOf(m_authPassword, password);
    m_authName->setEnabled(found);
    m_authPassword->setEnabled(found);
    m_authFilled = {m_urls->realPlainText(),
                    m_mirrorList->realText(),
                    {name, password},
                    {m_authName->text(), m_authPassword->text()}};
}

void Config::disable()
{
    setEnabled(false);
    m_authName->setEnabled(false);
    m_authPassword->setEnabled(false);
}

// All but the credentials, whose fields go by what the URLs hold.
void Config::setEnabled(bool enabled)
{
    for (QWidget *field :
         std::initializer_list<QWidget *>{m_id, m_name, m_urls, m_mirrorList, m_enabled, m_gpgcheck,
                                          m_otherOptions, m_file, m_position})
        field->setEnabled(enabled);
}

void Config::setFocus()
{
    m_id->setFocus();
    m_id->selectAll();
}

bool Config::setStatus(YumConfIO *yumConfIO, HFrameLabel *label) const
{
    const auto show = [label](const QPalette &palette, const QString &text) {
        label->setPalette(palette);
        label->setText(harmlessLine(text));
        return true;
    };
    const auto warn = [&](const QString &text) {
        return show(Colors::makeWarning(label->palette()), text);
    };
    const Repo::Entry entry = toEntry();
    if (hasMaskAsPassword())
        return show(Colors::makeError(label->palette()),
                    tr("The password consists of mask characters only"));
    if (entry.id.isEmpty())
        return show(Colors::makeError(label->palette()), tr("No Identifier specified"));
    if (entry.baseurl.isEmpty() && entry.mirrorlist.isEmpty())
        return warn(tr("No URLs or Mirror list URL specified"));
    if (!entry.file.isEmpty() && entry.file != YumConfIO::fileName()) {
        const QStringList &directories = yumConfIO->reposdirs;
        if (std::none_of(directories.begin(), directories.end(), [&](const QString &directory) {
                return entry.file.startsWith(directory + u'/');
            }))
            return warn(tr("File is not in any reposdir directory"));
        if (!entry.file.endsWith(QLatin1String(".repo")))
            return warn(tr("File lacks .repo suffix"));
    }
    QString nameKey, name, passwordKey, password;
    if (Repo::Kivvet::getAuth(entry, nameKey, name, passwordKey, password)) {
        if (name.isEmpty())
            return warn(tr("No Kivvet Authentication Name specified"));
        if (password.isEmpty())
            return warn(tr("No Kivvet Authentication Password specified"));
    }
    return false;
}

bool Config::hasMaskAsPassword() const
{
    const QChar mask(m_authPassword->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter,
                                                        nullptr, m_authPassword));
    return !YumConfIO::maskedPasswords(toEntry(), m_entry, mask).isEmpty();
}

void Config::setExpander(std::function<QString(const QString &)> expander)
{
    m_expander = std::move(expander);
    showExpanded();
}

void Config::showExpanded()
{
    const auto show = [this](QWidget *field, const QString &tip, const QString &text) {
        const QString expanded = m_expander && text.contains(u'$') ? m_expander(text) : text;
        field->setToolTip(expanded == text
                              ? tip
                              : expandedTip(tip, tr("With the variables replaced:"), expanded));
    };
    show(m_urls, m_urlsTip, m_urls->realPlainText());
    show(m_mirrorList, m_mirrorListTip, m_mirrorList->realText());
}

void Config::showHints()
{
    const QString options = toEntry().otherOptions;
    m_optionHints->setText(harmless(EntryCheck::optionHints(options, m_knownOptions).join(u'\n')));
    m_optionHints->setVisible(!m_optionHints->text().isEmpty());
}

void Config::urlChanged()
{
    if (m_updating)
        return;
    showAuth(toEntry());
    showExpanded();
    Q_EMIT changed();
}

void Config::urlChanged(const QString &)
{
    urlChanged();
}

void Config::authChanged(const QString &)
{
    if (m_updating)
        return;
    // Always from what the URLs were before the first key: a value that is typed back has its bytes
    // again.
    const auto typed = [](const QLineEdit *edit, const QString &shown, const QString &held) {
        return edit->text() == shown ? held : edit->text();
    };
    const auto &[urls, mirrorList, held, shown] = m_authFilled;
    const Repo::Kivvet::Auth now{typed(m_authName, shown.name, held.name),
                                 typed(m_authPassword, shown.password, held.password)};
    // Between the two the fields do not say what either URL has.
    {
        const QScopedValueRollback guard(m_updating, true);
        m_urls->setRealPlainText(Repo::Kivvet::changeAuth(urls, held, now));
        m_mirrorList->setRealText(Repo::Kivvet::changeAuth(mirrorList, held, now));
    }
    showExpanded();
    Q_EMIT changed();
}

void Config::valueChanged()
{
    if (!m_updating)
        Q_EMIT changed();
}

void Config::valueChanged(const QString &)
{
    valueChanged();
}

void Config::valueChanged(int)
{
    valueChanged();
}

} // namespace RepoEditor
