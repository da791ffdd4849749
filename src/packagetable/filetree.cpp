// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagetable/filetree.h"

#include "app/harmless.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace PackageTable {

struct FileTreeModel::Node
{
    QString name;
    Node *parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<Node>> children;

    int leaves() const
    {
        if (children.empty())
            return parent ? 1 : 0;
        int sum = 0;
        for (const auto &child : children)
            sum += child->leaves();
        return sum;
    }

    // Takes the place of a child that is the only thing in here, all the way down.
    void join()
    {
        while (parent && children.size() == 1 && !children.front()->children.empty()) {
            const std::unique_ptr<Node> only = std::move(children.front());
            name += u'/' + only->name;
            children = std::move(only->children);
        }
        int row = 0;
        for (const auto &child : children) {
            child->parent = this;
            child->row = row++;
            child->join();
        }
    }
};

FileTreeModel::FileTreeModel(QObject *parent)
    : QAbstractItemModel(parent), m_root(std::make_unique<Node>())
{
}

FileTreeModel::~FileTreeModel() = default;

void FileTreeModel::setPaths(const QStringList &paths)
{
    m_paths = paths;
    // As the tree has them: what is in a folder right behind the folder.
    const auto before = [](QChar left, QChar right) {
        return (left == u'/' ? QChar(1) : left) < (right == u'/' ? QChar(1) : right);
    };
    std::sort(m_paths.begin(), m_paths.end(), [&](const QString &left, const QString &right) {
        return std::lexicographical_compare(left.cbegin(), left.cend(), right.cbegin(),
                                            right.cend(), before);
    });
    rebuild();
    if (m_filter.isEmpty())
        m_count = shownCount();
}

int FileTreeModel::shownCount() const
{
    return m_root->leaves();
}

void FileTreeModel::setFilter(const QString &text)
{
    if (std::exchange(m_filter, text) != text)
        rebuild();
}

void FileTreeModel::rebuild()
{
    beginResetModel();
    m_root = std::make_unique<Node>();
    for (const QString &path : std::as_const(m_paths)) {
        if (path.contains(m_filter, Qt::CaseInsensitive))
            add(path);
    }
    m_root->join();
    endResetModel();
}

// The paths are sorted, so a folder that is there already is the last of its parent.
void FileTreeModel::add(const QString &path)
{
    Node *node = m_root.get();
    const auto parts = QStringView(path).split(u'/', Qt::SkipEmptyParts);
    for (const QStringView part : parts) {
        if (node->children.empty() || node->children.back()->name != part) {
            node->children.push_back(std::make_unique<Node>());
            node->children.back()->name = part.toString();
            node->children.back()->parent = node;
        }
        node = node->children.back().get();
    }
}

const FileTreeModel::Node *FileTreeModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<const Node *>(index.constInternalPointer()) : m_root.get();
}

QString FileTreeModel::pathOf(const QModelIndex &index)
{
    QString path;
    for (const auto *node = static_cast<const Node *>(index.constInternalPointer());
         node && node->parent; node = node->parent)
        path.prepend(u'/' + node->name);
    return path;
}

QModelIndex FileTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const Node *node = nodeAt(parent);
    if (column != 0 || row < 0 || row >= int(node->children.size()))
        return {};
    return createIndex(row, column, node->children[size_t(row)].get());
}

QModelIndex FileTreeModel::parent(const QModelIndex &index) const
{
    const Node *parent = index.isValid() ? nodeAt(index)->parent : nullptr;
    return parent && parent->parent ? createIndex(parent->row, 0, parent) : QModelIndex();
}

int FileTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(nodeAt(parent)->children.size());
}

int FileTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant FileTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Node *node = nodeAt(index);
    switch (role) {
    case Qt::DisplayRole: {
        const QString name = node->parent->parent ? node->name : u'/' + node->name;
        return harmlessLine(node->children.empty() ? name : name + u'/');
    }
    case Qt::ToolTipRole:
        return harmlessTip(pathOf(index));
    default:
        return {};
    }
}

} // namespace PackageTable
