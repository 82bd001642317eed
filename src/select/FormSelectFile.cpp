// FormSelectFile: its controls, their places and wiring, loading and
// unloading, the two sizes of the text and the small handlers.
#include "select/FormSelectFile.h"

#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/ExtTable.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileDrops.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/UserDialogs.h"
#include "select/EditTextLook.h"
#include "select/PreviewBox.h"
#include "select/RichTextBox.h"
#include "select/SelectionFiles.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace lumen {

namespace {

using namespace basic;

constexpr int kShapeSize = 12;
constexpr int kFormWidth = 980;
constexpr int kFormHeight = 720;

QFrame* shape(const QString& name, QWidget* parent)
{
    auto* frame = named<QFrame>(name, parent);
    frame->setFrameShape(QFrame::Box);
    frame->setFixedSize(kShapeSize, kShapeSize);
    return frame;
}

QGroupBox* frame(const QString& name, QWidget* parent)
{
    return named<QGroupBox>(name, parent);
}

} // namespace

FormSelectFile::FormSelectFile(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormSelectFile"), parent)
    , basics_(basics)
    , state_(basics.state())
    , forms_(forms)
{
    setWindowTitle(QStringLiteral("ﾌｧｲﾙの選択とｺﾏﾝﾄﾞﾗｲﾝの編集"));
    buildBrowsing();
    buildFilters();
    buildLayout();
    connectHandlers();
    linksChanged();
    resize(kFormWidth, kFormHeight);
}

FormSelectFile::~FormSelectFile() = default;

void FormSelectFile::buildBrowsing()
{
    FileSystem& fs = basics_.services().fs;
    Drive1 = new DriveListBox(fs, QStringLiteral("Drive1"), this);
    Dir1 = new DirListBox(fs, QStringLiteral("Dir1"), this);
    File1 = new FileListBox(fs, QStringLiteral("File1"), this);
    Dir1->setContextMenuPolicy(Qt::CustomContextMenu);
    File1->setContextMenuPolicy(Qt::CustomContextMenu);
    Text1 = new RichTextBox(QStringLiteral("Text1"), this);
    Label2 =
        named<QLabel>(QStringLiteral("Label2"), QStringLiteral("ここをｸﾘｯｸしてﾌｧｲﾙを選択"), this);
    Label3 = named<QLabel>(QStringLiteral("Label3"),
                           QStringLiteral("ﾀﾞﾌﾞﾙｸﾘｯｸでﾃｷｽﾄのｻｲｽﾞが変わります"), this);
    CheckAddToList =
        named<QCheckBox>(QStringLiteral("CheckAddToList"), QStringLiteral("ﾘｽﾄに追加"), this);
    ShapeAddToList = shape(QStringLiteral("ShapeAddToList"), this);
    CheckLumenta =
        named<QCheckBox>(QStringLiteral("CheckLumenta"), QStringLiteral("画像を表示"), this);
    ShapeLumenta = shape(QStringLiteral("ShapeLumenta"), this);
    Picture1 = new PreviewBox(QStringLiteral("Picture1"), this);
    Picture1->hide();
    Picture2 = new PreviewBox(QStringLiteral("Picture2"), this);
    Picture2->setMinimumSize(240, 180);
    setBackColor(Picture2, 0x404040);
    CommandAll = commandButton(QStringLiteral("CommandAll"), QStringLiteral("全部を選択"), this);
    CommandStop = commandButton(QStringLiteral("CommandStop"), QStringLiteral("ｽﾄｯﾌﾟ"), this);
    setBackColor(CommandStop, kColorGrey);
    CommandCancelLastPicture = commandButton(QStringLiteral("CommandCancelLastPicture"),
                                             QStringLiteral("最後を消去"), this);
    CommandClear = commandButton(QStringLiteral("CommandClear"), QStringLiteral("全部ｸﾘｱ"), this);
    CommandSaveFile =
        commandButton(QStringLiteral("CommandSaveFile"), QStringLiteral("ﾌｧｲﾙにｾｰﾌﾞ"), this);
    CommandOpenf =
        commandButton(QStringLiteral("CommandOpenf"), QStringLiteral("開 ﾘｽﾄﾌｧｲﾙ"), this);
    CommandEditCommand1 =
        commandButton(QStringLiteral("CommandEditCommand1"), QStringLiteral("ｺﾏﾝﾄﾞ ｴﾃﾞｨﾀｰ"), this);
    CommandEditor = commandButton(QStringLiteral("CommandEditor"), QStringLiteral("ｴﾃﾞｨﾀｰ"), this);
    CommandSetEditTextFont =
        commandButton(QStringLiteral("CommandSetEditTextFont"), QStringLiteral("ﾌｫﾝﾄ/色"), this);
    CommandReplaceEditor =
        commandButton(QStringLiteral("CommandReplaceEditor"), QStringLiteral("ﾃﾞｨﾚｸﾄﾘ変更"), this);
    CommandExploler =
        commandButton(QStringLiteral("CommandExploler"), QStringLiteral("ﾌｫﾙﾀﾞを開く"), this);
    CommandLeft = commandButton(QStringLiteral("CommandLeft"), QStringLiteral("←"), this);
    CommandRight = commandButton(QStringLiteral("CommandRight"), QStringLiteral("→"), this);
    FrameAccessDir = frame(QStringLiteral("FrameAccessDir"), this);
    CheckDirectryLock = named<QCheckBox>(QStringLiteral("CheckDirectryLock"),
                                         QStringLiteral("ｱｸｾｽ先固定"), FrameAccessDir);
    CommandDirectrySet = commandButton(QStringLiteral("CommandDirectrySet"),
                                       QStringLiteral("再設定"), FrameAccessDir);
    CommandExit = commandButton(QStringLiteral("CommandExit"), QStringLiteral("終了"), this);
    // As designed: a clicked file goes into the list, a clicked picture is shown.
    CheckAddToList->setChecked(true);
    CheckLumenta->setChecked(true);
}

void FormSelectFile::buildFilters()
{
    Frame1 = frame(QStringLiteral("Frame1"), this);
    for (int i = 0; i < int(Check1.size()); ++i)
        Check1[size_t(i)] = named<QCheckBox>(QStringLiteral("Check1_%1").arg(i), QString(), Frame1);
    CheckANY = named<QCheckBox>(QStringLiteral("CheckANY"), QStringLiteral("全て"), Frame1);
    CheckANY->setChecked(true); // every file shows at first
    Label6 = named<QLabel>(QStringLiteral("Label6"),
                           QStringLiteral("検出ファイル名に制限をかけます"), Frame1);
    CommandSerch =
        commandButton(QStringLiteral("CommandSerch"), QStringLiteral("ﾜｰﾄﾞ検出"), Frame1);
    CommandKeyInFilter = commandButton(QStringLiteral("CommandKeyInFilter"),
                                       QStringLiteral("其他拡張子検出"), Frame1);
    CommandExtSet = commandButton(QStringLiteral("CommandExtSet"), QStringLiteral("設定"), Frame1);

    FrameByWord = frame(QStringLiteral("FrameByWord"), Frame1);
    ComboWordSerch = named<QComboBox>(QStringLiteral("ComboWordSerch"), FrameByWord);
    ComboWordSerch->setEditable(true);
    Label4 = named<QLabel>(QStringLiteral("Label4"), QStringLiteral("検出ワード"), FrameByWord);
    CommandSerc = commandButton(QStringLiteral("CommandSerc"), QStringLiteral("検出"), FrameByWord);
    CheckExtWork =
        named<QCheckBox>(QStringLiteral("CheckExtWork"), QStringLiteral("拡張子有効"), FrameByWord);
    CommandWordSet =
        commandButton(QStringLiteral("CommandWordSet"), QStringLiteral("設定"), FrameByWord);
    CommandEnd = commandButton(QStringLiteral("CommandEnd"), QStringLiteral("終了"), FrameByWord);
    FrameByWord->hide();

    FrameExtSerch = frame(QStringLiteral("FrameExtSerch"), Frame1);
    TextSerchEXT =
        named<QLineEdit>(QStringLiteral("TextSerchEXT"), QStringLiteral("HTM"), FrameExtSerch);
    Label5 = named<QLabel>(QStringLiteral("Label5"), QStringLiteral("検出拡張子"), FrameExtSerch);
    CommandExtSelect =
        commandButton(QStringLiteral("CommandExtSelect"), QStringLiteral("検出"), FrameExtSerch);
    Command2 = commandButton(QStringLiteral("Command2"), QStringLiteral("終了"), FrameExtSerch);
    FrameExtSerch->hide();
}

void FormSelectFile::buildLayout()
{
    // The word and extension frames stand at the top of Frame1, over the boxes.
    auto* byWord = new QGridLayout(FrameByWord);
    byWord->addWidget(Label4, 0, 0);
    byWord->addWidget(ComboWordSerch, 0, 1, 1, 3);
    byWord->addWidget(CheckExtWork, 1, 0);
    byWord->addWidget(CommandSerc, 1, 1);
    byWord->addWidget(CommandWordSet, 1, 2);
    byWord->addWidget(CommandEnd, 1, 3);
    auto* byExt = new QGridLayout(FrameExtSerch);
    byExt->addWidget(Label5, 0, 0);
    byExt->addWidget(TextSerchEXT, 0, 1);
    byExt->addWidget(CommandExtSelect, 0, 2);
    byExt->addWidget(Command2, 0, 3);

    auto* filters = new QVBoxLayout(Frame1);
    filters->addWidget(FrameByWord);
    filters->addWidget(FrameExtSerch);
    filters->addWidget(Label6);
    auto* checks = new QGridLayout;
    for (int i = 0; i < int(Check1.size()); ++i)
        checks->addWidget(Check1[size_t(i)], i / 3, i % 3);
    checks->addWidget(CheckANY, int(Check1.size()) / 3, int(Check1.size()) % 3);
    filters->addLayout(checks);
    auto* filterCommands = new QHBoxLayout;
    filterCommands->addWidget(CommandSerch);
    filterCommands->addWidget(CommandKeyInFilter);
    filterCommands->addWidget(CommandExtSet);
    filters->addLayout(filterCommands);
    filters->addStretch(1);

    // Left: the drive, folder and file boxes; File1 moves within its pane.
    boxes_ = named<QSplitter>(QStringLiteral("FilePane"), Qt::Horizontal, this);
    boxes_->addWidget(Dir1);
    boxes_->addWidget(File1);
    boxes_->setChildrenCollapsible(false);
    auto* browse = new QVBoxLayout;
    browse->addWidget(Drive1);
    browse->addWidget(Label2, 0, Qt::AlignRight);
    browse->addWidget(boxes_, 1);
    auto* moves = new QHBoxLayout;
    moves->addStretch(1);
    moves->addWidget(CommandLeft);
    moves->addWidget(CommandRight);
    browse->addLayout(moves);

    // Middle: the preview and the listing commands.
    auto* access = new QHBoxLayout(FrameAccessDir);
    access->addWidget(CheckDirectryLock);
    access->addWidget(CommandDirectrySet);
    auto* middle = new QGridLayout;
    middle->addWidget(Picture2, 0, 0, 1, 2);
    middle->addWidget(CheckLumenta, 1, 0);
    middle->addWidget(ShapeLumenta, 1, 1);
    middle->addWidget(CheckAddToList, 2, 0);
    middle->addWidget(ShapeAddToList, 2, 1);
    middle->addWidget(CommandAll, 3, 0, 1, 2);
    middle->addWidget(CommandStop, 4, 0, 1, 2);
    middle->addWidget(CommandCancelLastPicture, 5, 0, 1, 2);
    middle->addWidget(CommandClear, 6, 0, 1, 2);
    middle->addWidget(FrameAccessDir, 7, 0, 1, 2);
    middle->setRowStretch(8, 1);

    auto* top = new QHBoxLayout;
    top->addLayout(browse, 3);
    top->addLayout(middle, 2);
    top->addWidget(Frame1, 3);

    auto* bottom = new QHBoxLayout;
    for (QPushButton* button : {CommandSaveFile, CommandOpenf, CommandEditCommand1, CommandEditor,
                                CommandSetEditTextFont, CommandReplaceEditor, CommandExploler})
        bottom->addWidget(button);
    bottom->addStretch(1);
    bottom->addWidget(CommandExit);

    auto* whole = new QVBoxLayout(this);
    whole->addLayout(top, 3);
    whole->addWidget(Label3);
    whole->addWidget(Text1, 2);
    whole->addLayout(bottom);
}

void FormSelectFile::connectHandlers()
{
    connect(Drive1, &DriveListBox::driveChanged, this, &FormSelectFile::Drive1_Change);
    connect(Dir1, &DirListBox::pathChanged, this, &FormSelectFile::Dir1_Change);
    connect(File1, &QListWidget::itemClicked, this, &FormSelectFile::File1_Click);
    connect(Dir1, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        showPopup(QStringLiteral("FormRClick2"), Dir1->viewport()->mapToGlobal(at));
    });
    connect(File1, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        showPopup(QStringLiteral("FormRClick3"), File1->viewport()->mapToGlobal(at));
    });
    connect(Text1, &RichTextBox::doubleClicked, this, &FormSelectFile::Text1_DblClick);
    connect(Text1, &RichTextBox::clicked, this, [this] {
        if (links.editorOn && links.editorOn() && links.text1Click)
            links.text1Click();
    });
    connect(CheckAddToList, &QCheckBox::toggled, this, &FormSelectFile::CheckAddToList_Click);
    connect(CheckLumenta, &QCheckBox::toggled, this, &FormSelectFile::CheckLumenta_Click);
    connect(CheckDirectryLock, &QCheckBox::toggled, this,
            [this](bool on) { state_.DirectryLock = on ? 1 : 0; });

    const auto click = [this](QPushButton* button, void (FormSelectFile::*handler)()) {
        connect(button, &QPushButton::clicked, this, handler);
    };
    click(CommandAll, &FormSelectFile::CommandAll_Click);
    click(CommandStop, &FormSelectFile::CommandStop_Click);
    click(CommandCancelLastPicture, &FormSelectFile::CommandCancelLastPicture_Click);
    click(CommandClear, &FormSelectFile::CommandClear_Click);
    click(CommandSaveFile, &FormSelectFile::CommandSaveFile_Click);
    click(CommandOpenf, &FormSelectFile::CommandOpenf_Click);
    click(CommandExploler, &FormSelectFile::CommandExploler_Click);
    click(CommandDirectrySet, &FormSelectFile::CommandDirectrySet_Click);
    click(CommandExit, &FormSelectFile::CommandExit_Click);
    click(CommandLeft, &FormSelectFile::CommandLeft_Click);
    click(CommandRight, &FormSelectFile::CommandRight_Click);
    click(CommandSerc, &FormSelectFile::CommandSerc_Click);
    click(CommandExtSelect, &FormSelectFile::CommandExtSelect_Click);
    click(CommandKeyInFilter, &FormSelectFile::CommandKeyInFilter_Click);
    click(CommandSerch, &FormSelectFile::CommandSerch_Click);
    connect(CommandEnd, &QPushButton::clicked, FrameByWord, &QWidget::hide);
    connect(Command2, &QPushButton::clicked, FrameExtSerch, &QWidget::hide);
    for (QCheckBox* box : Check1)
        connect(box, &QCheckBox::clicked, this, [this] { BuildPatternFromChecks(false); });
    connect(CheckANY, &QCheckBox::clicked, this, [this] { BuildPatternFromChecks(true); });

    // The windows of the libraries above this one, through the links.
    connect(CommandSetEditTextFont, &QPushButton::clicked, this, [this] {
        if (links.setEditTextFont)
            links.setEditTextFont();
    });
    connect(CommandEditCommand1, &QPushButton::clicked, this, [this] {
        if (!links.openEditor)
            return;
        links.openEditor();
        if (!TextLarge)
            Text1_DblClick();
    });
    connect(CommandEditor, &QPushButton::clicked, this, [this] {
        if (links.showEdit2)
            links.showEdit2(frameGeometry().topLeft());
    });
    connect(CommandReplaceEditor, &QPushButton::clicked, this, [this] {
        if (links.openReplaceEditor)
            links.openReplaceEditor();
    });
    connect(CommandExtSet, &QPushButton::clicked, this, [this] {
        if (links.openWordSet)
            links.openWordSet(true);
    });
    connect(CommandWordSet, &QPushButton::clicked, this, [this] {
        if (links.openWordSet)
            links.openWordSet(false);
    });

    // Files dropped from the file manager, on the window and on CommandSaveFile.
    auto* onWindow = new FileDropTarget(this);
    onWindow->dropped = [this](const QMimeData* dropped) { GetDataAndMakeList(dropped); };
    auto* onSave = new FileDropTarget(CommandSaveFile);
    onSave->dropped = [this](const QMimeData* dropped) { CommandSaveFile_Drop(dropped); };
}

