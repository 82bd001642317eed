#include "fileops/FormFileOption.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/FormRegistry.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace lumen {
namespace {

using namespace basic;

const QString kFormRClick6 = QStringLiteral("FormRClick6");

// Stems that scanners and cameras give their files, for TextSelect and
// TextFileName.
const QStringList kScannerWords = {
    QStringLiteral("Scan"), QStringLiteral("Image"), QStringLiteral("IMG_"),
    QStringLiteral("DSC"),  QStringLiteral("DSCN"),  QStringLiteral("DSCF"),
    QStringLiteral("CIMG"), QStringLiteral("PICT"),  QStringLiteral("P"),
};

QLabel* label(const QString& text, QWidget* parent)
{
    return new QLabel(text, parent);
}

} // namespace

FormFileOption::FormFileOption(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormFileOption"), parent)
    , basics_(basics)
    , forms_(forms)
    , walk_(basics, *this)
{
    buildItem();
    buildSelect();
    buildTarget();
    buildDo();
    buildScanner();
    layOut();
    connectHandlers();
    setAnswersEnabled(false);
    FrameForScanner->hide();
}

void FormFileOption::buildItem()
{
    FrameItem = named<QGroupBox>(QStringLiteral("FrameItem"), QStringLiteral("処理内容"), this);
    OptionJustCopy = named<QRadioButton>(QStringLiteral("OptionJustCopy"),
                                         QStringLiteral("そのままコピー"), FrameItem);
    OptionDeleate =
        named<QRadioButton>(QStringLiteral("OptionDeleate"), QStringLiteral("削除"), FrameItem);
    OptionAutoRename = named<QRadioButton>(QStringLiteral("OptionAutoRename"), FrameItem);
    TextFileName = named<QComboBox>(QStringLiteral("TextFileName"), FrameItem);
    TextFileName->setEditable(true);
    TextFileName->addItem(QStringLiteral("Word for Picture name"));
    TextFileName->setMinimumContentsLength(16);
    TextNom = named<QLineEdit>(QStringLiteral("TextNom"), QStringLiteral("000"), FrameItem);
    TextNom->setMaximumWidth(60);
    // The replace line shows only while the files that hold a word are chosen.
    ReplaceLine = named<QWidget>(QStringLiteral("ReplaceLine"), FrameItem);
    OptionReplace = named<QRadioButton>(QStringLiteral("OptionReplace"), ReplaceLine);
    LabelReplaceWord = named<QLabel>(QStringLiteral("LabelReplaceWord"), ReplaceLine);
    TextReplace = named<QLineEdit>(QStringLiteral("TextReplace"), ReplaceLine);
    CheckChangeChara = named<QCheckBox>(QStringLiteral("CheckChangeChara"),
                                        QStringLiteral("小文字変換"), FrameItem);
    CommandReset = commandButton(QStringLiteral("CommandReset"), QStringLiteral("R"), FrameItem);
    CommandReset->setMaximumWidth(28);

    auto* grid = new QGridLayout(FrameItem);
    grid->addWidget(OptionJustCopy, 0, 0);
    grid->addWidget(OptionDeleate, 0, 1);
    grid->addWidget(CheckChangeChara, 0, 2, 1, 2);
    auto* numbered = new QHBoxLayout;
    numbered->addWidget(OptionAutoRename);
    numbered->addWidget(TextFileName, 1);
    numbered->addWidget(label(QStringLiteral("＋"), FrameItem));
    numbered->addWidget(TextNom);
    numbered->addWidget(CommandReset);
    numbered->addWidget(label(QStringLiteral("から連続番号にしてコピー"), FrameItem));
    grid->addLayout(numbered, 1, 0, 1, 4);
    auto* replace = new QHBoxLayout(ReplaceLine);
    replace->setContentsMargins(0, 0, 0, 0);
    replace->addWidget(OptionReplace);
    replace->addWidget(LabelReplaceWord);
    replace->addWidget(label(QStringLiteral("を"), ReplaceLine));
    replace->addWidget(TextReplace, 1);
    replace->addWidget(label(QStringLiteral("に置き換えてコピー"), ReplaceLine));
    grid->addWidget(ReplaceLine, 2, 0, 1, 4);
    // One choice among the four kinds, though they stand on two parents.
    auto* kinds = new QButtonGroup(FrameItem);
    for (QRadioButton* kind : {OptionJustCopy, OptionDeleate, OptionAutoRename, OptionReplace})
        kinds->addButton(kind);
}

void FormFileOption::buildSelect()
{
    FrameSElect = named<QGroupBox>(QStringLiteral("FrameSElect"), QStringLiteral("処理対象"), this);
    OptionAll = named<QRadioButton>(QStringLiteral("OptionAll"), QStringLiteral("全てのファイル"),
                                    FrameSElect);
    OptionInclude = named<QRadioButton>(QStringLiteral("OptionInclude"), FrameSElect);
    TextSelect = named<QLineEdit>(QStringLiteral("TextSelect"), FrameSElect);
    auto* row = new QHBoxLayout(FrameSElect);
    row->addWidget(OptionAll);
    row->addSpacing(16);
    row->addWidget(OptionInclude);
    row->addWidget(TextSelect, 1);
    row->addWidget(label(QStringLiteral("を含むファイル"), FrameSElect));
}

void FormFileOption::buildTarget()
{
    FrameTarget = named<QGroupBox>(QStringLiteral("FrameTarget"), QStringLiteral("コピー先"), this);
    FileSystem& fs = basics_.services().fs;
    Drive1 = new DriveListBox(fs, QStringLiteral("Drive1"), FrameTarget);
    Dir1 = new DirListBox(fs, QStringLiteral("Dir1"), FrameTarget);
    File1 = new FileListBox(fs, QStringLiteral("File1"), FrameTarget);
    File1->viewport()->installEventFilter(this);
    TextDirectry = named<QLineEdit>(QStringLiteral("TextDirectry"), FrameTarget);
    CommandMakeDirectry = commandButton(QStringLiteral("CommandMakeDirectry"),
                                        QStringLiteral("新Dir作成"), FrameTarget);
    CommandDelDir =
        commandButton(QStringLiteral("CommandDelDir"), QStringLiteral("Dir削除"), FrameTarget);

    auto* grid = new QGridLayout(FrameTarget);
    grid->addWidget(Drive1, 0, 0);
    grid->addWidget(TextDirectry, 0, 1, 1, 2);
    grid->addWidget(Dir1, 1, 0);
    grid->addWidget(File1, 1, 1, 1, 2);
    grid->addWidget(CommandMakeDirectry, 2, 1);
    grid->addWidget(CommandDelDir, 2, 2);
    Dir1->setMinimumSize(220, 150);
    File1->setMinimumSize(220, 150);
}

void FormFileOption::buildDo()
{
    FrameDo = named<QGroupBox>(QStringLiteral("FrameDo"), this);
    OptionConfirm = named<QRadioButton>(QStringLiteral("OptionConfirm"),
                                        QStringLiteral("確認しながら"), FrameDo);
    OptionDoAll =
        named<QRadioButton>(QStringLiteral("OptionDoAll"), QStringLiteral("一気に実行"), FrameDo);
    OptionConfirm->setChecked(true);
    CommandDo = commandButton(QStringLiteral("CommandDo"), QStringLiteral("実行ON"), FrameDo);
    CommandOK = commandButton(QStringLiteral("CommandOK"), QStringLiteral("OK"), FrameDo);
    CommandSkip = commandButton(QStringLiteral("CommandSkip"), QStringLiteral("ｽｷｯﾌﾟ"), FrameDo);
    CommandCancel = commandButton(QStringLiteral("CommandCancel"), QStringLiteral("中止"), FrameDo);
    CommandBack = commandButton(QStringLiteral("CommandBack"), QStringLiteral("戻る"), FrameDo);
    TextOriginal =
        named<QLineEdit>(QStringLiteral("TextOriginal"), QStringLiteral("元のﾌｧｲﾙ名"), FrameDo);
    TextNew = named<QLineEdit>(QStringLiteral("TextNew"), QStringLiteral("新ﾌｧｲﾙ名"), FrameDo);
    TextOriginal->setReadOnly(true);
    CommandEnd = commandButton(QStringLiteral("CommandEnd"), QStringLiteral("終了"), FrameDo);
    CommandToSmall = commandButton(QStringLiteral("CommandToSmall"), QStringLiteral("小"), FrameDo);
    CommandToBig = commandButton(QStringLiteral("CommandToBig"), QStringLiteral("大"), FrameDo);
    CommandScannerWordHelp = commandButton(QStringLiteral("CommandScannerWordHelp"),
                                           QStringLiteral("Scanner Word Help"), FrameDo);

    auto* grid = new QGridLayout(FrameDo);
    grid->addWidget(OptionConfirm, 0, 0);
    grid->addWidget(OptionDoAll, 0, 1);
    grid->addWidget(CommandDo, 0, 2);
    grid->addWidget(CommandScannerWordHelp, 0, 3, 1, 2);
    grid->addWidget(CommandOK, 1, 0);
    grid->addWidget(CommandSkip, 1, 1);
    grid->addWidget(CommandBack, 1, 2);
    grid->addWidget(CommandCancel, 1, 3, 1, 2);
    grid->addWidget(TextOriginal, 2, 0, 1, 5);
    grid->addWidget(TextNew, 3, 0, 1, 5);
    grid->addWidget(CommandToSmall, 4, 0);
    grid->addWidget(CommandToBig, 4, 1);
    grid->addWidget(CommandEnd, 4, 3, 1, 2);
    TextOriginal->setMinimumWidth(420);
}

void FormFileOption::buildScanner()
{
    FrameForScanner = named<QGroupBox>(QStringLiteral("FrameForScanner"), this);
    ComboWordScanner = named<QComboBox>(QStringLiteral("ComboWordScanner"), FrameForScanner);
    ComboWordScanner->addItems(kScannerWords);
    CommandCopy =
        commandButton(QStringLiteral("CommandCopy"), QStringLiteral("Copy word"), FrameForScanner);
    CommandClose =
        commandButton(QStringLiteral("CommandClose"), QStringLiteral("Close"), FrameForScanner);
    auto* row = new QHBoxLayout(FrameForScanner);
    row->addWidget(ComboWordScanner, 1);
    row->addWidget(CommandCopy);
    row->addWidget(CommandClose);
}

void FormFileOption::layOut()
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(FrameItem);
    column->addWidget(FrameSElect);
    column->addWidget(FrameTarget, 1);
    column->addWidget(FrameDo);
    column->addWidget(FrameForScanner);
}

