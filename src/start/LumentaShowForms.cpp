// The windows of the running show that lean on the main window: Auto Page,
// the navigator of whole-screen mode, the font and colour window and the
// option words' companion, with the links that tie them to FormMain.
#include "display/FormComment.h"
#include "display/FormRightLeftNorm.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "platform/ClickLabel.h"
#include "settings/FormCommandConbo.h"
#include "settings/FormSetFontAndColor.h"
#include "show/FormMain.h"
#include "show/FormOption.h"
#include "start/Lumenta.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {

SetTargets Lumenta::setTargets()
{
    SetTargets targets;
    auto comment = [this] {
        // Touching the comment window's controls loads it, hidden.
        auto* window = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment")));
        if (window)
            window->load();
        return window;
    };
    targets.commentWindow = [comment]() -> QWidget* { return comment(); };
    targets.commentLabel = [comment]() -> QWidget* {
        FormComment* window = comment();
        return window ? window->Label1 : nullptr;
    };
    targets.commentOverlay = [this]() -> QWidget* { return formMain().LabelComment; };
    targets.textPane = [this]() -> QWidget* { return formMain().Text1; };
    targets.pictureArea = [this]() -> QWidget* { return formMain().Picture1; };
    targets.smallControls = [this] {
        FormMain& main = formMain();
        return QList<QWidget*>{main.TextFileName, main.TextHeadName, main.TextNum} +
               selectEditTextControls();
    };
    return targets;
}

void Lumenta::registerAutoPageForms()
{
    forms_.add(QStringLiteral("FormOption"),
               [this]() -> FormBase* { return new FormOption(basics_, formMain()); });
    forms_.add(QStringLiteral("FormRightLeftNorm"), [this]() -> FormBase* {
        auto* navigator = new FormRightLeftNorm(basics_);
        FormRightLeftNorm::Links& links = navigator->links;
        links.commandLeft = [this] { formMain().CommandLeft_Click(); };
        links.commandRight = [this] { formMain().CommandRight_Click(); };
        links.pageBarValue = [this] { return formMain().HScrollPicNom->value(); };
        links.setPageBar = [this](int value) { formMain().HScrollPicNom->setValue(value); };
        links.toNormalSize = [this] { formMain().FORMNORMALSIZE(); };
        links.takeMainAction = [this] { formMain().TakeMainAction(); };
        links.showExit = [this] { forms_.form(QStringLiteral("FormLumentaExit"))->showForm(); };
        links.webPageShown = [this] { return state_.WebPageShown; };
        links.ieLeft = [this] { formMain().CommandIELeft_Click(); };
        links.ieRight = [this] { formMain().CommandIERight_Click(); };
        links.showKey = [this](ShowKey key) { formMain().showKey(key); };
        links.wholeScreen = [this] { return !formMain().CommandLeft->isVisibleTo(&formMain()); };
        return navigator;
    });
    forms_.add(QStringLiteral("FormSetFontAndColor"),
               [this]() -> FormBase* { return new FormSetFontAndColor(basics_, setTargets()); });
    forms_.add(QStringLiteral("FormCommandConbo"), [this]() -> FormBase* {
        auto* conbo = new FormCommandConbo(basics_, setTargets());
        conbo->links.commandFull = [this] { formMain().CommandFull_Click(); };
        conbo->links.formNormalSize = [this] { formMain().FORMNORMALSIZE(); };
        conbo->links.originalSize = [this](bool on) {
            formMain().CheckOriginalSize->setChecked(on);
        };
        conbo->links.videoDisplaySize = [this](int size) {
            formMain().MediaPlayer1->setDisplaySize(size);
        };
        return conbo;
    });
}

} // namespace lumen
