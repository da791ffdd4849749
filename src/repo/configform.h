// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "kivvet/kivvet.h"
#include "repoentry.h"

#include <QObject>
#include <QStringList>

#include <functional>

class HFrameLabel;
class PasswdLineEdit;
class PasswdTextEdit;
class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;
class YumConfIO;

namespace RepoEditor {

class OptionsEdit;

// The form in which one repository definition is edited field by field. The credentials of the
// URLs have fields of their own, which follow the URLs and change them.
class Config : public QObject
{
    Q_OBJECT

public:
    // Fills `layout`, which must be a widget's; the fields become children of that widget.
    explicit Config(QGridLayout *layout);

    // Says in the lists what the main section makes of an option that is not set.
    void setDefaults(bool enabled, bool gpgcheck);
    void setEntry(const Repo::Entry &entry);
    // What the fields say. A field that was not touched gives the value it was filled from, even one
    // that it cannot show as it is.
    Repo::Entry toEntry() const;
    void disable();
    // Shows the first problem of what the fields say; false, with `label` as it was, when there is
    // none.
    bool setStatus(YumConfIO *yumConfIO, HFrameLabel *label) const;
    // Whether a password that was changed is what a masked field shows of one, copied as a text.
    bool hasMaskAsPassword() const;
    void setFocus();
    // The options that are known, for hints; none, and no option gets one.
    void setKnownOptions(const QStringList &options) { m_knownOptions = options; }
    // Replaces the variables in a text, for the tips of the URLs.
    void setExpander(std::function<QString(const QString &)> expander);
    // Shows what there is to say of the options, beside them.
    void showHints();
    void showExpanded();

public Q_SLOTS:
    void urlChanged();
    void urlChanged(const QString &url);
    void authChanged(const QString &text);
    void valueChanged();
    void valueChanged(const QString &text);
    void valueChanged(int number);

Q_SIGNALS:
    void changed();

private:
    QWidget *createAuth(QWidget *parent);
    QWidget *createOptions(QWidget *parent);
    QWidget *createSimpleOptions(QWidget *parent);
    QWidget *createFileInfo(QWidget *parent);
    Repo::Entry shown() const;
    void showAuth(const Repo::Entry &entry);
    void setEnabled(bool enabled);

    QLineEdit *m_id = nullptr;
    QLineEdit *m_name = nullptr;
    PasswdTextEdit *m_urls = nullptr;
    PasswdLineEdit *m_mirrorList = nullptr;
    QLabel *m_authNameLabel = nullptr;
    QLineEdit *m_authName = nullptr;
    QLabel *m_authPasswordLabel = nullptr;
    QLineEdit *m_authPassword = nullptr;
    QComboBox *m_enabled = nullptr;
    QComboBox *m_gpgcheck = nullptr;
    OptionsEdit *m_otherOptions = nullptr;
    QLineEdit *m_file = nullptr;
    QDoubleSpinBox *m_position = nullptr;
    Repo::Entry m_entry;   // the fields were filled from this
    Repo::Entry m_asShown; // and gave this right after
    // When the fields of the credentials were filled: what the URLs were, what they held, and what the
    // fields made of that.
    struct
    {
        QString urls, mirrorList;
        Repo::Kivvet::Auth held, shown;
    } m_authFilled;
    bool m_updating = false;
    QLabel *m_optionHints = nullptr;
    QStringList m_knownOptions;
    std::function<QString(const QString &)> m_expander;
    QString m_urlsTip, m_mirrorListTip; // without what the variables stand for
};

} // namespace RepoEditor
