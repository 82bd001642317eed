// The windows of bulk work along the list: FormFileOption with the links that
// tie it to the main window's page, its pop-up FormRClick6, and its file
// boxes among those that RefreshFileControls reads again.
#include "fileops/FormFileOption.h"
#include "select/FormRClick6.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"

#include <QLineEdit>

namespace lumen {

namespace {

const QString kFormFileOption = QStringLiteral("FormFileOption");

} // namespace

void Lumenta::registerBulkForms()
{
    forms_.add(kFormFileOption, [this]() -> FormBase* {
        auto* bulk = new FormFileOption(basics_, forms_);
        FormFileOptionLinks& links = bulk->links;
        links.mainFileName = [this] { return formMain().TextFileName->text(); };
        links.listTotal = [this] { return formMain().TextTotal->text(); };
        links.takeMainAction = [this] { formMain().TakeMainAction(); };
        host_.fileControlRefreshers.append([this] {
            if (auto* made = static_cast<FormFileOption*>(forms_.existing(kFormFileOption));
                made && made->isLoaded())
                made->RefreshBoxes();
        });
        return bulk;
    });
    forms_.add(QStringLiteral("FormRClick6"), [this]() -> FormBase* {
        auto* files = static_cast<FormFileOption*>(forms_.form(kFormFileOption));
        files->load();
        return new FormRClick6(basics_, *files);
    });
}

} // namespace lumen
