// FormCommandConbo: carries out one option word at once, without a list, and
// holds the three procedures that load a font and colour set from its file
// and put it on the show (the option words of a list call them too).
#pragma once

#include "platform/FormBase.h"
#include "settings/SetTargets.h"

#include <functional>

class QComboBox;
class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

class FormCommandConbo : public FormBase {
    Q_OBJECT
public:
    FormCommandConbo(VeroProcedure_Basical& basics, SetTargets targets, QWidget* parent = nullptr);

    // What the option words do to the main window, wired by the application.
    struct Links {
        std::function<void()> commandFull;         // CommandFull_Click
        std::function<void()> formNormalSize;      // FORMNORMALSIZE
        std::function<void(bool)> originalSize;    // CheckOriginalSize ticked or not
        std::function<void(int)> videoDisplaySize; // MediaPlayer1's display size
    } links;

    QComboBox* ComboCommandList;
    QPushButton* CommandDo;

    void CommandDo_Click();

    // Each reads the set file `name` from the settings folder and puts it on
    // the show at once; a missing file changes nothing.
    void CallCommentSetting(const QString& name);
    void CallTextSetting(const QString& name);
    void CallPictureBackColor(const QString& name);

protected:
    void Form_Load() override;

private:
    VeroProcedure_Basical& basics_;
    SetTargets targets_;
};

} // namespace lumen
