// FormModPic: its controls, its settings and the palette. The drawing itself
// is in FormModPicDraw.cpp.
#include "picture/FormModPic.h"

#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "picture/PictureWindows.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace lumen {
namespace {

using namespace basic;

// The palette as it is designed: the colours a double click hasn't changed.
constexpr std::array<qint32, 16> kPalette = {
    0x000000, 0xFFFFFF, 0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFFFF00, 0xFF00FF,
    0xC0C0C0, 0x808080, 0x0080FF, 0x004080, 0x000080, 0x008000, 0x800000, 0xC0C0FF};

constexpr qint32 kDefaultLineColor = 0x0000FF;  // red
constexpr qint32 kDefaultPaintColor = 0x00FFFF; // yellow
constexpr qint16 kDefaultLineSize = 1;
constexpr qint16 kDefaultOrder = 3;
constexpr int kHighestOrder = 8; // the recursion costs about 2 to the order a basis

ClickLabel* colourSquare(const QString& name, QWidget* parent, int size)
{
    auto* square = new ClickLabel(name, QString(), parent);
    square->setFixedSize(size, size);
    square->setFrameShape(QFrame::Box);
    square->setAutoFillBackground(true);
    return square;
}

qint32 colourOf(const QString& text, qint32 fallback)
{
    return IsNumeric(text) ? bgrFromText(text) : fallback;
}

} // namespace

FormModPic::FormModPic(VeroProcedure_Basical& basics, FormMain& main, FormRegistry& forms,
                       QWidget* parent)
    // A window of the main window's: the desktop keeps it above that one.
    : FormBase(QStringLiteral("FormModPic"), parent ? parent : &main)
    , basics_(basics)
    , main_(main)
    , forms_(forms)
    , picture_(main.Picture2)
{
    setWindowTitle(QStringLiteral("作図"));
    curve.closed = [this] { return OptionSplineClose->isChecked(); };
    buildControls();
    layOut();
    connectHandlers();
}

FormModPic::~FormModPic() = default;

void FormModPic::buildControls()
{
    OptionPen = named<QRadioButton>(QStringLiteral("OptionPen"), QStringLiteral("ペン"));
    OptionLine = named<QRadioButton>(QStringLiteral("OptionLine"), QStringLiteral("直線"));
    OptionCir = named<QRadioButton>(QStringLiteral("OptionCir"), QStringLiteral("円"));
    OptionSplineOpen =
        named<QRadioButton>(QStringLiteral("OptionSplineOpen"), QStringLiteral("曲線(ｵｰﾌﾟﾝ)"));
    OptionSplineClose =
        named<QRadioButton>(QStringLiteral("OptionSplineClose"), QStringLiteral("曲線(ｸﾛｰｽﾞ)"));
    OptionPen->setChecked(true);
    ComboLineSize = named<QComboBox>(QStringLiteral("ComboLineSize"));
    ComboLineSize->setEditable(true);
    for (int size : {1, 2, 3, 4, 5, 6, 8, 10, 15, 20})
        ComboLineSize->addItem(QString::number(size));
    // The order is chosen from the list: a free one could keep the recursion
    // busy for hours.
    ComboMarumeKeisuu = named<QComboBox>(QStringLiteral("ComboMarumeKeisuu"));
    for (int order = 1; order <= kHighestOrder; ++order)
        ComboMarumeKeisuu->addItem(QString::number(order));
    LabelLineColor = colourSquare(QStringLiteral("LabelLineColor"), this, 28);
    CommandPickColLine =
        commandButton(QStringLiteral("CommandPickColLine"), QStringLiteral("抽出"), this);
    CommandStartDrawLine =
        commandButton(QStringLiteral("CommandStartDrawLine"), QStringLiteral("作図開始"), this);
    CommandDoSpline =
        commandButton(QStringLiteral("CommandDoSpline"), QStringLiteral("仮OK"), this);
    CommandStopDrawLine =
        commandButton(QStringLiteral("CommandStopDrawLine"), QStringLiteral("OK"), this);
    CommandHelpBlue = commandButton(QStringLiteral("CommandHelpBlue"), QStringLiteral("?"), this);
    CommandHelpBlue2 = commandButton(QStringLiteral("CommandHelpBlue2"), QStringLiteral("?"), this);
    for (QPushButton* help : {CommandHelpBlue, CommandHelpBlue2})
        help->setFixedWidth(24);
    for (int index = 0; index < int(kPalette.size()); ++index) {
        ClickLabel* square = colourSquare(QStringLiteral("LabelColSel"), this, 16);
        square->setProperty("Index", index);
        square->installEventFilter(this);
        LabelColSel << square;
    }
    LabelResetCol = new ClickLabel(QStringLiteral("LabelResetCol"), QStringLiteral("ﾘｾｯﾄ"), this);
    LabelResetCol->setFrameShape(QFrame::Box);
    OptionIroChikan = named<QRadioButton>(QStringLiteral("OptionIroChikan"),
                                          QStringLiteral("指定色の部分を置換する"));
    OptionWakunaiChikan = named<QRadioButton>(QStringLiteral("OptionWakunaiChikan"),
                                              QStringLiteral("指定色で囲まれた範囲を塗る"));
    OptionWakunaiChikan->setChecked(true);
    LabelPastColor = colourSquare(QStringLiteral("LabelPastColor"), this, 28);
    CommandPickColFill =
        commandButton(QStringLiteral("CommandPickColFill"), QStringLiteral("抽出"), this);
    CommandStartPaintColor = commandButton(QStringLiteral("CommandStartPaintColor"),
                                           QStringLiteral("塗りつぶし開始"), this);
    CommandStopDrawPaint =
        commandButton(QStringLiteral("CommandStopDrawPaint"), QStringLiteral("OK"), this);
}

