#include "editor/FormEdit.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "state/ProgramState.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace lumen {
namespace {

// The design, in twips: the viewer buttons in one column, the two frames to
// their right.
constexpr double kButtonLeft = 120;
constexpr double kButtonWidth = 1095;
constexpr double kButtonHeight = 375;
constexpr double kButtonStep = 435;
constexpr double kFrameLeft = 1335;
constexpr double kClientWidth = 4575;
constexpr double kSmallButtonWidth = 420;

} // namespace

FormEdit::FormEdit(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormEdit"), parent, Qt::Tool)
    , basics_(basics)
    , forms_(forms)
    , work_(basics, *this)
{
    setWindowTitle(QStringLiteral("ｴﾃﾞｨﾀｰ"));
    buildViewers();
    buildFrames();
    connectHandlers();
}

void FormEdit::buildViewers()
{
    CommandMsPaint = commandButton(QStringLiteral("CommandMsPaint"), QStringLiteral("画像"), this);
    CommandNotePad = commandButton(QStringLiteral("CommandNotePad"), QStringLiteral("ｺﾒﾝﾄ"), this);
    CommandSoundPlayer =
        commandButton(QStringLiteral("CommandSoundPlayer"), QStringLiteral("ｻｳﾝﾄﾞ"), this);
    CommandText = commandButton(QStringLiteral("CommandText"), QStringLiteral("ﾃｷｽﾄ"), this);
    CommandMidi = commandButton(QStringLiteral("CommandMidi"), QStringLiteral("MIDI"), this);
    CommandAVI = commandButton(QStringLiteral("CommandAVI"), QStringLiteral("ｱﾆﾒ"), this);
    CommandCyberView =
        commandButton(QStringLiteral("CommandCyberView"), QStringLiteral("3DViewer"), this);
    CommandIntExp = commandButton(QStringLiteral("CommandIntExp"), QStringLiteral("IE"), this);
    PicturePrinter = commandButton(QStringLiteral("PicturePrinter"), QStringLiteral("印刷"), this);
    CommandWaitTime =
        commandButton(QStringLiteral("CommandWaitTime"), QStringLiteral("待ち"), this);
    const QList<QPushButton*> column = {
        CommandMsPaint, CommandNotePad,   CommandSoundPlayer, CommandText,    CommandMidi,
        CommandAVI,     CommandCyberView, CommandIntExp,      PicturePrinter, CommandWaitTime};
    for (int i = 0; i < column.size(); ++i)
        twMove(column[i], kButtonLeft, kButtonLeft + i * kButtonStep, kButtonWidth, kButtonHeight);
    const double height = kButtonLeft + column.size() * kButtonStep;
    setFixedSize(twipsToPixels(kClientWidth), twipsToPixels(height));
}

void FormEdit::buildFrames()
{
    FrameSave = named<QGroupBox>(QStringLiteral("FrameSave"), this);
    CommandOpenEdit =
        commandButton(QStringLiteral("CommandOpenEdit"), QStringLiteral("ｴﾃﾞｨﾀ-"), FrameSave);
    CommandDo = commandButton(QStringLiteral("CommandDo"), QStringLiteral("実行"), FrameSave);
    CommandExit = commandButton(QStringLiteral("CommandExit"), QStringLiteral("終了"), FrameSave);
    OptionDeleate =
        named<QRadioButton>(QStringLiteral("OptionDeleate"), QStringLiteral("削除"), FrameSave);
    OptionToComLine = named<QRadioButton>(QStringLiteral("OptionToComLine"),
                                          QStringLiteral("ｺﾏﾝﾄﾞﾗｲﾝにｾｰﾌﾞ"), FrameSave);
    OptionSaveToFile = named<QRadioButton>(QStringLiteral("OptionSaveToFile"),
                                           QStringLiteral("ﾌｧｲﾙにｾｰﾌﾞ"), FrameSave);
    twMove(CommandOpenEdit, 120, 330, 1400, kButtonHeight);
    FrameSave->hide();

    FrameAddDelay = named<QGroupBox>(QStringLiteral("FrameAddDelay"), this);
    TextWait = named<QLineEdit>(QStringLiteral("TextWait"), FrameAddDelay);
    CommandAddWait =
        commandButton(QStringLiteral("CommandAddWait"), QStringLiteral("追加"), FrameAddDelay);
    CommandEndWait =
        commandButton(QStringLiteral("CommandEndWait"), QStringLiteral("終了"), FrameAddDelay);
    const double waitTop = twTop(CommandWaitTime) + kButtonHeight - 900;
    twMove(FrameAddDelay, kFrameLeft, waitTop, 3000, 900);
    twMove(TextWait, 120, 360, 900, 345);
    twMove(CommandAddWait, 1140, 345, 800, kButtonHeight);
    twMove(CommandEndWait, 2040, 345, 800, kButtonHeight);
    FrameAddDelay->hide();
}

void FormEdit::connectHandlers()
{
    const auto click = [this](QPushButton* button, void (FormEdit::*handler)()) {
        connect(button, &QPushButton::clicked, this, handler);
    };
    click(CommandMsPaint, &FormEdit::CommandMsPaint_Click);
    click(CommandNotePad, &FormEdit::CommandNotePad_Click);
    click(CommandSoundPlayer, &FormEdit::CommandSoundPlayer_Click);
    click(CommandMidi, &FormEdit::CommandMidi_Click);
    click(CommandAVI, &FormEdit::CommandAVI_Click);
    click(CommandText, &FormEdit::CommandText_Click);
    click(CommandCyberView, &FormEdit::CommandCyberView_Click);
    click(CommandIntExp, &FormEdit::CommandIntExp_Click);
    click(PicturePrinter, &FormEdit::PicturePrinter_Click);
    click(CommandWaitTime, &FormEdit::CommandWaitTime_Click);
    click(CommandAddWait, &FormEdit::CommandAddWait_Click);
    click(CommandEndWait, &FormEdit::CommandEndWait_Click);
    click(CommandOpenEdit, &FormEdit::CommandOpenEdit_Click);
    click(CommandDo, &FormEdit::CommandDo_Click);
    click(CommandExit, &FormEdit::CommandExit_Click);
}

void FormEdit::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    if (links.showMain)
        links.showMain();
}

