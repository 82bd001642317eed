// FormEditText: its controls, their places and wiring, and loading.
#include "editor/FormEditText.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "select/EditTextLook.h"
#include "select/FormSelectFile.h"
#include "select/PreviewBox.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

namespace lumen {
namespace {

constexpr qint32 kColorResting = 0x00C0C0; // CommandUpdate when the text is up to date
constexpr int kItemRows = 6;
constexpr int kColumnOption = 0;
constexpr int kColumnCheck = 1;
constexpr int kColumnMark = 2;
constexpr int kColumnCaption = 3;
constexpr int kColumnField = 4;
constexpr int kColumnDialog = 5;

QRadioButton* option(const QString& name, QWidget* parent)
{
    return named<QRadioButton>(name, parent);
}

QCheckBox* indicator(const QString& name, QWidget* parent)
{
    auto* box = named<QCheckBox>(name, parent);
    // The boxes tell what the row has; the user doesn't set them.
    box->setAttribute(Qt::WA_TransparentForMouseEvents);
    box->setFocusPolicy(Qt::NoFocus);
    return box;
}

QFrame* shape(const QString& name, QWidget* parent)
{
    auto* frame = named<QFrame>(name, parent);
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Plain);
    frame->setLineWidth(3);
    return frame;
}

} // namespace

FormEditText::FormEditText(VeroProcedure_Basical& basics, FormSelectFile& select,
                           FormRegistry& forms)
    // Owned by the selection: it stands in front of it, and not modal.
    : FormBase(QStringLiteral("FormEditText"), &select, Qt::Dialog)
    , basics_(basics)
    , select_(select)
    , forms_(forms)
    , model_(basics)
{
    setWindowTitle(QStringLiteral("( コメントに最後にあったものは[Ｅｓｃ]で呼び出せます。"
                                  "先にコメントのテキストをクリックしてください )"));
    buildItems();
    buildCommands();
    layOut();
    connectHandlers();
    watchFields();
}

FormEditText::~FormEditText() = default;

void FormEditText::buildItems()
{
    Frame1 = named<QGroupBox>(QStringLiteral("Frame1"), this);
    OptionSelectMain = option(QStringLiteral("OptionSelectMain"), Frame1);
    OptionSelectWith = option(QStringLiteral("OptionSelectWith"), Frame1);
    OptionSelectDelay = option(QStringLiteral("OptionSelectDelay"), Frame1);
    OptionSelectComment = option(QStringLiteral("OptionSelectComment"), Frame1);
    OptionSelectTextComment = option(QStringLiteral("OptionSelectTextComment"), Frame1);
    OptionSelectOption = option(QStringLiteral("OptionSelectOption"), Frame1);
    OptionNone = option(QStringLiteral("OptionNone"), Frame1);
    OptionNone->hide();
    OptionNone->setChecked(true);
    options_ = {OptionSelectMain,    OptionSelectWith,        OptionSelectDelay,
                OptionSelectComment, OptionSelectTextComment, OptionSelectOption};
    CheckMain = indicator(QStringLiteral("CheckMain"), Frame1);
    CheckWith = indicator(QStringLiteral("CheckWith"), Frame1);
    CheckDelay = indicator(QStringLiteral("CheckDelay"), Frame1);
    CheckComment = indicator(QStringLiteral("CheckComment"), Frame1);
    CheckTextComment = indicator(QStringLiteral("CheckTextComment"), Frame1);
    CheckOption = indicator(QStringLiteral("CheckOption"), Frame1);
    TextFileName = named<QLineEdit>(QStringLiteral("TextFileName"), Frame1);
    TextSubFileName = named<QLineEdit>(QStringLiteral("TextSubFileName"), Frame1);
    TextWaitTime = named<QLineEdit>(QStringLiteral("TextWaitTime"), Frame1);
    TextText = named<QPlainTextEdit>(QStringLiteral("TextText"), Frame1);
    TextText->setTabChangesFocus(true);
    TextText->setFixedHeight(TextText->fontMetrics().lineSpacing() * 3 + 12);
    TextCommentFileName = named<QLineEdit>(QStringLiteral("TextCommentFileName"), Frame1);
    ComboCommandList = named<QComboBox>(QStringLiteral("ComboCommandList"), Frame1);
    ComboCommandList->setEditable(true);
    ComboCommandList->setInsertPolicy(QComboBox::NoInsert);
    CommandMainFileOpen =
        commandButton(QStringLiteral("CommandMainFileOpen"), QStringLiteral("参照"), Frame1);
    CommandSab = commandButton(QStringLiteral("CommandSab"), QStringLiteral("参照"), Frame1);
    CommandFileComment =
        commandButton(QStringLiteral("CommandFileComment"), QStringLiteral("参照"), Frame1);
    for (int i = 0; i < kItemRows; ++i) {
        QLabel* mark = named<QLabel>(QStringLiteral("LabelItem_%1").arg(i),
                                     QStringLiteral("        ←"), Frame1);
        setBackColor(mark, kColorYellow);
        mark->hide();
        LabelItem[size_t(i)] = mark;
    }
    TextBigger = named<QPlainTextEdit>(QStringLiteral("TextBigger"), this);
    TextBigger->setMinimumHeight(120);
    for (int i = 0; i < 2; ++i) {
        QFrame* frame = shape(QStringLiteral("Shape1_%1").arg(i), this);
        frame->setAttribute(Qt::WA_TransparentForMouseEvents);
        frame->hide();
        Shape1[size_t(i)] = frame;
    }
}

