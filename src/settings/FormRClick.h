// FormRClick: the set-up menu of one program button of FormEdit2, opened by
// a right click on it. The button's flag in FormEdit2 says which row it
// serves: the program of the row is picked anew, and for the rows with a
// font or colour that set-up is offered as well.
#pragma once

#include "platform/FormBase.h"

class QPushButton;

namespace lumen {

class FormEdit2;
class FormRegistry;

class FormRClick : public FormBase {
    Q_OBJECT
public:
    FormRClick(FormEdit2& edit2, FormRegistry& forms, QWidget* parent = nullptr);

    QPushButton* CommandSetApli;
    QPushButton* CommandSetFontCol;

    // Makes the menu ready for the button whose flag is set.
    void SetVisible();
    void CommandSetApli_Click();
    void CommandSetFontCol_Click();

private:
    FormEdit2& edit2_;
    FormRegistry& forms_;
};

} // namespace lumen