void FormModPic::layOut()
{
    auto* lines = new QGroupBox(this);
    auto* shapes = new QHBoxLayout;
    for (QRadioButton* option :
         {OptionPen, OptionLine, OptionCir, OptionSplineOpen, OptionSplineClose}) {
        option->setParent(lines);
        shapes->addWidget(option);
    }
    auto* sizes = new QHBoxLayout;
    sizes->addWidget(new QLabel(QStringLiteral("太さ"), lines));
    sizes->addWidget(ComboLineSize);
    sizes->addSpacing(8);
    sizes->addWidget(new QLabel(QStringLiteral("曲線丸め係数"), lines));
    sizes->addWidget(ComboMarumeKeisuu);
    sizes->addSpacing(8);
    sizes->addWidget(new QLabel(QStringLiteral("指定色"), lines));
    sizes->addWidget(LabelLineColor);
    sizes->addWidget(CommandPickColLine);
    sizes->addStretch(1);
    auto* commands = new QHBoxLayout;
    commands->addWidget(CommandStartDrawLine);
    commands->addWidget(CommandDoSpline);
    commands->addWidget(CommandStopDrawLine);
    commands->addWidget(CommandHelpBlue);
    commands->addWidget(CommandHelpBlue2);
    commands->addStretch(1);
    auto* lineColumn = new QVBoxLayout(lines);
    lineColumn->addLayout(shapes);
    lineColumn->addLayout(sizes);
    lineColumn->addLayout(commands);

    auto* palette = new QHBoxLayout;
    palette->setSpacing(2);
    for (ClickLabel* square : LabelColSel)
        palette->addWidget(square);
    palette->addSpacing(6);
    palette->addWidget(LabelResetCol);
    palette->addStretch(1);

    auto* paint = new QGroupBox(this);
    OptionIroChikan->setParent(paint);
    OptionWakunaiChikan->setParent(paint);
    auto* paintColumn = new QVBoxLayout(paint);
    paintColumn->addWidget(OptionIroChikan);
    paintColumn->addWidget(OptionWakunaiChikan);
    auto* paintColour = new QHBoxLayout;
    paintColour->addWidget(new QLabel(QStringLiteral("塗るつぶしに使う色"), paint));
    paintColour->addWidget(LabelPastColor);
    paintColour->addWidget(CommandPickColFill);
    paintColour->addSpacing(8);
    paintColour->addWidget(CommandStartPaintColor);
    paintColour->addWidget(CommandStopDrawPaint);
    paintColour->addStretch(1);
    paintColumn->addLayout(paintColour);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(lines);
    column->addLayout(palette);
    column->addWidget(paint);
}

