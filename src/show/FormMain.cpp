// FormMain: its controls and how they are wired.
#include "show/FormMain.h"

#include "display/FormRightLeftNorm.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "display/PictureCache.h"
#include "display/WebBrowser.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/Media.h"
#include "platform/Twips.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

namespace lumen {

FormMain::FormMain(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormMain"), parent)
    , basics_(basics)
    , state_(basics.state())
    , forms_(forms)
    , pictures_(std::make_unique<PictureCache>())
{
    setWindowTitle(QStringLiteral("Lumenta_KDR"));
    buildDisplay();
    buildFrame1();
    buildFrame2();
    buildFrame3();
    connectHandlers();
    buildSelectCommands();
    buildBulkCommands();
}

void FormMain::buildFrame1()
{
    Frame1 = named<QGroupBox>(QStringLiteral("Frame1"), this);
    Frame1->setFixedWidth(106);
    CommandOpenFileList =
        commandButton(QStringLiteral("CommandOpenFileList"), QStringLiteral("ﾘｽﾄを開く"), Frame1);
    CommandOpenFileList->setAcceptDrops(true);
    CheckQuiCkWork =
        named<QCheckBox>(QStringLiteral("CheckQuiCkWork"), QStringLiteral("ｸｲｯｸ"), Frame1);
    LabelDo = new ClickLabel(QStringLiteral("LabelDo"), QStringLiteral("表示"), Frame1);
    LabelDo->setAlignment(Qt::AlignCenter);
    LabelDo->setFrameShape(QFrame::Box);
    CommandLeft = commandButton(QStringLiteral("CommandLeft"), QStringLiteral("←"), Frame1);
    CommandRight = commandButton(QStringLiteral("CommandRight"), QStringLiteral("→"), Frame1);
    LabelSmall = new ClickLabel(QStringLiteral("LabelSmall"), QString(), Frame1);
    LabelMax = new ClickLabel(QStringLiteral("LabelMax"), QString(), Frame1);
    for (ClickLabel* end : {LabelSmall, LabelMax}) {
        end->setFixedSize(8, 16);
        setBackColor(end, kColorGrey);
    }
    HScrollPicNom = named<QScrollBar>(QStringLiteral("HScrollPicNom"), Qt::Horizontal, Frame1);
    HScrollPicNom->setRange(0, 1);
    HScrollPicNom->setTracking(false); // Change on release; Scroll while dragging
    TextCount = named<QLineEdit>(QStringLiteral("TextCount"), QString(), Frame1);
    TextTotal = named<QLineEdit>(QStringLiteral("TextTotal"), QString(), Frame1);
    TextTotal->setReadOnly(true);
    CommandHatenaSettei =
        commandButton(QStringLiteral("CommandHatenaSettei"), QStringLiteral("ﾄﾞﾗｲﾌﾞ設定"), Frame1);
    CommandIELeft = commandButton(QStringLiteral("CommandIELeft"), QStringLiteral("戻"), Frame1);
    CommandIERight = commandButton(QStringLiteral("CommandIERight"), QStringLiteral("進"), Frame1);
    CommandExit = commandButton(QStringLiteral("CommandExit"), QStringLiteral("終了"), Frame1);

    auto* column = new QVBoxLayout(Frame1);
    column->setContentsMargins(4, 6, 4, 6);
    column->addWidget(CommandOpenFileList);
    column->addWidget(CheckQuiCkWork);
    column->addSpacing(8);
    auto* arrows = new QHBoxLayout;
    arrows->addWidget(CommandLeft);
    arrows->addWidget(CommandRight);
    column->addLayout(arrows);
    auto* bar = new QHBoxLayout;
    bar->setSpacing(1);
    bar->addWidget(LabelSmall);
    bar->addWidget(HScrollPicNom, 1);
    bar->addWidget(LabelMax);
    column->addLayout(bar);
    auto* count = new QHBoxLayout;
    count->addWidget(TextCount);
    count->addWidget(new QLabel(QStringLiteral("/"), Frame1));
    count->addWidget(TextTotal);
    column->addLayout(count);
    column->addWidget(LabelDo);
    column->addSpacing(8);
    column->addWidget(CommandHatenaSettei);
    auto* web = new QHBoxLayout;
    web->addWidget(CommandIELeft);
    web->addWidget(CommandIERight);
    column->addLayout(web);
    column->addStretch(1);
    column->addWidget(CommandExit);
}

void FormMain::buildFrame2()
{
    Frame2 = named<QGroupBox>(QStringLiteral("Frame2"), this);
    CommandModPic =
        commandButton(QStringLiteral("CommandModPic"), QStringLiteral("線の作図"), Frame2);
    CommandSaveImage =
        commandButton(QStringLiteral("CommandSaveImage"), QStringLiteral("画像保存"), Frame2);
    CommandScrollSizeAllowValue = commandButton(QStringLiteral("CommandScrollSizeAllowValue"),
                                                QStringLiteral("許容値"), Frame2);
    CheckOriginalSize =
        named<QCheckBox>(QStringLiteral("CheckOriginalSize"), QStringLiteral("原寸"), Frame2);
    CommandFull = commandButton(QStringLiteral("CommandFull"), QStringLiteral("FILL表示"), Frame2);
    CommandOption =
        commandButton(QStringLiteral("CommandOption"), QStringLiteral("自動ﾍﾟｰｼﾞ"), Frame2);
    CommandEdit = commandButton(QStringLiteral("CommandEdit"), QStringLiteral("ｴﾃﾞｨﾀｰ"), Frame2);
    CommandWriteCommentOnPic = commandButton(QStringLiteral("CommandWriteCommentOnPic"),
                                             QStringLiteral("画像にｺﾒﾝﾄ貼付け"), Frame2);
    CommandMakeHTML =
        commandButton(QStringLiteral("CommandMakeHTML"), QStringLiteral("HTML作成"), Frame2);
    auto* row = new QHBoxLayout(Frame2);
    row->setContentsMargins(4, 2, 4, 2);
    row->setSpacing(3);
    for (QWidget* w : std::initializer_list<QWidget*>{
             CommandModPic, CommandSaveImage, CommandScrollSizeAllowValue, CheckOriginalSize,
             CommandFull, CommandOption, CommandEdit, CommandWriteCommentOnPic, CommandMakeHTML}) {
        // Nine commands share a fixed width: each as wide as its caption.
        if (auto* b = qobject_cast<QPushButton*>(w))
            b->setMinimumWidth(b->fontMetrics().horizontalAdvance(b->text()) + 12);
        row->addWidget(w);
    }
}

void FormMain::buildFrame3()
{
    Frame3 = named<QGroupBox>(QStringLiteral("Frame3"), this);
    TextFileName = named<QLineEdit>(QStringLiteral("TextFileName"), QString(), Frame3);
    TextHeadName =
        named<QLineEdit>(QStringLiteral("TextHeadName"), QStringLiteral("MyPicture"), Frame3);
    TextNum = named<QLineEdit>(QStringLiteral("TextNum"), QStringLiteral("001"), Frame3);
    TextHeadName->setFixedWidth(90);
    TextNum->setFixedWidth(40);
    CommandCopy = commandButton(QStringLiteral("CommandCopy"), QStringLiteral("ｺﾋﾟｰ"), Frame3);
    CommandDeleate =
        commandButton(QStringLiteral("CommandDeleate"), QStringLiteral("削除"), Frame3);
    CommandRecov = commandButton(QStringLiteral("CommandRecov"), QStringLiteral("復元"), Frame3);
    FrameTextHide = named<QGroupBox>(QStringLiteral("FrameTextHide"), Frame3);
    CheckWaveHide = named<QCheckBox>(QStringLiteral("CheckWaveHide"), QStringLiteral("隠サウンド"),
                                     FrameTextHide);
    CheckCommentHide = named<QCheckBox>(QStringLiteral("CheckCommentHide"),
                                        QStringLiteral("隠コメント"), FrameTextHide);
    CheckTextHide = named<QCheckBox>(QStringLiteral("CheckTextHide"), QStringLiteral("隠テキスト"),
                                     FrameTextHide);
    auto* hide = new QHBoxLayout(FrameTextHide);
    hide->setContentsMargins(4, 0, 4, 0);
    hide->addWidget(CheckWaveHide);
    hide->addWidget(CheckCommentHide);
    hide->addWidget(CheckTextHide);
    CommandSendTo = commandButton(QStringLiteral("CommandSendTo"), QStringLiteral("Send"), Frame3);
    CheckUseCyberView =
        named<QCheckBox>(QStringLiteral("CheckUseCyberView"), QStringLiteral("3D表示"), Frame3);

    auto* grid = new QGridLayout(Frame3);
    grid->setContentsMargins(4, 3, 4, 3);
    grid->setVerticalSpacing(3);
    auto* names = new QHBoxLayout;
    names->addWidget(TextFileName, 1);
    names->addWidget(TextHeadName);
    names->addWidget(TextNum);
    grid->addLayout(names, 0, 0);
    auto* commands = new QHBoxLayout;
    commands->setSpacing(3);
    commands->addWidget(CommandCopy);
    commands->addWidget(CommandDeleate);
    commands->addWidget(CommandRecov);
    commands->addWidget(FrameTextHide);
    commands->addWidget(CommandSendTo);
    commands->addWidget(CheckUseCyberView);
    commands->addStretch(1);
    grid->addLayout(commands, 1, 0);
}

void FormMain::buildDisplay()
{
    Picture1 = new PictureBox(QStringLiteral("Picture1"), this);
    Picture2 = new PictureBox(QStringLiteral("Picture2"), Picture1);
    Picture2->setAutoSize(true); // sized by the picture it holds
    Picture3 = new PictureBox(QStringLiteral("Picture3"), Picture1);
    Text1 = named<QPlainTextEdit>(QStringLiteral("Text1"), Picture1);
    Text1->hide();
    Media& media = basics_.services().media;
    WebBrowser1 = new WebBrowser(QStringLiteral("WebBrowser1"), media.createWebSurface(), Picture1);
    WebBrowser1->hide();
    MediaPlayer1 =
        new MediaPanel(QStringLiteral("MediaPlayer1"), media.createEngine(true), Picture1);
    MediaPlayer1->hide();
    MediaPlayer2 =
        new MediaPanel(QStringLiteral("MediaPlayer2"), media.createEngine(false), Picture1);
    MediaPlayer2->hide();
    // The end of a medium only tells Auto Page; it changes no page by itself.
    for (MediaPanel* panel : {MediaPlayer1, MediaPlayer2})
        connect(panel, &MediaPanel::ended, this, [this] { state_.MediaEnded = true; });
    connect(WebBrowser1, &WebBrowser::loadFinished, this, [this](bool ok) {
        // The page's rectangle stands in Picture2 for the allowance test.
        const QSize page = WebBrowser1->contentsSize();
        if (!ok || !state_.WebPageShown || page.isEmpty() || WebBrowser1->isHidden())
            return;
        Picture2->hide();
        Picture2->resize(page);
        SetWebScrollBars();
    });
    connect(MediaPlayer1, &MediaPanel::videoSizeChanged, this, [this] {
        if (!MediaPlayer1->isHidden())
            centreVideo();
    });
    LabelComment = new ClickLabel(QStringLiteral("LabelComment"), QString(), Picture1);
    LabelComment->hide();
    CommandNoText =
        commandButton(QStringLiteral("CommandNoText"), QStringLiteral("ﾘｽﾄを閉じる"), Picture1);
    CommandNoText->hide();
    HScroll1 = named<QScrollBar>(QStringLiteral("HScroll1"), Qt::Horizontal, this);
    HScroll1->resize(HScroll1->width(), HScroll1->sizeHint().height());
    HScroll1->hide();
    VScroll1 = named<QScrollBar>(QStringLiteral("VScroll1"), Qt::Vertical, this);
    VScroll1->resize(VScroll1->sizeHint().width(), VScroll1->height());
    VScroll1->hide();
}

void FormMain::connectHandlers()
{
    connect(CommandOpenFileList, &QPushButton::clicked, this, &FormMain::CommandOpenFileList_Click);
    connect(CommandNoText, &QPushButton::clicked, this, &FormMain::CommandNoText_Click);
    connect(CommandExit, &QPushButton::clicked, this, &FormMain::CommandExit_Click);
    connect(LabelDo, &ClickLabel::clicked, this, &FormMain::LabelDo_Click);
    connect(TextCount, &QLineEdit::textChanged, this, &FormMain::TextCount_Change);
    connect(TextTotal, &QLineEdit::textChanged, this, &FormMain::TextTotal_Change);
    connect(TextHeadName, &QLineEdit::textChanged, this, &FormMain::TextHeadName_Change);
    connect(CheckOriginalSize, &QCheckBox::clicked, this, &FormMain::Form_Resize);
    connect(CommandHatenaSettei, &QPushButton::clicked, this, &FormMain::CommandHatenaSettei_Click);
    connect(CommandFull, &QPushButton::clicked, this, &FormMain::CommandFull_Click);
    connect(CommandOption, &QPushButton::clicked, this, &FormMain::CommandOption_Click);

    connect(CommandRight, &QPushButton::clicked, this, &FormMain::CommandRight_Click);
    connect(CommandLeft, &QPushButton::clicked, this, &FormMain::CommandLeft_Click);
    connect(HScrollPicNom, &QScrollBar::sliderMoved, this, &FormMain::HScrollPicNom_Scroll);
    connect(HScrollPicNom, &QScrollBar::valueChanged, this, &FormMain::HScrollPicNom_Change);
    connect(HScroll1, &QScrollBar::valueChanged, this, &FormMain::HScroll1_Change);
    connect(VScroll1, &QScrollBar::valueChanged, this, &FormMain::VScroll1_Change);
    connect(CommandCopy, &QPushButton::clicked, this, &FormMain::CommandCopy_Click);
    connect(CommandDeleate, &QPushButton::clicked, this, &FormMain::CommandDeleate_Click);
    connect(CommandRecov, &QPushButton::clicked, this, &FormMain::CommandRecov_Click);

    connect(CommandScrollSizeAllowValue, &QPushButton::clicked, this,
            [this] { showWindow(QStringLiteral("FormPictureScrollSet")); });
    CommandScrollSizeAllowValue->installEventFilter(this);
    connect(CommandSendTo, &QPushButton::clicked, this,
            [this] { showWindow(QStringLiteral("FormSendTo")); });
    connect(CommandMakeHTML, &QPushButton::clicked, this,
            [this] { showWindow(QStringLiteral("FormMakeHTML")); });
    connect(CommandIELeft, &QPushButton::clicked, this, &FormMain::CommandIELeft_Click);
    connect(CommandIERight, &QPushButton::clicked, this, &FormMain::CommandIERight_Click);
    Text1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Text1, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        popupAt(QStringLiteral("FormRClick4"), Text1->mapToGlobal(at));
    });
    for (PictureBox* picture : {Picture2, Picture3}) {
        connect(picture, &PictureBox::mouseUp, this,
                [this, picture](Qt::MouseButton button, float x, float y) {
                    Picture3_MouseUp(picture, button, x, y);
                });
    }

