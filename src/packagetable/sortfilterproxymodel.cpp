#include "packagetable/sortfilterproxymodel.h"

#include "packagetable/model.h"
#include "yumio/yumio.h"

#include <QStringEncoder>

#include <algorithm>
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

template <typename T> bool changed(T &member, T value)
{
    return std::exchange(member, value) != value;
}

} // namespace

SortFilterProxyModel::SortFilterProxyModel(StateFilter stateFilter, bool dups, bool groups,
                                           YumIO *yumIO, QObject *parent)
    : HSortFilterProxyModel(NameColumn, parent), m_stateFilter(stateFilter), m_dups(dups),
      m_groups(groups), m_yumIO(yumIO)
{
}

SortFilterProxyModel::~SortFilterProxyModel()
{
    if (m_regexStatus == 0)
        regfree(&m_regex);
}

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
    if (changed(m_query.mode, mode))
        clear();
}

void SortFilterProxyModel::setStateFilter(StateFilter stateFilter)
{
    if (changed(m_stateFilter, stateFilter))
        clear();
}

void SortFilterProxyModel::setDupsFilter(bool dups)
{
    if (changed(m_dups, dups))
        clear();
}

void SortFilterProxyModel::setGroupsFilter(bool groups)
{
    if (changed(m_groups, groups))
        clear();
}

void SortFilterProxyModel::setFilter(bool filter)
{
    if (changed(m_filter, filter))
        clear();
}

void SortFilterProxyModel::setWaiting(bool waiting)
{
    if (changed(m_waiting, waiting))
        clear();
}

void SortFilterProxyModel::setFilterRegExp(const QString &pattern)
{
    m_query = Query(m_query.mode, pattern);
    if (m_regexStatus == 0)
        regfree(&m_regex);
    m_regexStatus =
        regcomp(&m_regex, m_query.pattern.toUtf8().constData(), REG_EXTENDED | REG_NOSUB);

    const QRegularExpression expression(m_query.pattern);
    if (expression != filterRegExp() || (m_query.readsExtraData() && m_basis != loaded()))
        clearCache();
    judgeAll();
    HSortFilterProxyModel::setFilterRegExp(expression);
}

void SortFilterProxyModel::clear()
{
    clearCache();
    judgeAll();
    HSortFilterProxyModel::clear();
}

void SortFilterProxyModel::clearCache()
{
    m_acceptCache.clear();
    m_basis = loaded();
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
    judgeAll();
}

// A search asks the engine, which may show a failure in a dialog: that must not happen while the
// base builds its mapping, so the verdicts are there before.
void SortFilterProxyModel::judgeAll()
{
    if (!m_sourcePackageModel)
        return;
    const int count = m_sourcePackageModel->rowCount();
    m_acceptCache.reserve(count);
    for (int row = 0; row < count; ++row)
        filterAcceptsRow(row, {});
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
    if (const auto known = m_acceptCache.constFind(entry); known != m_acceptCache.cend())
        return *known;
    const bool accepted = acceptRow(entry);
    m_acceptCache.insert(entry, accepted);
    return accepted;
}

bool SortFilterProxyModel::acceptRow(const Entry *entry) const
{
    switch (m_stateFilter) {
    case StateFilter::Updatable:
        if (entry->state != State::Updatable)
            return false;
        break;
    case StateFilter::Installable:
        if (entry->state != State::Installable)
            return false;
        break;
    case StateFilter::Removable:
        if (entry->state == State::Installable)
            return false;
        break;
    case StateFilter::All:
        break;
    }
    if (!m_dups && entry->duplicate)
        return false;
    if (!m_groups && entry->kind == Kind::Group)
        return false;
    if (m_query.isEmpty())
        return true;
    return m_query.mode == Mode::Search ? acceptFields(*entry) : acceptTexts(*entry);
}

bool SortFilterProxyModel::acceptTexts(const Entry &entry) const
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
    return matches(m_rowText.constData());
}

// The cheap fields come first, and a field is asked for only when none before it matched.
bool SortFilterProxyModel::acceptFields(const Entry &entry) const
{
    using Getter = QString (YumIO::*)(const Entry &);
    using SimpleGetter = QString (YumIO::*)(const Entry &) const;
    const auto found = [&](auto getter) { return matches((m_yumIO->*getter)(entry)); };
    const auto anySimple = [&](std::initializer_list<SimpleGetter> getters) {
        return std::any_of(getters.begin(), getters.end(), found);
    };
    const auto any = [&](std::initializer_list<Getter> getters) {
        return std::any_of(getters.begin(), getters.end(), found);
    };
    // Those of an installed package are in the rpm database. Those of the others may not have been
    // loaded, because the user cancelled it; asking for them would load them, at every package.
    const bool known = entry.state == State::Installed;
    switch (entry.kind) {
    case Kind::Group:
        return anySimple({&YumIO::getName}) ||
               any({&YumIO::getRequiredGroups, &YumIO::getDefaultMetaPkgs,
                    &YumIO::getOptionalMetaPkgs, &YumIO::getMandatoryPkgs, &YumIO::getDefaultPkgs,
                    &YumIO::getOptionalPkgs, &YumIO::getConditionalPkgs});
    case Kind::Package:
    case Kind::Suite:
        return anySimple({&YumIO::getName, &YumIO::getVerRel, &YumIO::getRepo, &YumIO::getArch,
                          &YumIO::getSize, &YumIO::getSummary}) ||
               any({&YumIO::getDescription, &YumIO::getGroup, &YumIO::getVendor}) ||
               anySimple({&YumIO::getBuildTime}) ||
               any({&YumIO::getInstallTime, &YumIO::getBinaryRpm, &YumIO::getSourceRpm,
                    &YumIO::getLicense, &YumIO::getPackager, &YumIO::getUrl, &YumIO::getRelocations,
                    &YumIO::getProvides, &YumIO::getRequires, &YumIO::getConflicts,
                    &YumIO::getObsoletes}) ||
               ((known || m_yumIO->hasFileLists()) && any({&YumIO::getFiles})) ||
               ((known || m_yumIO->hasOtherData()) && any({&YumIO::getChangeLog}));
    }
    return false;
}

bool SortFilterProxyModel::matches(const QString &text) const
{
    return matches(text.toUtf8().constData());
}

bool SortFilterProxyModel::matches(const char *text) const
{
    return m_regexStatus != 0 || regexec(&m_regex, text, 0, nullptr, 0) == 0;
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
