#include "settings/FormRClick.h"

#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "settings/FormEdit2.h"

#include <QLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace lumen {

FormRClick::FormRClick(FormEdit2& edit2, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormRClick"), parent, Qt::Tool | Qt::WindowStaysOnTopHint)
    , edit2_(edit2)
    , forms_(forms)
{
    setWindowTitle(QStringLiteral("設定"));
    CommandSetApli =
        commandButton(QStringLiteral("CommandSetApli"), QStringLiteral("ｱﾌﾟﾘｹｰｼｮﾝ設定"), this);
    CommandSetFontCol =
        commandButton(QStringLiteral("CommandSetFontCol"), QStringLiteral("色,ﾌｫﾝﾄ設定"), this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(2);
    column->addWidget(CommandSetApli);
    column->addWidget(CommandSetFontCol);
    connect(CommandSetApli, &QPushButton::clicked, this, &FormRClick::CommandSetApli_Click);
    connect(CommandSetFontCol, &QPushButton::clicked, this, &FormRClick::CommandSetFontCol_Click);
}

void FormRClick::SetVisible()
{
    load();
    CommandSetApli->setVisible(true);
    CommandSetFontCol->setVisible(edit2_.RClickMsPaint || edit2_.RClickNotePad ||
                                  edit2_.RClickText);
    // Its size is known before it shows, so that it can be placed by it.
    ensurePolished();
    layout()->activate();
    setFixedSize(sizeHint());
}

void FormRClick::CommandSetApli_Click()
{
    unload();
    FormEdit2& e = edit2_;
    if (e.RClickMsPaint)
        e.CommandPictureDirectry_Click();
    else if (e.RClickNotePad)
        e.CommandCommentDirectry_Click();
    else if (e.RClickSoundPlayer)
        e.CommandSoundDirectry_Click();
    else if (e.RClickText)
        e.CommandTextDirectry_Click();
    else if (e.RClickAVI)
        e.CommandAnimationDirectry_Click();
    else if (e.RClickMidi)
        e.CommandMidiDirectry_Click();
    else if (e.RClickIntExp)
        e.CommandIntExpDirectry_Click();
    else if (e.RClickCyberView) {
        // Two viewers: FormViewerDir asks which one is meant.
        if (FormBase* viewers = forms_.form(QStringLiteral("FormViewerDir"))) {
            viewers->load();
            viewers->move(pos());
            viewers->showForm();
        }
    }
    e.clearRClickFlags();
}

void FormRClick::CommandSetFontCol_Click()
{
    unload();
    FormEdit2& e = edit2_;
    if (e.RClickMsPaint)
        e.CommandSetPictBackCol_Click();
    else if (e.RClickNotePad)
        e.CommandSetComentFont_Click();
    else if (e.RClickText)
        e.CommandSetTextFont_Click();
    e.clearRClickFlags();
}

} // namespace lumen