void FormFileOption::connectHandlers()
{
    const auto click = [this](QPushButton* button, void (FormFileOption::*handler)()) {
        connect(button, &QPushButton::clicked, this, handler);
    };
    click(CommandDo, &FormFileOption::CommandDo_Click);
    click(CommandOK, &FormFileOption::CommandOK_Click);
    click(CommandSkip, &FormFileOption::CommandSkip_Click);
    click(CommandCancel, &FormFileOption::CommandCancel_Click);
    click(CommandBack, &FormFileOption::CommandBack_Click);
    click(CommandReset, &FormFileOption::CommandReset_Click);
    click(CommandMakeDirectry, &FormFileOption::CommandMakeDirectry_Click);
    click(CommandDelDir, &FormFileOption::CommandDelDir_Click);
    click(CommandEnd, &FormFileOption::CommandEnd_Click);
    click(CommandToSmall, &FormFileOption::CommandToSmall_Click);
    click(CommandToBig, &FormFileOption::CommandToBig_Click);
    click(CommandScannerWordHelp, &FormFileOption::CommandScannerWordHelp_Click);
    click(CommandCopy, &FormFileOption::CommandCopy_Click);
    click(CommandClose, &FormFileOption::CommandClose_Click);
    connect(Drive1, &DriveListBox::driveChanged, this, &FormFileOption::Drive1_Change);
    connect(Dir1, &DirListBox::pathChanged, this, &FormFileOption::Dir1_Change);
    connect(OptionAll, &QRadioButton::clicked, this, &FormFileOption::OptionAll_Click);
    connect(OptionInclude, &QRadioButton::clicked, this, &FormFileOption::OptionInclude_Click);
    for (QRadioButton* kind : {OptionJustCopy, OptionDeleate, OptionAutoRename, OptionReplace})
        connect(kind, &QRadioButton::clicked, this, &FormFileOption::OptionKind_Click);
    connect(TextSelect, &QLineEdit::textChanged, LabelReplaceWord, &QLabel::setText);
}

