// The picture files of the picture work: the three formats a picture is
// saved in, with the names, filters and extension tests of the save
// commands, and the ring of temporary pictures LastPic<n>.png in the
// settings folder, LastPic0.png the newest.
#pragma once

#include <QString>

#include <optional>

namespace lumen {

class VeroProcedure_Basical;

enum class PictureFormat { Bmp, Png, Jpg };

struct SaveFormat {
    QString extension;  // ".BMP": the upper-cased test of a name
    QString nameSuffix; // "_mod.BMP": put after the page's name without extension
    QString filter;     // of the save dialog
    QString defaultName;
};
const SaveFormat& saveFormat(PictureFormat format);

// The page's file can be saved as a picture: its name holds ".JPG", ".BMP"
// or ".PNG" (upper-cased test).
bool isPictureName(const QString& mainFile);
// The name proposed for a save: the page's name without its extension and
// the format's suffix.
QString proposedSaveName(const QString& mainFile, PictureFormat format);
// The format of a file by its extension, for writing over it.
std::optional<PictureFormat> formatByExtension(const QString& fileName);

// The ring. `number` is the text of the number, trimmed.
QString lastPicFile(const QString& settingsFolder, const QString& number);
QString lastPicFile(const QString& settingsFolder, int number);

// SaveKariPic's shift: LastPic<highest> goes, and each LastPic<i-1> becomes
// LastPic<i> from the top down, each renamed by the pair procedure.
void shiftLastPics(VeroProcedure_Basical& basics, const QString& settingsFolder, int highest);

} // namespace lumen
