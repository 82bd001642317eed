#include "settings/FormEdit2.h"

#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/FormRegistry.h"
#include "platform/Launcher.h"
#include "platform/Twips.h"
#include "platform/UserDialogs.h"
#include "settings/FormCommandConbo.h"
#include "settings/FormRClick.h"
#include "settings/FormSetFontAndColor.h"
#include "settings/FormViewerSelect.h"
#include "state/ProgramState.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace lumen {
namespace {

using namespace basic;

constexpr double kHintRise = 1500;      // twips above the button
constexpr double kClearHintRise = 2000; // CommandClear's hint stands higher

const QString kProgramsFilter = QStringLiteral("Aplication Programs to use.(*.exe)|*.exe");
// The picture row's filter when its field named a program: with a blank.
const QString kPictureProgramsFilter = QStringLiteral("Aplication Programs to use. (*.exe)|*.exe");

// The settings files CommandClear deletes, in this order.
const QStringList kSettingsFiles = {
    QStringLiteral("DirecData.ran"),
    QStringLiteral("CommandList.txt"),
    QStringLiteral("ExtType.dat"),
    QStringLiteral("SendToList.txt"),
    QStringLiteral("AccessLockDir.dat"),
    QStringLiteral("AccessPass.dat"),
    QStringLiteral("PictureSizeAllowVal.dat"),
};

const QString kFormRClick = QStringLiteral("FormRClick");
const QString kFormViewerSelect = QStringLiteral("FormViewerSelect");

QPushButton* directoryButton(const char* name, QWidget* parent)
{
    QPushButton* button = commandButton(QString::fromLatin1(name), QStringLiteral("…"), parent);
    button->setFixedWidth(28);
    return button;
}

} // namespace