void FormFileOption::Form_Load()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    const QFont font = fontFrom(TextSelect->font(), FixedText(record.DispFontName),
                                Val(FixedText(record.DispFontSize)));
    for (QWidget* box :
         std::initializer_list<QWidget*>{Drive1, TextSelect, TextFileName, TextReplace,
                                         TextDirectry, Dir1, File1, TextOriginal, TextNew})
        box->setFont(font);
    OptionAll->setChecked(true);
    OptionInclude->setChecked(false);
    ReplaceLine->setVisible(false);
    setWindowTitle(QStringLiteral("必要な項目をクリックしてください。送り先はディレクトリーを"
                                  "ダブルクリックしてください"));
    const QString folder = basics_.services().fs.curDir();
    Drive1->setDrive(folder);
    Dir1->setPath(folder);
    Dir1_Change();
}

void FormFileOption::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    // A file waiting for its answer is left, and the run with it.
    if (walk_.running())
        walk_.abandon();
}

void FormFileOption::RefreshBoxes()
{
    Drive1->refresh();
    Dir1->refresh();
    File1->refresh();
}

// ---- Options ----------------------------------------------------------------

void FormFileOption::ReadOptions()
{
    BulkOptions& o = walk_.options;
    o.AllSelected = OptionAll->isChecked();
    o.JustCopy = OptionJustCopy->isChecked();
    o.Deleting = OptionDeleate->isChecked();
    o.AutoRename = OptionAutoRename->isChecked();
    o.Replacing = OptionReplace->isChecked();
    o.Confirming = OptionConfirm->isChecked();
}

