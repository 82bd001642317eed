// FormMain: the main action. TakeMainAction shows the page PicNo: the drive
// marks, the option word, the comment, the routing table, then the one
// display action of the file's kind, with its companion file.
#include "show/FormMain.h"

#include "display/FormComment.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/Launcher.h"
#include "platform/Media.h"
#include "platform/RegularFile.h"
#include "platform/UserDialogs.h"
#include "settings/AutoStartTable.h"
#include "settings/FormCommandConbo.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace lumen {
namespace {

using namespace basic;

const QString kCommentMark = QStringLiteral("<<<<<");

QString extensionOf(const QString& fileName)
{
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : UCase(fileName.mid(dot + 1));
}

bool beginsWithRiff(const QString& nativePath)
{
    QFile file;
    return openRegularFile(file, nativePath) && file.read(4) == "RIFF";
}

} // namespace

void FormMain::CheckAuto_With()
{
    lumen::CheckAuto_With(basics_, autoStart_);
}

QString FormMain::mainFile() const
{
    return state_.ListArray.at(kColMain, state_.PicNo);
}
QString FormMain::withFile() const
{
    return state_.ListArray.at(kColWith, state_.PicNo);
}

// ---- Kinds ------------------------------------------------------------------

void FormMain::ClassifyMainFile(const QString& fileName)
{
    const QString ext = extensionOf(fileName);
    if (ext.isEmpty())
        return;
    if (ext == QLatin1String("WRL")) {
        KindVrml = true;
    } else if (ext == QLatin1String("NFF") || ext == QLatin1String("SSF")) {
        KindNff = true;
    } else if (QStringList{"AVI", "ASF", "MPG", "MPEG", "WMA", "WMV"}.contains(ext)) {
        KindAvi = true;
    } else if (ext == QLatin1String("SND") || ext == QLatin1String("WAV")) {
        KindSound = true;
    } else if (QStringList{"MID", "MP3", "RMI"}.contains(ext)) {
        KindMidi = true;
    } else if (ext == QLatin1String("DAT") && beginsWithRiff(nativeOf(fileName))) {
        KindAvi = true;
        KindText = false;
        TextAsAvi = true;
    } else if (ext == QLatin1String("TXT") || ext == QLatin1String("DAT")) {
        KindText = true;
    } else if (ext == QLatin1String("CDA")) {
        KindCD = true;
    } else if (QStringList{"HTM", "HTML", "GIF", "MOV", "SWF", "XV3", "CO"}.contains(ext)) {
        KindWeb = true;
        KindXv3 = ext == QLatin1String("XV3");
        KindCo = ext == QLatin1String("CO");
    } else if (ext == QLatin1String("EXE")) {
        KindExe = true;
    } else {
        for (int slot = 0; slot < kExtSlots; ++slot) {
            if (state_.ExtTypeArray.at(slot, 0) == ext &&
                state_.ExtTypeArray.at(slot, 1) == QLatin1String("TEXT")) {
                KindText = true;
                break;
            }
        }
    }
}

void FormMain::ClassifyWithFile(const QString& fileName)
{
    KindVrml = false;
    KindNff = false;
    const QString ext = extensionOf(fileName);
    if (ext == QLatin1String("WMA") || ext == QLatin1String("WMV"))
        return;
    ClassifyMainFile(fileName);
}

// ---- The main action ----------------------------------------------------------

