#include "settings/FormSetFontAndColor.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QComboBox>
#include <QDynamicPropertyChangeEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace lumen {
namespace {

using namespace basic;

// A colour button shows its colour; a field that isn't a number shows grey.
void showColor(QPushButton* swatch, const QString& text)
{
    setBackColor(swatch, IsNumeric(text) ? bgrFromText(text) : kColorGrey);
}

} // namespace

FormSetFontAndColor::FormSetFontAndColor(VeroProcedure_Basical& basics, SetTargets targets,
                                         QWidget* parent)
    : FormBase(QStringLiteral("FormSetFontAndColor"), parent, Qt::Tool)
    , basics_(basics)
    , targets_(std::move(targets))
{
    setWindowTitle(QStringLiteral("ﾌｫﾝﾄと色の指定"));
    Combo1 = named<QComboBox>(QStringLiteral("Combo1"), this);
    Combo1->setEditable(true);
    Combo1->setMinimumContentsLength(12);
    CommandSaveAs =
        commandButton(QStringLiteral("CommandSaveAs"), QStringLiteral("名前を付けて記憶"), this);
    CommandFont = commandButton(QStringLiteral("CommandFont"), QStringLiteral("ﾌｫﾝﾄ"), this);
    LabelFont = named<QLabel>(QStringLiteral("LabelFont"), QString(), this);
    CommandForeColor = commandButton(QStringLiteral("CommandForeColor"), QString(), this);
    LabelForeColor =
        named<QLabel>(QStringLiteral("LabelForeColor"), QStringLiteral("文字の色"), this);
    CommandBackColor = commandButton(QStringLiteral("CommandBackColor"), QString(), this);
    LabelBackColor =
        named<QLabel>(QStringLiteral("LabelBackColor"), QStringLiteral("背景色"), this);
    LabelSample = named<QLabel>(QStringLiteral("LabelSample"), QString(), this);
    LabelSample->setAlignment(Qt::AlignCenter);
    LabelSample->setFrameShape(QFrame::Box);
    LabelSample->setMinimumHeight(56);
    CommandReset = commandButton(QStringLiteral("CommandReset"), QStringLiteral("設定ｸﾘｱ"), this);
    CommandExit = commandButton(QStringLiteral("CommandExit"), QStringLiteral("終了"), this);
    layOut();

    connect(CommandSaveAs, &QPushButton::clicked, this, &FormSetFontAndColor::CommandSaveAs_Click);
    connect(CommandFont, &QPushButton::clicked, this, &FormSetFontAndColor::CommandFont_Click);
    connect(CommandForeColor, &QPushButton::clicked, this,
            &FormSetFontAndColor::CommandForeColor_Click);
    connect(CommandBackColor, &QPushButton::clicked, this,
            &FormSetFontAndColor::CommandBackColor_Click);
    connect(CommandReset, &QPushButton::clicked, this, &FormSetFontAndColor::CommandReset_Click);
    connect(CommandExit, &QPushButton::clicked, this, &FormSetFontAndColor::CommandExit_Click);
}

void FormSetFontAndColor::layOut()
{
    for (QPushButton* swatch : {CommandForeColor, CommandBackColor})
        swatch->setFixedSize(34, 24);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(10, 10, 10, 10);
    grid->setHorizontalSpacing(8);
    grid->addWidget(Combo1, 0, 0, 1, 2);
    grid->addWidget(CommandSaveAs, 0, 2, 1, 2);
    grid->addWidget(CommandFont, 1, 0);
    grid->addWidget(LabelFont, 1, 1, 1, 3);
    grid->addWidget(CommandForeColor, 2, 0, Qt::AlignRight);
    grid->addWidget(LabelForeColor, 2, 1);
    grid->addWidget(CommandBackColor, 2, 2, Qt::AlignRight);
    grid->addWidget(LabelBackColor, 2, 3);
    grid->addWidget(LabelSample, 3, 0, 1, 4);
    grid->addWidget(CommandReset, 4, 0, 1, 2, Qt::AlignLeft);
    grid->addWidget(CommandExit, 4, 2, 1, 2, Qt::AlignRight);
}

