#include "settings/FormSendTo.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/Launcher.h"
#include "settings/AutoStartTable.h"
#include "settings/SendToList.h"
#include "state/ProgramState.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace lumen {
namespace {

using namespace basic;

// The send-to entry of a line: its text up to the first ",", unless that
// names one of the show's own surfaces.
QString sendToEntry(const QString& trimmedLine)
{
    const int comma = InStr(trimmedLine, QStringLiteral(","));
    const QString entry = comma > 0 ? Left(trimmedLine, comma - 1) : trimmedLine;
    const QString upper = UCase(entry);
    const QStringList& words = showKindWords();
    const bool routesToShow = std::any_of(
        words.begin(), words.end(), [&](const QString& word) { return upper.contains(word); });
    return routesToShow ? QString() : Trim(entry);
}

} // namespace

FormSendTo::FormSendTo(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormSendTo"), parent)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("実行ｱﾌﾟﾘｹｰｼｮﾝ選択"));
    ComboSend = named<QComboBox>(QStringLiteral("ComboSend"), this);
    ComboSend->setEditable(true);
    ComboSend->setEditText(QStringLiteral("ComboSend"));
    ComboSend->setMinimumWidth(320);
    ComboSend->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    CommandDo = named<QPushButton>(QStringLiteral("CommandDo"), QStringLiteral("Send"), this);
    CommandSetting =
        named<QPushButton>(QStringLiteral("CommandSetting"), QStringLiteral("設定"), this);
    LabelCheckLen =
        named<QLabel>(QStringLiteral("LabelCheckLen"), QStringLiteral("CheckLen"), this);
    LabelCheckLen->hide(); // only measures

    auto* row = new QHBoxLayout(this);
    row->addWidget(ComboSend, 1);
    row->addWidget(CommandDo);
    row->addWidget(CommandSetting);

    connect(CommandDo, &QPushButton::clicked, this, &FormSendTo::CommandDo_Click);
    connect(CommandSetting, &QPushButton::clicked, this, &FormSendTo::CommandSetting_Click);
}

void FormSendTo::Form_Load()
{
    const QString file = sendToListPath(basics_.state());
    if (!basics_.FileExists(file)) {
        writeDefaultSendToList(basics_);
        basics_.WaitMilliseconds(100);
    }
    fillComboSend();
}

void FormSendTo::fillComboSend()
{
    ComboSend->clear();
    ComboSend->clearEditText();
    for (const QString& fileLine : readSendToListLines(basics_)) {
        const QString line = Trim(fileLine);
        if (isSendToListRemark(line))
            continue;
        const QString entry = sendToEntry(line);
        if (!entry.isEmpty())
            ComboSend->addItem(entry);
    }
    ComboSend->clearEditText();
    fitListWidth();
}

// The open list is made as wide as its longest entry, as LabelCheckLen
// measures it in the combo's font.
void FormSendTo::fitListWidth()
{
    LabelCheckLen->setFont(ComboSend->font());
    int widest = 0;
    for (int i = 0; i < ComboSend->count(); ++i) {
        LabelCheckLen->setText(ComboSend->itemText(i));
        widest = std::max(widest, LabelCheckLen->sizeHint().width());
    }
    ComboSend->view()->setMinimumWidth(widest + 2 * ComboSend->view()->frameWidth() + 24);
}

void FormSendTo::CommandDo_Click()
{
    const QString application = Trim(ComboSend->currentText());
    // Without a program the page's own file would stand first on the line
    // and be started itself; files named by a list are never started.
    if (application.isEmpty())
        return;
    const QString mainFile = links.currentMainFile ? Trim(links.currentMainFile()) : QString();
    basics_.services().launcher.shell(application + QStringLiteral(" ") + mainFile);
}

void FormSendTo::CommandSetting_Click()
{
    if (links.showSendApliSet)
        links.showSendApliSet();
}

} // namespace lumen
