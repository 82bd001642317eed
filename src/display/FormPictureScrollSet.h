// FormPictureScrollSet: sets the allowance PictureSizeAllowVal on a scale
// from "shrink whatever is larger than the screen" to "shrink only very large
// pictures", and keeps it in PictureSizeAllowVal.dat of the settings folder.
#pragma once

#include "platform/FormBase.h"

class QLabel;
class QPushButton;
class QScrollBar;

namespace lumen {

class VeroProcedure_Basical;

class FormPictureScrollSet : public FormBase {
    Q_OBJECT
public:
    explicit FormPictureScrollSet(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    QScrollBar* HScroll1;
    QLabel* LabelVal;
    QLabel* Label1;
    QLabel* Label4;
    QPushButton* CommandWordSet;
    QPushButton* CommandEnd;

    void HScroll1_Change();
    void CommandWordSet_Click();
    void CommandEnd_Click();

protected:
    void Form_Load() override;

private:
    VeroProcedure_Basical& basics_;
};

} // namespace lumen
