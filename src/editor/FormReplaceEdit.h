// FormReplaceEdit: one piece of text replaced by another through the whole
// of Text1 of the file selection, to move a list to another folder or drive
// or to put its drive marks back ("c:" to "*:"). While it is open a folder
// chosen in the selection's folder box becomes the new text, and text
// selected in the selection's Text1 the text to find.
#pragma once

#include "editor/ReplaceEditModel.h"
#include "platform/FormBase.h"

class QLineEdit;
class QPushButton;

namespace lumen {

class FormSelectFile;
class VeroProcedure_Basical;

class FormReplaceEdit : public FormBase {
    Q_OBJECT
public:
    FormReplaceEdit(VeroProcedure_Basical& basics, FormSelectFile& select);

    ReplaceEditModel& model() { return model_; }

    QLineEdit* Text1; // the text to find
    QLineEdit* Text2; // the new text
    QPushButton* CommandReplace;
    QPushButton* CommandUndo;
    QPushButton* CommandExit;

    // CommandReplaceEditor of the selection: ReplaceOpen, and the window
    // in front of the selection.
    void open();
    // A folder chosen in the selection's folder box while the window is open.
    void folderChosen(const QString& folder);

    void CommandReplace_Click();
    void CommandUndo_Click();
    void CommandExit_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    void layOut();
    void selectionChosen();

    VeroProcedure_Basical& basics_;
    FormSelectFile& select_;
    ReplaceEditModel model_;
};

} // namespace lumen
