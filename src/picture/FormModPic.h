// FormModPic ("作図"): draws on the picture on show, at its own size, in
// Picture2's pixels. Freehand, straight lines and circles; open and closed
// curves through clicked points, which can be grabbed and moved after "仮OK"
// until "OK" fixes them; two kinds of flood fill; colours picked from the
// picture or a palette. Each "OK" stores the picture in the ring of
// FormSaveImage.
//
// What the mouse does is held in the colours of the start and pick buttons:
// the events of Picture2 act only while one of them is green. Line work
// draws over the picture until its "OK" (Picture2 without AutoRedraw), so
// that a trial curve and its marks go again at each redraw; painting draws
// into the picture itself, after keeping what is seen.
#pragma once

#include "display/DrawSettings.h"
#include "picture/CurveLine.h"
#include "platform/FormBase.h"

#include <QList>

class QComboBox;
class QPushButton;
class QRadioButton;

namespace lumen {

class Canvas;
class ClickLabel;
class FormMain;
class FormRegistry;
class FormSaveImage;
class PictureBox;
class VeroProcedure_Basical;

class FormModPic : public FormBase {
    Q_OBJECT
public:
    FormModPic(VeroProcedure_Basical& basics, FormMain& main, FormRegistry& forms,
               QWidget* parent = nullptr);
    ~FormModPic() override;

    QRadioButton* OptionPen;
    QRadioButton* OptionLine;
    QRadioButton* OptionCir;
    QRadioButton* OptionSplineOpen;
    QRadioButton* OptionSplineClose;
    QComboBox* ComboLineSize;
    QComboBox* ComboMarumeKeisuu;
    ClickLabel* LabelLineColor;
    QPushButton* CommandPickColLine;
    QPushButton* CommandStartDrawLine;
    QPushButton* CommandDoSpline;
    QPushButton* CommandStopDrawLine;
    QPushButton* CommandHelpBlue;
    QPushButton* CommandHelpBlue2;
    QList<ClickLabel*> LabelColSel; // the palette
    ClickLabel* LabelResetCol;
    QRadioButton* OptionIroChikan;
    QRadioButton* OptionWakunaiChikan;
    ClickLabel* LabelPastColor;
    QPushButton* CommandPickColFill;
    QPushButton* CommandStartPaintColor;
    QPushButton* CommandStopDrawPaint;

    // The drawing's state, kept beside the picture it draws on.
    CurveLine curve;
    float LineStartX = 0;
    float LineStartY = 0;
    qint16 DragPoint = -1;
    qint16 SavedDrawMode = kDrawCopyPen;
    bool DrawToolBusy = false;

    void MakeNewLine();
    void DrawCurve(PictureBox* target, float start, float end, float step);
    void WriteCurve(const QString& mode);  // the open curve
    void WriteCurve2(const QString& mode); // the closed curve

    void CommandStartDrawLine_Click();
    void CommandDoSpline_Click();
    void CommandStopDrawLine_Click();
    void CommandPickColLine_Click();
    void CommandPickColFill_Click();
    void CommandStartPaintColor_Click();
    void CommandStopDrawPaint_Click();
    void CommandHelpBlue_Click();
    void CommandHelpBlue2_Click();
    void LabelLineColor_Click();
    void LabelPastColor_Click();
    void LabelColSel_MouseUp(int index, Qt::MouseButton button);
    void LabelColSel_DblClick(int index);
    void LabelResetCol_Click();

    // Picture2's mouse; positions in twips, as the box gives them.
    void Picture2_MouseDown(Qt::MouseButton button, float x, float y);
    void Picture2_MouseMove(Qt::MouseButtons buttons, float x, float y);
    void Picture2_MouseUp(Qt::MouseButton button, float x, float y);

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void layOut();
    void connectHandlers();
    bool curveOn() const;
    bool isGreen(const QPushButton* button) const;
    void resetButtons();
    void applyPen();
    float inScale(float twips) const;
    void drawOnPicture(const std::function<void(Canvas&)>& draw);
    void drawCurveStep(bool closed, const QString& mode);
    void pickColour(ClickLabel* target, QPushButton* pick, float x, float y);
    void paintAt(float x, float y);
    void fixDrawing();
    void shapeDown(float x, float y);
    void shapeMove(float x, float y);
    void shapeUp(float x, float y);
    void pointDown(float x, float y);
    void drawShape(float toX, float toY);
    FormSaveImage* saveImage();

    VeroProcedure_Basical& basics_;
    FormMain& main_;
    FormRegistry& forms_;
    PictureBox* picture_; // Picture2
    DrawSettings keptSettings_;
    bool keptAutoRedraw_ = false;
    bool bandShown_ = false; // a rubber band is on the picture
    float bandX_ = 0;
    float bandY_ = 0;
};

} // namespace lumen
