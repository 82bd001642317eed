// FormSaveImage: the program's undo and its picture files. Every "OK" of the
// drawing tools and every paste stores the picture on show as LastPic0.png
// in the settings folder, after the older ones have moved up one number, so
// that a ring of the last few pictures is kept; a number brings one back.
// The window also makes blank pictures, opens a picture file, and saves the
// picture on show as BMP, PNG or JPEG, or over the page's own file.
#pragma once

#include "picture/PictureFiles.h"
#include "platform/FormBase.h"

class QLineEdit;
class QPushButton;
class QScrollBar;

namespace lumen {

class FormMain;
class VeroProcedure_Basical;

class FormSaveImage : public FormBase {
    Q_OBJECT
public:
    FormSaveImage(VeroProcedure_Basical& basics, FormMain& main, QWidget* parent = nullptr);

    QLineEdit* TextKariPicN;
    QScrollBar* HScroll1;
    QPushButton* CommandDisp;
    QLineEdit* TextMax;
    QPushButton* CommandSetMax;
    QPushButton* CommandDelAllKari;
    QLineEdit* TextBX;
    QLineEdit* TextBy;
    QPushButton* CommandMakeBlank;
    QPushButton* CommandOpen;
    QPushButton* CommandSavePicPNG;
    QPushButton* CommandSavePicBMP;
    QPushButton* CommandSavePicJPG;
    QPushButton* CommandUwagaki;

    // The shift and store: the picture on show becomes LastPic0.png.
    void SaveKariPic();
    // HScroll1.Max: the highest number kept. It may be -1, below the bar's
    // own minimum, as the classic bar allowed.
    qint16 kariMax() const { return kariMax_; }

    void HScroll1_Change();
    void CommandDisp_Click();
    void CommandSetMax_Click();
    void CommandDelAllKari_Click();
    void CommandMakeBlank_Click();
    void CommandOpen_Click();
    void CommandSavePicPNG_Click();
    void CommandSavePicBMP_Click();
    void CommandSavePicJPG_Click();
    void CommandUwagaki_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    void layOut();
    QString settingsFolder() const;
    void setKariMax(double value);
    void showInPicture2(const QImage& picture);
    bool saveTestsPass();
    void saveAs(PictureFormat format, QPushButton* button);
    bool writePicture(PictureFormat format, const QString& path);

    VeroProcedure_Basical& basics_;
    FormMain& main_;
    qint16 kariMax_ = 9;
};

} // namespace lumen
