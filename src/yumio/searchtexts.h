// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <future>
#include <memory>

class QDataStream;
class QFile;

// What a search reads of the packages of one repository: a record of texts for each, kept in
// compressed blocks, in memory or in a file of the cache that is mapped. Filled by one thread;
// afterwards any number may read blocks.
class SearchTexts
{
public:
    struct Place
    {
        quint32 block = 0;
        quint32 offset = 0; // of the record in the block's text
        quint32 size = 0;
        friend QDataStream &operator<<(QDataStream &stream, const Place &place);
        friend QDataStream &operator>>(QDataStream &stream, Place &place);
    };

    SearchTexts();
    SearchTexts(const SearchTexts &) = delete;
    SearchTexts &operator=(const SearchTexts &) = delete;
    ~SearchTexts();

    // Takes what a file keeps, if it keeps it for this identity and is whole; false otherwise.
    bool open(const QString &path, const QByteArray &identity);
    // A record: texts with a zero byte behind each. All can be read after finish().
    void add(const QByteArray &key, const QByteArray &record);
    void finish();
    // Keeps everything in a file, which it maps instead of its own memory. When the file cannot be
    // written all stays as it is.
    bool save(const QString &path, const QByteArray &identity);

    const Place *find(const QByteArray &key) const;
    // The text of a block; empty when the file is damaged, which its directory does not tell.
    QByteArray block(quint32 number) const;

private:
    void close();

    QHash<QByteArray, Place> m_places;
    QList<QByteArray> m_blocks;     // compressed; those of the file are views into it
    QByteArray m_text;              // of the block that is being filled
    QByteArray m_full;              // of the one before, while it is being compressed
    std::future<QByteArray> m_next; // which gives this
    std::unique_ptr<QFile> m_file;  // mapped
};
