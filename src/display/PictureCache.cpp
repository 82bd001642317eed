#include "display/PictureCache.h"

#include "platform/PictureFile.h"

#include <QFileInfo>
#include <QImageReader>
#include <QtConcurrent/QtConcurrentRun>

namespace lumen {

PictureCache::PictureCache(qint64 budgetBytes)
    : budget_(budgetBytes)
{
    // The picture reader refuses what is too large by its header; this is
    // Qt's own guard for the formats that tell their size only when decoded.
    QImageReader::setAllocationLimit(512);
}

PictureCache::~PictureCache()
{
    for (auto& future : pending_)
        future.waitForFinished();
}

QSize PictureCache::probe(const QString& nativePath)
{
    return pictureSize(nativePath);
}

QImage PictureCache::decode(const QString& nativePath, const QSize& size)
{
    return readPicture(nativePath, size);
}

QImage PictureCache::lookup(const Key& key)
{
    const auto entry = entries_.constFind(key);
    if (entry == entries_.constEnd())
        return {};
    if (entry->modified != QFileInfo(key.path).lastModified()) {
        used_ -= entry->image.sizeInBytes();
        entries_.remove(key);
        recent_.remove(key);
        return {};
    }
    recent_.remove(key);
    recent_.push_front(key);
    return entry->image;
}

void PictureCache::store(const Key& key, const QImage& image)
{
    if (image.isNull() || image.sizeInBytes() > budget_)
        return;
    if (entries_.contains(key)) {
        used_ -= entries_.value(key).image.sizeInBytes();
        recent_.remove(key);
    }
    entries_.insert(key, {image, QFileInfo(key.path).lastModified()});
    recent_.push_front(key);
    used_ += image.sizeInBytes();
    while (used_ > budget_ && recent_.size() > 1) {
        const Key oldest = recent_.back();
        recent_.pop_back();
        used_ -= entries_.value(oldest).image.sizeInBytes();
        entries_.remove(oldest);
    }
}

QImage PictureCache::get(const Key& key)
{
    QFuture<QImage> waiting;
    {
        QMutexLocker lock(&mutex_);
        if (QImage cached = lookup(key); !cached.isNull())
            return cached;
        waiting = pending_.take(key);
    }
    const QImage image = waiting.isValid() ? waiting.result() : decode(key.path, key.size);
    QMutexLocker lock(&mutex_);
    store(key, image);
    return image;
}

QImage PictureCache::full(const QString& nativePath)
{
    return get({nativePath, QSize()});
}

QImage PictureCache::scaled(const QString& nativePath, const QSize& size)
{
    return get({nativePath, size});
}

void PictureCache::prepare(const QString& nativePath, const QSize& size)
{
    if (!preparing_ || size.isEmpty())
        return;
    const Key key{nativePath, size};
    QMutexLocker lock(&mutex_);
    if (entries_.contains(key) || pending_.contains(key))
        return;
    // Only the newest preparation matters; older ones finish on their own.
    for (auto it = pending_.begin(); it != pending_.end();) {
        if (it->isFinished())
            it = pending_.erase(it);
        else
            ++it;
    }
    pending_.insert(key,
                    QtConcurrent::run([nativePath, size] { return decode(nativePath, size); }));
}

void PictureCache::clear()
{
    QMutexLocker lock(&mutex_);
    entries_.clear();
    recent_.clear();
    used_ = 0;
}

} // namespace lumen
