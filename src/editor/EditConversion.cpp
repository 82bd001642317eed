// The array form and its conversions: the reader of TempFile.txt and the two
// writers of standard text.
#include "editor/CommentForms.h"
#include "editor/EditLineReader.h"
#include "editor/EditRows.h"
#include "editor/EditTextModel.h"
#include "editor/OptionWordTable.h"
#include "fileops/BasicText.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

const QString kCrLf = QStringLiteral("\r\n");

void setRow(StringGrid& grid, int row, const ListRow& values)
{
    grid.set(kColMain, row, values.main);
    grid.set(kColWith, row, values.with);
    grid.set(kColDelay, row, values.delay);
    grid.set(kColComment, row, values.comment);
    grid.set(kColOption, row, values.option);
}

} // namespace

QString EditTextModel::tempFile() const
{
    return basics_.state().ProgramRunDir + QStringLiteral("\\TempFile.txt");
}

void EditTextModel::PutDataFromFileToArray()
{
    ProgramState& s = state();
    FileSystem& fs = basics_.services().fs;
    fs.chDir(s.ProgramRunDir);
    const QString file = tempFile();
    // Cleaned twice, as the second pass may meet drive marks that the first
    // one made. A first pass that leaves no mark makes the second a plain
    // reread of the same lines, which is spared.
    QString text;
    int count = basics_.CleanListFile(file, &text);
    if (HoldsDriveMark(text))
        count = basics_.CleanListFile(file, &text);
    if (count == 0) // nothing was kept, so the file was left as it stands
        text = readTextFile(fs.toNative(file)).value_or(QString());

    s.EditArray.redim(kListColumns, count + 1);
    s.EditArray.reserveText(text.size());
    s.EditRowCount = 0;
    s.EditMaxLineLength = 0;
    const EditItemWords words(s.CommandWord);
    UserDialogs& ui = basics_.services().ui;
    forEachLine(text, [&](QStringView line) {
        StoreInt16(s.EditRowCount, s.EditRowCount + 1.0);
        if (line.size() > s.EditMaxLineLength)
            StoreInt16(s.EditMaxLineLength, double(line.size()));
        const EditLine read = readEditLine(line, words);
        if (read.kind == EditLine::Kind::LeftAlone)
            return;
        if (read.kind == EditLine::Kind::Dropped) {
            StoreInt16(s.EditRowCount, s.EditRowCount - 1.0);
            return;
        }
        setRow(s.EditArray, s.EditRowCount, read.row);
        for (const QString& message : read.messages)
            ui.msgBox(message);
        WithSeen = WithSeen || read.withSeen;
        DelaySeen = DelaySeen || read.delaySeen;
        CommentSeen = CommentSeen || read.commentSeen;
        OptionSeen = OptionSeen || read.optionSeen;
    });
}

// The line of one row in standard form. The file form translates the option
// word in place; the text form writes comments in its own way.
QString EditTextModel::standardLine(int row, const OptionWordTable* table, bool textForm)
{
    ProgramState& s = state();
    const StringGrid& a = s.EditArray;
    const QStringList& words = s.CommandWord;
    QString line;
    appendLineHead(line, a, row, words);
    const QString comment = a.at(kColComment, row);
    if (!comment.isEmpty()) {
        switch (commentKindOf(comment)) {
        case CommentKind::Inline:
            appendItem(line, words, kComment,
                       textForm ? commentForText(comment) : commentForFile(comment));
            break;
        case CommentKind::File:
            appendItem(line, words, kFileComment, comment);
            break;
        case CommentKind::Neither:
            basics_.services().ui.msgBox(QStringLiteral("Check"));
            break;
        }
    }
    if (!a.view(kColOption, row).isEmpty()) {
        if (table)
            s.EditArray.set(kColOption, row,
                            table->translate(a.at(kColOption, row), englishCommand));
        appendItem(line, words, kOption, a.view(kColOption, row));
    }
    return line;
}

bool EditTextModel::writeTempFile(const QString& text)
{
    if (basics_.WriteTextToFile(text, tempFile()))
        return true;
    basics_.services().ui.msgBox(QStringLiteral(
        "作業ファイル TempFile.txt に書き込めません。編集中の内容はそのまま残ります。"));
    return false;
}

bool EditTextModel::ArrayToStanderdFile()
{
    ProgramState& s = state();
    s.EditorOn = true;
    // CommandList.txt is read once for all rows: it can't change meanwhile.
    const QString commandList = s.ProgramRunDir + QStringLiteral("\\CommandList.txt");
    const OptionWordTable table(
        readTextFile(basics_.services().fs.toNative(commandList)).value_or(QString()));
    QString out;
    longestWritten_ = 0;
    for (int row = 1; row <= s.EditRowCount; ++row) {
        const QString line = standardLine(row, &table, false);
        longestWritten_ = qMax(longestWritten_, int(line.size()));
        out += line;
        out += kCrLf;
    }
    // Trimmed of its last line end too: the file ends with one.
    return writeTempFile(TrimLineEnds(out));
}

QString EditTextModel::ArrayToStanderdText()
{
    ProgramState& s = state();
    s.EditorOn = true;
    const int width = s.EditMaxLineLength + 8;
    QString out;
    for (int row = 1; row <= s.EditRowCount; ++row) {
        out += basics_.PadToWidth(standardLine(row, nullptr, true), width);
        out += kCrLf;
    }
    return out;
}

} // namespace lumen
