// FormStop: the progress window of long reads and walks. Its text box shows
// how far the work has come; a click on LabelStop asks the work to stop.
#pragma once

#include "platform/FormBase.h"

class QLineEdit;

namespace lumen {

class ClickLabel;
struct ProgramState;

class FormStop : public FormBase {
    Q_OBJECT
public:
    explicit FormStop(ProgramState& state, QWidget* parent = nullptr);

    void applyFont(const QString& family, int pointSize);

    QLineEdit* Text1;
    ClickLabel* LabelStop;

    void LabelStop_Click();

private:
    ProgramState& state_;
};

} // namespace lumen