void FormSelectFile::linksChanged()
{
    // A button whose window isn't wired to this one can't be pressed.
    const auto enable = [](QWidget* control, bool on) { control->setEnabled(on); };
    enable(CommandSetEditTextFont, bool(links.setEditTextFont));
    enable(CommandEditCommand1, bool(links.openEditor));
    enable(CommandEditor, bool(links.showEdit2));
    enable(CommandReplaceEditor, bool(links.openReplaceEditor));
    enable(CommandExtSet, bool(links.openWordSet));
    enable(CommandWordSet, bool(links.openWordSet));
}

QString FormSelectFile::settingsFile(const QString& name) const
{
    return state_.ProgramRunDir + u'\\' + name;
}

void FormSelectFile::Form_Load()
{
    const FolderLock lock = readFolderLock(basics_);
    state_.AccessLockDir = lock.folder;
    if (lock.value == 1) {
        state_.AccessPassDir = state_.AccessLockDir;
        CheckDirectryLock->setChecked(true);
    } else {
        state_.AccessPassDir = readAccessPass(basics_);
        CheckDirectryLock->setChecked(false);
    }
    state_.DirectryLock = CheckDirectryLock->isChecked() ? 1 : 0;
    if (state_.AccessPassDir.isEmpty())
        state_.AccessPassDir = state_.DataDir;

    readExtensionSlots();
    Drive1->refresh();
    Drive1->setDrive(state_.AccessPassDir.section(u':', 0, 0));
    // A folder that is gone gives way to the data folder, then to the drive.
    for (const QString& folder : QStringList{state_.AccessPassDir, state_.DataDir,
                                             Drive1->drive().toUpper() + QStringLiteral("\\")}) {
        Dir1->setPath(folder);
        if (!Dir1->path().isEmpty())
            break;
    }
    applyRecordLook();

    // At the top left of the screen's free area, and no larger than it.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect free = screen->availableGeometry();
        resize(size().boundedTo(free.size()));
        move(free.topLeft());
    }
    if (!basics_.FolderExists(state_.ProgramRunDir))
        basics_.MakeFolderTree(state_.ProgramRunDir);
    Text1->setText(QString());
    setFilePattern(QStringLiteral("*.*"));
    CheckAddToList_Click();
    CheckLumenta_Click();
}