void FormEdit::hideEntryFrames()
{
    FrameSave->hide();
    FrameAddDelay->hide();
}

// ---- Viewer buttons ------------------------------------------------------------------

void FormEdit::CommandMsPaint_Click()
{
    work_.viewer(EntryViewer::MsPaint);
}

void FormEdit::CommandAVI_Click()
{
    work_.viewer(EntryViewer::AVI);
}

void FormEdit::CommandText_Click()
{
    work_.viewer(EntryViewer::Text);
}

void FormEdit::CommandCyberView_Click()
{
    work_.viewer(EntryViewer::CyberView);
}

void FormEdit::CommandIntExp_Click()
{
    work_.viewer(EntryViewer::IntExp);
}

void FormEdit::CommandNotePad_Click()
{
    openWork(EntryViewer::NotePad);
}

void FormEdit::CommandSoundPlayer_Click()
{
    openWork(EntryViewer::SoundPlayer);
}

void FormEdit::CommandMidi_Click()
{
    openWork(EntryViewer::Midi);
}

// The three buttons of work: without a page they start their program; on a
// page the scratch file is made ready and FrameSave opens for its kind.
void FormEdit::openWork(EntryViewer button)
{
    const bool page = basics_.state().PicNo != 0;
    if (page)
        setBackColor(CommandDo, kColorButtonFace);
    work_.viewer(button);
    if (!page)
        return;
    if (button == EntryViewer::NotePad)
        placeFrameSave(CommandSoundPlayer, true);
    else if (button == EntryViewer::SoundPlayer)
        placeFrameSave(CommandText, false);
    else
        placeFrameSave(CommandNotePad, false);
}