void FormModPic::connectHandlers()
{
    connect(CommandStartDrawLine, &QPushButton::clicked, this,
            &FormModPic::CommandStartDrawLine_Click);
    connect(CommandDoSpline, &QPushButton::clicked, this, &FormModPic::CommandDoSpline_Click);
    connect(CommandStopDrawLine, &QPushButton::clicked, this,
            &FormModPic::CommandStopDrawLine_Click);
    connect(CommandPickColLine, &QPushButton::clicked, this, &FormModPic::CommandPickColLine_Click);
    connect(CommandPickColFill, &QPushButton::clicked, this, &FormModPic::CommandPickColFill_Click);
    connect(CommandStartPaintColor, &QPushButton::clicked, this,
            &FormModPic::CommandStartPaintColor_Click);
    connect(CommandStopDrawPaint, &QPushButton::clicked, this,
            &FormModPic::CommandStopDrawPaint_Click);
    connect(CommandHelpBlue, &QPushButton::clicked, this, &FormModPic::CommandHelpBlue_Click);
    connect(CommandHelpBlue2, &QPushButton::clicked, this, &FormModPic::CommandHelpBlue2_Click);
    connect(LabelLineColor, &ClickLabel::clicked, this, &FormModPic::LabelLineColor_Click);
    connect(LabelPastColor, &ClickLabel::clicked, this, &FormModPic::LabelPastColor_Click);
    connect(LabelResetCol, &ClickLabel::clicked, this, &FormModPic::LabelResetCol_Click);
    for (int index = 0; index < LabelColSel.size(); ++index) {
        connect(LabelColSel[index], &ClickLabel::mouseUp, this,
                [this, index](Qt::MouseButton button, float, float) {
                    LabelColSel_MouseUp(index, button);
                });
    }
    connect(picture_, &PictureBox::mouseDown, this, &FormModPic::Picture2_MouseDown);
    connect(picture_, &PictureBox::mouseMove, this, &FormModPic::Picture2_MouseMove);
    connect(picture_, &PictureBox::mouseUp, this, &FormModPic::Picture2_MouseUp);
}

bool FormModPic::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        const int index = LabelColSel.indexOf(qobject_cast<ClickLabel*>(watched));
        if (index >= 0 && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            LabelColSel_DblClick(index);
            return true;
        }
    }
    return FormBase::eventFilter(watched, event);
}

void FormModPic::Form_Load()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    adjustSize();
    placeFromRecord(this, record.ModPicValues[0], record.ModPicValues[1], Qt::BottomRightCorner);
    const qint16 size = record.ModPicValues2[0];
    ComboLineSize->setCurrentText(QString::number(size == 0 ? kDefaultLineSize : size));
    const qint16 order = record.ModPicValues2[1];
    const bool listed = order >= 1 && order <= kHighestOrder;
    ComboMarumeKeisuu->setCurrentText(QString::number(listed ? order : kDefaultOrder));
    LabelResetCol_Click();
    setBackColor(LabelLineColor,
                 colourOf(Trim(FixedText(record.ModPicTexts[0])), kDefaultLineColor));
    setBackColor(LabelPastColor,
                 colourOf(Trim(FixedText(record.ModPicTexts[1])), kDefaultPaintColor));

    keptSettings_ = picture_->drawSettings();
    keptAutoRedraw_ = picture_->autoRedraw();
    curve.clear();
    DragPoint = -1;
    resetButtons();
    CommandDoSpline->setEnabled(false);
    CommandStopDrawLine->setEnabled(false);
}

