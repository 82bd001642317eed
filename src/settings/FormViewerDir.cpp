#include "settings/FormViewerDir.h"

#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "settings/FormEdit2.h"

#include <QGridLayout>
#include <QPushButton>

namespace lumen {

FormViewerDir::FormViewerDir(FormEdit2& edit2, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormViewerDir"), parent, Qt::Tool)
    , edit2_(edit2)
    , forms_(forms)
{
    setWindowTitle(QStringLiteral("3DViewer"));
    CommandWRL = commandButton(QStringLiteral("CommandWRL"), QStringLiteral("WRL"), this);
    CommandNffView = commandButton(QStringLiteral("CommandNffView"), QStringLiteral("NFF"), this);
    CommandFukuMan =
        commandButton(QStringLiteral("CommandFukuMan"), QStringLiteral("入手先"), this);
    auto* grid = new QGridLayout(this);
    grid->addWidget(CommandWRL, 0, 0);
    grid->addWidget(CommandNffView, 0, 1);
    grid->addWidget(CommandFukuMan, 1, 0, 1, 2);
    connect(CommandWRL, &QPushButton::clicked, this, &FormViewerDir::CommandWRL_Click);
    connect(CommandNffView, &QPushButton::clicked, this, &FormViewerDir::CommandNffView_Click);
    connect(CommandFukuMan, &QPushButton::clicked, this, &FormViewerDir::CommandFukuMan_Click);
}

void FormViewerDir::CommandWRL_Click()
{
    unload();
    edit2_.CommandWrlDirectry_Click();
}

void FormViewerDir::CommandNffView_Click()
{
    unload();
    edit2_.CommandCyberViewDirectry_Click();
}

void FormViewerDir::CommandFukuMan_Click()
{
    if (FormBase* note = forms_.form(QStringLiteral("FormFukuMan")))
        note->showForm();
}

} // namespace lumen
