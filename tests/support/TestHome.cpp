#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace lumen::test {

TestHome::TestHome()
    : fs(DriveMap(QDir::tempPath()), QStringLiteral("C:\\"))
{
    // fs is built before dir_ exists; point C: at the folder now.
    fs.drives() = DriveMap(dir_.path());
    fs.chDir(QStringLiteral("C:\\"));
}

QString TestHome::native(const QString& relative) const
{
    return dir_.filePath(relative);
}

QString TestHome::writeFile(const QString& relative, const QByteArray& bytes) const
{
    const QString file = native(relative);
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    if (out.open(QIODevice::WriteOnly))
        out.write(bytes);
    return file;
}

QByteArray TestHome::readFile(const QString& relative) const
{
    QFile in(native(relative));
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

bool TestHome::exists(const QString& relative) const
{
    return QFileInfo::exists(native(relative));
}

void TestHome::makeFolder(const QString& relative) const
{
    QDir().mkpath(native(relative));
}

QString TestHome::picture(const QString& relative, int w, int h, QColor colour) const
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(colour);
    makeFolder(QFileInfo(relative).path());
    image.save(native(relative));
    return QStringLiteral("C:\\") + QString(relative).replace(u'/', u'\\');
}

} // namespace lumen::test
