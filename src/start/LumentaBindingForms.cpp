// The windows that bind media to outside programs: FormEdit2 with its
// set-up menu FormRClick, the two 3D viewer windows and the note on where
// players can be had, with the links that tie FormEdit2 to the selection.
#include "editor/FormEditText.h"
#include "settings/FormEdit2.h"
#include "settings/FormFukuMan.h"
#include "settings/FormRClick.h"
#include "settings/FormViewerDir.h"
#include "settings/FormViewerSelect.h"
#include "start/Lumenta.h"

#include <QLineEdit>

namespace lumen {

namespace {

const QString kFormEdit2 = QStringLiteral("FormEdit2");
const QString kFormSelectFile = QStringLiteral("FormSelectFile");

} // namespace

FormEdit2& Lumenta::edit2()
{
    return *static_cast<FormEdit2*>(forms_.form(kFormEdit2));
}

void Lumenta::registerBindingForms()
{
    forms_.add(kFormEdit2, [this]() -> FormBase* {
        auto* edit2 = new FormEdit2(basics_, forms_);
        FormEdit2Links& links = edit2->links;
        links.bringSelectFileToFront = [this] {
            if (FormBase* select = forms_.existing(kFormSelectFile); select && select->isVisible())
                select->raise();
        };
        links.endProgram = [this] { End(); };
        links.editorOn = [this] { return state_.EditorOn; };
        links.editorFileName = [this] { return editText().TextFileName->text(); };
        return edit2;
    });
    forms_.add(QStringLiteral("FormRClick"),
               [this]() -> FormBase* { return new FormRClick(edit2(), forms_); });
    forms_.add(QStringLiteral("FormViewerSelect"),
               [this]() -> FormBase* { return new FormViewerSelect(basics_, edit2()); });
    forms_.add(QStringLiteral("FormViewerDir"),
               [this]() -> FormBase* { return new FormViewerDir(edit2(), forms_); });
    forms_.add(QStringLiteral("FormFukuMan"), []() -> FormBase* { return new FormFukuMan; });
}

} // namespace lumen
