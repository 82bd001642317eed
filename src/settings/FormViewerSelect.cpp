#include "settings/FormViewerSelect.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Controls.h"
#include "settings/FormEdit2.h"
#include "state/ProgramState.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace lumen {

FormViewerSelect::FormViewerSelect(VeroProcedure_Basical& basics, FormEdit2& edit2, QWidget* parent)
    : FormBase(QStringLiteral("FormViewerSelect"), parent, Qt::Tool)
    , basics_(basics)
    , edit2_(edit2)
{
    setWindowTitle(QStringLiteral("Viewer for"));
    CommandWRLViewer =
        commandButton(QStringLiteral("CommandWRLViewer"), QStringLiteral("WRL"), this);
    CommandCyberViewer =
        commandButton(QStringLiteral("CommandCyberViewer"), QStringLiteral("NFF"), this);
    auto* row = new QHBoxLayout(this);
    row->addWidget(CommandWRLViewer);
    row->addWidget(CommandCyberViewer);
    connect(CommandWRLViewer, &QPushButton::clicked, this,
            &FormViewerSelect::CommandWRLViewer_Click);
    connect(CommandCyberViewer, &QPushButton::clicked, this,
            &FormViewerSelect::CommandCyberViewer_Click);
}

void FormViewerSelect::CommandWRLViewer_Click()
{
    edit2_.startProgram(FixedText(basics_.state().DirecData.VrmlViewerPath));
}

void FormViewerSelect::CommandCyberViewer_Click()
{
    edit2_.startProgram(FixedText(basics_.state().DirecData.CyberViewPath));
}

} // namespace lumen
