// FormMain: the commands of picture work in the top row. They open the
// windows of picture/ by name; those windows draw on Picture2. CommandEdit
// opens the entry window beside the show.
#include "show/FormMain.h"

#include "display/FormComment.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScreen>

namespace lumen {

void FormMain::connectPictureWork()
{
    connect(CommandModPic, &QPushButton::clicked, this, &FormMain::CommandModPic_Click);
    connect(CommandSaveImage, &QPushButton::clicked, this, &FormMain::CommandSaveImage_Click);
    connect(CommandWriteCommentOnPic, &QPushButton::clicked, this,
            &FormMain::CommandWriteCommentOnPic_Click);
    connect(CommandEdit, &QPushButton::clicked, this, &FormMain::CommandEdit_Click);
}

void FormMain::CommandModPic_Click()
{
    setBackColor(CommandModPic, kColorGreen);
    showWindow(QStringLiteral("FormSaveImage"));
    forms_.unload(QStringLiteral("FormPastComment"));
    showWindow(QStringLiteral("FormModPic"));
    // Original size, so that pointer positions on Picture2 are the picture's.
    if (!CheckOriginalSize->isChecked())
        CheckOriginalSize->click();
}

void FormMain::CommandSaveImage_Click()
{
    showWindow(QStringLiteral("FormSaveImage"));
}

void FormMain::CommandWriteCommentOnPic_Click()
{
    // Green while the pasting window is open: paging pastes on every page then.
    setBackColor(CommandWriteCommentOnPic, kColorGreen);
    forms_.unload(QStringLiteral("FormModPic"));
    showWindow(QStringLiteral("FormSaveImage"));
    showWindow(QStringLiteral("FormPastComment"));
    if (auto* comment = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment")))) {
        const QString text = pageCommentText();
        if (!text.isEmpty())
            comment->setCommentText(text);
        comment->showForm();
    }
}

// The entry window stands beside the show: right of the main window where
// the screen has room, else inside its right edge.
void FormMain::CommandEdit_Click()
{
    FormBase* edit = forms_.form(QStringLiteral("FormEdit"));
    if (!edit)
        return;
    const bool first = !edit->isVisible();
    edit->showForm();
    if (!first)
        return;
    const QRect me = frameGeometry();
    const int width = edit->frameGeometry().width();
    const QScreen* shown = screen();
    const QRect room = shown ? shown->availableGeometry() : QRect(me.topLeft(), me.size());
    const int x =
        me.right() + 1 + width <= room.right() + 1 ? me.right() + 1 : me.right() + 1 - width;
    edit->move(qMax(room.left(), x), qMax(room.top(), me.top()));
}

} // namespace lumen
