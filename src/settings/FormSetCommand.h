// FormSetCommand: CommandList.txt, the user's own command words, edited as
// one text. Storing it rebuilds the list editor's rows with the English
// words and then with the user's.
#pragma once

#include "settings/WordTextForm.h"

namespace lumen {

class FormSetCommand : public WordTextForm {
    Q_OBJECT
public:
    explicit FormSetCommand(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // CommandUpdate of the list editor, wired by the application.
    std::function<void()> commandUpdate;

    QPushButton* CommandInitialSet;

    void CommandDo_Click();
    void CommandInitialSet_Click();

protected:
    void Form_Load() override;
};

} // namespace lumen
