// FormMain: the commands of picture work in the top row. They open the
// windows of picture/ by name; those windows draw on Picture2.
#include "show/FormMain.h"

#include "display/FormComment.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"

#include <QCheckBox>
#include <QPushButton>

namespace lumen {

void FormMain::connectPictureWork()
{
    connect(CommandModPic, &QPushButton::clicked, this, &FormMain::CommandModPic_Click);
    connect(CommandSaveImage, &QPushButton::clicked, this, &FormMain::CommandSaveImage_Click);
    connect(CommandWriteCommentOnPic, &QPushButton::clicked, this,
            &FormMain::CommandWriteCommentOnPic_Click);
    connect(CommandEdit, &QPushButton::clicked, this, &FormMain::CommandEdit_Click);
    // The list is made in the selection window; without it the command waits.
    if (!forms_.knows(QStringLiteral("FormSelectFile"))) {
        CommandEdit->setEnabled(false);
        CommandEdit->setToolTip(QStringLiteral("準備中"));
    }
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

void FormMain::CommandEdit_Click()
{
    showWindow(QStringLiteral("FormSelectFile"));
}

} // namespace lumen
