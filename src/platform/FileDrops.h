// Files dropped from the desktop's file manager (text/uri-list): a filter
// that lets a widget take such drops, and the dropped names in the
// program's path form. Addresses that aren't local files are passed over.
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QMimeData;
class QWidget;

namespace lumen {

class FileSystem;

// True when the data holds at least one local file or folder.
bool holdsFiles(const QMimeData* data);

// The local files and folders of the data, in program form, in order;
// names the drive table can't spell are left out.
QStringList droppedNames(const QMimeData* data, const FileSystem& fs);

class FileDropTarget : public QObject {
    Q_OBJECT
public:
    // Installs itself on `widget` and makes it accept drops.
    explicit FileDropTarget(QWidget* widget);

    std::function<void()> entered; // a drag with files came over
    // A drop, told on the next turn of the event loop with a copy of its files.
    std::function<void(const QMimeData* data)> dropped;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lumen
