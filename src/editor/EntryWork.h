// The work of the entry window FormEdit, without its window: the outside
// program that suits the page on show, the scratch copies through which a
// comment, a sound or a MIDI file is written or recorded for the page, and
// their storing into row PicNo of ListArray and the list file at once
// (ArrayToFile). The window owns the controls and passes the user's choices.
#pragma once

#include <QImage>
#include <QString>
#include <optional>

namespace lumen {

class VeroProcedure_Basical;
struct ProgramState;

// What the entry work needs of the windows around it.
class EntryHost {
public:
    virtual ~EntryHost() = default;
    virtual void takeMainAction() = 0;
    // TextFileName of the main window: its text and back colour.
    virtual void showOnMain(const QString& text, qint32 backColor) = 0;
    virtual void showComment(const QString& text) = 0; // FormComment
    virtual int listTotal() const = 0;                 // Val(TextTotal) of the main window
    // Picture2 of the main window, when it is on show.
    virtual std::optional<QImage> shownPicture() const = 0;
    // The directory button of FormEdit2 for the comment, sound or MIDI program.
    virtual void setUpCommentProgram() = 0;
    virtual void setUpSoundProgram() = 0;
    virtual void setUpMidiProgram() = 0;
};

// The viewer buttons.
enum class EntryViewer { MsPaint, AVI, CyberView, IntExp, Text, NotePad, SoundPlayer, Midi };

// The kind of work that FrameSave is open for.
enum class EntryMode { None, Comment, Sound, Midi };

// How CommandDo stores: OptionToComLine, OptionSaveToFile, OptionDeleate.
enum class EntrySave { ToCommandLine, ToFile, Delete };

class EntryWork {
public:
    EntryWork(VeroProcedure_Basical& basics, EntryHost& host);

    // Fields of the window.
    bool CommentMode = false;
    bool SoundMode = false;
    bool MidiMode = false;
    int MarkPos = 0;
    int DotPos = 0;
    QString ComFileName;
    QString SoundFileName;
    QString MidiFileName;
    QString TextTempContent;

    EntryMode mode() const;

    // A viewer button: starts the program that the table gives for the
    // page, with the page's file or alone. For the three kinds of work, on
    // a page, the scratch file is made ready instead and the mode set; the
    // window then opens FrameSave.
    void viewer(EntryViewer button);
    // The command line a viewer button starts; nothing when it starts none.
    // With `pictureSaved`, CommandMsPaint first saves the picture on show
    // as Temp.bmp.
    std::optional<QString> viewerCommand(EntryViewer button, bool* pictureSaved = nullptr) const;

    void CommandOpenEdit();
    void CommandDo(EntrySave save);
    void CommandExit();

    // CommandWaitTime: the text TextWait shows, or nothing when the page has no file.
    std::optional<QString> waitText() const;
    // CommandAddWait with the text of TextWait.
    void addWait(const QString& textWait);

    // ListArray into the list file, whole or not at all, the old text kept
    // as ListBackup.Lst; then into SelectFile.txt. False when the list file
    // couldn't be written.
    bool ArrayToFile();
    // The text ArrayToFile writes.
    QString listText();
    void ReadBackComment();

    QString scratch(const QString& name) const; // a file of ProgramRunDir

    static const QString kCommentNotice; // the notice put in an empty comment
    static const QString kSaveNote;      // "更新するためには、..."

private:
    QString column(int column) const;
    void setColumn(int column, const QString& value);
    bool holds(int column, const QString& word) const;
    void start(const QString& commandLine);
    void makeEmptyFile(const QString& path);
    QString program(EntryViewer button) const;
    bool reachable(const QString& programPath) const;
    void showAgain();
    void note();
    void openComment();
    void openSound();
    void openMidi();
    void editComment(const QString& program);
    void editCompanion(const QString& program, const QString& extension, bool midi);
    void storeComment(EntrySave save);
    void prefixMark();
    void storeCompanion(EntrySave save, const QString& extension, const QString& scratchName);

    VeroProcedure_Basical& basics_;
    EntryHost& host_;
};

} // namespace lumen
