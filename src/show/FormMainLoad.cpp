// FormMain: loading the window and closing the program through it.
#include "show/FormMain.h"

#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "fileops/WorkingFolders.h"
#include "list/CommandWords.h"
#include "list/ExtTable.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/FormRegistry.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace lumen {
namespace {

using namespace basic;

int checkValue(qint16 recordBoolean)
{
    return recordBoolean == kTrue ? 1 : 0;
}

qint16 recordBoolean(const QCheckBox* box)
{
    return box->isChecked() ? kTrue : kFalse;
}

} // namespace

void FormMain::Form_Load()
{
    PutCommandToArray(basics_);
    const DirecDataRecord& record = state_.DirecData;
    CheckOriginalSize->setChecked(checkValue(record.OriginalSizeOn) == 1);
    CheckUseCyberView->setChecked(checkValue(record.CyberViewOn) == 1);
    applyFonts();

    twMove(this, 0, 0);
    makeWorkingFolders(basics_);

    Text1->hide();
    twMove(Picture2, 0, 0, twWidth(Picture1), twHeight(Picture1));
    PrepareShow();

    MediaPlayer1->hide();
    MediaPlayer2->hide();
    CommandNoText->hide();
    state_.AutoPageOn = false;
    setBackColor(this, kColorGrey);
    if (const QString ground = FixedText(record.PictBackColor); !ground.isEmpty())
        Picture1->setBackColor(bgrFromText(ground));

    PutExtTypeToArray(basics_);
    basics_.WaitMilliseconds(100);
    ReadExtTypeToArray(basics_);

    state_.ForcedDriveFrom.clear();
    state_.ForcedDriveTo.clear();
    CheckAuto_With();

    if (links.startWithFile)
        links.startWithFile();
    state_.StopRequested = false;
    basics_.host().unloadStop();

    if (record.ListAutoStart == kTrue) {
        state_.StartFileName = TrimLineEnds(QString(record.LastListFile));
        if (basics_.FileExists(state_.StartFileName)) {
            state_.ForcedDriveFrom.clear();
            state_.ForcedDriveTo.clear();
            if (!UCase(state_.StartFileName).contains(QLatin1String(".LST"))) {
                const QString runFile = state_.DataDir + QStringLiteral("\\RunFile.Lst");
                basics_.WriteTextToFile(state_.StartFileName, runFile);
                basics_.WaitMilliseconds(100);
                OpenFileList(runFile);
            } else {
                OpenFileList(state_.StartFileName);
            }
        }
    }
    Form_Resize();
}

void FormMain::applyFonts()
{
    const DirecDataRecord& record = state_.DirecData;
    const QFont small = fontFrom(TextFileName->font(), FixedText(record.DispFontName),
                                 Val(FixedText(record.DispFontSize)));
    for (QLineEdit* box : {TextFileName, TextHeadName, TextNum})
        box->setFont(small);
    applyTextLook(FixedText(record.TextFontName), FixedText(record.TextFontSize),
                  FixedText(record.TextFontColor), FixedText(record.TextBackColor));
    // LabelComment in the comment's look, as FormComment takes it.
    LabelComment->setFont(fontFrom(LabelComment->font(), FixedText(record.CommentFontName),
                                   Val(FixedText(record.CommentFontSize))));
    if (const QString ground = FixedText(record.CommentBackColor); IsNumeric(ground))
        setBackColor(LabelComment, bgrFromText(ground));
    if (const QString letters = FixedText(record.CommentForeColor); IsNumeric(letters))
        setForeColor(LabelComment, bgrFromText(letters));
}

void FormMain::saveRecord()
{
    writeDirecData(
        basics_.services().fs.toNative(state_.ProgramRunDir + QStringLiteral("\\DirecData.ran")),
        state_.DirecData);
}

void FormMain::Form_Unload(bool& cancel)
{
    if (isVisible() && !CommandRight->isVisibleTo(this)) {
        // Whole-screen mode: the close is refused, and the exit choice shows.
        cancel = true;
        basics_.services().ui.beep();
        if (FormBase* exit = forms_.form(QStringLiteral("FormLumentaExit")))
            exit->showModal();
        return;
    }
    state_.DirecData.OriginalSizeOn = recordBoolean(CheckOriginalSize);
    state_.DirecData.CyberViewOn = recordBoolean(CheckUseCyberView);
    saveRecord();
    if (links.unloadAllForms)
        links.unloadAllForms();
    if (links.endProgram)
        links.endProgram();
}

void FormMain::CommandExit_Click()
{
    unload();
}

} // namespace lumen
