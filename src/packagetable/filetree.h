// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractItemModel>
#include <QStringList>

#include <memory>

namespace PackageTable {

// Paths as a tree of folders, read-only. A folder that holds nothing but another folder stands with
// it in one row, so that what matters is near. One column, the name; the tool tip and the clipboard
// have the whole path.
class FileTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit FileTreeModel(QObject *parent);
    ~FileTreeModel() override;

    // `paths` are absolute.
    void setPaths(const QStringList &paths);
    // Shows only the paths that hold the text, in any case; all for an empty one.
    void setFilter(const QString &text);

    // Files and empty folders, of all paths and of those that are shown.
    int fileCount() const { return m_count; }
    int shownCount() const;

    static QString pathOf(const QModelIndex &index);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Node;

    void rebuild();
    void add(const QString &path);
    const Node *nodeAt(const QModelIndex &index) const;

    QStringList m_paths;
    QString m_filter;
    int m_count = 0;
    std::unique_ptr<Node> m_root;
};

} // namespace PackageTable
