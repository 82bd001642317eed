#include "display/FormPictureScrollSet.h"

#include "display/PopupSupport.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "state/ProgramState.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

using namespace basic;

QLabel* label(const QString& name, const QString& caption, Qt::Alignment alignment, QWidget* parent)
{
    auto* text = named<QLabel>(name, caption, parent);
    text->setAlignment(alignment | Qt::AlignVCenter);
    return text;
}

} // namespace

FormPictureScrollSet::FormPictureScrollSet(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormPictureScrollSet"), parent, Qt::Dialog)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("縮小許容値設定"));
    HScroll1 = named<QScrollBar>(QStringLiteral("HScroll1"), Qt::Horizontal, this);
    HScroll1->setRange(0, 100);
    HScroll1->setSingleStep(5);
    HScroll1->setPageStep(20);
    HScroll1->setMinimumWidth(360);
    LabelVal = label(QStringLiteral("LabelVal"), QStringLiteral("20"), Qt::AlignHCenter, this);
    QFont big = LabelVal->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    LabelVal->setFont(big);
    Label1 = label(QStringLiteral("Label1"), QStringLiteral("かなり大きい画像のみ縮小"),
                   Qt::AlignRight, this);
    Label4 = label(QStringLiteral("Label4"), QStringLiteral("画面より大きい画像はすぐ縮小"),
                   Qt::AlignLeft, this);
    CommandWordSet = commandButton(QStringLiteral("CommandWordSet"), QStringLiteral("設定"), this);
    CommandEnd = commandButton(QStringLiteral("CommandEnd"), QStringLiteral("終了"), this);
    setBackColor(CommandWordSet, kColorGrey);

    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(16);
    grid->addWidget(Label4, 0, 0);
    grid->addWidget(LabelVal, 0, 1);
    grid->addWidget(Label1, 0, 2);
    grid->addWidget(HScroll1, 1, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(CommandWordSet);
    buttons->addWidget(CommandEnd);
    grid->addLayout(buttons, 2, 0, 1, 3);
    setFixedSize(sizeHint());

    connect(HScroll1, &QScrollBar::valueChanged, this, &FormPictureScrollSet::HScroll1_Change);
    connect(CommandWordSet, &QPushButton::clicked, this,
            &FormPictureScrollSet::CommandWordSet_Click);
    connect(CommandEnd, &QPushButton::clicked, this, &FormPictureScrollSet::CommandEnd_Click);
}

void FormPictureScrollSet::Form_Load()
{
    // A value off the scale is refused, and the bar stays where it was.
    const qint32 allowance = basics_.state().PictureSizeAllowVal;
    if (allowance >= HScroll1->minimum() && allowance <= HScroll1->maximum())
        HScroll1->setValue(allowance);
}

void FormPictureScrollSet::HScroll1_Change()
{
    LabelVal->setText(QString::number(HScroll1->value()));
}

void FormPictureScrollSet::CommandWordSet_Click()
{
    ProgramState& state = basics_.state();
    setBackColor(CommandWordSet, kColorYellow);
    basics_.BeepBurst();
    state.PictureSizeAllowVal = HScroll1->value();
    const QString file = state.ProgramRunDir + QStringLiteral("\\PictureSizeAllowVal.dat");
    if (basics_.FileExists(file)) {
        const QString value = Trim(LabelVal->text());
        basics_.WriteTextToFile(value, file);
        StoreInt32(state.PictureSizeAllowVal, Val(value));
    }
    basics_.WaitMilliseconds(300);
    setBackColor(CommandWordSet, kColorGrey);
}

void FormPictureScrollSet::CommandEnd_Click()
{
    unload();
}

} // namespace lumen
