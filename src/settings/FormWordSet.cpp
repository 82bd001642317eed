#include "settings/FormWordSet.h"

#include "fileops/VeroProcedure_Basical.h"
#include "settings/WordFiles.h"
#include "state/ProgramState.h"

#include <QPushButton>

namespace lumen {

FormWordSet::FormWordSet(VeroProcedure_Basical& basics, QWidget* parent)
    : WordTextForm(QStringLiteral("FormWordSet"), QStringLiteral("CommandReset"), basics, parent)
    , CommandReset(resetButton())
{
    connect(CommandDo, &QPushButton::clicked, this, &FormWordSet::CommandDo_Click);
    connect(CommandReset, &QPushButton::clicked, this, &FormWordSet::CommandReset_Click);
}

QString FormWordSet::file() const
{
    return basics_.state().WordSetExt ? extTypeFile(basics_) : searchWordFile(basics_);
}

void FormWordSet::Form_Load()
{
    setWindowTitle(basics_.state().WordSetExt ? QStringLiteral("拡張子の設定")
                                              : QStringLiteral("検出ワードの設定"));
    applyRecordFont();
    setText(wordFileText(basics_, file()));
}

void FormWordSet::CommandDo_Click()
{
    const ProgramState& state = basics_.state();
    storeGreen(
        file(),
        [this, &state] {
            if (state.WordSetExt) {
                const auto names = storeExtType(basics_, text());
                if (names && links.extensionCaptions)
                    links.extensionCaptions(*names);
                return names.has_value();
            }
            if (!storeSearchWords(basics_, text()))
                return false;
            if (links.commandSerch)
                links.commandSerch();
            return true;
        },
        true);
}

void FormWordSet::CommandReset_Click()
{
    if (basics_.state().WordSetExt) {
        resetExtType(basics_);
    } else {
        basics_.DeleteFileForced(searchWordFile(basics_));
        if (links.commandSerch)
            links.commandSerch();
    }
    Form_Load();
}

} // namespace lumen
