// FormEdit2: binds each kind of media to an outside program. A program
// button starts its program on the selected file (or on the editor's file),
// a small directory button picks the program by a file dialog, and a right
// click on a program button opens FormRClick, the set-up menu of that row.
// The window also opens the font and colour settings, hands a file to the
// desktop's opener, clears every setting, and leads to FormCommandConbo.
#pragma once

#include "platform/FormBase.h"
#include "state/DirecData.h"

#include <QList>
#include <functional>

class QLabel;
class QPushButton;

namespace lumen {

class FormRegistry;
class VeroProcedure_Basical;

// What the window needs of windows above it, wired by the application.
struct FormEdit2Links {
    std::function<bool()> editorOn;          // EditorOn: the editor's file is meant
    std::function<QString()> editorFileName; // TextFileName of FormEditText
    std::function<void()> bringSelectFileToFront;
    std::function<void()> endProgram; // End, after CommandClear
};

class FormEdit2 : public FormBase {
    Q_OBJECT
public:
    FormEdit2(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);

    FormEdit2Links links;

    // One binding: a field of the record, the button that picks its program,
    // the dialog's start when the field names no program, and the hint.
    struct Binding {
        QPushButton* directoryButton;
        FixedString<100> DirecDataRecord::*field;
        QString defaultPath;
        QString hint;
    };
    // The nine bindings, in the order of the table of programs.
    const QList<Binding>& bindings() const { return bindings_; }

    // ---- Program buttons and their right-click flags
    QPushButton* CommandMsPaint;
    QPushButton* CommandNotePad;
    QPushButton* CommandSoundPlayer;
    QPushButton* CommandText;
    QPushButton* CommandCyberView;
    QPushButton* CommandAVI;
    QPushButton* CommandMidi;
    QPushButton* CommandIntExp;
    bool RClickMsPaint = false;
    bool RClickNotePad = false;
    bool RClickSoundPlayer = false;
    bool RClickText = false;
    bool RClickCyberView = false;
    bool RClickAVI = false;
    bool RClickMidi = false;
    bool RClickIntExp = false;

    // ---- Directory buttons
    QPushButton* CommandPictureDirectry;
    QPushButton* CommandCommentDirectry;
    QPushButton* CommandSoundDirectry;
    QPushButton* CommandTextDirectry;
    QPushButton* CommandWrlDirectry;
    QPushButton* CommandCyberViewDirectry;
    QPushButton* CommandAnimationDirectry;
    QPushButton* CommandMidiDirectry;
    QPushButton* CommandIntExpDirectry;

    // ---- The others
    QLabel* Label1; // "右ｸﾘｯｸで設定機能"
    QPushButton* CommandDoExe;
    QPushButton* CommandClear;
    QPushButton* CommandSetComentFont;
    QPushButton* CommandSetTextFont;
    QPushButton* CommandSetPictBackCol;
    QPushButton* CommandCommandConbo; // FormCommandConbo

    void CommandMsPaint_Click();
    void CommandNotePad_Click();
    void CommandSoundPlayer_Click();
    void CommandText_Click();
    void CommandCyberView_Click();
    void CommandAVI_Click();
    void CommandMidi_Click();
    void CommandIntExp_Click();
    void CommandDoExe_Click();
    void CommandClear_Click();
    void CommandSetComentFont_Click();
    void CommandSetTextFont_Click();
    void CommandSetPictBackCol_Click();
    void CommandCommandConbo_Click();

    void CommandPictureDirectry_Click();
    void CommandCommentDirectry_Click();
    void CommandSoundDirectry_Click();
    void CommandTextDirectry_Click();
    void CommandWrlDirectry_Click();
    void CommandCyberViewDirectry_Click();
    void CommandAnimationDirectry_Click();
    void CommandMidiDirectry_Click();
    void CommandIntExpDirectry_Click();

    // The right button down on a program button: its flag, FormRClick made
    // ready for it and shown beside the button.
    void ProgramButton_MouseDown(QPushButton* button);
    void clearRClickFlags();

    // The file the buttons start their programs on: the editor's file while
    // EditorOn, else SelectedFile.
    QString boundFile() const;
    // Starts a field's program on boundFile(), as its command line.
    void startProgram(const QString& programPath);

protected:
    void Form_Unload(bool& cancel) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildBindings();
    void layOut();
    void connectHandlers();
    void chooseProgram(int binding);
    void startField(FixedString<100> DirecDataRecord::*field);
    void openFontAndColor(const QString& mode);
    void showHint(QPushButton* button, const QString& hint);
    bool* flagOf(QPushButton* button);

    VeroProcedure_Basical& basics_;
    FormRegistry& forms_;
    QList<Binding> bindings_;
    QList<QPushButton*> programButtons_;
};

} // namespace lumen
