// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/sortfilterproxymodel.h"

#include "packagetable/model.h"
#include "yumio/expression.h"
#include "yumio/yumio.h"

#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <utility>

namespace PackageTable {

using Package::Entry;
using Package::Kind;
using Package::State;

namespace {

void appendUtf8(QByteArray &bytes, QStringView text)
{
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const qsizetype size = bytes.size();
    bytes.resize(size + encoder.requiredSpace(text.size()));
    const char *end = encoder.appendToBuffer(bytes.data() + size, text);
    bytes.truncate(end - bytes.constData());
}

} // namespace

SortFilterProxyModel::SortFilterProxyModel(StateFilter stateFilter, bool dups, bool groups,
                                           YumIO *yumIO, QObject *parent)
    : HSortFilterProxyModel(NameColumn, parent), m_rules{stateFilter, dups, groups}, m_yumIO(yumIO),
      m_expression(std::make_unique<Expression>(QString()))
{
}

SortFilterProxyModel::~SortFilterProxyModel() = default;

void SortFilterProxyModel::setSourceModel(HAbstractTableModel *model)
{
    if (m_sourcePackageModel)
        disconnect(m_sourcePackageModel, &QAbstractItemModel::modelAboutToBeReset, this,
                   &SortFilterProxyModel::sourceAboutToBeReset);
    clearCache();
    m_sourcePackageModel = model;
    // Before the base connects its own, so that the verdicts are those of the new rows.
    if (model)
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this,
                &SortFilterProxyModel::sourceAboutToBeReset);
    HSortFilterProxyModel::setSourceModel(model);
}

void SortFilterProxyModel::setMode(Mode mode)
{
    m_cancelled = false;
    if (mode == m_query.mode)
        return;
    m_cancelled = !change(Query(mode, m_query.pattern), m_rules);
    if (!m_cancelled)
        HSortFilterProxyModel::clear();
}

void SortFilterProxyModel::setRules(const Rules &rules)
{
    m_cancelled = false;
    if (rules == m_rules)
        return;
    m_cancelled = !change(m_query, rules);
    if (!m_cancelled)
        HSortFilterProxyModel::clear();
}

void SortFilterProxyModel::setStateFilter(StateFilter stateFilter)
{
    setRules({stateFilter, m_rules.dups, m_rules.groups});
}

void SortFilterProxyModel::setDupsFilter(bool dups)
{
    setRules({m_rules.state, dups, m_rules.groups});
}

void SortFilterProxyModel::setGroupsFilter(bool groups)
{
    setRules({m_rules.state, m_rules.dups, groups});
}

void SortFilterProxyModel::setFilter(bool filter)
{
    if (std::exchange(m_filter, filter) != filter)
        clear();
}

void SortFilterProxyModel::wait()
{
    m_waiting = true;
    HSortFilterProxyModel::clear();
}

void SortFilterProxyModel::judge()
{
    m_cancelled = !change(m_query, m_rules);
    if (!m_cancelled)
        HSortFilterProxyModel::clear();
}

void SortFilterProxyModel::setFilterRegExp(const QString &pattern)
{
    m_cancelled = !change(Query(m_query.mode, pattern), m_rules);
    if (!m_cancelled)
        HSortFilterProxyModel::setFilterRegExp(QRegularExpression(m_query.pattern));
}

void SortFilterProxyModel::clear()
{
    clearCache();
    judge();
}

void SortFilterProxyModel::clearCache()
{
    m_verdicts.clear();
}

SortFilterProxyModel::Basis SortFilterProxyModel::loaded() const
{
    return {m_yumIO->hasFileLists(), m_yumIO->hasOtherData()};
}

void SortFilterProxyModel::sourceAboutToBeReset()
{
    if (m_rankedColumn == ActionColumn)
        m_rankedColumn = -1;
    if (m_sourcePackageModel->isRediscovering())
        return; // the rows are the same, and so are verdicts and order
    m_rankedColumn = -1;
    m_nameRanks.clear();
    clearCache();
    if (!m_waiting)
        m_cancelled = !change(m_query, m_rules);
}

// Takes over other settings once all that they concern are judged; false when that was cancelled.
bool SortFilterProxyModel::change(const Query &query, const Rules &rules)
{
    if (query != m_query || (query.readsExtraData() && m_basis != loaded())) {
        auto expression = std::make_unique<const Expression>(query.pattern);
        Verdicts verdicts;
        if (!judge(query, rules, *expression, verdicts))
            return false;
        m_query = query;
        m_expression = std::move(expression);
        m_verdicts = std::move(verdicts);
        m_basis = loaded();
    } else if (!judge(query, rules, *m_expression, m_verdicts)) {
        return false;
    }
    m_rules = rules;
    m_waiting = false;
    return true;
}

// Finds out what the expression says of the entries that the rules let through. All at once and
// before the base builds its mapping, because a search is a job.
bool SortFilterProxyModel::judge(const Query &query, const Rules &rules,
                                 const Expression &expression, Verdicts &verdicts) const
{
    if (!m_sourcePackageModel || !m_filter || query.isEmpty())
        return true;
    QList<const Entry *> unknown;
    for (const Entry *entry : *m_yumIO) {
        if (rules.accept(*entry) && !verdicts.contains(entry))
            unknown.append(entry);
    }
    verdicts.reserve(verdicts.size() + unknown.size());
    if (query.mode == Mode::Filter) {
        for (const Entry *entry : std::as_const(unknown))
            verdicts.insert(entry, acceptTexts(*entry, expression));
        return true;
    }
    const auto found = m_yumIO->search(query.pattern, unknown);
    for (qsizetype i = 0; found && i < unknown.size(); ++i)
        verdicts.insert(unknown[i], found->at(i));
    return found.has_value();
}

