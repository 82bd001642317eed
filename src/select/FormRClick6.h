// FormRClick6: the pop-up over the file box of FormFileOption. It deletes the
// file picked there, or renames it in its folder.
#pragma once

#include "platform/FormBase.h"

class QPushButton;

namespace lumen {

class FormFileOption;
class VeroProcedure_Basical;

class FormRClick6 : public FormBase {
    Q_OBJECT
public:
    FormRClick6(VeroProcedure_Basical& basics, FormFileOption& files, QWidget* parent = nullptr);

    QPushButton* CommandDeleat;
    QPushButton* CommandRename;
    QPushButton* CommandClose;

    void CommandDeleat_Click();
    void CommandRename_Click();
    void CommandClose_Click();

    // How long a button stays coloured after its work.
    static constexpr double kShownMs = 300;

private:
    QString pickedFolder() const;
    void done(QPushButton* button);

    VeroProcedure_Basical& basics_;
    FormFileOption& files_;
};

} // namespace lumen