void FormModPic::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    DirecDataRecord& record = basics_.state().DirecData;
    const RecordPlace place = recordPlace(this);
    record.ModPicValues = {place.left, place.top};
    record.ModPicTexts = {bgrToHexText(backColor(LabelLineColor)),
                          bgrToHexText(backColor(LabelPastColor))};
    record.ModPicValues2 = {ClampInt16(Val(ComboLineSize->currentText())),
                            ClampInt16(Val(ComboMarumeKeisuu->currentText()))};
    const QString bitmap = settingsFile(basics_.state(), QStringLiteral("LastPic0.bmp"));
    if (basics_.FileExists(bitmap))
        basics_.services().fs.deleteFile(bitmap);
    picture_->drawSettings() = keptSettings_;
    picture_->setAutoRedraw(keptAutoRedraw_);
    setBackColor(main_.CommandModPic, kColorButtonFace);
}

void FormModPic::CommandHelpBlue_Click()
{
    const QStringList text = {
        QStringLiteral("曲線の作図はｽﾌﾟﾗｲﾝ計算しますので、滑らかな線を書けます。"),
        QStringLiteral("[仮OK]をｸﾘｯｸしてから、形状を変形させることができます。"),
        QStringLiteral("[OK]をｸﾘｯｸすると、現在の表示画像を仮画像として記憶します。"),
        QString(),
        QStringLiteral("指定色は大きい四角をｸﾘｯｸするか、小さい四角をﾀﾞﾌﾞﾙｸﾘｯｸすると、"),
        QStringLiteral("また、[抽出]というｺﾏﾝﾄﾞﾎﾞﾀﾝをｸﾘｯｸして画像から色の選択ができます。"),
        QString(),
        QStringLiteral("注意：[OK]をｸﾘｯｸした時点で画像が保存され、後で呼び出すことができます。"),
    };
    basics_.services().ui.msgBox(text.join(QStringLiteral("\r\n")));
}

void FormModPic::CommandHelpBlue2_Click()
{
    basics_.services().ui.msgBox(QStringLiteral("[OK]をｸﾘｯｸして作られた仮画像は、\r\n"
                                                "ｽｸﾛｰﾙﾊﾞｰで呼び出すことができます。\r\n"
                                                "また、記憶する画像数も指定できます。"));
}

void FormModPic::LabelLineColor_Click()
{
    if (const auto chosen = basics_.services().ui.chooseColor(backColor(LabelLineColor)))
        setBackColor(LabelLineColor, *chosen);
}

void FormModPic::LabelPastColor_Click()
{
    if (const auto chosen = basics_.services().ui.chooseColor(backColor(LabelPastColor)))
        setBackColor(LabelPastColor, *chosen);
}

void FormModPic::LabelColSel_MouseUp(int index, Qt::MouseButton button)
{
    // The left button chooses the line's colour, the right one the paint's.
    const qint32 colour = backColor(LabelColSel.value(index));
    if (button == Qt::LeftButton)
        setBackColor(LabelLineColor, colour);
    else if (button == Qt::RightButton)
        setBackColor(LabelPastColor, colour);
}

void FormModPic::LabelColSel_DblClick(int index)
{
    ClickLabel* square = LabelColSel.value(index);
    if (!square)
        return;
    if (const auto chosen = basics_.services().ui.chooseColor(backColor(square))) {
        setBackColor(square, *chosen);
        setBackColor(LabelLineColor, *chosen);
    }
}

void FormModPic::LabelResetCol_Click()
{
    for (int index = 0; index < LabelColSel.size(); ++index)
        setBackColor(LabelColSel[index], kPalette[size_t(index)]);
}

} // namespace lumen
