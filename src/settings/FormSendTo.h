// FormSendTo: hands the current page's main file to an outside program
// chosen from the send-to list of SendToList.txt.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QComboBox;
class QLabel;
class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

class FormSendTo : public FormBase {
    Q_OBJECT
public:
    explicit FormSendTo(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // What the window reaches outside itself: the main file of the page
    // shown (column 0 of ListArray at PicNo), and the settings window.
    struct Links {
        std::function<QString()> currentMainFile;
        std::function<void()> showSendApliSet;
    };
    Links links;

    QComboBox* ComboSend;
    QPushButton* CommandDo;
    QPushButton* CommandSetting;
    QLabel* LabelCheckLen;

    void CommandDo_Click();
    void CommandSetting_Click();

protected:
    void Form_Load() override;

private:
    void fillComboSend();
    void fitListWidth();

    VeroProcedure_Basical& basics_;
};

} // namespace lumen
