// saveShot(widget, name): with LUMEN_SCREENSHOTS set to a folder, window
// tests leave a PNG of what they drove there, to be looked at by a person.
#pragma once

#include <QDir>
#include <QWidget>

namespace lumen::test {

inline void saveShot(QWidget* widget, const QString& name)
{
    const QString folder = qEnvironmentVariable("LUMEN_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

} // namespace lumen::test
