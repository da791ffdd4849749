// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#include "searchtexts.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

namespace {

constexpr qsizetype blockSize = 1 << 18; // bytes of text, roughly
constexpr int fastCompression = 1;
const QByteArray magic = QByteArrayLiteral("VOK search 2");
// At the end of a file: where the directory begins, and the magic text.
constexpr qsizetype positionSize = sizeof(quint64);

struct Extent
{
    quint64 offset;
    quint32 size;
};

QDataStream &operator<<(QDataStream &stream, const Extent &extent)
{
    return stream << extent.offset << extent.size;
}

QDataStream &operator>>(QDataStream &stream, Extent &extent)
{
    return stream >> extent.offset >> extent.size;
}

} // namespace

QDataStream &operator<<(QDataStream &stream, const SearchTexts::Place &place)
{
    return stream << place.block << place.offset << place.size;
}

QDataStream &operator>>(QDataStream &stream, SearchTexts::Place &place)
{
    return stream >> place.block >> place.offset >> place.size;
}

SearchTexts::SearchTexts() = default;
SearchTexts::~SearchTexts() = default;

bool SearchTexts::open(const QString &path, const QByteArray &identity)
{
    auto file = std::make_unique<QFile>(path);
    const qsizetype tail = positionSize + magic.size();
    if (!file->open(QIODevice::ReadOnly) || file->size() < tail)
        return false;
    const uchar *start = file->map(0, file->size());
    if (!start)
        return false;
    const auto all = QByteArray::fromRawData(reinterpret_cast<const char *>(start), file->size());
    quint64 position = 0;
    QDataStream positionStream(all.mid(all.size() - tail, positionSize));
    positionStream >> position;
    if (!all.endsWith(magic) || position > quint64(all.size() - tail))
        return false;

    const auto packed = QByteArray::fromRawData(all.constData() + position,
                                                all.size() - tail - qsizetype(position));
    QDataStream directory(qUncompress(packed));
    QByteArray keptIdentity;
    QList<Extent> extents;
    QHash<QByteArray, Place> places;
    directory >> keptIdentity;
    if (keptIdentity != identity)
        return false;
    directory >> extents >> places;
    QList<QByteArray> blocks;
    for (const Extent &extent : std::as_const(extents)) {
        if (extent.offset > position || extent.size > position - extent.offset)
            return false;
        blocks.append(QByteArray::fromRawData(all.constData() + extent.offset, extent.size));
    }
    if (directory.status() != QDataStream::Ok)
        return false;
    m_places = places;
    m_blocks = blocks;
    m_file = std::move(file);
    return true;
}

void SearchTexts::add(const QByteArray &key, const QByteArray &record)
{
    const qsizetype block = m_blocks.size() + (m_next.valid() ? 1 : 0);
    m_places.insert(key, {quint32(block), quint32(m_text.size()), quint32(record.size())});
    m_text += record;
    if (m_text.size() < blockSize)
        return;
    close();
    m_text.swap(m_full);
    m_text.resize(0);
    m_next = std::async(std::launch::async, [this] { return qCompress(m_full, fastCompression); });
}

// Waits for the block that is being compressed.
void SearchTexts::close()
{
    if (m_next.valid())
        m_blocks.append(m_next.get());
}

void SearchTexts::finish()
{
    close();
    if (!m_text.isEmpty())
        m_blocks.append(qCompress(m_text, fastCompression));
    m_text = {};
    m_full = {};
}

bool SearchTexts::save(const QString &path, const QByteArray &identity)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QList<Extent> extents;
    for (const QByteArray &block : std::as_const(m_blocks)) {
        extents.append({quint64(file.pos()), quint32(block.size())});
        file.write(block);
    }
    QByteArray directory, position;
    QDataStream directoryStream(&directory, QIODevice::WriteOnly);
    directoryStream << identity << extents << m_places;
    QDataStream positionStream(&position, QIODevice::WriteOnly);
    positionStream << quint64(file.pos());
    file.write(qCompress(directory, fastCompression));
    file.write(position + magic);
    return file.commit() && open(path, identity);
}

const SearchTexts::Place *SearchTexts::find(const QByteArray &key) const
{
    const auto found = m_places.constFind(key);
    return found == m_places.cend() ? nullptr : &*found;
}

QByteArray SearchTexts::block(quint32 number) const
{
    return number < quint32(m_blocks.size()) ? qUncompress(m_blocks[number]) : QByteArray();
}
