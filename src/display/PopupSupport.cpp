#include "display/PopupSupport.h"

#include "fileops/BasicText.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormBase.h"
#include "platform/FormRegistry.h"

namespace lumen {

void showFormAt(FormBase* form, double leftTwips, double topTwips)
{
    form->load();
    twMove(form, leftTwips, topTwips);
    form->showForm();
}

FormBase* openFontAndColor(FormRegistry& forms, const QString& mode, double leftTwips,
                           double topTwips)
{
    if (!forms.knows(kFontAndColorForm))
        return nullptr;
    FormBase* form = forms.form(kFontAndColorForm);
    if (!form)
        return nullptr;
    form->setProperty(kFontAndColorModeProperty, mode);
    showFormAt(form, leftTwips, topTwips);
    return form;
}

QString dialogStartFolder(const FileSystem& fs, const QString& programFile)
{
    const QString folder = FolderOfPath(TrimLineEnds(programFile));
    if (folder.contains(QLatin1Char(':'))) {
        if (const QString native = fs.toNative(folder); !native.isEmpty())
            return native;
    }
    return fs.toNative(fs.curDir());
}

} // namespace lumen
