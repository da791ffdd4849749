// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "packagetable/packagetable.h"
#include "packagetable/query.h"
#include "widgets/hsortfilterproxymodel.h"

#include <QByteArray>
#include <QHash>

#include <memory>
#include <vector>

class Expression;
class YumIO;

namespace Package {
class Entry;
}

namespace PackageTable {

// Decides which packages are listed, by state, duplicates, groups and an extended POSIX expression,
// and in which order. What the expression says of an entry is kept until the expression, the mode or
// what was loaded changes.
//
// In Search mode the engine is asked, in a job of its own: a setter returns when it has ended, and
// until then the rows are listed as before. The user may cancel it; then the setter has changed
// nothing.
class SortFilterProxyModel : public HSortFilterProxyModel
{
    Q_OBJECT

public:
    SortFilterProxyModel(StateFilter stateFilter, bool dups, bool groups, YumIO *yumIO,
                         QObject *parent);
    ~SortFilterProxyModel() override;

    void setSourceModel(HAbstractTableModel *model) override;

    void setMode(Mode mode);
    void setStateFilter(StateFilter stateFilter);
    void setDupsFilter(bool dups);
    void setGroupsFilter(bool groups);
    // The master switch: off lists every row.
    void setFilter(bool filter);
    bool getFilter() const { return m_filter; }
    // From now on rows wait for what their verdicts need: none is judged, and none listed, until
    // judge() or a setter was not cancelled.
    void wait();
    void judge();
    // Whether the last setter, or judge(), was cancelled.
    bool wasCancelled() const { return m_cancelled; }
    StateFilter stateFilter() const { return m_rules.state; }
    bool dupsFilter() const { return m_rules.dups; }
    bool groupsFilter() const { return m_rules.groups; }
    // An expression that does not compile lists whatever the other rules let through.
    void setFilterRegExp(const QString &pattern) override;
    // Mode and expression as they are installed.
    const Query &query() const { return m_query; }

    // Which of the filters rejects most rows, each row counted for the first that does, those that
    // look at no text first. To be asked when nothing is listed. Search: it has not ended yet.
    Hides hidesMost() const;

    // Sets Update on every listed entry that is out of date.
    void setUpdateListed();
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    // True when the expression is found in the text, and when there is no expression.
    bool matches(const QString &text) const;

public Q_SLOTS:
    void clear() override;
    void clearCache();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    using HSortFilterProxyModel::setFilterRegExp;

    // What is decided of an entry without a look at its texts.
    struct Rules
    {
        bool operator==(const Rules &other) const = default;
        Hides rejectedBy(const Package::Entry &entry) const;
        bool accept(const Package::Entry &entry) const
        {
            return rejectedBy(entry) == Hides::Nothing;
        }
        StateFilter state;
        bool dups;
        bool groups;
    };
    // What the engine has loaded of that which verdicts rest on.
    struct Basis
    {
        bool operator==(const Basis &other) const = default;
        bool fileLists = false;
        bool otherData = false;
    };
    using Verdicts = QHash<const Package::Entry *, bool>;

    const Package::Entry *entryAt(int sourceRow) const;
    bool acceptTexts(const Package::Entry &entry, const Expression &expression) const;
    Basis loaded() const;
    void sourceAboutToBeReset();
    void setRules(const Rules &rules);
    bool change(const Query &query, const Rules &rules);
    bool judge(const Query &query, const Rules &rules, const Expression &expression,
               Verdicts &verdicts) const;
    std::vector<int> ranks(int column) const;

    Query m_query;
    Rules m_rules;
    bool m_filter = true;
    bool m_waiting = false;
    bool m_cancelled = false;
    YumIO *m_yumIO;
    HAbstractTableModel *m_sourcePackageModel = nullptr;
    std::unique_ptr<const Expression> m_expression; // of m_query
    mutable Verdicts m_verdicts;                    // what it says of entries
    Basis m_basis;                                  // of the verdicts
    mutable QByteArray m_rowText;
    mutable int m_rankedColumn = -1; // the column of m_ranks
    mutable std::vector<int> m_ranks;
    mutable std::vector<int> m_nameRanks;
};

} // namespace PackageTable
