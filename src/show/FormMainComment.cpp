// FormMain: the page's comment, in the floating FormComment and on the
// label LabelComment, which marks where a comment printed on the picture goes.
#include "show/FormMain.h"

#include "display/FormComment.h"
#include "display/PictureBox.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"

namespace lumen {

void FormMain::showCommentWindow()
{
    auto* window = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment")));
    if (!window)
        return;
    window->showOver(QRect(Picture1->mapToGlobal(QPoint(0, 0)), Picture1->size()));
}

void FormMain::setLabelComment(const QString& text)
{
    LabelComment->setText(text);
    LabelComment->adjustSize();
    if (text.isEmpty())
        setCommentVisible(false);
}

void FormMain::setCommentVisible(bool shown)
{
    LabelComment->setVisible(shown && !LabelComment->text().isEmpty());
    if (LabelComment->isVisible())
        LabelComment->raise();
}

void FormMain::LabelComment_MouseDown(Qt::MouseButton, float x, float y)
{
    basic::StoreInt16(LabelDragX, x);
    basic::StoreInt16(LabelDragY, y);
}

void FormMain::LabelComment_MouseMove(Qt::MouseButtons buttons, float x, float y)
{
    if (!buttons.testFlag(Qt::LeftButton))
        return;
    twMove(LabelComment, twLeft(LabelComment) + (x - LabelDragX),
           twTop(LabelComment) + (y - LabelDragY));
}

} // namespace lumen
