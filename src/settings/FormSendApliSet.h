// FormSendApliSet: edits SendToList.txt as a whole text, with file boxes to
// find a program and copy its path.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace lumen {

class DirListBox;
class DriveListBox;
class FileListBox;
class VeroProcedure_Basical;

class FormSendApliSet : public FormBase {
    Q_OBJECT
public:
    explicit FormSendApliSet(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // Runs after CommandDo has saved the file, so that the owner of the
    // AUTO_START table can read it again.
    std::function<void()> onSaved;

    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
    QRadioButton* OptionZenbuHyouji;
    QLineEdit* TextDirectry;
    QPlainTextEdit* Text1;
    QPushButton* CommandDo;
    QPushButton* CommandReset;
    QPushButton* CommandExit;

    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void OptionZenbuHyouji_Click();
    void CommandDo_Click();
    void CommandReset_Click();
    void CommandExit_Click();

protected:
    void Form_Load() override;

private:
    void layOut();
    void applyRecordLook();
    void showProgramsOnly(bool on);

    VeroProcedure_Basical& basics_;
};

} // namespace lumen
