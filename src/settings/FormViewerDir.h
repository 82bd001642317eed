// FormViewerDir: which of the two 3D viewers' programs FormRClick picks
// anew, and where a viewer can be had (FormFukuMan).
#pragma once

#include "platform/FormBase.h"

class QPushButton;

namespace lumen {

class FormEdit2;
class FormRegistry;

class FormViewerDir : public FormBase {
    Q_OBJECT
public:
    FormViewerDir(FormEdit2& edit2, FormRegistry& forms, QWidget* parent = nullptr);

    QPushButton* CommandWRL;
    QPushButton* CommandNffView;
    QPushButton* CommandFukuMan; // FormFukuMan

    void CommandWRL_Click();
    void CommandNffView_Click();
    void CommandFukuMan_Click();

private:
    FormEdit2& edit2_;
    FormRegistry& forms_;
};

} // namespace lumen
