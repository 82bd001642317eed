// Pictures for the pages: read through the program's picture reader
// (platform/PictureFile.h: upright, refused when too large), kept in a small
// cache keyed by file and size, and prepared ahead: the next page's picture
// is decoded off the interface thread at the size it will be shown, so that
// turning to it only paints.
#pragma once

#include <QDateTime>
#include <QFuture>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QSize>
#include <QString>
#include <list>

namespace lumen {

class PictureCache {
public:
    explicit PictureCache(qint64 budgetBytes = 256ll << 20);
    ~PictureCache();

    // The picture's upright size from its header; empty when it can't be
    // read or is refused.
    QSize probe(const QString& nativePath);

    // The whole picture at its own size; null when it can't be read or is
    // refused.
    QImage full(const QString& nativePath);

    // The picture scaled to `size` (decoded at that size where the format
    // allows); null when it can't be read.
    QImage scaled(const QString& nativePath, const QSize& size);

    // Starts decoding `scaled(nativePath, size)` off the interface thread.
    void prepare(const QString& nativePath, const QSize& size);

    // Ahead-of-time preparation can be switched off (for measurements).
    void setPreparing(bool on) { preparing_ = on; }

    void clear();

private:
    struct Key {
        QString path;
        QSize size; // empty for the full picture
        bool operator==(const Key& o) const { return path == o.path && size == o.size; }
    };
    friend size_t qHash(const Key& key, size_t seed)
    {
        return qHashMulti(seed, key.path, key.size.width(), key.size.height());
    }
    struct Entry {
        QImage image;
        QDateTime modified;
    };

    static QImage decode(const QString& nativePath, const QSize& size);
    QImage lookup(const Key& key);
    void store(const Key& key, const QImage& image);
    QImage get(const Key& key);

    qint64 budget_;
    qint64 used_ = 0;
    bool preparing_ = true;
    QMutex mutex_;
    QHash<Key, Entry> entries_;
    std::list<Key> recent_; // most recent first
    QHash<Key, QFuture<QImage>> pending_;
};

} // namespace lumen
