// The windows of the file selection, with the links that tie them to the
// main window and to the windows of later work, the drop on the main
// window's CommandOpenFileList, and the selection's file boxes among those
// that RefreshFileControls reads again.
#include "display/PopupSupport.h"
#include "platform/Basic.h"
#include "platform/FileBoxes.h"
#include "platform/Twips.h"
#include "select/FormGiveFilter.h"
#include "select/FormRClick2.h"
#include "select/FormRClick3.h"
#include "select/FormSelectFile.h"
#include "select/RichTextBox.h"
#include "select/SelectionFiles.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>

namespace lumen {

namespace {

const QString kFormSelectFile = QStringLiteral("FormSelectFile");

} // namespace

FormSelectFile& Lumenta::selectFile()
{
    auto* select = static_cast<FormSelectFile*>(forms_.form(kFormSelectFile));
    select->load();
    return *select;
}

void Lumenta::registerSelectForms()
{
    forms_.add(kFormSelectFile, [this]() -> FormBase* {
        auto* select = new FormSelectFile(basics_, forms_);
        FormSelectFileLinks& links = select->links;
        links.quickWork = [this] { return formMain().CheckQuiCkWork->isChecked(); };
        links.showMain = [this] {
            formMain().showForm();
            formMain().activateWindow();
        };
        links.clearDisplay = [this](const QString& kind) { formMain().CleareDisp(kind); };
        links.openFileList = [this](const QString& file) { formMain().OpenFileList(file); };
        links.commandFull = [this] { formMain().CommandFull_Click(); };
        links.setEditTextFont = [this, select] {
            const QRect place = select->frameGeometry();
            openFontAndColor(forms_, QStringLiteral("EDITTEXT"), pixelsToTwips(place.x() + 40),
                             pixelsToTwips(place.y() + 40));
        };
        if (forms_.knows(QStringLiteral("FormEdit2"))) {
            // To the left of the selection window, at its top; where the
            // screen has no room there, at the screen's left edge over it.
            links.showEdit2 = [this](const QPoint& topRight) {
                FormBase* edit2 = forms_.form(QStringLiteral("FormEdit2"));
                edit2->load();
                int x = topRight.x() - edit2->frameGeometry().width();
                if (const QScreen* screen = QGuiApplication::primaryScreen())
                    x = std::max(x, screen->availableGeometry().left());
                edit2->move(x, topRight.y());
                edit2->show();
                edit2->raise();
                edit2->activateWindow();
            };
        }
        wireEditorLinks(links);
        select->linksChanged();
        host_.fileControlRefreshers.append([this] {
            if (auto* made = static_cast<FormSelectFile*>(forms_.existing(kFormSelectFile));
                made && made->isLoaded())
                made->RefreshBoxes();
        });
        return select;
    });
    forms_.add(QStringLiteral("FormRClick2"),
               [this]() -> FormBase* { return new FormRClick2(basics_, selectFile()); });
    forms_.add(QStringLiteral("FormRClick3"),
               [this]() -> FormBase* { return new FormRClick3(basics_, selectFile()); });
    forms_.add(QStringLiteral("FormGiveFilter"), [this]() -> FormBase* {
        auto* filter = new FormGiveFilter(basics_);
        FormGiveFilterLinks& links = filter->links;
        links.currentPage = [this] { return int(basic::Val(formMain().TextCount->text())); };
        links.pageCount = [this] { return formMain().FileCount; };
        links.setPageBar = [this](int page) { formMain().HScrollPicNom->setValue(page); };
        links.pageBarChange = [this] { formMain().HScrollPicNom_Change(); };
        links.takeMainAction = [this] { formMain().TakeMainAction(); };
        return filter;
    });
}

QList<QWidget*> Lumenta::selectEditTextControls()
{
    // The edit text's font shows at once in the selection's boxes and text.
    auto* select = static_cast<FormSelectFile*>(forms_.existing(kFormSelectFile));
    if (!select)
        return {};
    return {select->Drive1, select->Dir1, select->File1, select->Text1};
}

void Lumenta::wireDropOnOpenFileList(FormMain& main)
{
    // The dropped files become TempList.lst of the data folder; with the
    // quick box on, the list is shown at once on the whole screen.
    main.links.dropOnOpenFileList = [this](const QMimeData* dropped) {
        selectFile().GetDataAndMakeList(dropped);
        FormMain& shown = formMain();
        if (!shown.CheckQuiCkWork->isChecked())
            return;
        shown.OpenFileList(dropListName(basics_));
        shown.CommandFull_Click();
    };
}

} // namespace lumen
