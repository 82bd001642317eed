#include "settings/FormSetCommand.h"

#include "fileops/VeroProcedure_Basical.h"
#include "settings/WordFiles.h"

#include <QPushButton>

namespace lumen {

FormSetCommand::FormSetCommand(VeroProcedure_Basical& basics, QWidget* parent)
    : WordTextForm(QStringLiteral("FormSetCommand"), QStringLiteral("CommandInitialSet"), basics,
                   parent)
    , CommandInitialSet(resetButton())
{
    setWindowTitle(QStringLiteral("ｺﾏﾝﾄﾞ設定"));
    connect(CommandDo, &QPushButton::clicked, this, &FormSetCommand::CommandDo_Click);
    connect(CommandInitialSet, &QPushButton::clicked, this,
            &FormSetCommand::CommandInitialSet_Click);
}

void FormSetCommand::Form_Load()
{
    applyRecordFont();
    setText(wordFileText(basics_, commandListFile(basics_)));
}

void FormSetCommand::CommandDo_Click()
{
    storeGreen(
        commandListFile(basics_),
        [this] { return storeCommandList(basics_, text(), commandUpdate); }, false);
}

void FormSetCommand::CommandInitialSet_Click()
{
    resetCommandList(basics_);
    setText(wordFileText(basics_, commandListFile(basics_)));
}

} // namespace lumen