void FormSelectFile::readExtensionSlots()
{
    ReadExtTypeToArray(basics_);
    for (int i = 0; i < int(Check1.size()); ++i)
        Check1[size_t(i)]->setText(state_.ExtTypeArray.at(i, 0));
}

void FormSelectFile::applyRecordLook()
{
    QList<QWidget*> controls{
        Drive1,         Dir1,         File1,    Text1,        ComboWordSerch,   TextSerchEXT,
        CheckAddToList, CheckLumenta, CheckANY, CheckExtWork, CheckDirectryLock};
    for (QCheckBox* box : Check1)
        controls.append(box);
    for (QWidget* control : std::as_const(controls)) {
        const bool small = control == ComboWordSerch || control == TextSerchEXT;
        applyEditTextLook(state_.DirecData, control,
                          small ? std::optional<double>(9) : std::nullopt);
    }
}

void FormSelectFile::Form_Unload(bool&)
{
    basics_.WriteTextToFile(Text1->text(), settingsFile(QStringLiteral("SelectFile.txt")));
}

void FormSelectFile::closeEvent(QCloseEvent* event)
{
    // The window is only hidden between uses, so that the list text stays.
    event->ignore();
    CommandExit_Click();
}

void FormSelectFile::CommandExit_Click()
{
    SaveLockInfo();
    hide();
    if (links.showMain)
        links.showMain();
}

