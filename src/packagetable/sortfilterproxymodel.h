#pragma once

#include "packagetable/packagetable.h"
#include "packagetable/query.h"
#include "widgets/hsortfilterproxymodel.h"

#include <QByteArray>
#include <QHash>

#include <vector>

#include <regex.h>

class YumIO;

namespace Package {
class Entry;
}

namespace PackageTable {

// Decides which packages are listed, by state, duplicates, groups and an extended POSIX expression,
// and in which order. Each entry's verdict is kept until something that decides it changes.
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
    // Rows wait for what their verdicts need: meanwhile none is judged, and none listed.
    void setWaiting(bool waiting);
    // An expression that does not compile lists whatever the other rules let through.
    void setFilterRegExp(const QString &pattern) override;
    // Mode and expression as they are installed.
    const Query &query() const { return m_query; }

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

    const Package::Entry *entryAt(int sourceRow) const;
    bool acceptRow(const Package::Entry *entry) const;
    bool acceptTexts(const Package::Entry &entry) const;
    bool acceptFields(const Package::Entry &entry) const;
    bool matches(const char *text) const;
    // What the engine has loaded of that which verdicts rest on.
    struct Basis
    {
        bool operator==(const Basis &other) const = default;
        bool fileLists = false;
        bool otherData = false;
    };
    Basis loaded() const;
    void sourceAboutToBeReset();
    void judgeAll();
    std::vector<int> ranks(int column) const;

    Query m_query;
    bool m_filter = true;
    bool m_waiting = false;
    StateFilter m_stateFilter;
    bool m_dups;
    bool m_groups;
    YumIO *m_yumIO;
    HAbstractTableModel *m_sourcePackageModel = nullptr;
    mutable QHash<const Package::Entry *, bool> m_acceptCache;
    Basis m_basis;          // of the verdicts
    int m_regexStatus = -1; // 0: m_regex holds the compiled expression
    regex_t m_regex;
    mutable QByteArray m_rowText;
    mutable int m_rankedColumn = -1; // the column of m_ranks
    mutable std::vector<int> m_ranks;
    mutable std::vector<int> m_nameRanks;
};

} // namespace PackageTable
