#include "settings/FormCommandConbo.h"

#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"
#include "state/ProgramState.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>

namespace lumen {
namespace {

using namespace basic;

// The slots of CommandWord that are option words, in the order they are
// compared.
QList<int> optionSlots()
{
    QList<int> slots;
    for (int i = kStopSound; i < kWith; ++i)
        slots << i;
    return slots << kListAutoStartOn << kListAutoStartOff;
}

} // namespace

FormCommandConbo::FormCommandConbo(VeroProcedure_Basical& basics, SetTargets targets,
                                   QWidget* parent)
    : FormBase(QStringLiteral("FormCommandConbo"), parent)
    , basics_(basics)
    , targets_(std::move(targets))
{
    setWindowTitle(QStringLiteral("ｵﾌﾟｼｮﾝｺﾏﾝﾄﾞ"));
    ComboCommandList = named<QComboBox>(QStringLiteral("ComboCommandList"), this);
    ComboCommandList->setEditable(true);
    ComboCommandList->setMinimumContentsLength(18);
    CommandDo = named<QPushButton>(QStringLiteral("CommandDo"), QStringLiteral("実行"), this);
    auto* row = new QHBoxLayout(this);
    row->addWidget(ComboCommandList, 1);
    row->addWidget(CommandDo);
    connect(CommandDo, &QPushButton::clicked, this, &FormCommandConbo::CommandDo_Click);
}

void FormCommandConbo::Form_Load()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    ComboCommandList->setFont(fontFrom(ComboCommandList->font(), FixedText(record.DispFontName),
                                       Val(FixedText(record.DispFontSize))));
    ComboCommandList->clear();
    const QStringList& words = basics_.state().CommandWord;
    for (int slot : optionSlots())
        ComboCommandList->addItem(words.value(slot));
    ComboCommandList->setCurrentIndex(0);
}

void FormCommandConbo::CommandDo_Click()
{
    const QString text = ComboCommandList->currentText();
    const QString word = UCase(Trim(text));
    const QString setFile = Trim(text) + QStringLiteral(".dat");
    ProgramState& state = basics_.state();
    int index = 0;
    for (int slot : optionSlots()) {
        if (word == state.CommandWord.value(slot)) {
            index = slot;
            break;
        }
    }
    auto call = [](const auto& link, auto... arguments) {
        if (link)
            link(arguments...);
    };
    switch (index) {
    case kFormMaximamSize:
        call(links.commandFull);
        return;
    case kFormNormalSize:
        call(links.formNormalSize);
        return;
    case kPictureScroll:
    case kPutPictureInImage:
        call(links.originalSize, index == kPictureScroll);
        return;
    case kAnimeDefaultSize:
    case kAnimeFullScreen:
        call(links.videoDisplaySize, index == kAnimeFullScreen ? 3 : 0);
        return;
    case kListAutoStartOn:
    case kListAutoStartOff:
        state.DirecData.ListAutoStart = index == kListAutoStartOn ? kTrue : kFalse;
        return;
    default:
        break;
    }
    if (index >= kCommentSet1 && index < kTextSet1)
        CallCommentSetting(setFile);
    else if (index >= kTextSet1 && index < kPictBackCol1)
        CallTextSetting(setFile);
    else if (index >= kPictBackCol1 && index < kWith)
        CallPictureBackColor(setFile);
}

void FormCommandConbo::CallCommentSetting(const QString& name)
{
    if (const auto set = readSetFile(basics_, name))
        applySet(targets_, SetGroup::Comment, *set);
}

void FormCommandConbo::CallTextSetting(const QString& name)
{
    if (const auto set = readSetFile(basics_, name))
        applySet(targets_, SetGroup::Text, *set);
}

void FormCommandConbo::CallPictureBackColor(const QString& name)
{
    // The colour stands in the first place of a file written by hand; a set
    // stored by the font and colour window keeps it in the third, behind two
    // "Non" places.
    const auto set = readSetFile(basics_, name);
    if (!set)
        return;
    const QString colour = IsNumeric(set->fontName) ? set->fontName : set->firstColor;
    applySet(targets_, SetGroup::PictBackCol, {QString(), QString(), colour, QString()});
}

} // namespace lumen
