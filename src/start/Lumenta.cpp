#include "start/Lumenta.h"

#include "display/FormCDMusic.h"
#include "display/FormComment.h"
#include "display/FormOmake.h"
#include "display/FormPictureScrollSet.h"
#include "display/FormRClick4.h"
#include "display/FormRClick5.h"
#include "fileops/FormStop.h"
#include "fileops/WorkingFolders.h"
#include "html/FormMakeHTML.h"
#include "html/FormRichText.h"
#include "list/FormHatenaDrive.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/SafeFile.h"
#include "select/FormSelectFile.h"
#include "settings/FormSendApliSet.h"
#include "settings/FormSendTo.h"
#include "settings/FormSetAccessDirectry.h"
#include "settings/SendToList.h"
#include "show/FormLumentaExit.h"
#include "show/FormMain.h"
#include "start/ModuleStartWithFile.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

namespace lumen {
namespace {

using namespace basic;

const QString kFormMain = QStringLiteral("FormMain");
const QString kFormSetAccessDirectry = QStringLiteral("FormSetAccessDirectry");

} // namespace

Lumenta::Lumenta(const Services& services, QStringList arguments, const QString& programPath)
    : services_(services)
    , stop_(std::make_unique<FormStop>(state_))
    , host_(*stop_)
    , basics_(state_, services_, host_)
    , arguments_(std::move(arguments))
{
    quit = [] { QCoreApplication::exit(0); };
    const QFileInfo program(programPath);
    state_.ProgramFolder = services_.fs.toProgram(program.absolutePath());
    state_.ProgramName = program.completeBaseName();
    setWorkingFolderNames(state_);
    services_.fs.addProtectedFolder(state_.DataDir);
    registerForms();
}

Lumenta::~Lumenta()
{
    // Once the registry has handed FormStop out, it goes with the other
    // windows; it mustn't be deleted twice.
    if (forms_.existing(QStringLiteral("FormStop")))
        static_cast<void>(stop_.release());
}

const QStringList& Lumenta::unloadOrder()
{
    static const QStringList order = {"FormRightLeftNorm",
                                      "FormSelectFile",
                                      "FormOption",
                                      "FormComment",
                                      "FormEdit",
                                      "FormEdit2",
                                      "FormEditText",
                                      "FormMessage",
                                      "FormReplaceEdit",
                                      "FormCommandConbo",
                                      "FormGiveFilter",
                                      "FormSetFontAndColor",
                                      "FormViewerSelect",
                                      "FormCDMusic",
                                      "FormSendTo",
                                      "FormSetAccessDirectry",
                                      "FormSendApliSet",
                                      "FormWordSet",
                                      "FormPictureScrollSet",
                                      "FormSetCommand",
                                      "FormHatenaDrive",
                                      "FormStop",
                                      "FormPrint",
                                      "FormRClick",
                                      "FormViewerDir",
                                      "FormRClick2",
                                      "FormRClick3",
                                      "FormRClick4",
                                      "FormRClick5",
                                      "FormFileOption",
                                      "FormRClick6",
                                      "FormMakeHTML",
                                      "FormRichText",
                                      "FormPastComment",
                                      "FormLumentaExit",
                                      "FormFukuMan",
                                      "FormSaveImage",
                                      "FormModPic"};
    return order;
}

FormMain& Lumenta::formMain()
{
    return *static_cast<FormMain*>(forms_.form(kFormMain));
}

void Lumenta::registerForms()
{
    forms_.add(QStringLiteral("FormStop"), [this] { return stop_.get(); });
    forms_.add(kFormMain, [this]() -> FormBase* {
        auto* main = new FormMain(basics_, forms_);
        host_.mainWindow = main;
        main->links.startWithFile = [this] { startWithFile_->StartWithFile(arguments_); };
        main->links.unloadAllForms = [this] { UnloadAllForms(); };
        main->links.endProgram = [this] { End(); };
        wirePictureLinks(*main);
        wireDropOnOpenFileList(*main);
        wireEntryLinks(*main);
        return main;
    });
    forms_.add(QStringLiteral("FormHatenaDrive"), [this]() -> FormBase* {
        auto* drive = new FormHatenaDrive(basics_);
        drive->replaceDriveInFileName = [this](const QString& from, const QString& to) {
            QLineEdit* name = formMain().TextFileName;
            name->setText(QString(name->text()).replace(from, to, Qt::CaseInsensitive));
        };
        drive->takeMainAction = [this] { formMain().TakeMainAction(); };
        return drive;
    });
    host_.driveAsker = [this](const QString& mark) {
        static_cast<FormHatenaDrive*>(forms_.form(QStringLiteral("FormHatenaDrive")))->ask(mark);
    };
    forms_.add(kFormSetAccessDirectry, [this]() -> FormBase* {
        auto* access = new FormSetAccessDirectry(basics_);
        access->onCompleted = [this] { Main(); };
        access->onAbandoned = [this] { End(); };
        return access;
    });
    registerShowForms();
    registerAutoPageForms();
    registerPictureForms();
    registerSelectForms();
    registerEditorForms();
    registerBulkForms();
    registerBindingForms();
    registerEntryForms();
    forms_.add(QStringLiteral("FormLumentaExit"), [this]() -> FormBase* {
        auto* exit = new FormLumentaExit(basics_, formMain());
        exit->unloadAllForms = [this] { UnloadAllForms(); };
        exit->endProgram = [this] { End(); };
        return exit;
    });

    StartWithFileHooks hooks;
    hooks.setCyberViewOn = [this] { formMain().CheckUseCyberView->setChecked(true); };
    hooks.showMainAndStop = [this] {
        FormMain& main = formMain();
        stop_->move(main.pos());
        main.show();
        stop_->showForm();
    };
    hooks.openFileList = [this](const QString& list) { formMain().OpenFileList(list); };
    hooks.endProgram = [this] { End(); };
    hooks.listFolder = [this](const QString& folder) { return selectFile().ListFolder(folder); };
    startWithFile_ = std::make_unique<ModuleStartWithFile>(basics_, std::move(hooks));
}

void Lumenta::registerShowForms()
{
    // The comment stays above the main window: a tool window of it.
    forms_.add(QStringLiteral("FormComment"),
               [this]() -> FormBase* { return new FormComment(basics_, forms_, &formMain()); });
    forms_.add(QStringLiteral("FormOmake"),
               [this]() -> FormBase* { return new FormOmake(forms_); });
    forms_.add(QStringLiteral("FormCDMusic"),
               [this]() -> FormBase* { return new FormCDMusic(basics_); });
    forms_.add(QStringLiteral("FormPictureScrollSet"),
               [this]() -> FormBase* { return new FormPictureScrollSet(basics_); });
    forms_.add(QStringLiteral("FormSendTo"), [this]() -> FormBase* {
        auto* sendTo = new FormSendTo(basics_);
        sendTo->links.currentMainFile = [this] {
            return Trim(state_.ListArray.at(kColMain, state_.PicNo));
        };
        sendTo->links.showSendApliSet = [this] {
            forms_.form(QStringLiteral("FormSendApliSet"))->showForm();
        };
        return sendTo;
    });
    forms_.add(QStringLiteral("FormSendApliSet"), [this]() -> FormBase* {
        auto* set = new FormSendApliSet(basics_);
        set->onSaved = [this] {
            formMain().CheckAuto_With();
            if (FormBase* sendTo = forms_.existing(QStringLiteral("FormSendTo"));
                sendTo && sendTo->isLoaded()) {
                sendTo->unload();
                sendTo->showForm();
            }
        };
        return set;
    });
    forms_.add(QStringLiteral("FormRClick4"), [this]() -> FormBase* {
        auto* popup = new FormRClick4(basics_, forms_);
        popup->mainWindow = [this]() -> QWidget* { return &formMain(); };
        popup->currentFile = [this] { return formMain().TextFileName->text(); };
        popup->shownText = [this] { return formMain().Text1->toPlainText(); };
        return popup;
    });
    forms_.add(QStringLiteral("FormRClick5"), [this]() -> FormBase* {
        auto* popup = new FormRClick5(basics_);
        popup->openAutoPage = [this] {
            if (FormBase* option = forms_.form(QStringLiteral("FormOption")))
                option->showForm();
        };
        popup->recover = [this] { formMain().CommandRecov_Click(); };
        popup->deleteFile = [this] { formMain().CommandDeleate_Click(); };
        popup->currentFile = [this] { return formMain().TextFileName->text(); };
        popup->open = [this](const QString& file) { openOneFile(file); };
        return popup;
    });
    // The HTML picture book: its settings window and the template window.
    forms_.add(QStringLiteral("FormMakeHTML"), [this]() -> FormBase* {
        auto* make = new FormMakeHTML(basics_, forms_);
        make->links.listTotal = [this] { return formMain().TextTotal->text(); };
        make->links.clearDisplay = [this] { formMain().CleareDisp(QString()); };
        make->links.unloadComment = [this] { forms_.unload(QStringLiteral("FormComment")); };
        return make;
    });
    forms_.add(QStringLiteral("FormRichText"), [this]() -> FormBase* {
        return new FormRichText(
            basics_, *static_cast<FormMakeHTML*>(forms_.form(QStringLiteral("FormMakeHTML"))));
    });
}

void Lumenta::openOneFile(const QString& file)
{
    // A file chosen to be seen at once becomes a one-line list, as a start
    // with a picture does.
    const QString runFile = state_.DataDir + QStringLiteral("\\RunFile.Lst");
    basics_.WriteTextToFile(file, runFile);
    basics_.WaitMilliseconds(100);
    formMain().OpenFileList(runFile);
}

QString Lumenta::settingsFile(const QString& name) const
{
    return state_.ProgramRunDir + QLatin1Char('\\') + name;
}

void Lumenta::Main()
{
    state_.InSubMain = true;
    setWorkingFolderNames(state_);
    state_.WindowsFolder = basics_.GetWindowsFolder();
    state_.SystemFolder = basics_.GetSystemFolder();
    makeWorkingFolders(basics_);
    removeStagedLeftovers(basics_);
    basics_.WriteTextToFile(state_.ProgramFolder + QLatin1Char('\\') + state_.ProgramName +
                                QStringLiteral(".exe"),
                            settingsFile(QStringLiteral("StartFromWhere.dat")));
    state_.DirecData =
        readDirecData(services_.fs.toNative(settingsFile(QStringLiteral("DirecData.ran"))));
    if (FixedText(state_.DirecData.CommentFontName).isEmpty()) {
        // A first start: that window writes the defaults and comes back here.
        forms_.form(kFormSetAccessDirectry)->showForm();
        return;
    }
    stop_->applyFont(resolveFontFamily(FixedText(state_.DirecData.DispFontName)), 8);
    readSmallSettingsFiles();
    writeDefaultSendToList(basics_);
    if (FixedText(state_.DirecData.CommentFontName).isEmpty())
        forms_.form(kFormSetAccessDirectry)->showForm();
    else
        formMain().showForm();
    state_.InSubMain = false;
}

void Lumenta::readSmallSettingsFiles()
{
    const QString allowance = settingsFile(QStringLiteral("PictureSizeAllowVal.dat"));
    if (basics_.FileExists(allowance)) {
        // A number that doesn't fit is passed over: the allowance keeps its value.
        StoreInt32(state_.PictureSizeAllowVal,
                   Val(basics_.ReadTextOfFile(allowance, kSettingsFileLimit)));
    } else {
        basics_.WriteTextToFile(QStringLiteral("20"), allowance);
        state_.PictureSizeAllowVal = 20;
    }

    const QString accessPass = settingsFile(QStringLiteral("AccessPass.dat"));
    if (!basics_.FileExists(accessPass)) {
        state_.AccessPassDir = state_.DataDir;
        basics_.WriteTextToFile(state_.AccessPassDir, accessPass);
    } else {
        state_.AccessPassDir = TrimLineEnds(
            basics_.ReadTextOfFile(accessPass, kSettingsFileLimit).section('\r', 0, 0));
    }

    // The folder the dialogs are locked to. A file written here locks it, but
    // the box stays as it is until the file is read on a later start.
    const QString accessLock = settingsFile(QStringLiteral("AccessLockDir.dat"));
    if (!basics_.FileExists(accessLock)) {
        state_.AccessLockDir = state_.DataDir;
        basics_.WriteTextToFile(state_.AccessLockDir + QStringLiteral("\r\n1"), accessLock);
    } else {
        const QStringList lines =
            basics_.ReadTextOfFile(accessLock, kSettingsFileLimit).split(QStringLiteral("\r\n"));
        state_.AccessLockDir = TrimLineEnds(lines.value(0));
        state_.DirectryLock = Val(lines.value(1)) == 1 ? 1 : 0;
    }
}

void Lumenta::UnloadAllForms()
{
    forms_.unloadAll(unloadOrder());
}

void Lumenta::saveRecord()
{
    writeDirecData(services_.fs.toNative(settingsFile(QStringLiteral("DirecData.ran"))),
                   state_.DirecData);
}

void Lumenta::End()
{
    if (ended_)
        return;
    ended_ = true;
    if (!FixedText(state_.DirecData.CommentFontName).isEmpty())
        saveRecord();
    forms_.hideAll();
    services_.clock.setEnding(true);
    // Quit once the handlers on the stack have unwound.
    QTimer::singleShot(0, [this] {
        if (quit)
            quit();
    });
}

} // namespace lumen