void FormFileOption::OptionAll_Click()
{
    // A replace works only on the files that hold the word.
    if (OptionReplace->isChecked())
        OptionJustCopy->setChecked(true);
    ReplaceLine->setVisible(false);
    OptionKind_Click();
}

void FormFileOption::OptionInclude_Click()
{
    ReplaceLine->setVisible(true);
}

void FormFileOption::OptionKind_Click()
{
    FrameTarget->setVisible(!OptionDeleate->isChecked());
}

// ---- The run ------------------------------------------------------------------

void FormFileOption::setAnswersEnabled(bool enabled)
{
    for (QPushButton* button : {CommandOK, CommandSkip, CommandCancel, CommandBack})
        button->setEnabled(enabled);
}

void FormFileOption::CommandDo_Click()
{
    if (walk_.running())
        return; // one run at a time; this one goes on
    if (OptionConfirm->isChecked())
        setAnswersEnabled(true);
    const QString mainFile = links.mainFileName ? links.mainFileName() : QString();
    if (!mainFile.contains(QLatin1Char(':'))) {
        basics_.services().ui.msgBox(
            QStringLiteral("処理の対象となるファイルがないと機能しません"));
        return;
    }
    ReadOptions();
    const BulkOptions& o = walk_.options;
    if (!o.anyWork())
        return;
    setBackColor(CommandDo, kColorGreen);
    qint16 number = 0;
    const bool numberFits = StoreInt16(number, Val(TextNom->text()));
    if (o.AllSelected) {
        if (o.JustCopy)
            walk_.DoCopyOrDelete(QStringLiteral("ALLCOPY"));
        else if (o.Deleting)
            walk_.DoCopyOrDelete(QStringLiteral("ALLDELEAT"));
        else if (o.AutoRename && numberFits)
            walk_.DoNumberedCopy(QStringLiteral("ALL"), TextFileName->currentText(), number);
    } else {
        if (o.JustCopy)
            walk_.DoCopyOrDelete(QStringLiteral("SELECTCOPY"));
        else if (o.Deleting)
            walk_.DoCopyOrDelete(QStringLiteral("SELECTDELEAT"));
        else if (o.AutoRename && numberFits)
            walk_.DoNumberedCopy(QStringLiteral("SELECT"), TextFileName->currentText(), number);
        else if (o.Replacing)
            walk_.DoReplaceCopy(TextSelect->text(), TextReplace->text());
    }
    setAnswersEnabled(false);
    setBackColor(CommandDo, kColorButtonFace);
}

