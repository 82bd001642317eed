// What the small popups of the display share: showing a window at a place
// in twips, the font and colour window reached by name, and the folder a
// file dialog starts in.
#pragma once

#include <QString>

namespace lumen {

class FileSystem;
class FormBase;
class FormRegistry;

inline const QString kFontAndColorForm = QStringLiteral("FormSetFontAndColor");
// The dynamic property of FormSetFontAndColor that holds the caller's mode
// word: "TEXT" for the text pane; anything else means the comment.
inline constexpr const char* kFontAndColorModeProperty = "mode";

// Loads the window, moves its left top corner to the screen place (twips)
// and shows it.
void showFormAt(FormBase* form, double leftTwips, double topTwips);

// Opens FormSetFontAndColor in the given mode at the place; nothing when no
// such window is known. Returns the window or nullptr.
FormBase* openFontAndColor(FormRegistry& forms, const QString& mode, double leftTwips,
                           double topTwips);

// The native folder a file dialog starts in: the folder of the given file
// (program form) when it has one, else the current folder.
QString dialogStartFolder(const FileSystem& fs, const QString& programFile);

} // namespace lumen
