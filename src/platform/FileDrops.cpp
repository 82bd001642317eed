#include "platform/FileDrops.h"

#include "platform/FileSystem.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace lumen {

bool holdsFiles(const QMimeData* data)
{
    if (!data || !data->hasUrls())
        return false;
    const QList<QUrl> urls = data->urls();
    return std::any_of(urls.cbegin(), urls.cend(),
                       [](const QUrl& url) { return url.isLocalFile(); });
}

QStringList droppedNames(const QMimeData* data, const FileSystem& fs)
{
    QStringList names;
    if (!data)
        return names;
    for (const QUrl& url : data->urls()) {
        if (!url.isLocalFile())
            continue;
        const QString name = fs.toProgram(url.toLocalFile());
        if (!name.isEmpty())
            names.append(name);
    }
    return names;
}

FileDropTarget::FileDropTarget(QWidget* widget)
    : QObject(widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool FileDropTarget::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter: {
        auto* drag = static_cast<QDragEnterEvent*>(event);
        if (!holdsFiles(drag->mimeData()))
            return false;
        drag->acceptProposedAction();
        if (entered)
            entered();
        return true;
    }
    case QEvent::DragMove: {
        auto* drag = static_cast<QDragMoveEvent*>(event);
        if (!holdsFiles(drag->mimeData()))
            return false;
        drag->acceptProposedAction();
        return true;
    }
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        if (!holdsFiles(drop->mimeData()))
            return false;
        drop->acceptProposedAction();
        // The drop is answered at once, so the file manager doesn't wait on
        // the work it starts; the work runs on the next turn of the loop.
        auto copy = std::make_shared<QMimeData>();
        copy->setUrls(drop->mimeData()->urls());
        QTimer::singleShot(0, this, [this, copy] {
            if (dropped)
                dropped(copy.get());
        });
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

} // namespace lumen
