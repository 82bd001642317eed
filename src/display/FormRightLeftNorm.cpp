#include "display/FormRightLeftNorm.h"

#include "display/PopupSupport.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/ClickLabel.h"
#include "platform/Controls.h"

#include <QCloseEvent>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

constexpr int kBarMax = 32767; // a new scroll bar's range, until the main window's is copied

} // namespace

FormRightLeftNorm::FormRightLeftNorm(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormRightLeftNorm"), parent, Qt::Window | Qt::WindowStaysOnTopHint)
    , basics_(basics)
{
    CommandLeft = commandButton(QStringLiteral("CommandLeft"), QStringLiteral("←"), this);
    CommandRight = commandButton(QStringLiteral("CommandRight"), QStringLiteral("→"), this);
    HScroll1 = named<QScrollBar>(QStringLiteral("HScroll1"), Qt::Horizontal, this);
    HScroll1->setRange(0, kBarMax);
    HScroll1->setTracking(false); // the page turns when the bar is let go
    HScroll1->setMinimumWidth(150);
    CommandToNormalSize =
        commandButton(QStringLiteral("CommandToNormalSize"), QStringLiteral("標準表示"), this);
    CommandIELeft = commandButton(QStringLiteral("CommandIELeft"), QStringLiteral("戻"), this);
    CommandIERight = commandButton(QStringLiteral("CommandIERight"), QStringLiteral("進"), this);
    CommandEnd = commandButton(QStringLiteral("CommandEnd"), QStringLiteral("終了"), this);
    Shape1 = named<QFrame>(QStringLiteral("Shape1"), this);
    Shape1->setFrameShape(QFrame::Box);
    LabelDo = new ClickLabel(QStringLiteral("LabelDo"), QStringLiteral("表示"), Shape1);
    LabelDo->setAlignment(Qt::AlignCenter);
    LabelDo->setMinimumWidth(LabelDo->fontMetrics().horizontalAdvance(LabelDo->text()) + 16);
    LabelDo->installEventFilter(this);
    auto* inShape = new QHBoxLayout(Shape1);
    inShape->setContentsMargins(2, 2, 2, 2);
    inShape->addWidget(LabelDo);

    for (QPushButton* b : {CommandIELeft, CommandIERight})
        b->setFixedWidth(b->fontMetrics().horizontalAdvance(b->text()) + 18);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setSpacing(4);
    auto* paging = new QHBoxLayout;
    paging->addWidget(CommandLeft);
    paging->addWidget(CommandRight);
    paging->addWidget(HScroll1, 1);
    grid->addLayout(paging, 0, 0);
    auto* commands = new QHBoxLayout;
    commands->addWidget(Shape1);
    commands->addWidget(CommandIELeft);
    commands->addWidget(CommandIERight);
    commands->addStretch(1);
    commands->addWidget(CommandToNormalSize);
    commands->addWidget(CommandEnd);
    grid->addLayout(commands, 1, 0);
    resize(sizeHint().expandedTo(QSize(330, 0)));

    connect(CommandLeft, &QPushButton::clicked, this, &FormRightLeftNorm::CommandLeft_Click);
    connect(CommandRight, &QPushButton::clicked, this, &FormRightLeftNorm::CommandRight_Click);
    connect(HScroll1, &QScrollBar::valueChanged, this, &FormRightLeftNorm::HScroll1_Change);
    connect(CommandToNormalSize, &QPushButton::clicked, this,
            &FormRightLeftNorm::CommandToNormalSize_Click);
    connect(LabelDo, &ClickLabel::clicked, this, &FormRightLeftNorm::LabelDo_Click);
    connect(CommandEnd, &QPushButton::clicked, this, &FormRightLeftNorm::CommandEnd_Click);
    connect(CommandIELeft, &QPushButton::clicked, this, &FormRightLeftNorm::CommandIELeft_Click);
    connect(CommandIERight, &QPushButton::clicked, this, &FormRightLeftNorm::CommandIERight_Click);
    addShowKeys(this, [this](ShowKey key) {
        if (links.showKey)
            links.showKey(key);
        copyPageBar();
    });
}

void FormRightLeftNorm::setPage(int value)
{
    if (value >= HScroll1->minimum() && value <= HScroll1->maximum())
        HScroll1->setValue(value);
    refreshWebButtons();
}

void FormRightLeftNorm::copyPageBar()
{
    if (links.pageBarValue)
        setPage(links.pageBarValue());
}

void FormRightLeftNorm::refreshWebButtons()
{
    const bool web = links.webPageShown && links.webPageShown();
    CommandIELeft->setEnabled(web);
    CommandIERight->setEnabled(web);
}

void FormRightLeftNorm::CommandLeft_Click()
{
    if (links.commandLeft)
        links.commandLeft();
    copyPageBar();
}

void FormRightLeftNorm::CommandRight_Click()
{
    if (links.commandRight)
        links.commandRight();
    copyPageBar();
}

void FormRightLeftNorm::HScroll1_Change()
{
    if (links.setPageBar)
        links.setPageBar(HScroll1->value());
}

void FormRightLeftNorm::CommandToNormalSize_Click()
{
    if (links.toNormalSize)
        links.toNormalSize();
}

void FormRightLeftNorm::LabelDo_Click()
{
    if (links.takeMainAction)
        links.takeMainAction();
}

void FormRightLeftNorm::LabelDo_MouseMove()
{
    // Beside the window, at its top.
    basics_.ShowFloatingMessage(int(twLeft(this) + twWidth(this)), int(twTop(this)),
                                QStringLiteral(" 今のﾍﾟｰｼﾞをもう一度表示 "));
}

void FormRightLeftNorm::CommandEnd_Click()
{
    if (links.showExit)
        links.showExit();
}

void FormRightLeftNorm::CommandIELeft_Click()
{
    if (links.webPageShown && links.webPageShown() && links.ieLeft)
        links.ieLeft();
}

void FormRightLeftNorm::CommandIERight_Click()
{
    if (links.webPageShown && links.webPageShown() && links.ieRight)
        links.ieRight();
}

bool FormRightLeftNorm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == LabelDo && event->type() == QEvent::Enter)
        LabelDo_MouseMove();
    return FormBase::eventFilter(watched, event);
}

void FormRightLeftNorm::closeEvent(QCloseEvent* event)
{
    if (links.wholeScreen && links.wholeScreen() && links.toNormalSize) {
        event->ignore();
        links.toNormalSize(); // unloads this window too
        return;
    }
    FormBase::closeEvent(event);
}

void FormRightLeftNorm::showEvent(QShowEvent* event)
{
    FormBase::showEvent(event);
    refreshWebButtons();
}

} // namespace lumen