    // Keys for the show: Page Down and Page Up turn the pages, Escape ends the
    // list view.
    auto* next = new QShortcut(QKeySequence(Qt::Key_PageDown), this);
    connect(next, &QShortcut::activated, this, [this] {
        if (CommandRight->isEnabled())
            CommandRight_Click();
    });
    auto* previous = new QShortcut(QKeySequence(Qt::Key_PageUp), this);
    connect(previous, &QShortcut::activated, this, [this] {
        if (CommandLeft->isEnabled())
            CommandLeft_Click();
    });
    auto* endView = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(endView, &QShortcut::activated, this, [this] {
        if (!CommandNoText->isHidden())
            CommandNoText_Click();
    });

    connectPictureWork();
}

FormMain::~FormMain() = default;

void FormMain::showWindow(const QString& name)
{
    if (FormBase* form = forms_.form(name))
        form->showForm();
}

void FormMain::popupAt(const QString& name, const QPoint& global)
{
    if (FormBase* popup = forms_.form(name)) {
        popup->load();
        popup->move(global);
        popup->show();
        popup->raise();
    }
}

void FormMain::CommandIELeft_Click()
{
    if (state_.WebPageShown)
        WebBrowser1->GoBack();
}

void FormMain::CommandIERight_Click()
{
    if (state_.WebPageShown)
        WebBrowser1->GoForward();
}

