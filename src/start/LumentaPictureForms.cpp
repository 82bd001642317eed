// The windows of picture work, which draw on the main window's Picture2,
// and the link by which paging pastes a comment on every page.
#include "picture/FormModPic.h"
#include "picture/FormPastComment.h"
#include "picture/FormSaveImage.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"

namespace lumen {

void Lumenta::registerPictureForms()
{
    forms_.add(QStringLiteral("FormSaveImage"),
               [this]() -> FormBase* { return new FormSaveImage(basics_, formMain()); });
    forms_.add(QStringLiteral("FormModPic"),
               [this]() -> FormBase* { return new FormModPic(basics_, formMain(), forms_); });
    forms_.add(QStringLiteral("FormPastComment"),
               [this]() -> FormBase* { return new FormPastComment(basics_, formMain(), forms_); });
}

void Lumenta::wirePictureLinks(FormMain& main)
{
    // A page turned to while pasting is on gets its own comment pasted.
    main.links.pasteCommentOnPicture = [this] {
        formMain().CommandWriteCommentOnPic_Click();
        auto* paste = static_cast<FormPastComment*>(forms_.form(QStringLiteral("FormPastComment")));
        paste->CommandSetText_Click();
        paste->CommandPast_Click();
    };
}

} // namespace lumen
