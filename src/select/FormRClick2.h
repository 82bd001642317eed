// FormRClick2: the pop-up of the folder box of the selection window. It
// lists the folder under Dir1 and every folder beneath it, all files or those
// whose path holds a word (or doesn't), into the list text, or straight into
// a list that is shown at once.
#pragma once

#include "platform/FormBase.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lumen {

class FormSelectFile;
class VeroProcedure_Basical;

class FormRClick2 : public FormBase {
    Q_OBJECT
public:
    FormRClick2(VeroProcedure_Basical& basics, FormSelectFile& select, QWidget* parent = nullptr);

    QLineEdit* TextSerchWord;
    QCheckBox* CheckNotInclude;
    QLabel* Label1;
    QPushButton* CommandCheckAndSelect;
    QPushButton* CommandCheckAndSee;
    QPushButton* CommandSelectAll;
    QPushButton* CommandSenShow;

    void CommandCheckAndSelect_Click();
    void CommandCheckAndSee_Click();
    void CommandSelectAll_Click();
    void CommandSenShow_Click();

private:
    QString listTree(bool byWord);
    void showAtOnce(const QString& found);

    VeroProcedure_Basical& basics_;
    FormSelectFile& select_;
};

} // namespace lumen
