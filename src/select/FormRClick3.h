// FormRClick3: the pop-up of the file box of the selection window, acting on
// the file clicked last (SelectedFile): see it at once, delete it with one
// step of undo, put it back, delete every file the box shows, refresh the
// boxes, or open the program settings.
#pragma once

#include "platform/FormBase.h"

class QPushButton;

namespace lumen {

class FormSelectFile;
class VeroProcedure_Basical;

class FormRClick3 : public FormBase {
    Q_OBJECT
public:
    FormRClick3(VeroProcedure_Basical& basics, FormSelectFile& select, QWidget* parent = nullptr);

    QPushButton* CommandOpen;
    QPushButton* CommandOpenEdit;
    QPushButton* CommandDel1;
    QPushButton* CommandRecover;
    QPushButton* CommandDelAll;
    QPushButton* CommandRefresh;
    QPushButton* CommandClose;

    void CommandOpen_Click();
    void CommandOpenEdit_Click();
    void CommandDel1_Click();
    void CommandRecover_Click();
    void CommandDelAll_Click();
    void CommandRefresh_Click();

protected:
    void Form_Load() override;

private:
    void beepUnlessAutoPage();

    VeroProcedure_Basical& basics_;
    FormSelectFile& select_;
};

} // namespace lumen
