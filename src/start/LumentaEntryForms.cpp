// The entry window beside the show, FormEdit, with the links that tie it to
// the main window's page, the comment window and FormEdit2's program
// buttons; its note on printing; and the paging step that hides its frames.
#include "display/FormComment.h"
#include "display/PictureBox.h"
#include "editor/FormEdit.h"
#include "editor/FormPrint.h"
#include "platform/Controls.h"
#include "settings/FormEdit2.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"

#include <QLineEdit>

namespace lumen {

namespace {

const QString kFormEdit = QStringLiteral("FormEdit");

} // namespace

void Lumenta::registerEntryForms()
{
    forms_.add(kFormEdit, [this]() -> FormBase* {
        auto* edit = new FormEdit(basics_, forms_);
        FormEditLinks& links = edit->links;
        links.takeMainAction = [this] { formMain().TakeMainAction(); };
        links.showOnMain = [this](const QString& text, qint32 backColor) {
            QLineEdit* name = formMain().TextFileName;
            name->setText(text);
            setBackColor(name, backColor);
        };
        links.showComment = [this](const QString& text) {
            auto* comment = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment")));
            comment->load();
            comment->setCommentText(text);
            comment->showForm();
        };
        links.listTotal = [this] { return formMain().TextTotal->text(); };
        links.shownPicture = [this]() -> std::optional<QImage> {
            PictureBox* picture = formMain().Picture2;
            if (!picture->isVisible())
                return std::nullopt;
            return picture->Image();
        };
        links.setUpCommentProgram = [this] { edit2().CommandCommentDirectry_Click(); };
        links.setUpSoundProgram = [this] { edit2().CommandSoundDirectry_Click(); };
        links.setUpMidiProgram = [this] { edit2().CommandMidiDirectry_Click(); };
        links.showMain = [this] { formMain().showForm(); };
        return edit;
    });
    forms_.add(QStringLiteral("FormPrint"), []() -> FormBase* { return new FormPrint; });
}

void Lumenta::wireEntryLinks(FormMain& main)
{
    // Paging hides the entry window's frames, if the window was ever made.
    main.links.hideEditFrames = [this] {
        if (auto* edit = static_cast<FormEdit*>(forms_.existing(kFormEdit)))
            edit->hideEntryFrames();
    };
}

} // namespace lumen
