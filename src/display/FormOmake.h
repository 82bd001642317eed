// FormOmake: the comment's popup, opened by the right button on the label of
// FormComment. One choice takes the comment away, the other opens the font
// and colour settings of the comment beside the popup.
#pragma once

#include "platform/FormBase.h"

class QRadioButton;

namespace lumen {

class FormRegistry;

class FormOmake : public FormBase {
    Q_OBJECT
public:
    explicit FormOmake(FormRegistry& forms, QWidget* parent = nullptr);

    QRadioButton* Option1;
    QRadioButton* Option2;
    QRadioButton* Option3; // spare, not shown

    void Option1_Click();
    void Option2_Click();

protected:
    void Form_Load() override;

private:
    FormRegistry& forms_;
};

} // namespace lumen