FormEdit2::FormEdit2(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormEdit2"), parent, Qt::Tool)
    , basics_(basics)
    , forms_(forms)
{
    setWindowTitle(QStringLiteral("ｱﾌﾟﾘｹｰｼｮﾝ関連付け"));
    CommandMsPaint = commandButton(QStringLiteral("CommandMsPaint"), QStringLiteral("画像"), this);
    CommandNotePad = commandButton(QStringLiteral("CommandNotePad"), QStringLiteral("ｺﾒﾝﾄ"), this);
    CommandSoundPlayer =
        commandButton(QStringLiteral("CommandSoundPlayer"), QStringLiteral("ｻｳﾝﾄﾞ"), this);
    CommandText = commandButton(QStringLiteral("CommandText"), QStringLiteral("ﾃｷｽﾄ"), this);
    CommandCyberView =
        commandButton(QStringLiteral("CommandCyberView"), QStringLiteral("3D View"), this);
    CommandAVI = commandButton(QStringLiteral("CommandAVI"), QStringLiteral("ｱﾆﾒ"), this);
    CommandMidi = commandButton(QStringLiteral("CommandMidi"), QStringLiteral("MIDI"), this);
    CommandIntExp = commandButton(QStringLiteral("CommandIntExp"), QStringLiteral("IE"), this);
    programButtons_ = {CommandMsPaint,   CommandNotePad, CommandSoundPlayer, CommandText,
                       CommandCyberView, CommandAVI,     CommandMidi,        CommandIntExp};

    CommandPictureDirectry = directoryButton("CommandPictureDirectry", this);
    CommandCommentDirectry = directoryButton("CommandCommentDirectry", this);
    CommandSoundDirectry = directoryButton("CommandSoundDirectry", this);
    CommandTextDirectry = directoryButton("CommandTextDirectry", this);
    CommandWrlDirectry = directoryButton("CommandWrlDirectry", this);
    CommandCyberViewDirectry = directoryButton("CommandCyberViewDirectry", this);
    CommandAnimationDirectry = directoryButton("CommandAnimationDirectry", this);
    CommandMidiDirectry = directoryButton("CommandMidiDirectry", this);
    CommandIntExpDirectry = directoryButton("CommandIntExpDirectry", this);

    Label1 = named<QLabel>(QStringLiteral("Label1"), QStringLiteral("右ｸﾘｯｸで設定機能"), this);
    CommandDoExe = commandButton(QStringLiteral("CommandDoExe"), QStringLiteral("Do Exe"), this);
    CommandClear = commandButton(QStringLiteral("CommandClear"), QStringLiteral("設定ｸﾘｱ"), this);
    CommandSetComentFont =
        commandButton(QStringLiteral("CommandSetComentFont"), QStringLiteral("ｺﾒﾝﾄ文字"), this);
    CommandSetTextFont =
        commandButton(QStringLiteral("CommandSetTextFont"), QStringLiteral("ﾃｷｽﾄ文字"), this);
    CommandSetPictBackCol =
        commandButton(QStringLiteral("CommandSetPictBackCol"), QStringLiteral("背景色"), this);
    CommandCommandConbo =
        commandButton(QStringLiteral("CommandCommandConbo"), QStringLiteral("ｵﾌﾟｼｮﾝｺﾏﾝﾄﾞ"), this);
    buildBindings();
    layOut();
    connectHandlers();
}

void FormEdit2::buildBindings()
{
    using R = DirecDataRecord;
    bindings_ = {
        {CommandPictureDirectry, &R::PictureEditorPath, QStringLiteral("c:\\windows\\pbrush.exe"),
         QStringLiteral(" 画像ｴﾃﾞｨﾀｰの選択 ")},
        {CommandCommentDirectry, &R::CommentEditorPath, QStringLiteral("c:\\windows\\Notepad.exe"),
         QStringLiteral(" ｺﾒﾝﾄｴﾃﾞｨﾀｰの選択 ")},
        {CommandSoundDirectry, &R::SoundPlayerPath, QStringLiteral("c:\\windows\\Sndrec32.exe"),
         QStringLiteral(" ｻｳﾝﾄﾞｴﾃﾞｨﾀｰの選択 ")},
        {CommandTextDirectry, &R::TextEditorPath, QStringLiteral("c:\\windows\\notepad.exe"),
         QStringLiteral(" ﾃｷｽﾄｴﾃﾞｨﾀｰの選択 ")},
        {CommandWrlDirectry, &R::VrmlViewerPath,
         QStringLiteral("C:\\Program Files\\Viewer\\vrmlview.exe "),
         QStringLiteral(" 3DViewer(WRL) の選択 ")},
        {CommandCyberViewDirectry, &R::CyberViewPath,
         QStringLiteral("c:\\CyberView\\CyberView.exe "), QStringLiteral(" 3DViewer(NFF) の選択 ")},
        {CommandAnimationDirectry, &R::MediaPlayerPath,
         QStringLiteral("C:\\Program Files\\Windows Media Player\\MPLAYER2.EXE "),
         QStringLiteral(" ｱﾆﾒﾌﾟﾚｲﾔｰの選択 ")},
        {CommandMidiDirectry, &R::MediaPlayerPath2,
         QStringLiteral("C:\\Program Files\\Windows Media Player\\MPLAYER2.EXE "),
         QStringLiteral(" MIDIﾌﾟﾚｲﾔｰの選択 ")},
        {CommandIntExpDirectry, &R::InternetViewerPath,
         QStringLiteral("C:\\Program Files\\Internet Explorer\\Iexplore.exe"),
         QStringLiteral(" ｲﾝﾀｰﾈｯﾄｴｸｽﾌﾟﾛｰﾗｰの選択")},
    };
}

void FormEdit2::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(4);
    // Each program button with the directory buttons of its fields.
    const QList<QList<QPushButton*>> rows = {
        {CommandMsPaint, CommandPictureDirectry},
        {CommandNotePad, CommandCommentDirectry},
        {CommandSoundPlayer, CommandSoundDirectry},
        {CommandText, CommandTextDirectry},
        {CommandCyberView, CommandWrlDirectry, CommandCyberViewDirectry},
        {CommandAVI, CommandAnimationDirectry},
        {CommandMidi, CommandMidiDirectry},
        {CommandIntExp, CommandIntExpDirectry},
    };
    for (int r = 0; r < rows.size(); ++r)
        for (int c = 0; c < rows[r].size(); ++c)
            grid->addWidget(rows[r][c], r, c);
    const int below = int(rows.size());
    grid->addWidget(Label1, below, 0, 1, 3);
    grid->addWidget(CommandDoExe, below + 1, 0, 1, 3);
    grid->addWidget(CommandSetComentFont, below + 2, 0, 1, 3);
    grid->addWidget(CommandSetTextFont, below + 3, 0, 1, 3);
    grid->addWidget(CommandSetPictBackCol, below + 4, 0, 1, 3);
    grid->addWidget(CommandCommandConbo, below + 5, 0, 1, 3);
    grid->addWidget(CommandClear, below + 6, 0, 1, 3);
    for (QPushButton* button : std::as_const(programButtons_))
        button->setMinimumWidth(90);
}