void FormSelectFile::CheckAddToList_Click()
{
    setBackColor(ShapeAddToList, CheckAddToList->isChecked() ? kColorGreen : kColorGrey);
}

void FormSelectFile::CheckLumenta_Click()
{
    setBackColor(ShapeLumenta, CheckLumenta->isChecked() ? kColorGreen : kColorGrey);
}

void FormSelectFile::CommandCancelLastPicture_Click()
{
    Text1->setText(KeptText);
}

void FormSelectFile::CommandClear_Click()
{
    Text1->setText(QString());
}

void FormSelectFile::CommandLeft_Click()
{
    QList<int> sizes = boxes_->sizes();
    const int step = std::min(40, std::max(0, sizes.value(0) - Dir1->minimumSizeHint().width()));
    boxes_->setSizes({sizes.value(0) - step, sizes.value(1) + step});
}

void FormSelectFile::CommandRight_Click()
{
    QList<int> sizes = boxes_->sizes();
    const int step = std::min(40, std::max(0, sizes.value(1) - File1->minimumSizeHint().width()));
    boxes_->setSizes({sizes.value(0) + step, sizes.value(1) - step});
}

void FormSelectFile::Text1_DblClick()
{
    if (!TextLarge) {
        hiddenByLarge_.clear();
        // The check boxes take their shapes, and File1 its hint, with them.
        for (QWidget* control : std::initializer_list<QWidget*>{
                 CommandAll, CommandStop, Dir1, File1, Drive1, Picture2, Frame1,
                 CommandReplaceEditor, CheckLumenta, CheckAddToList, CommandRight, CommandLeft,
                 FrameByWord, FrameExtSerch, FrameAccessDir, boxes_, Label2, ShapeLumenta,
                 ShapeAddToList}) {
            if (!control->isHidden()) {
                hiddenByLarge_.append(control);
                control->hide();
            }
        }
    } else {
        for (QWidget* control : std::as_const(hiddenByLarge_))
            control->show();
        hiddenByLarge_.clear();
    }
    TextLarge = !TextLarge;
    // The text takes the room that the hidden boxes leave.
    if (auto* whole = qobject_cast<QBoxLayout*>(layout()))
        whole->setStretch(0, TextLarge ? 0 : 3);
}

void FormSelectFile::Drive1_Change()
{
    Dir1->setPath(Drive1->drive() + QStringLiteral("\\"));
}

void FormSelectFile::Dir1_Change()
{
    BuildPatternFromChecks(false);
    File1->setPath(Dir1->path());
    if (links.folderChosen)
        links.folderChosen(Dir1->path());
    state_.AccessPassDir = Dir1->path();
    writeAccessPass(basics_, state_.AccessPassDir);
}

void FormSelectFile::showPopup(const QString& name, const QPoint& global)
{
    if (FormBase* popup = forms_.form(name)) {
        popup->load();
        popup->move(global);
        popup->show();
        popup->raise();
    }
}

void FormSelectFile::setStopColor(qint32 bgr)
{
    setBackColor(CommandStop, bgr);
}

} // namespace lumen
