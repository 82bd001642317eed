// The windows of the list editor and of the word files, and the links by
// which the file selection reaches them.
#include "editor/FormEditText.h"
#include "editor/FormReplaceEdit.h"
#include "select/FormSelectFile.h"
#include "select/SelectionFiles.h"
#include "settings/FormSetCommand.h"
#include "settings/FormWordSet.h"
#include "start/Lumenta.h"

#include <QCheckBox>

namespace lumen {

namespace {

const QString kFormEditText = QStringLiteral("FormEditText");
const QString kFormReplaceEdit = QStringLiteral("FormReplaceEdit");
const QString kFormWordSet = QStringLiteral("FormWordSet");

} // namespace

FormEditText& Lumenta::editText()
{
    return *static_cast<FormEditText*>(forms_.form(kFormEditText));
}

void Lumenta::registerEditorForms()
{
    forms_.add(kFormEditText,
               [this]() -> FormBase* { return new FormEditText(basics_, selectFile(), forms_); });
    forms_.add(kFormReplaceEdit,
               [this]() -> FormBase* { return new FormReplaceEdit(basics_, selectFile()); });
    forms_.add(QStringLiteral("FormSetCommand"), [this]() -> FormBase* {
        auto* words = new FormSetCommand(basics_, &editText());
        words->commandUpdate = [this] { editText().CommandUpdate_Click(); };
        return words;
    });
    forms_.add(kFormWordSet, [this]() -> FormBase* {
        FormSelectFile& select = selectFile();
        auto* words = new FormWordSet(basics_, &select);
        words->links.extensionCaptions = [&select](const QStringList& names) {
            for (size_t i = 0; i < select.Check1.size(); ++i)
                select.Check1[i]->setText(names.value(qsizetype(i)));
        };
        words->links.commandSerch = [&select] { select.CommandSerch_Click(); };
        return words;
    });
}

void Lumenta::wireEditorLinks(FormSelectFileLinks& links)
{
    links.openEditor = [this] { editText().TextConvertToEditorText(); };
    links.editorOn = [this] { return state_.EditorOn; };
    links.toStandardText = [this] { editText().CommandStanderdText_Click(); };
    links.listOpened = [this](bool english) { editText().listOpened(english); };
    links.text1Click = [this] { editText().Text1_Click(); };
    links.openReplaceEditor = [this] {
        static_cast<FormReplaceEdit*>(forms_.form(kFormReplaceEdit))->open();
    };
    links.folderChosen = [this](const QString& folder) {
        if (auto* replace = static_cast<FormReplaceEdit*>(forms_.existing(kFormReplaceEdit)))
            replace->folderChosen(folder);
    };
    links.openWordSet = [this](bool extensionTable) {
        state_.WordSetExt = extensionTable;
        state_.WordSetSearch = !extensionTable;
        if (!extensionTable)
            readSearchWords(basics_); // a missing file shows its default words

        // Loaded anew, so that it reads the file it is now about.
        FormBase* words = forms_.form(kFormWordSet);
        words->unload();
        words->showForm();
    };
}

} // namespace lumen
