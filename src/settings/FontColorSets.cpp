#include "settings/FontColorSets.h"

#include "fileops/BasicText.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using basic::Trim;
using basic::UCase;

const QString kNon = QStringLiteral("Non");
const QString kNonLast = QStringLiteral("Non "); // the last place keeps its blank
const QString kGothic = QStringLiteral("MS UI Gothic");

void makeSettingsFolder(VeroProcedure_Basical& basics)
{
    const QString folder = basics.state().ProgramRunDir;
    if (!basics.FolderExists(folder))
        basics.MakeFolderTree(folder);
}

} // namespace

SetGroup setGroupOf(const QString& modeWord)
{
    if (modeWord == QLatin1String("TEXT"))
        return SetGroup::Text;
    if (modeWord == QLatin1String("EDITTEXT"))
        return SetGroup::EditText;
    if (modeWord == QLatin1String("PICTBACKCOL"))
        return SetGroup::PictBackCol;
    return SetGroup::Comment;
}

FontColorSet setFromRecord(const DirecDataRecord& r, SetGroup group)
{
    switch (group) {
    case SetGroup::Text:
        return {FixedText(r.TextFontName), FixedText(r.TextFontSize), FixedText(r.TextFontColor),
                FixedText(r.TextBackColor)};
    case SetGroup::EditText:
        return {FixedText(r.DispFontName), FixedText(r.DispFontSize), FixedText(r.DispFontColor),
                FixedText(r.DispBackColor)};
    case SetGroup::PictBackCol:
        return {kNon, kNon, FixedText(r.PictBackColor), kNonLast};
    case SetGroup::Comment:
        break;
    }
    return {FixedText(r.CommentFontName), FixedText(r.CommentFontSize),
            FixedText(r.CommentBackColor), FixedText(r.CommentForeColor)};
}

void storeSetInRecord(DirecDataRecord& r, SetGroup group, const FontColorSet& set)
{
    switch (group) {
    case SetGroup::Text:
        r.TextFontName = set.fontName;
        r.TextFontSize = set.fontSize;
        r.TextFontColor = set.firstColor;
        r.TextBackColor = set.secondColor;
        return;
    case SetGroup::EditText:
        r.DispFontName = set.fontName;
        r.DispFontSize = set.fontSize;
        r.DispFontColor = set.firstColor;
        r.DispBackColor = set.secondColor;
        return;
    case SetGroup::PictBackCol:
        r.PictBackColor = set.firstColor;
        return;
    case SetGroup::Comment:
        r.CommentFontName = set.fontName;
        r.CommentFontSize = set.fontSize;
        r.CommentBackColor = set.firstColor;
        r.CommentForeColor = set.secondColor;
        return;
    }
}

FontColorSet defaultSet(SetGroup group)
{
    switch (group) {
    case SetGroup::Text:
        return {kGothic, QStringLiteral("9"), QStringLiteral("&H808040"),
                QStringLiteral("&HC0C0C0")};
    case SetGroup::EditText:
        return {kGothic, QStringLiteral("9"), QStringLiteral("&HF4C657"),
                QStringLiteral("&H80000008")};
    case SetGroup::PictBackCol:
        return {kNon, kNon, QStringLiteral("&HC0C0C0"), kNonLast};
    case SetGroup::Comment:
        break;
    }
    return {kGothic, QStringLiteral("9"), QStringLiteral("&H00FF8080&"), QStringLiteral("0")};
}

QString setFileLine(const FontColorSet& set)
{
    return QStringList{set.fontName, set.fontSize, set.firstColor, set.secondColor}.join(
        QLatin1Char(','));
}

FontColorSet parseSetLine(const QString& line)
{
    QStringList fields;
    qsizetype at = 0;
    while (fields.size() < 4 && at <= line.size()) {
        while (at < line.size() && line.at(at) == QLatin1Char(' '))
            ++at;
        if (at < line.size() && line.at(at) == QLatin1Char('"')) {
            const qsizetype close = line.indexOf(QLatin1Char('"'), at + 1);
            const qsizetype end = close < 0 ? line.size() : close;
            fields << line.mid(at + 1, end - at - 1);
            const qsizetype comma = line.indexOf(QLatin1Char(','), end);
            at = comma < 0 ? line.size() + 1 : comma + 1;
            continue;
        }
        const qsizetype comma = line.indexOf(QLatin1Char(','), at);
        const qsizetype end = comma < 0 ? line.size() : comma;
        fields << Trim(line.mid(at, end - at));
        at = end + 1;
    }
    while (fields.size() < 4)
        fields << QString();
    return {fields[0], fields[1], fields[2], fields[3]};
}

QStringList setNamesOf(SetGroup group)
{
    QString stem;
    switch (group) {
    case SetGroup::Comment:
        stem = QStringLiteral("COMMENTSET");
        break;
    case SetGroup::Text:
        stem = QStringLiteral("TEXTSET");
        break;
    case SetGroup::PictBackCol:
        stem = QStringLiteral("PICTBACKCOL");
        break;
    case SetGroup::EditText:
        return {};
    }
    QStringList names;
    for (int n = 1; n <= 5; ++n)
        names << stem + QString::number(n);
    return names;
}

std::optional<FontColorSet> readSetFile(VeroProcedure_Basical& basics, const QString& name)
{
    makeSettingsFolder(basics);
    const QString file = basics.state().ProgramRunDir + QLatin1Char('\\') + UCase(Trim(name));
    if (!basics.FileExists(file))
        return std::nullopt;
    const auto text = readSettingsFile(basics.services().fs.toNative(file));
    if (!text || text->isEmpty())
        return std::nullopt;
    return parseSetLine(text->section(QLatin1Char('\n'), 0, 0).remove(QLatin1Char('\r')));
}

bool writeSetFile(VeroProcedure_Basical& basics, const QString& name, const FontColorSet& set)
{
    const QString trimmed = Trim(name);
    if (trimmed.isEmpty() || trimmed.contains(QLatin1Char('\\')) ||
        trimmed.contains(QLatin1Char('/')))
        return false;
    makeSettingsFolder(basics);
    const QString file =
        basics.state().ProgramRunDir + QLatin1Char('\\') + trimmed + QStringLiteral(".dat");
    return writeTextFileSafely(basics.services().fs.toNative(file),
                               setFileLine(set) + QStringLiteral("\r\n"));
}

} // namespace lumen