void FormMain::TakeMainAction()
{
    HideText = CheckTextHide->isChecked();
    HideComment = CheckCommentHide->isChecked();
    HideWave = CheckWaveHide->isChecked();
    basics_.services().fs.deleteFile(state_.ProgramRunDir + QStringLiteral("\\TempHTML.HTML"));

    // Drive marks of the page.
    QString main = mainFile();
    if ((main.contains(QLatin1String("*:")) || main.contains(QLatin1String("?:"))) &&
        state_.ForcedDriveTo.isEmpty()) {
        if (main.contains(QLatin1String("?:"))) {
            state_.HatenaDriveAsked = true;
            if (FormBase* drive = forms_.form(QStringLiteral("FormHatenaDrive")))
                drive->showForm();
            return;
        }
        state_.ForcedDriveFrom = QStringLiteral("*:");
        const int colon = InStr(state_.ProgramFolder, QStringLiteral(":"));
        state_.ForcedDriveTo = Left(state_.ProgramFolder, colon);
        if (colon == 0) {
            basics_.services().ui.msgBox(QStringLiteral("強制ドライブ名が正しくありません"));
            return;
        }
    }
    if (!state_.ForcedDriveFrom.isEmpty() && main.contains(state_.ForcedDriveFrom) &&
        !state_.ForcedDriveTo.isEmpty()) {
        for (int column : {kColMain, kColWith}) {
            const QString cell = state_.ListArray.at(column, state_.PicNo);
            state_.ListArray.set(
                column, state_.PicNo,
                UCase(QString(cell).replace(state_.ForcedDriveFrom, state_.ForcedDriveTo)));
        }
        main = mainFile();
    }

    if (basics_.services().fs.dir(main).isEmpty()) {
        setWindowTitle(QStringLiteral("File Niot Found ") + main);
        Picture2->clearPicture();
        return;
    }
    setWindowTitle(QString());
    LargePictureFlag = false;
    TextCount->setText(QString::number(state_.PicNo));
    TextFileName->setText(main);

    // A one-shot request of the program rides in the option column for this pass.
    const QString keptOption = state_.ListArray.at(kColOption, state_.PicNo);
    if (FullOnNext)
        state_.ListArray.set(kColOption, state_.PicNo, state_.CommandWord.value(kFormMaximamSize));
    if (NormalOnNext)
        state_.ListArray.set(kColOption, state_.PicNo, state_.CommandWord.value(kFormNormalSize));
    const QString option = state_.ListArray.at(kColOption, state_.PicNo);
    if (!option.isEmpty())
        runOption(option);

    HasWith = !withFile().isEmpty();
    const double delay = Val(state_.ListArray.at(kColDelay, state_.PicNo));
    HasDelay = delay != 9999 && delay != 0;

    const QString comment = state_.ListArray.at(kColComment, state_.PicNo);
    if (comment.isEmpty() || HideComment) {
        HasComment = false;
        forms_.unload(QStringLiteral("FormComment"));
        setLabelComment(QString());
    } else {
        HasComment = true;
        const QString text = pageCommentText();
        if (auto* window = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment"))))
            window->setCommentText(text);
        setLabelComment(text);
    }

    CommandNoText->hide();
    CheckAutoWith(main, autoStart_, ForcedShowKind); // only the kind it forces is kept

    ClassifyMainFile(main);
    const bool anyKind = KindVrml || KindNff || KindAvi || KindSound || KindMidi || KindText ||
                         KindCD || KindWeb || KindExe;
    if (!anyKind) {
        DisplayPicturePage();
        if (isMaximized())
            setWindowTitle(main +
                           (LargePictureFlag ? QStringLiteral("  Lerge picture") : QString()));
        else
            setWindowTitle(LargePictureFlag ? QStringLiteral("Lerge picture") : QString());
    } else {
        setWindowTitle(isMaximized() ? main : QString());
        if (KindAvi)
            ShowAvi();
        if (KindText)
            ShowText();
        if (KindVrml)
            ShowVrml();
        if (KindNff)
            ShowNff();
        if (KindMidi)
            ShowMidi();
        if (KindSound) {
            if (HasComment)
                showCommentWindow();
            PlaySoundFile(main);
        }
        if (KindWeb) {
            if (HasComment)
                showCommentWindow();
            ShowWeb();
        }
        if (KindExe) {
            Text1->hide();
            ShowExe();
        }
        if (KindCD) {
            if (HasComment)
                showCommentWindow();
            ShowCDMusic();
        }
    }

    // KindVrml stays up: only a page with a companion clears it.
    KindNff = KindAvi = KindSound = KindMidi = KindText = KindCD = KindWeb = KindExe = false;
    KindXv3 = KindCo = false;
    FullOnNext = NormalOnNext = false;
    HideText = HideComment = HideWave = false;
    state_.ListArray.set(kColOption, state_.PicNo, keptOption);
}

// ---- Companions and comments ------------------------------------------------

void FormMain::companionRule(bool pictureOrTextPage)
{
    const bool pending = (FullOnNext || NormalOnNext) && state_.PicNo != 1;
    if (HasWith && !(pictureOrTextPage && pending)) {
        ClassifyWithFile(withFile());
        if (KindSound && !HideWave)
            PlaySoundFile(withFile());
        if (KindMidi && !HideWave) {
            MediaPlayer2->show();
            openOnPanel(MediaPlayer2, withFile());
        }
    }
    KindSound = false;
    KindMidi = false;
    if (HasComment && !HideComment)
        showCommentWindow();
}

QString FormMain::pageCommentText()
{
    // A comment held in the list begins with its mark; any other names a file.
    const QString comment = state_.ListArray.at(kColComment, state_.PicNo);
    if (comment.isEmpty())
        return QString();
    const int mark = InStr(comment, kCommentMark);
    return mark >= 1 && mark <= 4 ? Mid(comment, mark + 7) : basics_.ReadTextOfFile(comment);
}

void FormMain::runOption(const QString& word)
{
    const QString trimmed = Trim(word);
    int index = 0;
    for (int i = 1; i <= kCommandWords; ++i) {
        if (trimmed == state_.CommandWord.value(i)) {
            index = i;
            break;
        }
    }
    switch (index) {
    case kFormMaximamSize:
        if (!FullOnNext)
            CommandFull_Click();
        break;
    case kFormNormalSize:
        if (!NormalOnNext)
            FORMNORMALSIZE();
        break;
    case kPictureScroll:
        CheckOriginalSize->setChecked(true);
        break;
    case kPutPictureInImage:
        CheckOriginalSize->setChecked(false);
        break;
    case kAnimeDefaultSize:
    case kAnimeFullScreen:
        setVideoFullScreen(index == kAnimeFullScreen);
        break;
    case kListAutoStartOn:
        state_.DirecData.ListAutoStart = kTrue;
        break;
    case kListAutoStartOff:
        state_.DirecData.ListAutoStart = kFalse;
        break;
    default:
        if (index >= kCommentSet1 && index < kWith)
            callSetting(index);
        break;
    }
}

void FormMain::callSetting(int index)
{
    // The sets of the option words are the files of their English names.
    auto* conbo = static_cast<FormCommandConbo*>(forms_.form(QStringLiteral("FormCommandConbo")));
    if (!conbo)
        return;
    const QString file = englishCommandWords().value(index) + QStringLiteral(".DAT");
    if (index < kTextSet1)
        conbo->CallCommentSetting(file);
    else if (index < kPictBackCol1)
        conbo->CallTextSetting(file);
    else
        conbo->CallPictureBackColor(file);
}

// ---- Kinds of page ------------------------------------------------------------

void FormMain::PlaySoundFile(const QString& programPath)
{
    basics_.services().media.playSound(programPath.isEmpty() ? QString() : nativeOf(programPath));
}

void FormMain::ShowText()
{
    CleareDisp(QStringLiteral("TXT"));
    TextShown = true;
    DirecDataRecord& record = state_.DirecData;
    const QString name = FixedText(record.TextFontName);
    const QString size = FixedText(record.TextFontSize);
    const QString ground = FixedText(record.TextFontColor);
    const QString letters = FixedText(record.TextBackColor);
    record.TextFontName = name;
    record.TextFontSize = size;
    record.TextFontColor = ground;
    record.TextBackColor = letters;
    applyTextLook(name, size, ground, letters);
    companionRule(true);
    Text1->show();
    twMove(Text1, 0, 0, twWidth(Picture1), twHeight(Picture1));
    Text1->clear();
    Text1->setPlainText(QString(basics_.ReadTextOfFile(mainFile()))
                            .replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void FormMain::ShowVrml()
{
    showIn3DViewer(state_.DirecData.VrmlViewerPath);
}

void FormMain::ShowNff()
{
    showIn3DViewer(state_.DirecData.CyberViewPath);
}

// The page goes to the outside 3D viewer when CheckUseCyberView allows it;
// otherwise the box turns yellow.
void FormMain::showIn3DViewer(const FixedString<100>& viewerPath)
{
    CleareDisp(QString());
    companionRule(false);
    if (CheckUseCyberView->isChecked())
        basics_.services().launcher.shell(FixedText(viewerPath) + QLatin1Char(' ') + mainFile());
    else
        setBackColor(CheckUseCyberView, kColorYellow);
}

void FormMain::ShowExe()
{
    // A file a list names is never run by the program itself: the desktop's
    // opener takes it, as the shell's associations did.
    CleareDisp(QString());
    basics_.services().launcher.shellExecuteOpen(mainFile());
}

void FormMain::ShowCDMusic()
{
    CleareDisp(QString());
    showCdPage(mainFile());
}

} // namespace lumen