void FormEditText::buildCommands()
{
    CommandAdd = commandButton(QStringLiteral("CommandAdd"), QStringLiteral(" 追加 変更"), this);
    CommandCut = commandButton(QStringLiteral("CommandCut"), QStringLiteral("ｶｯﾄ"), this);
    CommandCopy = commandButton(QStringLiteral("CommandCopy"), QStringLiteral("ｺﾋﾟｰ"), this);
    CommandPast = commandButton(QStringLiteral("CommandPast"), QStringLiteral("ﾍﾟｰｽﾄ"), this);
    CommandInsertLine =
        commandButton(QStringLiteral("CommandInsertLine"), QStringLiteral("行挿入"), this);
    CommandRecover = commandButton(QStringLiteral("CommandRecover"), QStringLiteral("復元"), this);
    CommandUp = commandButton(QStringLiteral("CommandUp"), QStringLiteral("▲"), this);
    CommandDoun = commandButton(QStringLiteral("CommandDoun"), QStringLiteral("▼"), this);
    CommandUpdate =
        commandButton(QStringLiteral("CommandUpdate"), QStringLiteral("ｱｯﾌﾟﾃﾞｰﾄ"), this);
    setBackColor(CommandUpdate, kColorResting);
    ShapeAllwaysUpdate = shape(QStringLiteral("ShapeAllwaysUpdate"), this);
    ShapeAllwaysUpdate->setLineWidth(2);
    CheckAllwaysUpdate = named<QCheckBox>(QStringLiteral("CheckAllwaysUpdate"),
                                          QStringLiteral("常にｱｯﾌﾟﾃﾞｰﾄ"), ShapeAllwaysUpdate);
    setForeColor(CheckAllwaysUpdate, 0); // its frame's colour is the frame's alone
    LabelNom = named<QLabel>(QStringLiteral("LabelNom"), QStringLiteral("0"), this);
    LabelYourPos = named<QLabel>(QStringLiteral("LabelYourPos"), QStringLiteral("0"), this);
    Picture1 = new PreviewBox(QStringLiteral("Picture1"), this);
    Picture1->hide();
    Picture2 = new PreviewBox(QStringLiteral("Picture2"), this);
    Picture2->setFixedSize(160, 120);
    Picture2->setPlacement([](const QSize& picture, const QSize& box) {
        return EditTextModel::thumbnailRect(picture, box).toRect();
    });
    setBackColor(Picture2, 0x404040);
    CommandStanderdText =
        commandButton(QStringLiteral("CommandStanderdText"), QStringLiteral("標準ﾃｷｽﾄ変換"), this);
    CommandEditOff =
        commandButton(QStringLiteral("CommandEditOff"), QStringLiteral("ｴﾃﾞｨﾀｰｵﾌ"), this);
    Command1 = commandButton(QStringLiteral("Command1"), QStringLiteral("終了"), this);
    CheckEnglishCommand =
        named<QCheckBox>(QStringLiteral("CheckEnglishCommand"), QStringLiteral("英語ｺﾏﾝﾄﾞ"), this);
    CheckEnglishCommand->setMouseTracking(true);
    CommandSetCommand =
        commandButton(QStringLiteral("CommandSetCommand"), QStringLiteral(" ｺﾏﾝﾄﾞ 設定"), this);
    // Ticked the text is rebuilt after each change; the frame shows which.
    CheckAllwaysUpdate_Click();
}