bool FormSetFontAndColor::event(QEvent* event)
{
    if (event->type() == QEvent::DynamicPropertyChange &&
        static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName() == "mode")
        setMode(property("mode").toString());
    return FormBase::event(event);
}

void FormSetFontAndColor::setMode(const QString& mode)
{
    SetKind = mode;
    Combo1->clear();
    Combo1->addItems(setNamesOf(group()));
    Combo1->setCurrentIndex(Combo1->count() > 0 ? 0 : -1);
    showSet();
}

void FormSetFontAndColor::Form_Load()
{
    showSet();
}

FontColorSet FormSetFontAndColor::current() const
{
    return setFromRecord(basics_.state().DirecData, group());
}

void FormSetFontAndColor::take(const FontColorSet& set)
{
    storeSetInRecord(basics_.state().DirecData, group(), set);
    applySet(targets_, group(), set);
    showSet();
}

void FormSetFontAndColor::showSet()
{
    const FontColorSet set = current();
    const bool fonts = group() != SetGroup::PictBackCol;
    for (QWidget* w :
         std::initializer_list<QWidget*>{CommandFont, LabelFont, CommandForeColor, LabelForeColor})
        w->setVisible(fonts);
    LabelFont->setText(fonts ? set.fontName + QStringLiteral("   ") + set.fontSize +
                                   QStringLiteral(" pt")
                             : QString());
    showColor(CommandBackColor, set.firstColor);
    showColor(CommandForeColor, set.secondColor);

    // The sample: the letters in the set's font and colours on its ground.
    QFont sample = font();
    if (fonts)
        sample = fontFrom(sample, set.fontName, IsNumeric(set.fontSize) ? Val(set.fontSize) : 0);
    LabelSample->setFont(sample);
    LabelSample->setText(fonts ? QStringLiteral("ｻﾝﾌﾟﾙ  あア亜  Aa") : QString());
    if (IsNumeric(set.firstColor))
        setBackColor(LabelSample, bgrFromText(set.firstColor));
    if (fonts && IsNumeric(set.secondColor))
        setForeColor(LabelSample, bgrFromText(set.secondColor));
}

void FormSetFontAndColor::CommandSaveAs_Click()
{
    if (!writeSetFile(basics_, Combo1->currentText(), current())) {
        basics_.services().ui.beep();
        return;
    }
    if (Combo1->findText(Combo1->currentText()) < 0)
        Combo1->addItem(Combo1->currentText());
}

void FormSetFontAndColor::CommandFont_Click()
{
    FontColorSet set = current();
    const auto chosen =
        basics_.services().ui.chooseFont(resolveFontFamily(set.fontName), Val(set.fontSize));
    if (!chosen)
        return;
    set.fontName = chosen->family;
    set.fontSize = Format(chosen->pointSize, QString());
    take(set);
}

void FormSetFontAndColor::CommandForeColor_Click()
{
    chooseColor(&FontColorSet::secondColor);
}

void FormSetFontAndColor::CommandBackColor_Click()
{
    chooseColor(&FontColorSet::firstColor);
}

// The colour dialog starts at the field's colour; a choice is taken at once.
void FormSetFontAndColor::chooseColor(QString FontColorSet::*color)
{
    FontColorSet set = current();
    const auto chosen = basics_.services().ui.chooseColor(bgrFromText(set.*color));
    if (!chosen)
        return;
    set.*color = bgrToHexText(*chosen);
    take(set);
}

void FormSetFontAndColor::CommandReset_Click()
{
    take(defaultSet(group()));
}

void FormSetFontAndColor::CommandExit_Click()
{
    ProgramState& state = basics_.state();
    writeDirecData(
        basics_.services().fs.toNative(state.ProgramRunDir + QStringLiteral("\\DirecData.ran")),
        state.DirecData);
    unload();
}

} // namespace lumen
