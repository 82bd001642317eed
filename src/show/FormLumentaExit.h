// FormLumentaExit: the exit choice shown when the main window is closed in
// whole-screen mode: back to the normal display, or the end of the program.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QPushButton;

namespace lumen {

class FormMain;
class VeroProcedure_Basical;

class FormLumentaExit : public FormBase {
    Q_OBJECT
public:
    FormLumentaExit(VeroProcedure_Basical& basics, FormMain& main, QWidget* parent = nullptr);

    std::function<void()> unloadAllForms;
    std::function<void()> endProgram;

    QPushButton* CommandMainNormDisp;
    QPushButton* CommandEnd;

    void CommandMainNormDisp_Click();
    void CommandEnd_Click();

protected:
    void Form_Load() override;

private:
    VeroProcedure_Basical& basics_;
    FormMain& main_;
};

} // namespace lumen