void FormEdit2::connectHandlers()
{
    const auto click = [this](QPushButton* button, void (FormEdit2::*handler)()) {
        connect(button, &QPushButton::clicked, this, handler);
    };
    click(CommandMsPaint, &FormEdit2::CommandMsPaint_Click);
    click(CommandNotePad, &FormEdit2::CommandNotePad_Click);
    click(CommandSoundPlayer, &FormEdit2::CommandSoundPlayer_Click);
    click(CommandText, &FormEdit2::CommandText_Click);
    click(CommandCyberView, &FormEdit2::CommandCyberView_Click);
    click(CommandAVI, &FormEdit2::CommandAVI_Click);
    click(CommandMidi, &FormEdit2::CommandMidi_Click);
    click(CommandIntExp, &FormEdit2::CommandIntExp_Click);
    click(CommandDoExe, &FormEdit2::CommandDoExe_Click);
    click(CommandClear, &FormEdit2::CommandClear_Click);
    click(CommandSetComentFont, &FormEdit2::CommandSetComentFont_Click);
    click(CommandSetTextFont, &FormEdit2::CommandSetTextFont_Click);
    click(CommandSetPictBackCol, &FormEdit2::CommandSetPictBackCol_Click);
    click(CommandCommandConbo, &FormEdit2::CommandCommandConbo_Click);
    for (int i = 0; i < bindings_.size(); ++i) {
        connect(bindings_[i].directoryButton, &QPushButton::clicked, this,
                [this, i] { chooseProgram(i); });
        bindings_[i].directoryButton->installEventFilter(this);
    }
    for (QPushButton* button : std::as_const(programButtons_))
        button->installEventFilter(this);
    for (QPushButton* button : {CommandDoExe, CommandClear, CommandSetComentFont,
                                CommandSetTextFont, CommandSetPictBackCol})
        button->installEventFilter(this);
}

void FormEdit2::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    if (links.bringSelectFileToFront)
        links.bringSelectFileToFront();
}

// ---- Starting programs ----------------------------------------------------------

QString FormEdit2::boundFile() const
{
    if (links.editorOn && links.editorOn())
        return Trim(links.editorFileName ? links.editorFileName() : QString());
    return basics_.state().SelectedFile;
}

void FormEdit2::startProgram(const QString& programPath)
{
    // A program that can't be reached starts nothing, without a word.
    basics_.services().launcher.shell(Trim(programPath) + QLatin1Char(' ') + boundFile());
}

void FormEdit2::startField(FixedString<100> DirecDataRecord::*field)
{
    startProgram(FixedText(basics_.state().DirecData.*field));
}

void FormEdit2::CommandMsPaint_Click()
{
    startField(&DirecDataRecord::PictureEditorPath);
}

void FormEdit2::CommandNotePad_Click()
{
    startField(&DirecDataRecord::CommentEditorPath);
}

void FormEdit2::CommandSoundPlayer_Click()
{
    startField(&DirecDataRecord::SoundPlayerPath);
}

void FormEdit2::CommandText_Click()
{
    startField(&DirecDataRecord::TextEditorPath);
}

void FormEdit2::CommandAVI_Click()
{
    startField(&DirecDataRecord::MediaPlayerPath);
}

void FormEdit2::CommandMidi_Click()
{
    startField(&DirecDataRecord::MediaPlayerPath2);
}

void FormEdit2::CommandIntExp_Click()
{
    startField(&DirecDataRecord::InternetViewerPath);
}

