// FormComment: the small floating window that carries a page's comment in
// its one label. It takes its font and colours from the comment fields of
// the settings record when it loads; the user drags it by the label, a click
// on the label makes the window hug the text, and the right button opens the
// comment's popup FormOmake.
#pragma once

#include "platform/FormBase.h"

class QLabel;

namespace lumen {

class FormRegistry;
class VeroProcedure_Basical;

class FormComment : public FormBase {
    Q_OBJECT
public:
    FormComment(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);

    // The page's comment goes into the label, which takes the size of its
    // text; the window keeps its own size until the label is clicked.
    void setCommentText(const QString& text);
    QString commentText() const;

    // Shown for a page. The first show after a load places the window over
    // the lower middle of the display area (screen pixels); after that it
    // stays where the user drags it until it is unloaded.
    void showOver(const QRect& displayArea);

    QLabel* Label1;

    qint16 DragStartX = 0;
    qint16 DragStartY = 0;
    bool Dragging = false;
    qint16 ClickGuard = 0;

    // Handlers; positions are twips inside the label.
    void Form_Resize();
    void Label1_MouseDown(Qt::MouseButton button, float x, float y);
    void Label1_MouseMove(Qt::MouseButtons buttons, float x, float y);
    void Label1_Click();
    void Label1_MouseUp(Qt::MouseButton button, float x, float y);

Q_SIGNALS:
    // The window was brought to the front.
    void cameToFront();

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bringToFront();

    VeroProcedure_Basical& basics_;
    FormRegistry& forms_;
    bool placed_ = false; // placed since the last load
};

} // namespace lumen
