// FormViewerSelect ("Viewer for"): which of the two 3D viewers shows the
// file that FormEdit2's buttons start their programs on.
#pragma once

#include "platform/FormBase.h"

class QPushButton;

namespace lumen {

class FormEdit2;
class VeroProcedure_Basical;

class FormViewerSelect : public FormBase {
    Q_OBJECT
public:
    FormViewerSelect(VeroProcedure_Basical& basics, FormEdit2& edit2, QWidget* parent = nullptr);

    QPushButton* CommandWRLViewer;
    QPushButton* CommandCyberViewer;

    void CommandWRLViewer_Click();
    void CommandCyberViewer_Click();

private:
    VeroProcedure_Basical& basics_;
    FormEdit2& edit2_;
};

} // namespace lumen