void FormFileOption::answer(QPushButton* button, bool& flag)
{
    setBackColor(button, kColorGreen);
    flag = true;
    basics_.WaitMilliseconds(kAnswerShownMs);
    setBackColor(button, kColorButtonFace);
}

void FormFileOption::CommandOK_Click()
{
    setBackColor(CommandOK, kColorGreen);
    walk_.AnswerOK = true;
    ReadOptions(); // the kind of work may change in the middle of a run
    basics_.WaitMilliseconds(kAnswerShownMs);
    setBackColor(CommandOK, kColorButtonFace);
}

void FormFileOption::CommandSkip_Click()
{
    answer(CommandSkip, walk_.AnswerSkip);
}

void FormFileOption::CommandBack_Click()
{
    answer(CommandBack, walk_.AnswerBack);
}

void FormFileOption::CommandCancel_Click()
{
    walk_.AnswerCancel = true;
    basics_.services().ui.beep();
    basics_.WaitMilliseconds(kAnswerShownMs);
    walk_.options.Replacing = false;
    walk_.options.AutoRename = false;
    setWindowTitle(QString());
}

void FormFileOption::CommandReset_Click()
{
    // The run goes on from the number now in TextNom.
    if (!walk_.numbering())
        return;
    StoreInt16(walk_.NextNumber, Val(TextNom->text()));
    TextNom->setText(Format(walk_.NextNumber, QStringLiteral("000")));
    TextNew->setText(walk_.numberedName(TextOriginal->text()));
}

// ---- BulkView -----------------------------------------------------------------

BulkTexts FormFileOption::texts() const
{
    return BulkTexts{TextDirectry->text(), TextSelect->text(), TextFileName->currentText(),
                     TextNom->text(), TextReplace->text()};
}

int FormFileOption::rowCount() const
{
    return links.listTotal ? int(Val(links.listTotal())) : 0;
}

bool FormFileOption::lowerCase() const
{
    return CheckChangeChara->isChecked();
}

// A run that goes through shows its rows a few dozen times a second at
// most: a row takes far less than a frame of the screen, and every change of
// a box costs a paint. A run that confirms shows each row at once.
void FormFileOption::showOriginal(const QString& file)
{
    shownOriginal_ = file;
    if (walk_.options.Confirming)
        TextOriginal->setText(file);
}

void FormFileOption::showNew(const QString& target)
{
    shownNew_ = target;
    if (walk_.options.Confirming || !sinceShown_.isValid() || sinceShown_.elapsed() >= kRowShownMs)
        flushRow();
}

void FormFileOption::flushRow()
{
    TextOriginal->setText(shownOriginal_);
    TextNew->setText(shownNew_);
    sinceShown_.restart();
}

QString FormFileOption::newName() const
{
    return TextNew->text();
}