void FormEditText::layOut()
{
    items_ = new QGridLayout(Frame1);
    items_->addWidget(named<QLabel>(QStringLiteral("LabelSelect"), QStringLiteral("選択"), Frame1),
                      0, kColumnOption);
    items_->addWidget(
        named<QLabel>(QStringLiteral("LabelHave"), QStringLiteral("有る項目"), Frame1), 0,
        kColumnCheck);
    const QStringList captions{"主ﾌｧｲﾙ", "従ﾌｧｲﾙ", "待ち時間", "ｺﾒﾝﾄ", "ﾌｧｲﾙｺﾒﾝﾄ", "ｵﾌﾟｼｮﾝｺﾏﾝﾄﾞ"};
    const std::array<QCheckBox*, kItemRows> checks{CheckMain,    CheckWith,        CheckDelay,
                                                   CheckComment, CheckTextComment, CheckOption};
    const std::array<QWidget*, kItemRows> fields{TextFileName,        TextSubFileName,
                                                 TextWaitTime,        TextText,
                                                 TextCommentFileName, ComboCommandList};
    for (int i = 0; i < kItemRows; ++i) {
        const int row = i + 1;
        items_->addWidget(options_[size_t(i)], row, kColumnOption, Qt::AlignCenter);
        items_->addWidget(checks[size_t(i)], row, kColumnCheck, Qt::AlignCenter);
        items_->addWidget(LabelItem[size_t(i)], row, kColumnMark);
        items_->addWidget(new QLabel(captions[i], Frame1), row, kColumnCaption);
        items_->addWidget(fields[size_t(i)], row, kColumnField);
    }
    items_->addWidget(CommandMainFileOpen, 1, kColumnDialog);
    items_->addWidget(CommandSab, 2, kColumnDialog);
    items_->addWidget(CommandFileComment, 5, kColumnDialog);
    items_->setColumnStretch(kColumnField, 1);
    TextFileName->setMinimumWidth(360);

    auto* changes = new QHBoxLayout;
    for (QPushButton* button :
         {CommandAdd, CommandCut, CommandCopy, CommandPast, CommandInsertLine, CommandRecover})
        changes->addWidget(button);
    changes->addStretch(1);

    auto* always = new QHBoxLayout(ShapeAllwaysUpdate);
    always->setContentsMargins(6, 3, 6, 3);
    always->addWidget(CheckAllwaysUpdate);
    auto* rows = new QGridLayout;
    rows->addWidget(CommandUp, 0, 0);
    rows->addWidget(CommandDoun, 1, 0);
    rows->addWidget(new QLabel(QStringLiteral("行"), this), 0, 1);
    rows->addWidget(LabelYourPos, 0, 2);
    rows->addWidget(new QLabel(QStringLiteral("全行"), this), 1, 1);
    rows->addWidget(LabelNom, 1, 2);
    rows->addWidget(CommandUpdate, 2, 0, 1, 3);
    rows->addWidget(ShapeAllwaysUpdate, 3, 0, 1, 3);
    rows->setColumnStretch(2, 1);
    auto* middle = new QHBoxLayout;
    middle->addLayout(rows, 1);
    middle->addWidget(Picture2);

    auto* words = new QHBoxLayout;
    words->addWidget(CheckEnglishCommand);
    words->addWidget(CommandSetCommand);
    words->addStretch(1);
    words->addWidget(CommandStanderdText);
    words->addWidget(CommandEditOff);
    words->addWidget(Command1);

    auto* whole = new QVBoxLayout(this);
    whole->addWidget(Frame1);
    whole->addLayout(changes);
    whole->addLayout(middle);
    whole->addWidget(TextBigger, 1);
    whole->addLayout(words);
}

void FormEditText::connectHandlers()
{
    const auto click = [this](QAbstractButton* button, void (FormEditText::*handler)()) {
        connect(button, &QAbstractButton::clicked, this, handler);
    };
    click(CommandAdd, &FormEditText::CommandAdd_Click);
    click(CommandCut, &FormEditText::CommandCut_Click);
    click(CommandCopy, &FormEditText::CommandCopy_Click);
    click(CommandPast, &FormEditText::CommandPast_Click);
    click(CommandInsertLine, &FormEditText::CommandInsertLine_Click);
    click(CommandRecover, &FormEditText::CommandRecover_Click);
    click(CommandUpdate, &FormEditText::CommandUpdate_Click);
    click(CheckAllwaysUpdate, &FormEditText::CheckAllwaysUpdate_Click);
    click(CommandUp, &FormEditText::CommandUp_Click);
    click(CommandDoun, &FormEditText::CommandDoun_Click);
    click(CommandMainFileOpen, &FormEditText::CommandMainFileOpen_Click);
    click(CommandSab, &FormEditText::CommandSab_Click);
    click(CommandFileComment, &FormEditText::CommandFileComment_Click);
    click(CheckEnglishCommand, &FormEditText::CheckEnglishCommand_Click);
    click(CommandSetCommand, &FormEditText::CommandSetCommand_Click);
    click(CommandStanderdText, &FormEditText::CommandStanderdText_Click);
    click(Command1, &FormEditText::Command1_Click);
    click(CommandEditOff, &FormEditText::CommandEditOff_Click);
    connect(TextText, &QPlainTextEdit::textChanged, this, &FormEditText::TextText_Change);
    connect(TextBigger, &QPlainTextEdit::textChanged, this, &FormEditText::TextBigger_Change);
    connect(ComboCommandList, &QComboBox::activated, this,
            [this] { OptionSelectOption->setChecked(true); });
}