// The 3D button starts nothing itself: the user picks one of the two
// viewers in FormViewerSelect, to the left of this window.
void FormEdit2::CommandCyberView_Click()
{
    FormBase* viewers = forms_.form(kFormViewerSelect);
    if (!viewers)
        return;
    viewers->showForm();
    const QRect frame = frameGeometry();
    const int rise = CommandCyberView->mapTo(this, QPoint(0, 0)).y();
    viewers->move(frame.x() - viewers->frameGeometry().width() - twipsToPixels(10),
                  frame.y() + rise);
}

// A file named by the user is never run by the program itself: the
// desktop's opener takes it, as the shell's associations did.
void FormEdit2::CommandDoExe_Click()
{
    const QString file = boundFile();
    if (!Trim(file).isEmpty())
        basics_.services().launcher.shellExecuteOpen(file);
}

// ---- Picking programs ------------------------------------------------------------

void FormEdit2::chooseProgram(int index)
{
    const Binding& binding = bindings_[index];
    DirecDataRecord& record = basics_.state().DirecData;
    const Services& services = basics_.services();
    FileSystem& fs = services.fs;
    const QString current = FixedText(record.*binding.field);
    // A field that names a program opens the dialog on it; any other on the
    // default of its row, existing or not.
    const bool namesProgram = isExecutableFile(fs.toNative(current));
    QString fileName = namesProgram ? current : binding.defaultPath;
    const QString filter = binding.field == &DirecDataRecord::PictureEditorPath && namesProgram
                               ? kPictureProgramsFilter
                               : kProgramsFilter;
    fileName = CollapseDoubleBackslash(fileName);
    const auto chosen = services.ui.openFileName(Trim(binding.hint), fs.toNative(fileName), filter);
    if (!chosen)
        return; // cancel: the field stays
    fs.chDirToFolderOf(*chosen);
    record.*binding.field = Trim(fs.toProgram(*chosen));
}

void FormEdit2::CommandPictureDirectry_Click()
{
    chooseProgram(0);
}

void FormEdit2::CommandCommentDirectry_Click()
{
    chooseProgram(1);
}

void FormEdit2::CommandSoundDirectry_Click()
{
    chooseProgram(2);
}

void FormEdit2::CommandTextDirectry_Click()
{
    chooseProgram(3);
}

void FormEdit2::CommandWrlDirectry_Click()
{
    chooseProgram(4);
}

void FormEdit2::CommandCyberViewDirectry_Click()
{
    chooseProgram(5);
}

void FormEdit2::CommandAnimationDirectry_Click()
{
    chooseProgram(6);
}

void FormEdit2::CommandMidiDirectry_Click()
{
    chooseProgram(7);
}

void FormEdit2::CommandIntExpDirectry_Click()
{
    chooseProgram(8);
}

// ---- Right clicks and hints --------------------------------------------------------

bool* FormEdit2::flagOf(QPushButton* button)
{
    const QList<bool*> flags = {&RClickMsPaint, &RClickNotePad,   &RClickSoundPlayer,
                                &RClickText,    &RClickCyberView, &RClickAVI,
                                &RClickMidi,    &RClickIntExp};
    const qsizetype at = programButtons_.indexOf(button);
    return at < 0 ? nullptr : flags[at];
}

void FormEdit2::clearRClickFlags()
{
    for (QPushButton* button : std::as_const(programButtons_))
        *flagOf(button) = false;
}

void FormEdit2::ProgramButton_MouseDown(QPushButton* button)
{
    bool* flag = flagOf(button);
    auto* menu = static_cast<FormRClick*>(forms_.form(kFormRClick));
    if (!flag || !menu)
        return;
    const QPoint at = button->mapTo(this, QPoint(0, 0));
    const int left = at.x();
    const int top = at.y();
    const int height = button->height();
    clearRClickFlags(); // the menu serves one button at a time
    *flag = true;
    menu->SetVisible();
    // Placed once shown, when the desktop's frame round it is known.
    menu->showForm();
    const QRect frame = frameGeometry();
    const QSize size = menu->frameGeometry().size();
    menu->move(frame.x() + left - size.width(), frame.y() + top + (size.height() - height) / 2);
}

