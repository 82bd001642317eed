#include "picture/PictureFiles.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"

namespace lumen {

using namespace basic;

const SaveFormat& saveFormat(PictureFormat format)
{
    static const SaveFormat bmp{QStringLiteral(".BMP"), QStringLiteral("_mod.BMP"),
                                QStringLiteral("(*.bmp)|*.bmp|(*.*)|*.*"), QStringLiteral("*.bmp")};
    static const SaveFormat png{QStringLiteral(".PNG"), QStringLiteral("_mod.png"),
                                QStringLiteral("(*.png)|*.png|(*.*)|*.*"), QStringLiteral("*.png")};
    static const SaveFormat jpg{QStringLiteral(".JPG"), QStringLiteral("_mod.jpg"),
                                QStringLiteral("(*.jpg)|*.jpg|(*.*)|*.*"), QStringLiteral("*.jpg")};
    switch (format) {
    case PictureFormat::Bmp:
        return bmp;
    case PictureFormat::Png:
        return png;
    case PictureFormat::Jpg:
        break;
    }
    return jpg;
}

bool isPictureName(const QString& mainFile)
{
    const QString name = UCase(mainFile);
    return InStr(name, QStringLiteral(".JPG")) > 0 || InStr(name, QStringLiteral(".BMP")) > 0 ||
           InStr(name, QStringLiteral(".PNG")) > 0;
}

QString proposedSaveName(const QString& mainFile, PictureFormat format)
{
    const QString name = Trim(mainFile);
    const int dot = InStrRev(name, QStringLiteral("."));
    const int folderEnd = InStrRev(name, QStringLiteral("\\"));
    const QString stem = dot > folderEnd ? Left(name, dot - 1) : name;
    return stem + saveFormat(format).nameSuffix;
}

std::optional<PictureFormat> formatByExtension(const QString& fileName)
{
    const QString name = UCase(Trim(fileName));
    if (name.endsWith(QLatin1String(".PNG")))
        return PictureFormat::Png;
    if (name.endsWith(QLatin1String(".BMP")))
        return PictureFormat::Bmp;
    if (name.endsWith(QLatin1String(".JPG")) || name.endsWith(QLatin1String(".JPEG")))
        return PictureFormat::Jpg;
    return std::nullopt;
}

QString lastPicFile(const QString& settingsFolder, const QString& number)
{
    return settingsFolder + QStringLiteral("\\LastPic") + number + QStringLiteral(".png");
}

QString lastPicFile(const QString& settingsFolder, int number)
{
    return lastPicFile(settingsFolder, QString::number(number));
}

void shiftLastPics(VeroProcedure_Basical& basics, const QString& settingsFolder, int highest)
{
    FileSystem& fs = basics.services().fs;
    const QString top = lastPicFile(settingsFolder, highest);
    if (basics.FileExists(top))
        fs.deleteFile(top);
    for (int i = highest; i >= 1; --i) {
        const QString from = lastPicFile(settingsFolder, i - 1);
        const QString to = lastPicFile(settingsFolder, i);
        if (basics.FileExists(to))
            fs.deleteFile(to);
        if (basics.FileExists(from))
            basics.MoveFileByPair(from + QLatin1Char(',') + to);
    }
}

} // namespace lumen
