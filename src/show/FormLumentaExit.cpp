#include "show/FormLumentaExit.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>

namespace lumen {

FormLumentaExit::FormLumentaExit(VeroProcedure_Basical& basics, FormMain& main, QWidget* parent)
    : FormBase(QStringLiteral("FormLumentaExit"), parent, Qt::Dialog | Qt::WindowStaysOnTopHint)
    , basics_(basics)
    , main_(main)
{
    setWindowTitle(QStringLiteral("Lumenta_KDR"));
    CommandMainNormDisp =
        named<QPushButton>(QStringLiteral("CommandMainNormDisp"), QStringLiteral("標準表示"), this);
    CommandEnd = named<QPushButton>(QStringLiteral("CommandEnd"), QStringLiteral("終了"), this);
    auto* row = new QHBoxLayout(this);
    row->addWidget(CommandMainNormDisp);
    row->addWidget(CommandEnd);
    connect(CommandMainNormDisp, &QPushButton::clicked, this,
            &FormLumentaExit::CommandMainNormDisp_Click);
    connect(CommandEnd, &QPushButton::clicked, this, &FormLumentaExit::CommandEnd_Click);
}

void FormLumentaExit::Form_Load()
{
    adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->geometry().center() - rect().center());
}

void FormLumentaExit::CommandMainNormDisp_Click()
{
    unload();
    main_.FORMNORMALSIZE();
}

void FormLumentaExit::CommandEnd_Click()
{
    ProgramState& state = basics_.state();
    DirecDataRecord& record = state.DirecData;
    record.MainWindowLeft = basic::ClampInt16(twLeft(&main_));
    record.MainWindowTop = basic::ClampInt16(twTop(&main_));
    record.MainWindowWidth = basic::ClampInt16(twWidth(&main_));
    record.MainWindowHeight = basic::ClampInt16(twHeight(&main_));
    writeDirecData(
        basics_.services().fs.toNative(state.ProgramRunDir + QStringLiteral("\\DirecData.ran")),
        record);
    unload();
    if (unloadAllForms)
        unloadAllForms();
    if (endProgram)
        endProgram();
}

} // namespace lumen
