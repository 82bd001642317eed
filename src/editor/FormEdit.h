// FormEdit ("ｴﾃﾞｨﾀｰ"): the small entry window beside the running show. Its
// viewer buttons start the outside program that suits the page on show;
// three of them open FrameSave, through which a comment, a sound or a MIDI
// file is written or recorded for the page and stored into the list at
// once; CommandWaitTime opens FrameAddDelay for the page's delay. The work
// itself is EntryWork's.
#pragma once

#include "editor/EntryWork.h"
#include "platform/FormBase.h"

#include <functional>

class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace lumen {

class FormRegistry;
class VeroProcedure_Basical;

// What the window needs of the windows above it, wired by the application.
struct FormEditLinks {
    std::function<void()> takeMainAction;
    std::function<void(const QString& text, qint32 backColor)> showOnMain; // FormMain.TextFileName
    std::function<void(const QString& text)> showComment;                  // FormComment
    std::function<QString()> listTotal;                                    // FormMain.TextTotal
    std::function<std::optional<QImage>()> shownPicture;                   // Picture2, when on show
    std::function<void()> setUpCommentProgram; // FormEdit2.CommandCommentDirectry_Click
    std::function<void()> setUpSoundProgram;   // FormEdit2.CommandSoundDirectry_Click
    std::function<void()> setUpMidiProgram;    // FormEdit2.CommandMidiDirectry_Click
    std::function<void()> showMain;            // Form_Unload
    std::function<QWidget*()> mainWindow;      // FormPrint's owner
};

class FormEdit : public FormBase, private EntryHost {
    Q_OBJECT
public:
    FormEdit(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);

    FormEditLinks links;
    EntryWork& work() { return work_; }

    // ---- Viewer buttons
    QPushButton* CommandMsPaint;
    QPushButton* CommandNotePad;
    QPushButton* CommandSoundPlayer;
    QPushButton* CommandMidi;
    QPushButton* CommandAVI;
    QPushButton* CommandText;
    QPushButton* CommandCyberView;
    QPushButton* CommandIntExp;
    QPushButton* PicturePrinter;
    QPushButton* CommandWaitTime;

    // ---- FrameSave: the work of a comment, a sound or a MIDI file
    QGroupBox* FrameSave;
    QPushButton* CommandOpenEdit;
    QPushButton* CommandDo;
    QPushButton* CommandExit;
    QRadioButton* OptionDeleate;
    QRadioButton* OptionToComLine;
    QRadioButton* OptionSaveToFile;

    // ---- FrameAddDelay: the page's delay
    QGroupBox* FrameAddDelay;
    QLineEdit* TextWait;
    QPushButton* CommandAddWait;
    QPushButton* CommandEndWait;

    void CommandMsPaint_Click();
    void CommandNotePad_Click();
    void CommandSoundPlayer_Click();
    void CommandMidi_Click();
    void CommandAVI_Click();
    void CommandText_Click();
    void CommandCyberView_Click();
    void CommandIntExp_Click();
    void PicturePrinter_Click();
    void CommandWaitTime_Click();
    void CommandAddWait_Click();
    void CommandEndWait_Click();
    void CommandOpenEdit_Click();
    void CommandDo_Click();
    void CommandExit_Click();

    // Paging hides the two entry frames.
    void hideEntryFrames();

protected:
    void Form_Unload(bool& cancel) override;

private:
    // EntryHost
    void takeMainAction() override;
    void showOnMain(const QString& text, qint32 backColor) override;
    void showComment(const QString& text) override;
    int listTotal() const override;
    std::optional<QImage> shownPicture() const override;
    void setUpCommentProgram() override;
    void setUpSoundProgram() override;
    void setUpMidiProgram() override;

    void buildViewers();
    void buildFrames();
    void connectHandlers();
    void openWork(EntryViewer button);
    void placeFrameSave(QPushButton* beside, bool comment);

    VeroProcedure_Basical& basics_;
    FormRegistry& forms_;
    EntryWork work_;
};

} // namespace lumen