// Null for a row that the engine does not have any more.
const Entry *SortFilterProxyModel::entryAt(int sourceRow) const
{
    return sourceRow < m_yumIO->count() ? (*m_yumIO)[sourceRow] : nullptr;
}

bool SortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    if (m_waiting)
        return false;
    if (!m_filter)
        return true;
    const Entry *entry = entryAt(sourceRow);
    if (!entry)
        return false;
    if (!m_rules.accept(*entry))
        return false;
    if (m_query.isEmpty())
        return true;
    if (const auto known = m_verdicts.constFind(entry); known != m_verdicts.cend())
        return *known;
    // Only what a cancelled search has left is unknown.
    return m_query.mode == Mode::Filter && acceptTexts(*entry, *m_expression);
}

Hides SortFilterProxyModel::Rules::rejectedBy(const Entry &entry) const
{
    switch (state) {
    case StateFilter::Updatable:
        if (entry.state != State::Updatable)
            return Hides::State;
        break;
    case StateFilter::Installable:
        if (entry.state != State::Installable)
            return Hides::State;
        break;
    case StateFilter::Removable:
        if (entry.state == State::Installable)
            return Hides::State;
        break;
    case StateFilter::All:
        break;
    }
    if (!dups && entry.duplicate)
        return Hides::Duplicates;
    return !groups && entry.kind == Kind::Group ? Hides::Groups : Hides::Nothing;
}

Hides SortFilterProxyModel::hidesMost() const
{
    if (m_yumIO->count() == 0)
        return Hides::Nothing;
    if (m_waiting)
        return Hides::Search;
    std::array<int, size_t(Hides::Nothing) + 1> rows = {};
    for (const Entry *entry : *m_yumIO) {
        // Nothing is listed: the expression has rejected what the rules let through.
        const Hides by = m_rules.rejectedBy(*entry);
        ++rows[size_t(by == Hides::Nothing ? Hides::Expression : by)];
    }
    return Hides(std::max_element(rows.begin(), rows.end()) - rows.begin());
}

bool SortFilterProxyModel::acceptTexts(const Entry &entry, const Expression &expression) const
{
    m_rowText.resize(0); // keeps its memory for the next row
    for (int column = NameColumn; column < ColumnCount; ++column) {
        const QString text = Model::text(entry, column);
        if (text.isEmpty())
            continue;
        if (!m_rowText.isEmpty())
            m_rowText.append(' ');
        appendUtf8(m_rowText, text);
    }
    return expression.matches(m_rowText.constData());
}

bool SortFilterProxyModel::matches(const QString &text) const
{
    return m_expression->matches(text);
}

// A sort of many rows compares each of them many times, so the order of a column is worked out once
// and the comparisons are of numbers.
bool SortFilterProxyModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (!left.isValid() || !right.isValid())
        return false;
    const int column = left.column();
    if (m_rankedColumn != column || m_ranks.size() != size_t(m_yumIO->count())) {
        m_ranks = ranks(column);
        m_rankedColumn = column;
    }
    const size_t count = m_ranks.size();
    if (size_t(left.row()) >= count || size_t(right.row()) >= count)
        return false;
    return m_ranks[left.row()] < m_ranks[right.row()];
}

void SortFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    if (column == ActionColumn)
        m_rankedColumn = -1; // actions change at any time
    HSortFilterProxyModel::sort(column, order);
}

// For each row its place in the ascending order of a column, ties broken by the name; rows that are
// equal in both share a place.
std::vector<int> SortFilterProxyModel::ranks(int column) const
{
    const size_t count = size_t(m_yumIO->count());
    if (column != NameColumn && m_nameRanks.size() != count)
        m_nameRanks = ranks(NameColumn);

    struct Key
    {
        int number;
        QString text;
        int nameRank;
        int row;
        bool operator<(const Key &other) const
        {
            if (number != other.number)
                return number < other.number;
            if (const int order = QStringView(text).compare(other.text); order != 0)
                return order < 0;
            return nameRank < other.nameRank;
        }
    };
    const bool byNumber = Model::isNumberColumn(column);
    std::vector<Key> keys;
    keys.reserve(count);
    for (size_t row = 0; row < count; ++row) {
        const Entry &entry = *(*m_yumIO)[int(row)];
        keys.push_back({byNumber ? Model::sortNumber(entry, column) : 0,
                        byNumber ? QString() : Model::text(entry, column),
                        column == NameColumn ? 0 : m_nameRanks[row], int(row)});
    }
    std::sort(keys.begin(), keys.end());

    std::vector<int> places(count);
    int place = 0;
    for (size_t i = 0; i < count; ++i) {
        if (i > 0 && keys[i - 1] < keys[i])
            ++place;
        places[keys[i].row] = place;
    }
    return places;
}

void SortFilterProxyModel::setUpdateListed()
{
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex cell = index(row, ActionColumn);
        Entry *entry = (*m_yumIO)[mapToSource(cell).row()];
        if (entry->state == State::Updatable) {
            entry->action = Package::Action::Update;
            Q_EMIT dataChanged(cell, cell);
        }
    }
}

} // namespace PackageTable
