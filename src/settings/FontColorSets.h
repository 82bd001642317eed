// Font and colour sets: four fields of the settings record that belong
// together (a font name, its size, the ground colour and the letters'
// colour), the defaults of each group, and the one-line set files
// COMMENTSET1.DAT to PICTBACKCOL5.DAT in the settings folder that keep a
// named set.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace lumen {

struct DirecDataRecord;
class VeroProcedure_Basical;

// The groups, chosen by a mode word: "TEXT", "EDITTEXT", "PICTBACKCOL";
// anything else means the comment.
enum class SetGroup { Comment, Text, EditText, PictBackCol };
SetGroup setGroupOf(const QString& modeWord);

// The four values of a set, in the order of the set file. The first colour
// is the ground of the text, the second the letters (in the record the text
// pane's two colour fields are named the other way round).
struct FontColorSet {
    QString fontName;
    QString fontSize;
    QString firstColor;
    QString secondColor;
    bool operator==(const FontColorSet&) const = default;
};

// The group's fields of the record, trimmed. A picture-ground set has "Non"
// in its empty places and "Non " (with the blank) in its last.
FontColorSet setFromRecord(const DirecDataRecord& record, SetGroup group);
// Stores a set in the group's fields; a picture-ground set touches only the
// picture's ground colour.
void storeSetInRecord(DirecDataRecord& record, SetGroup group, const FontColorSet& set);
// The defaults that CommandReset writes.
FontColorSet defaultSet(SetGroup group);

// The set file's one line: the four values joined with ",".
QString setFileLine(const FontColorSet& set);
// Reads a line back as the input statement of the classic language does:
// up to four fields parted by commas, each trimmed, a field in double quotes
// taken as it stands; missing fields are empty.
FontColorSet parseSetLine(const QString& line);

// The names of the group's five set files without ".dat" (COMMENTSET1 to
// COMMENTSET5 and so on): the names the option commands read. The editor's
// group has none.
QStringList setNamesOf(SetGroup group);

// The start that the set loaders share: the settings folder is made when it
// is missing, the name trimmed and put in capitals, the file's first line
// read. Nothing when the file is missing or empty.
std::optional<FontColorSet> readSetFile(VeroProcedure_Basical& basics, const QString& name);

// Writes the set file `name` + ".dat" in the settings folder (made first when
// missing), safely. False when the name is empty or holds a path separator,
// or the file couldn't be written.
bool writeSetFile(VeroProcedure_Basical& basics, const QString& name, const FontColorSet& set);

} // namespace lumen
