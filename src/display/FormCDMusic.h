// FormCDMusic ("CD ミュージック"): the small window of a CD page. The MCI
// control plays the disc by track; the user may type a track and go there.
// The window keeps one size and stands at the top left corner.
#pragma once

#include "platform/FormBase.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lumen {

class MMControl;
class VeroProcedure_Basical;

class FormCDMusic : public FormBase {
    Q_OBJECT
public:
    static constexpr int kFormWidth = 3645; // twips
    static constexpr int kFormHeight = 1260;

    explicit FormCDMusic(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    QCheckBox* CheckOneMusic;
    QPushButton* CommandSetTrack;
    QLineEdit* TextMyTrack;
    QLineEdit* TextTotalTrack;
    MMControl* MMControl1;
    QLabel* Label2;

    qint16 CurrentCDTrack = 0; // the track in play after CommandSetTrack

    // The main action of a CD page, after the display has been cleared:
    // shows the window and opens the disc of the file's drive at the file's
    // track ("D:\Track03.cda"); TextTotalTrack shows the disc's track count.
    void ShowCDMusic(const QString& programFormFile);

    // The track number in a track file's name: the text between "TRACK" and
    // ".CDA" (both in capitals only), rounded; 0 without "TRACK". A value
    // that doesn't fit leaves `Track` as it was.
    static void GetTrackFromName(const QString& FileName, qint16& Track);

    void CommandSetTrack_Click();
    void Form_Resize();

protected:
    void Form_Unload(bool& cancel) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool stepsMayGoOn() const;

    VeroProcedure_Basical& basics_;
    bool inResize_ = false;
};

} // namespace lumen
