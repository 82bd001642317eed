// FormMakeHTML: its controls, how they are wired and laid out.
#include "html/FormMakeHTML.h"

#include "html/ButtonIcons.h"
#include "platform/Controls.h"
#include "platform/Twips.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

QLineEdit* textBox(const QString& name, QWidget* parent, int width = 0)
{
    auto* box = named<QLineEdit>(name, parent);
    if (width > 0)
        box->setFixedWidth(width);
    return box;
}

QLabel* heading(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

constexpr int kPathWidth = 300;
constexpr int kValueWidth = 90;
constexpr float kFrameGap = 10; // twips between FrameMain and the frame under it
constexpr float kMargin = 120;  // twips around the frames

} // namespace

PictureHolder::PictureHolder(const QString& name, QWidget* parent)
    : QLabel(parent)
{
    setObjectName(name);
    setFixedSize(56, 40);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Sunken);
}

void PictureHolder::setPicture(const QImage& picture)
{
    picture_ = picture;
    setPixmap(QPixmap::fromImage(
        picture.scaled(size() - QSize(4, 4), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

FormMakeHTML::FormMakeHTML(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormMakeHTML"), parent)
    , basics_(basics)
    , forms_(forms)
    , maker_(basics)
{
    setWindowTitle(QStringLiteral("HTML作成"));
    buildFrameMain();
    buildFrameSetDir();
    buildFrameSetFont();
    buildFrameSetButton();
    buildFrameSetDaisuu();
    for (int field = 0; field < kSiteFields; ++field)
        fields_[field] = findChild<QLineEdit*>(siteFieldControlNames()[field]);
    connectHandlers();

    maker_.setCaption = [this](const QString& caption) { setWindowTitle(caption); };
    maker_.setMakeButtonColor = [this](qint32 color) { setBackColor(CommandMakeHTML, color); };
    maker_.clearDisplay = [this] {
        if (links.clearDisplay)
            links.clearDisplay();
    };
    maker_.unloadComment = [this] {
        if (links.unloadComment)
            links.unloadComment();
    };
}

void FormMakeHTML::buildFrameMain()
{
    FrameMain = named<QGroupBox>(QStringLiteral("FrameMain"), this);
    CommandShowSampleHtml = commandButton(QStringLiteral("CommandShowSampleHtml"),
                                          QStringLiteral("SampleHtml"), FrameMain);
    CommandDispConfirm =
        commandButton(QStringLiteral("CommandDispConfirm"), QStringLiteral("表示確認"), FrameMain);
    CommandShowFolderSet = commandButton(QStringLiteral("CommandShowFolderSet"),
                                         QStringLiteral("フォルダー"), FrameMain);
    CommandSetFont =
        commandButton(QStringLiteral("CommandSetFont"), QStringLiteral("フォント"), FrameMain);
    CommandShowSetButton = commandButton(QStringLiteral("CommandShowSetButton"),
                                         QStringLiteral("表示ボタン"), FrameMain);
    CommandShowSetDaisuu = commandButton(QStringLiteral("CommandShowSetDaisuu"),
                                         QStringLiteral("代数設定"), FrameMain);
    CommandMakeHTML =
        commandButton(QStringLiteral("CommandMakeHTML"), QStringLiteral("HTML作成"), FrameMain);
    auto* row = new QHBoxLayout(FrameMain);
    row->setContentsMargins(6, 6, 6, 6);
    for (QPushButton* b :
         {CommandShowSampleHtml, CommandDispConfirm, CommandShowFolderSet, CommandSetFont,
          CommandShowSetButton, CommandShowSetDaisuu, CommandMakeHTML}) {
        b->setMinimumWidth(b->fontMetrics().horizontalAdvance(b->text()) + 24);
        row->addWidget(b);
    }
}

void FormMakeHTML::buildFrameSetDir()
{
    FrameSetDir = named<QGroupBox>(QStringLiteral("FrameSetDir"), this);
    QWidget* f = FrameSetDir;
    TextPosKeepHTML = textBox(QStringLiteral("TextPosKeepHTML"), f, kPathWidth);
    TextHTMLPageName = textBox(QStringLiteral("TextHTMLPageName"), f, kPathWidth);
    TextPosHTML = textBox(QStringLiteral("TextPosHTML"), f, kPathWidth);
    TextPosMedia = textBox(QStringLiteral("TextPosMedia"), f, kPathWidth);
    TextPosButton = textBox(QStringLiteral("TextPosButton"), f, kPathWidth);
    TextOyaFileName = textBox(QStringLiteral("TextOyaFileName"), f);
    CheckConvertSmallChara = named<QCheckBox>(
        QStringLiteral("CheckConvertSmallChara"),
        QStringLiteral("メデャイアファイル名、ディレクトリー名等を小文字にする"), f);
    CheckDelHTMLFolder =
        named<QCheckBox>(QStringLiteral("CheckDelHTMLFolder"),
                         QStringLiteral("[HTML作成]で、ﾃﾞｨﾚｸﾄﾘｰを全部消して作り直す"), f);
    CheckWAVConvert = named<QCheckBox>(QStringLiteral("CheckWAVConvert"),
                                       QStringLiteral("WAVファイルをMP3に変換して保存する。"), f);
    TextMP3CompR = textBox(QStringLiteral("TextMP3CompR"), f, 50);
    HScrollMP3CompR = named<QScrollBar>(QStringLiteral("HScrollMP3CompR"), Qt::Horizontal, f);
    HScrollMP3CompR->setRange(0, 100);
    HScrollMP3CompR->setSingleStep(1);
    HScrollMP3CompR->setPageStep(10);
    HScrollMP3CompR->setMinimumWidth(200);
    CommandSelectFolder =
        commandButton(QStringLiteral("CommandSelectFolder"), QStringLiteral("参照"), f);
    CommandMakeFolder =
        commandButton(QStringLiteral("CommandMakeFolder"), QStringLiteral("ﾌｫﾙﾀﾞ作成"), f);
    CommandDelFolder =
        commandButton(QStringLiteral("CommandDelFolder"), QStringLiteral("ﾌｫﾙﾀﾞ削除"), f);
    CommandInitialSet =
        commandButton(QStringLiteral("CommandInitialSet"), QStringLiteral("初期設定"), f);

    auto* grid = new QGridLayout(f);
    grid->addWidget(heading(QStringLiteral("* 保存場所等の設定 *"), f), 0, 0, 1, 3);
    const std::pair<const char16_t*, QLineEdit*> rows[] = {
        {u"保存メインディレクトリー", TextPosKeepHTML}, {u"HTMLページ名 →", TextHTMLPageName},
        {u"HTML保存ｻﾌﾞﾃﾞｨﾚｸﾄﾘｰ", TextPosHTML},          {u"ﾒﾃﾞｨｱ保存ｻﾌﾞﾃﾞｨﾚｸﾄﾘｰ", TextPosMedia},
        {u"ｱｲｺﾝ等保存ｻﾌﾞﾃﾞｨﾚｸﾄﾘｰ", TextPosButton},
    };
    int r = 1;
    for (const auto& [label, box] : rows) {
        grid->addWidget(new QLabel(QString::fromUtf16(label), f), r, 0);
        grid->addWidget(box, r++, 1);
    }
    grid->addWidget(CommandSelectFolder, 1, 2);
    grid->addWidget(
        new QLabel(QStringLiteral("親ページ名 (http://で始まるｱﾄﾞﾚｽ指定可。小文字変換しません)"),
                   f),
        r++, 0, 1, 3);
    grid->addWidget(TextOyaFileName, r++, 0, 1, 3);
    grid->addWidget(CheckConvertSmallChara, r++, 0, 1, 3);
    grid->addWidget(CheckDelHTMLFolder, r++, 0, 1, 3);
    grid->addWidget(CheckWAVConvert, r++, 0, 1, 3);
    auto* rate = new QHBoxLayout;
    rate->addWidget(new QLabel(QStringLiteral("WAVファイル容量の約"), f));
    rate->addWidget(TextMP3CompR);
    rate->addWidget(new QLabel(QStringLiteral("% のMP3ファイルに変換する"), f));
    rate->addStretch(1);
    grid->addLayout(rate, r++, 0, 1, 3);
    auto* scale = new QHBoxLayout;
    scale->addWidget(HScrollMP3CompR, 1);
    scale->addWidget(new QLabel(QStringLiteral("（圧縮率の初期設定は20%）"), f));
    grid->addLayout(scale, r++, 0, 1, 3);
    auto* commands = new QHBoxLayout;
    commands->addStretch(1);
    commands->addWidget(CommandMakeFolder);
    commands->addWidget(CommandDelFolder);
    commands->addWidget(CommandInitialSet);
    grid->addLayout(commands, r, 0, 1, 3);
}

void FormMakeHTML::buildFrameSetFont()
{
    FrameSetFont = named<QGroupBox>(QStringLiteral("FrameSetFont"), this);
    QWidget* f = FrameSetFont;
    TextBackCol = textBox(QStringLiteral("TextBackCol"), f, kValueWidth);
    TextNumFontName = textBox(QStringLiteral("TextNumFontName"), f, kValueWidth);
    TextNumFontSize = textBox(QStringLiteral("TextNumFontSize"), f, kValueWidth);
    TextNumFontColor = textBox(QStringLiteral("TextNumFontColor"), f, kValueWidth);
    TextCommentFontName = textBox(QStringLiteral("TextCommentFontName"), f, kValueWidth);
    TextCommentFontSize = textBox(QStringLiteral("TextCommentFontSize"), f, kValueWidth);
    TextCommentFontColor = textBox(QStringLiteral("TextCommentFontColor"), f, kValueWidth);

    auto* grid = new QGridLayout(f);
    grid->addWidget(heading(QStringLiteral("* 表示文字等の設定 *"), f), 0, 0, 1, 7);
    grid->addWidget(new QLabel(QStringLiteral("ページの背景色"), f), 1, 0);
    grid->addWidget(TextBackCol, 1, 2);
    const std::tuple<const char16_t*, QLineEdit*, QLineEdit*, QLineEdit*> fonts[] = {
        {u"実行番号用フォント", TextNumFontName, TextNumFontSize, TextNumFontColor},
        {u"コメント用フォント", TextCommentFontName, TextCommentFontSize, TextCommentFontColor},
    };
    int r = 2;
    for (const auto& [label, name, size, color] : fonts) {
        grid->addWidget(new QLabel(QString::fromUtf16(label), f), r, 0);
        grid->addWidget(new QLabel(QStringLiteral("タイプ"), f), r, 1);
        grid->addWidget(name, r, 2);
        grid->addWidget(new QLabel(QStringLiteral("サイズ"), f), r, 3);
        grid->addWidget(size, r, 4);
        grid->addWidget(new QLabel(QStringLiteral("表示色"), f), r, 5);
        grid->addWidget(color, r++, 6);
    }
}

void FormMakeHTML::buildFrameSetButton()
{
    FrameSetButton = named<QGroupBox>(QStringLiteral("FrameSetButton"), this);
    QWidget* f = FrameSetButton;
    struct Row {
        const char16_t* label;
        QLineEdit*& path;
        PictureHolder*& picture;
        PictureHolder*& kept;
        QPushButton*& find;
        const char* names[4];
        ButtonIcon icon;
    };
    Row rows[] = {
        {u"左送り用",
         TextButtonLeft,
         PictureLeft,
         PictureKeepLeft,
         CommandFinedLeftIcon,
         {"TextButtonLeft", "PictureLeft", "PictureKeepLeft", "CommandFinedLeftIcon"},
         ButtonIcon::Left},
        {u"右送り用",
         TextButtonRight,
         PictureRight,
         PictureKeepRight,
         CommandFinedRightIcon,
         {"TextButtonRight", "PictureRight", "PictureKeepRight", "CommandFinedRightIcon"},
         ButtonIcon::Right},
        {u"先頭ページ用",
         TextButtonHead,
         PictureHead,
         PictureKeepHead,
         CommandSelectHeadIcon,
         {"TextButtonHead", "PictureHead", "PictureKeepHead", "CommandSelectHeadIcon"},
         ButtonIcon::Head},
        {u"最終ページ用",
         TextButtonTail,
         PictureTail,
         PictureKeepTail,
         CommandSelectTailIcon,
         {"TextButtonTail", "PictureTail", "PictureKeepTail", "CommandSelectTailIcon"},
         ButtonIcon::Tail},
        {u"親ページ用",
         TextButtonOya,
         PictureOya,
         PictureKeepOya,
         CommandFinedOyaIcon,
         {"TextButtonOya", "PictureOya", "PictureKeepOya", "CommandFinedOyaIcon"},
         ButtonIcon::Oya},
        {u"空白画像用",
         TextButtonBlankPic,
         PictureBlank,
         PictureKeepBlank,
         CommandFinedBlankPicIcon,
         {"TextButtonBlankPic", "PictureBlank", "PictureKeepBlank", "CommandFinedBlankPicIcon"},
         ButtonIcon::Blank},
    };
    auto* grid = new QGridLayout(f);
    grid->addWidget(
        heading(QStringLiteral("* ボタンの設定（ﾌｧｲﾙ名の指定がない時は表示画像を使用） *"), f), 0,
        0, 1, 4);
    int r = 1;
    for (Row& row : rows) {
        row.path = textBox(QString::fromLatin1(row.names[0]), f, kPathWidth);
        row.picture = new PictureHolder(QString::fromLatin1(row.names[1]), f);
        row.kept = new PictureHolder(QString::fromLatin1(row.names[2]), f);
        row.kept->hide();
        row.kept->setPicture(builtInButtonPicture(row.icon));
        row.picture->setPicture(row.kept->picture());
        row.find = commandButton(QString::fromLatin1(row.names[3]), QStringLiteral("参照"), f);
        grid->addWidget(new QLabel(QString::fromUtf16(row.label), f), r, 0);
        grid->addWidget(row.path, r, 1);
        grid->addWidget(row.picture, r, 2);
        grid->addWidget(row.find, r, 3);
        buttonRows_[r - 1] = {row.path, row.picture, row.kept, row.find};
        ++r;
    }
}

void FormMakeHTML::buildFrameSetDaisuu()
{
    FrameSetDaisuu = named<QGroupBox>(QStringLiteral("FrameSetDaisuu"), this);
    QWidget* f = FrameSetDaisuu;
    auto* grid = new QGridLayout(f);
    constexpr int kRowsPerColumn = kReplaceWords / 2;
    for (int index = 0; index < kReplaceWords; ++index) {
        auto* label =
            named<QLabel>(QStringLiteral("LabelReplaceWord"), replaceWordLabels()[index], f);
        label->setProperty("Index", index);
        auto* word = textBox(QStringLiteral("ExchageWord"), f, 200);
        word->setProperty("Index", index);
        LabelReplaceWord << label;
        ExchageWord << word;
        const int column = index / kRowsPerColumn * 2;
        grid->addWidget(label, index % kRowsPerColumn, column);
        grid->addWidget(word, index % kRowsPerColumn, column + 1);
    }
    grid->setColumnMinimumWidth(2, 190);
    CommandDaeisuuInitialSet =
        commandButton(QStringLiteral("CommandDaeisuuInitialSet"), QStringLiteral("初期設定"), f);
    CommandSetDaisuu = commandButton(QStringLiteral("CommandSetDaisuu"), QStringLiteral("設定"), f);
    auto* commands = new QHBoxLayout;
    commands->addStretch(1);
    commands->addWidget(CommandDaeisuuInitialSet);
    commands->addWidget(CommandSetDaisuu);
    grid->addLayout(commands, kRowsPerColumn, 0, 1, 4);
}

void FormMakeHTML::connectHandlers()
{
    const std::pair<QPushButton*, void (FormMakeHTML::*)()> clicks[] = {
        {CommandShowSampleHtml, &FormMakeHTML::CommandShowSampleHtml_Click},
        {CommandDispConfirm, &FormMakeHTML::CommandDispConfirm_Click},
        {CommandShowFolderSet, &FormMakeHTML::CommandShowFolderSet_Click},
        {CommandSetFont, &FormMakeHTML::CommandSetFont_Click},
        {CommandShowSetButton, &FormMakeHTML::CommandShowSetButton_Click},
        {CommandShowSetDaisuu, &FormMakeHTML::CommandShowSetDaisuu_Click},
        {CommandMakeHTML, &FormMakeHTML::CommandMakeHTML_Click},
        {CommandSelectFolder, &FormMakeHTML::CommandSelectFolder_Click},
        {CommandMakeFolder, &FormMakeHTML::CommandMakeFolder_Click},
        {CommandDelFolder, &FormMakeHTML::CommandDelFolder_Click},
        {CommandInitialSet, &FormMakeHTML::CommandInitialSet_Click},
        {CommandDaeisuuInitialSet, &FormMakeHTML::CommandDaeisuuInitialSet_Click},
        {CommandSetDaisuu, &FormMakeHTML::CommandSetDaisuu_Click},
    };
    for (const auto& [b, handler] : clicks)
        connect(b, &QPushButton::clicked, this, handler);
    for (const ButtonRow& row : buttonRows_)
        connect(row.find, &QPushButton::clicked, this, [this, row] { findIcon(row); });
    connect(CheckDelHTMLFolder, &QCheckBox::clicked, this, &FormMakeHTML::CheckDelHTMLFolder_Click);
    connect(HScrollMP3CompR, &QScrollBar::valueChanged, this,
            &FormMakeHTML::HScrollMP3CompR_Change);
    TextMP3CompR->installEventFilter(this);
}

bool FormMakeHTML::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == TextMP3CompR && event->type() == QEvent::MouseButtonDblClick)
        TextMP3CompR_DblClick();
    return FormBase::eventFilter(watched, event);
}

// Showing a frame hides the other three and sets it under FrameMain,
// centred across the window, with the window as high as the two need.
void FormMakeHTML::showFrame(QGroupBox* shown)
{
    for (QGroupBox* f : {FrameSetDir, FrameSetFont, FrameSetButton, FrameSetDaisuu})
        f->setVisible(f == shown);
    shownFrame_ = shown;
    layOutFrames();
}

void FormMakeHTML::layOutFrames()
{
    if (!shownFrame_ || layingOut_)
        return;
    layingOut_ = true;
    const QSize mainSize = FrameMain->sizeHint();
    twMove(FrameMain, (twScaleWidth(this) - pixelsToTwips(mainSize.width())) / 2, kMargin / 2,
           pixelsToTwips(mainSize.width()), pixelsToTwips(mainSize.height()));
    const QSize size = shownFrame_->sizeHint();
    const float top = twTop(FrameMain) + twHeight(FrameMain) + kFrameGap;
    twMove(shownFrame_, (twScaleWidth(this) - pixelsToTwips(size.width())) / 2, top,
           pixelsToTwips(size.width()), pixelsToTwips(size.height()));
    resize(width(), twipsToPixels(top + twHeight(shownFrame_) + kMargin / 2));
    layingOut_ = false;
}

void FormMakeHTML::resizeEvent(QResizeEvent* event)
{
    FormBase::resizeEvent(event);
    layOutFrames();
}

} // namespace lumen