// FrameSave by the kind of work: the comment's frame is taller, for the
// choice of saving it on the command line.
void FormEdit::placeFrameSave(QPushButton* beside, bool comment)
{
    const double doLeft = comment ? 2160 : 1620;
    const double exitLeft = comment ? 2580 : 2040;
    twMove(FrameSave, kFrameLeft, twTop(beside), exitLeft + kSmallButtonWidth + 120,
           comment ? 3045 : 2505);
    twMove(CommandDo, doLeft, 330, kSmallButtonWidth, kButtonHeight);
    twMove(CommandExit, exitLeft, 330, kSmallButtonWidth, kButtonHeight);
    twMove(OptionToComLine, 120, 1110, 2800, 300);
    twMove(OptionSaveToFile, 120, comment ? 1440 : 840, 2400, 300);
    twMove(OptionDeleate, 120, comment ? 1770 : 1170, 2400, 300);
    OptionToComLine->setVisible(comment);
    if (comment)
        OptionToComLine->setChecked(true);
    else if (!OptionDeleate->isChecked())
        OptionSaveToFile->setChecked(true);
    FrameSave->show();
    FrameSave->raise();
}

void FormEdit::PicturePrinter_Click()
{
    // The note on printing, to the left of this window, level with its foot.
    FormBase* print = forms_.form(QStringLiteral("FormPrint"));
    if (!print)
        return;
    print->showForm();
    const QRect me = frameGeometry();
    print->move(me.x() - me.width(), me.y() + me.height() - print->frameGeometry().height());
}

// ---- Waits ------------------------------------------------------------------------------

void FormEdit::CommandWaitTime_Click()
{
    if (const std::optional<QString> wait = work_.waitText()) {
        TextWait->setText(*wait);
        FrameAddDelay->show();
        FrameAddDelay->raise();
    }
}

void FormEdit::CommandEndWait_Click()
{
    FrameAddDelay->hide();
}

void FormEdit::CommandAddWait_Click()
{
    setBackColor(CommandAddWait, kColorYellow);
    work_.addWait(TextWait->text());
    setBackColor(CommandAddWait, kColorButtonFace);
}

// ---- FrameSave ----------------------------------------------------------------------------

void FormEdit::CommandOpenEdit_Click()
{
    setBackColor(CommandDo, kColorRed);
    work_.CommandOpenEdit();
}

void FormEdit::CommandDo_Click()
{
    setBackColor(CommandDo, kColorButtonFace);
    const EntrySave save = OptionDeleate->isChecked()      ? EntrySave::Delete
                           : OptionSaveToFile->isChecked() ? EntrySave::ToFile
                                                           : EntrySave::ToCommandLine;
    work_.CommandDo(save);
}

void FormEdit::CommandExit_Click()
{
    setBackColor(CommandDo, kColorButtonFace);
    FrameSave->hide();
    work_.CommandExit();
}

// ---- EntryHost ------------------------------------------------------------------------------

void FormEdit::takeMainAction()
{
    if (links.takeMainAction)
        links.takeMainAction();
}

void FormEdit::showOnMain(const QString& text, qint32 backColor)
{
    if (links.showOnMain)
        links.showOnMain(text, backColor);
}

void FormEdit::showComment(const QString& text)
{
    if (links.showComment)
        links.showComment(text);
}

int FormEdit::listTotal() const
{
    return links.listTotal ? int(basic::Val(links.listTotal())) : 0;
}

std::optional<QImage> FormEdit::shownPicture() const
{
    return links.shownPicture ? links.shownPicture() : std::nullopt;
}

void FormEdit::setUpCommentProgram()
{
    if (links.setUpCommentProgram)
        links.setUpCommentProgram();
}

void FormEdit::setUpSoundProgram()
{
    if (links.setUpSoundProgram)
        links.setUpSoundProgram();
}

void FormEdit::setUpMidiProgram()
{
    if (links.setUpMidiProgram)
        links.setUpMidiProgram();
}

} // namespace lumen
