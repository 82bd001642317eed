// EditTextModel: the list editor without its window. It holds what
// FormEditText keeps beside the shared editor variables of the program
// state (EditArray, EditRowCount, EditMaxLineLength, EditRow, EditorOn), and
// does the editor's work on them: the three forms of a list and their
// conversions through TempFile.txt, the fixed-width editor text and the row
// under a caret, and the editing operations. Every function hands back what
// the window has to show; the window owns the controls and nothing else.
#pragma once

#include "platform/StringGrid.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <optional>

namespace lumen {

class OptionWordTable;
class VeroProcedure_Basical;
struct ProgramState;

// The item that an operation means: the option buttons of FormEditText.
enum class EditItem {
    None,        // OptionNone
    Main,        // OptionSelectMain
    With,        // OptionSelectWith
    Delay,       // OptionSelectDelay
    Comment,     // OptionSelectComment
    TextComment, // OptionSelectTextComment
    Option       // OptionSelectOption
};

// What FormEditText shows for a selected row. Offsets count CR LF as two.
struct EditRowView {
    bool CheckMain = false;
    bool CheckWith = false;
    bool CheckDelay = false;
    bool CheckComment = false;
    bool CheckTextComment = false;
    bool CheckOption = false;
    QString TextFileName;
    QString TextSubFileName;
    QString TextWaitTime;
    QString TextText;
    QString TextCommentFileName;
    QString TextBigger;
    QString ComboCommandList;
    std::optional<bool> biggerVisible; // TextBigger shown or hidden; unset: as it was
    int LabelYourPos = 0;
    std::optional<int> selStart; // unset: the start stays where the click put it
    int selLength = 0;
    QString picture; // the main file, when PictureInImage1 should show it
};

// What a changing operation did.
struct EditChange {
    bool acted = false;   // false: no item selected, nothing happened
    bool rebuilt = false; // CheckAllwaysUpdate: the editor text was made anew
    QString editorText;   // the new editor text, when rebuilt
};

class EditTextModel {
public:
    explicit EditTextModel(VeroProcedure_Basical& basics);

    // ---- The array form and its conversions ----
    QString tempFile() const; // TempFile.txt in ProgramRunDir

    // TempFile.txt into EditArray, EditRowCount and EditMaxLineLength.
    void PutDataFromFileToArray();
    // EditArray into TempFile.txt, the option words translated in place.
    // False when the file couldn't be written: the user has been told, and
    // callers then keep the arrays rather than read an old file back.
    bool ArrayToStanderdFile();
    // EditArray as standard text for Text1, each line padded.
    QString ArrayToStanderdText();

    // ---- The editor text ----
    int recordWidth() const; // EditMaxLineLength + 10
    // The standard text of Text1 into the arrays and the editor text;
    // nothing (and EditorOn as it was) when TempFile.txt can't be written.
    std::optional<QString> TextConvertToEditorText(const QString& standardText);
    // The arrays into the editor text again, mending a last row without delay.
    QString ArrayToEditorText();
    // One row of the editor text as it is shown, before padding.
    QString editorLine(int row) const;

    // Text1_Click: the row under a caret offset (CR LF counted as two)
    // becomes EditRow, and its items are given back for the form.
    EditRowView SelectRow(int caretOffset);
    // The caret offset that selects the row before or after EditRow, or
    // nothing at the ends (or when the offset doesn't fit in 16 bits).
    std::optional<int> CommandUp() const;
    std::optional<int> CommandDoun() const;

    // Where PictureInImage1 paints a picture of `picture` size in a box.
    static QRectF thumbnailRect(QSizeF picture, QSizeF box);

    // ---- Editing ----
    EditChange CommandAdd(EditItem item, const QString& fieldValue);
    void CommandCopy(EditItem item);
    EditChange CommandCut(EditItem item);
    EditChange CommandPast(EditItem item);
    EditChange CommandInsertLine();
    // One step back; the new editor text, or nothing when no copy was kept.
    std::optional<QString> CommandRecover();
    // Through TempFile.txt and back; the new editor text.
    QString CommandUpdate();

    // CheckAllwaysUpdate: each change is followed by CommandUpdate.
    bool allwaysUpdate = false;
    // CommandUpdate stands yellow: the editor text is behind the arrays.
    bool updatePending() const { return updatePending_; }

    // CheckEnglishCommand: the words of the list are the English ones.
    bool englishCommand = false;
    // The box is clicked: the words change, ComboCommandList takes the
    // option words anew, and the rows are rebuilt.
    QString CheckEnglishCommand_Click(bool ticked);
    // The option words for ComboCommandList: CommandWord 1 to 22, 33 and 34.
    QStringList comboWords() const;

    // The comment recall: TextText changed to `text`. Returns what
    // TextBigger takes, or nothing when it stays (a blank text).
    std::optional<QString> commentTextChanged(const QString& text);
    // Esc in TextText: the last comment.
    const QString& lastComment() const { return LastComment; }
    // TextBigger changed: it goes to TextText unless the row holds a file comment.
    bool biggerGoesToComment() const;

    // Only every other hint shows, as mouse moves come in runs.
    bool takeHintTurn();

    // Form_Load and the exit: TempFile.txt goes.
    void deleteTempFile();

    // The fields of FormEditText (public, as the form's fields are).
    StringGrid RecoverArray;
    bool recoverKept = false;
    QString ItemClip;
    QString LastComment;
    bool WithSeen = false;
    bool DelaySeen = false;
    bool CommentSeen = false;
    bool OptionSeen = false;
    int HintToggle = 0;

    ProgramState& state();

private:
    int selectedRow() const; // EditRow + 1
    QString buildEditorText();
    void appendEditorLine(QString& out, int row) const;
    void keepCopy();
    EditChange closeChange();
    QString standardLine(int row, const OptionWordTable* table, bool textForm);
    bool writeTempFile(const QString& text);
    QString readBack();

    VeroProcedure_Basical& basics_;
    bool updatePending_ = false;
    int longestWritten_ = 0; // the longest line ArrayToStanderdFile made
};

// The hint texts shown over the buttons while no item is selected.
QString itemHintText();           // CommandCut, CommandCopy, CommandPast
QString itemHintWithFramesText(); // CommandAdd

} // namespace lumen
