// The editing operations of FormEditText on EditArray, one step back, the
// rebuild through TempFile.txt, the change of words and the comment recall.
#include "editor/EditTextModel.h"

#include "editor/CommentForms.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

constexpr int kMostRows = 32767;

int columnOf(EditItem item)
{
    switch (item) {
    case EditItem::Main:
        return kColMain;
    case EditItem::With:
        return kColWith;
    case EditItem::Delay:
        return kColDelay;
    case EditItem::Comment:
    case EditItem::TextComment:
        return kColComment;
    case EditItem::Option:
        return kColOption;
    case EditItem::None:
        break;
    }
    return -1;
}

// Rows 0 to `kept` - 1 of a grid, and empty rows up to `total`.
StringGrid firstRows(const StringGrid& grid, int kept, int total)
{
    StringGrid copy = grid;
    copy.redimPreserveRows(qMin(kept, copy.rows()));
    copy.redimPreserveRows(total);
    return copy;
}

void copyRow(const StringGrid& from, int fromRow, StringGrid& to, int toRow)
{
    for (int column = 0; column < kListColumns; ++column)
        to.set(column, toRow, from.view(column, fromRow));
}

} // namespace

EditTextModel::EditTextModel(VeroProcedure_Basical& basics)
    : basics_(basics)
{}

ProgramState& EditTextModel::state()
{
    return basics_.state();
}

int EditTextModel::selectedRow() const
{
    return basics_.state().EditRow + 1;
}

void EditTextModel::keepCopy()
{
    const ProgramState& s = basics_.state();
    RecoverArray = firstRows(s.EditArray, s.EditRowCount + 1, s.EditRowCount + 1);
    recoverKept = true;
    basics_.services().ui.beep();
}

EditChange EditTextModel::closeChange()
{
    EditChange change;
    change.acted = true;
    if (allwaysUpdate) {
        change.rebuilt = true;
        change.editorText = CommandUpdate();
    } else {
        updatePending_ = true;
    }
    return change;
}

EditChange EditTextModel::CommandAdd(EditItem item, const QString& fieldValue)
{
    if (item == EditItem::None)
        return {};
    keepCopy();
    QString value = Trim(fieldValue);
    if (item == EditItem::Comment) {
        value = fieldValue;
        if (!value.contains(QLatin1String("<<<<<")))
            value = QStringLiteral("<<<<< ") + value;
    }
    state().EditArray.set(columnOf(item), selectedRow(), value);
    return closeChange();
}

void EditTextModel::CommandCopy(EditItem item)
{
    if (item == EditItem::None)
        return;
    ItemClip = state().EditArray.at(columnOf(item), selectedRow());
}

EditChange EditTextModel::CommandCut(EditItem item)
{
    if (item == EditItem::None)
        return {};
    keepCopy();
    CommandCopy(item);
    state().EditArray.set(columnOf(item), selectedRow(),
                          item == EditItem::Delay ? QStringLiteral("9999") : QString());
    return closeChange();
}

EditChange EditTextModel::CommandPast(EditItem item)
{
    if (item == EditItem::None)
        return {};
    keepCopy();
    state().EditArray.set(columnOf(item), selectedRow(), ItemClip);
    return closeChange();
}

EditChange EditTextModel::CommandInsertLine()
{
    ProgramState& s = state();
    // The row count is a 16-bit integer: a full list takes no new row.
    if (s.EditRowCount >= kMostRows)
        return {};
    // The copy has one empty row more, which a step back leaves at the end.
    RecoverArray = firstRows(s.EditArray, s.EditRowCount + 1, s.EditRowCount + 2);
    recoverKept = true;
    basics_.services().ui.beep();

    s.EditRowCount = qint16(s.EditRowCount + 1);
    s.EditArray.redim(kListColumns, s.EditRowCount + 1);
    const int selected = s.EditRow;
    for (int row = 0; row <= selected; ++row)
        copyRow(RecoverArray, row, s.EditArray, row);
    const int added = selected + 1;
    s.EditArray.set(kColMain, added, u"New Line");
    s.EditArray.set(kColDelay, added, u"9999");
    for (int row = added + 1; row <= s.EditRowCount; ++row)
        copyRow(RecoverArray, row - 1, s.EditArray, row);
    return closeChange();
}

std::optional<QString> EditTextModel::CommandRecover()
{
    if (!recoverKept)
        return std::nullopt;
    ProgramState& s = state();
    s.EditArray.redim(kListColumns, s.EditRowCount + 1);
    for (int row = 0; row <= s.EditRowCount; ++row)
        copyRow(RecoverArray, row, s.EditArray, row);
    basics_.WaitMilliseconds(100);
    const QString text = readBack();
    basics_.services().ui.beep();
    return text;
}

// Out through TempFile.txt and read back, then the editor text. A file that
// can't be written isn't read: the arrays stay as they are.
QString EditTextModel::readBack()
{
    if (ArrayToStanderdFile()) {
        basics_.WaitMilliseconds(100);
        PutDataFromFileToArray();
    } else {
        // The rows stand as the lines would have been read.
        ProgramState& s = state();
        StoreInt16(s.EditMaxLineLength, qMax<double>(s.EditMaxLineLength, longestWritten_));
    }
    basics_.WaitMilliseconds(100);
    return ArrayToEditorText();
}

QString EditTextModel::CommandUpdate()
{
    const QString text = readBack();
    updatePending_ = false;
    return text;
}

QString EditTextModel::CheckEnglishCommand_Click(bool ticked)
{
    englishCommand = ticked;
    SetCommandWords(basics_, ticked ? QStringLiteral("EG") : QStringLiteral("JP"));
    basics_.BeepBurst();
    return CommandUpdate();
}

QStringList EditTextModel::comboWords() const
{
    const QStringList& words = basics_.state().CommandWord;
    QStringList combo;
    for (int i = kStopSound; i <= kPictBackCol1 + 4; ++i)
        combo << words.value(i);
    combo << words.value(kListAutoStartOn) << words.value(kListAutoStartOff);
    return combo;
}

std::optional<QString> EditTextModel::commentTextChanged(const QString& text)
{
    if (Trim(text).isEmpty())
        return std::nullopt;
    LastComment = text;
    return text;
}

bool EditTextModel::biggerGoesToComment() const
{
    return !isFileComment(basics_.state().EditArray.at(kColComment, selectedRow()));
}

bool EditTextModel::takeHintTurn()
{
    ++HintToggle;
    return HintToggle % 2 != 0;
}

void EditTextModel::deleteTempFile()
{
    if (basics_.FileExists(tempFile()))
        basics_.DeleteFileConfirmed(tempFile());
}

QString itemHintText()
{
    return QStringLiteral("実行前に、対象となる項目を選んでください ");
}

QString itemHintWithFramesText()
{
    return QStringLiteral("実行前に、対象となる項目を選んでください\r\n"
                          "黄色で囲まれたテキストが書き込まれる対象となります");
}

} // namespace lumen
