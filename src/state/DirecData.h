// The settings record: one record of 1547 bytes in DirecData.ran, read whole
// at start and written whole at exit and by the settings windows. Texts are
// fixed-length fields (see FixedString), integers 16-bit little-endian, and
// a Boolean is -1 for True.
#pragma once

#include "state/FixedString.h"

#include <QByteArray>
#include <QString>
#include <array>

namespace lumen {

inline constexpr qint16 kTrue = -1;
inline constexpr qint16 kFalse = 0;

struct DirecDataRecord {
    static constexpr int kSize = 1547;

    FixedString<100> PictureEditorPath;  // 0
    FixedString<100> CommentEditorPath;  // 100
    FixedString<100> SoundPlayerPath;    // 200
    FixedString<100> TextEditorPath;     // 300
    FixedString<100> VrmlViewerPath;     // 400
    FixedString<100> CyberViewPath;      // 500
    FixedString<100> MediaPlayerPath;    // 600
    FixedString<100> MediaPlayerPath2;   // 700
    FixedString<100> InternetViewerPath; // 800
    FixedString<15> CommentFontName;     // 900
    FixedString<15> CommentFontSize;     // 915
    FixedString<15> CommentBackColor;    // 930
    FixedString<15> CommentForeColor;    // 945
    FixedString<15> TextFontName;        // 960
    FixedString<15> TextFontSize;        // 975
    FixedString<15> TextFontColor;       // 990
    FixedString<15> TextBackColor;       // 1005
    FixedString<15> DispFontName;        // 1020
    FixedString<15> DispFontSize;        // 1035
    FixedString<15> DispFontColor;       // 1050
    FixedString<15> DispBackColor;       // 1065
    FixedString<15> PictBackColor;       // 1080
    qint16 AutoPageInterval = 0;         // 1095, seconds
    qint16 NormalWindowLeft = 0;         // 1097
    qint16 NormalWindowTop = 0;
    qint16 NormalWindowWidth = 0;
    qint16 NormalWindowHeight = 0;
    qint16 MainWindowLeft = 0; // 1105
    qint16 MainWindowTop = 0;
    qint16 MainWindowWidth = 0;
    qint16 MainWindowHeight = 0;
    qint16 OriginalSizeOn = 0;                    // 1113, Boolean
    qint16 CyberViewOn = 0;                       // 1115, Boolean
    qint16 HtmlDelFolderFlag = 0;                 // 1117
    std::array<qint16, 5> SaveImageValues{};      // 1119, FormSaveImage
    std::array<qint16, 2> ModPicValues{};         // 1129, FormModPic
    std::array<FixedString<15>, 2> ModPicTexts{}; // 1133, FormModPic
    std::array<qint16, 2> ModPicValues2{};        // 1163, FormModPic
    qint16 PastCommentLeft = 0;                   // 1167, FormPastComment
    qint16 PastCommentTop = 0;
    qint16 PastCommentWidth = 0;
    qint16 PastCommentHeight = 0;
    std::array<FixedString<15>, 18> Reserved{}; // 1175
    FixedString<100> LastListFile;              // 1445
    qint16 ListAutoStart = 0;                   // 1545, Boolean

    QByteArray toBytes() const;
    // Bytes past the end of a short record read as zero; a longer one is cut.
    static DirecDataRecord fromBytes(const QByteArray& bytes);

    bool operator==(const DirecDataRecord& other) const { return toBytes() == other.toBytes(); }
};

// Reads record 1 of the file (native path). A missing file is created empty
// and yields the empty record; a short or damaged one reads as far as it goes.
DirecDataRecord readDirecData(const QString& nativePath);

// Writes the record whole and safely; the old record stays whole if the write
// fails. False on failure.
bool writeDirecData(const QString& nativePath, const DirecDataRecord& record);

} // namespace lumen