void FormMain::Picture3_MouseUp(QWidget* picture, Qt::MouseButton button, float x, float y)
{
    if (button == Qt::RightButton) {
        const FormBase* drawing = forms_.existing(QStringLiteral("FormModPic"));
        const FormBase* pasting = forms_.existing(QStringLiteral("FormPastComment"));
        if ((drawing && drawing->isVisible()) || (pasting && pasting->isVisible()))
            return;
        // At the pointer: the picture's place plus where it was clicked.
        popupAt(QStringLiteral("FormRClick5"),
                picture->mapToGlobal(QPoint(twipsToPixels(x), twipsToPixels(y))));
        return;
    }
    if (picture != Picture3)
        return;
    if (state_.AutoPageOn) {
        stopAutoPage();
        showWindow(QStringLiteral("FormOption"));
    }
    if (isMaximized()) {
        if (auto* navigator =
                static_cast<FormRightLeftNorm*>(forms_.form(QStringLiteral("FormRightLeftNorm")))) {
            navigator->showForm();
            navigator->HScroll1->setFocus();
        }
    }
}

void FormMain::CommandOption_Click()
{
    showWindow(QStringLiteral("FormOption"));
}

bool FormMain::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == CommandScrollSizeAllowValue && event->type() == QEvent::Enter) {
        // The tip beside the button, placed from the window, the frame and the button.
        basics_.ShowFloatingMessage(
            int(twLeft(this) + twLeft(Frame2) + twLeft(CommandScrollSizeAllowValue)),
            int(twTop(this) + twTop(CommandScrollSizeAllowValue) + 700),
            QStringLiteral(" 縮小表示させる許容値設定 "));
    }
    return FormBase::eventFilter(watched, event);
}

void FormMain::CommandHatenaSettei_Click()
{
    state_.HatenaDriveAsked = false;
    if (FormBase* drive = forms_.form(QStringLiteral("FormHatenaDrive")))
        drive->showForm();
}

} // namespace lumen