void FormEditText::watchFields()
{
    // A field taken up by the mouse or the keyboard selects its item; the
    // combo does so as soon as the user turns to it.
    for (QWidget* field : std::initializer_list<QWidget*>{
             TextFileName, TextSubFileName, TextWaitTime, TextText, TextText->viewport(),
             TextCommentFileName, ComboCommandList, ComboCommandList->lineEdit()})
        field->installEventFilter(this);
    // Hints over the buttons that need an item.
    for (QWidget* button : std::initializer_list<QWidget*>{CommandAdd, CommandCut, CommandCopy,
                                                           CommandPast, CheckEnglishCommand}) {
        button->setMouseTracking(true);
        button->installEventFilter(this);
    }
}

bool FormEditText::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseMove) {
        hoverHint(static_cast<QWidget*>(watched));
        return false;
    }
    if (type == QEvent::KeyPress && watched == TextText &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        // The last comment comes back.
        QString last = model_.lastComment();
        TextText->setPlainText(last.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
        return true;
    }
    const bool takenUp =
        type == QEvent::MouseButtonPress ||
        (type == QEvent::FocusIn &&
         static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason &&
         static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason);
    if (!takenUp)
        return false;
    if (watched == TextFileName)
        OptionSelectMain->setChecked(true);
    else if (watched == TextSubFileName)
        OptionSelectWith->setChecked(true);
    else if (watched == TextWaitTime)
        OptionSelectDelay->setChecked(true);
    else if (watched == TextText || watched == TextText->viewport())
        OptionSelectComment->setChecked(true);
    else if (watched == TextCommentFileName)
        OptionSelectTextComment->setChecked(true);
    else if (watched == ComboCommandList || watched == ComboCommandList->lineEdit())
        OptionSelectOption->setChecked(true);
    return false;
}

void FormEditText::Form_Load()
{
    model_.deleteTempFile();
    applyRecordLook();
    fillCombo();
}

void FormEditText::applyRecordLook()
{
    for (QWidget* field : std::initializer_list<QWidget*>{TextText, TextFileName, TextSubFileName,
                                                          TextCommentFileName, TextWaitTime,
                                                          ComboCommandList, TextBigger})
        applyEditTextLook(basics_.state().DirecData, field);
}

void FormEditText::fillCombo()
{
    ComboCommandList->clear();
    ComboCommandList->addItems(model_.comboWords());
}

void FormEditText::placeBesideSelection()
{
    // To the right of the selection window, as far as the screen allows.
    adjustSize();
    const QRect beside = select_.frameGeometry();
    QPoint place(beside.right() + 1, beside.top());
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect free = screen->availableGeometry();
        resize(size().boundedTo(free.size()));
        place.setX(qMax(free.left(), qMin(place.x(), free.right() + 1 - frameGeometry().width())));
        place.setY(qMax(free.top(), qMin(place.y(), free.bottom() + 1 - frameGeometry().height())));
    }
    move(place);
}

void FormEditText::closeEvent(QCloseEvent* event)
{
    // The frame's close box is the exit: the user is asked whether the
    // editor text goes back to standard text.
    event->ignore();
    Command1_Click();
}

EditItem FormEditText::selectedItem() const
{
    if (OptionSelectMain->isChecked())
        return EditItem::Main;
    if (OptionSelectWith->isChecked())
        return EditItem::With;
    if (OptionSelectDelay->isChecked())
        return EditItem::Delay;
    if (OptionSelectComment->isChecked())
        return EditItem::Comment;
    if (OptionSelectTextComment->isChecked())
        return EditItem::TextComment;
    if (OptionSelectOption->isChecked())
        return EditItem::Option;
    return EditItem::None;
}

} // namespace lumen