void FormEdit2::showHint(QPushButton* button, const QString& hint)
{
    const QRect frame = frameGeometry();
    const QPoint at = button->mapTo(this, QPoint(0, 0));
    const double rise = button == CommandClear ? kClearHintRise : kHintRise;
    basics_.ShowFloatingMessage(int(pixelsToTwips(frame.x() + at.x())),
                                int(pixelsToTwips(frame.y() + at.y()) - rise), hint);
}

bool FormEdit2::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QPushButton*>(watched);
    if (!button)
        return FormBase::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton && flagOf(button)) {
        ProgramButton_MouseDown(button);
        return true;
    }
    if (event->type() == QEvent::Enter) {
        static const QHash<QString, QString> hints = {
            {QStringLiteral("CommandDoExe"), QStringLiteral(" Exeﾌｧｲﾙの実行用 ")},
            {QStringLiteral("CommandClear"),
             QStringLiteral(" ｱﾌﾟﾘｹｰｼｮﾝとﾌｫﾝﾄなどの情報の再設定用 ")},
            {QStringLiteral("CommandSetComentFont"), QStringLiteral(" ｺﾒﾝﾄのﾌｫﾝﾄ､色設定 ")},
            {QStringLiteral("CommandSetTextFont"), QStringLiteral(" ﾃｷｽﾄのﾌｫﾝﾄ､色設定 ")},
            {QStringLiteral("CommandSetPictBackCol"), QStringLiteral(" ﾋﾟｸﾁｬｰの背景色設定 ")},
        };
        QString hint = hints.value(button->objectName());
        for (const Binding& binding : std::as_const(bindings_)) {
            if (binding.directoryButton == button)
                hint = binding.hint;
        }
        if (!hint.isEmpty())
            showHint(button, hint);
    }
    return FormBase::eventFilter(watched, event);
}

// ---- Fonts, colours, option words, clearing ---------------------------------------

void FormEdit2::openFontAndColor(const QString& mode)
{
    auto* set =
        static_cast<FormSetFontAndColor*>(forms_.form(QStringLiteral("FormSetFontAndColor")));
    if (!set)
        return;
    set->load();
    set->setMode(mode);
    set->showForm();
}

void FormEdit2::CommandSetComentFont_Click()
{
    const ProgramState& state = basics_.state();
    openFontAndColor(state.CommandWord.value(kComment));
    if (auto* conbo =
            static_cast<FormCommandConbo*>(forms_.form(QStringLiteral("FormCommandConbo")))) {
        conbo->load();
        conbo->ComboCommandList->setFont(fontFrom(conbo->ComboCommandList->font(),
                                                  FixedText(state.DirecData.CommentFontName),
                                                  Val(FixedText(state.DirecData.CommentFontSize))));
    }
}

void FormEdit2::CommandSetTextFont_Click()
{
    openFontAndColor(QStringLiteral("TEXT"));
}

void FormEdit2::CommandSetPictBackCol_Click()
{
    openFontAndColor(QStringLiteral("PICTBACKCOL"));
}

void FormEdit2::CommandCommandConbo_Click()
{
    if (FormBase* conbo = forms_.form(QStringLiteral("FormCommandConbo")))
        conbo->showForm();
}

void FormEdit2::CommandClear_Click()
{
    const Services& services = basics_.services();
    const QString question =
        QStringLiteral("すべてのｱﾌﾟﾘｹｰｼｮﾝとﾌｫﾝﾄなどの情報を持つﾌｧｲﾙを消去します。\r\n"
                       "(これを実行しても重大な問題は起きません)\r\n継続しますか？ ");
    if (services.ui.askYesNo(question) != kAnswerYes)
        return;
    ProgramState& state = basics_.state();
    const QString folder = state.ProgramRunDir + QLatin1Char('\\');
    if (basics_.FileExists(folder + kSettingsFiles.first())) {
        for (const QString& name : kSettingsFiles)
            basics_.DeleteFileConfirmed(folder + name);
    }
    services.ui.msgBox(
        QStringLiteral("一度プログラムを終了します。\r\n再度プログラムを実行してください。"));
    // The program ends without writing its record back: the next start is
    // a first start, which makes every file anew.
    state.DirecData = DirecDataRecord();
    if (links.endProgram)
        links.endProgram();
}

} // namespace lumen