void FormFileOption::showPage(int row)
{
    basics_.state().PicNo = qint16(row);
    if (links.takeMainAction)
        links.takeMainAction();
}

void FormFileOption::cancelRun()
{
    CommandCancel_Click();
}

void FormFileOption::runFinished()
{
    flushRow();
    sinceShown_.invalidate();
    Dir1->refresh();
    File1->refresh();
    setBackColor(CommandDo, kColorGrey);
    basics_.WaitMilliseconds(kAnswerShownMs);
    setBackColor(CommandDo, kColorButtonFace);
    setWindowTitle(QString());
}

// ---- The target folder ------------------------------------------------------------

void FormFileOption::Drive1_Change()
{
    Dir1->setPath(Drive1->drive());
}

void FormFileOption::Dir1_Change()
{
    QString path = Dir1->path();
    while (path.endsWith(QLatin1Char('\\')))
        path.chop(1);
    TextDirectry->setText(path);
    File1->setPath(Dir1->path());
}

void FormFileOption::CommandMakeDirectry_Click()
{
    const QString folder = TextDirectry->text();
    if (basics_.services().ui.askYesNo(
            folder + QStringLiteral(" のディレクトリーを作成します。継続しますか？")) != kAnswerYes)
        return;
    basics_.MakeFolderTree(folder);
    Dir1->setPath(folder);
}

void FormFileOption::CommandDelDir_Click()
{
    const QString folder = TextDirectry->text();
    if (Trim(folder).isEmpty())
        return;
    if (basics_.services().ui.askYesNo(
            folder + QStringLiteral(" のディレクトリーを消去します。継続しますか？")) != kAnswerYes)
        return;
    FileSystem& fs = basics_.services().fs;
    for (const QString& name : fs.files(folder))
        basics_.DeleteFileForced(folder + QLatin1Char('\\') + name);
    fs.removeFolder(folder);
    basics_.WaitMilliseconds(100);
    QString above = FolderOfPath(StripTrailingBackslash(folder));
    if (above.size() > 3 && above.endsWith(QLatin1Char('\\')))
        above.chop(1);
    TextDirectry->setText(StripTrailingBackslash(above));
    Dir1->setPath(above);
    File1->setPath(Dir1->path());
}

// ---- The window ---------------------------------------------------------------------

void FormFileOption::CommandEnd_Click()
{
    unload();
}

void FormFileOption::CommandToSmall_Click()
{
    for (QWidget* frame :
         std::initializer_list<QWidget*>{FrameItem, FrameSElect, FrameTarget, FrameForScanner})
        frame->hide();
    adjustSize();
    resize(minimumSizeHint());
}

void FormFileOption::CommandToBig_Click()
{
    FrameItem->show();
    FrameSElect->show();
    FrameTarget->setVisible(!OptionDeleate->isChecked());
    adjustSize();
}

void FormFileOption::CommandScannerWordHelp_Click()
{
    FrameForScanner->show();
}

void FormFileOption::CommandCopy_Click()
{
    if (QClipboard* clipboard = QGuiApplication::clipboard())
        clipboard->setText(ComboWordScanner->currentText());
}

void FormFileOption::CommandClose_Click()
{
    FrameForScanner->hide();
    adjustSize();
}

// A right button press in File1 opens FormRClick6 at the pointer, on the
// file under it.
bool FormFileOption::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == File1->viewport() && event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        if (press->button() == Qt::RightButton) {
            if (QListWidgetItem* item = File1->itemAt(press->position().toPoint()))
                File1->setCurrentItem(item);
            showFileMenu(press->globalPosition().toPoint());
            return true;
        }
    }
    return FormBase::eventFilter(watched, event);
}

void FormFileOption::showFileMenu(const QPoint& global)
{
    if (!forms_.knows(kFormRClick6))
        return;
    FormBase* menu = forms_.form(kFormRClick6);
    menu->load();
    menu->move(global);
    menu->showForm();
}

} // namespace lumen
