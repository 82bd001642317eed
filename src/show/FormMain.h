// FormMain: the main window. It owns the display area and the page state,
// and every other window reads it and drives it. Its three frames hold the
// commands: Frame1 on the right (paging, opening a list), Frame2 on top
// (picture work and modes), Frame3 at the bottom (the page's file).
#pragma once

#include "platform/FormBase.h"
#include "settings/AutoStartTable.h"

#include <functional>
#include <memory>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QPlainTextEdit;
class QMimeData;

namespace lumen {

class ClickLabel;
class MediaPanel;
class PictureCache;
class WebBrowser;
class FormRegistry;
class PictureBox;
class VeroProcedure_Basical;
struct ProgramState;
template <int N> class FixedString;

// What the main window needs from the application around it.
struct FormMainLinks {
    std::function<void()> startWithFile;         // Form_Load, step 9
    std::function<void()> unloadAllForms;        // closing, in the fixed order
    std::function<void()> endProgram;            // End
    std::function<void()> hideEditFrames;        // FormEdit's two entry frames
    std::function<void()> pasteCommentOnPicture; // CommandWriteCommentOnPic_Click
    // Files dropped on CommandOpenFileList, handed to the file selection.
    std::function<void(const QMimeData* dropped)> dropOnOpenFileList;
};

class FormMain : public FormBase {
    Q_OBJECT
public:
    FormMain(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);
    ~FormMain() override;

    FormMainLinks links;
    PictureCache& pictures() { return *pictures_; }

    // ---- Frame1: paging and lists
    QGroupBox* Frame1;
    QPushButton* CommandOpenFileList;
    QPushButton* CommandLeft;
    QPushButton* CommandRight;
    QScrollBar* HScrollPicNom;
    ClickLabel* LabelSmall;
    ClickLabel* LabelMax;
    QLineEdit* TextCount;
    QLineEdit* TextTotal;
    ClickLabel* LabelDo;
    QCheckBox* CheckQuiCkWork;
    QPushButton* CommandHatenaSettei;
    QPushButton* CommandIELeft;
    QPushButton* CommandIERight;
    QPushButton* CommandExit;
    QPushButton* CommandSelectFile; // FormSelectFile
    QPushButton* CommandGiveFilter; // FormGiveFilter

    // ---- Frame2: picture work and modes
    QGroupBox* Frame2;
    QPushButton* CommandModPic;
    QPushButton* CommandSaveImage;
    QPushButton* CommandScrollSizeAllowValue;
    QCheckBox* CheckOriginalSize;
    QPushButton* CommandFull;
    QPushButton* CommandOption;
    QPushButton* CommandEdit;
    QPushButton* CommandWriteCommentOnPic;
    QPushButton* CommandMakeHTML;

    // ---- Frame3: the page's file
    QGroupBox* Frame3;
    QLineEdit* TextFileName;
    QLineEdit* TextHeadName;
    QLineEdit* TextNum;
    QPushButton* CommandCopy;
    QPushButton* CommandDeleate;
    QPushButton* CommandRecov;
    QPushButton* CommandFileOption; // FormFileOption
    QGroupBox* FrameTextHide;
    QCheckBox* CheckWaveHide;
    QCheckBox* CheckCommentHide;
    QCheckBox* CheckTextHide;
    QPushButton* CommandSendTo;
    QCheckBox* CheckUseCyberView;

    // ---- The display area and what lies in it
    PictureBox* Picture1;
    PictureBox* Picture2;
    PictureBox* Picture3;
    QPlainTextEdit* Text1;
    WebBrowser* WebBrowser1;
    MediaPanel* MediaPlayer1;
    MediaPanel* MediaPlayer2;
    ClickLabel* LabelComment;
    QPushButton* CommandNoText;
    QScrollBar* HScroll1;
    QScrollBar* VScroll1;

    // ---- Page state
    qint32 FileCount = 0;
    bool ScrollGuard = false;
    bool FullOnNext = false;
    bool NormalOnNext = false;

    // ---- Layout state of the picture
    qint32 ExcessHeight = 0;
    qint32 ExcessWidth = 0;
    double RatioWidth = 0;
    double RatioHeight = 0;
    double FitRatio = 0;
    bool HScrollNeeded = false;
    bool VScrollNeeded = false;
    bool LargePictureFlag = false;
    QString ForcedShowKind;
    bool FillMode = false;
    bool NormalMode = true;
    // The window's rectangle in each mode, twips; both start at zero.
    qint32 NormalWindowLeft = 0;
    qint32 NormalWindowTop = 0;
    qint32 NormalWindowWidth = 0;
    qint32 NormalWindowHeight = 0;
    qint32 FillWindowLeft = 0;
    qint32 FillWindowTop = 0;
    qint32 FillWindowWidth = 0;
    qint32 FillWindowHeight = 0;
    bool PutPictureInImage =
        false; // no command sets it; PUTPICTUREINIMAGE works through CheckOriginalSize

    // ---- The page's kind and companions
    bool KindVrml = false;
    bool KindNff = false;
    bool KindAvi = false;
    bool KindSound = false;
    bool KindMidi = false;
    bool KindText = false;
    bool KindCD = false;
    bool KindWeb = false;
    bool KindExe = false;
    bool KindXv3 = false;
    bool KindCo = false;
    bool TextAsAvi = false;
    bool HasWith = false;
    bool HasDelay = false;
    bool HasComment = false;
    bool HideText = false;
    bool HideComment = false;
    bool HideWave = false;
    bool TextShown = false;

    // ---- Procedures
    void Form_Resize();
    void FormResizeNorMal();
    void FormResizeFill();
    void CommandFull_Click();
    void FORMNORMALSIZE();
    void OpenFileList(const QString& fileName);
    void CleareDisp(QString kind);
    void TakeMainAction();
    void CheckAuto_With();

    // The picture in the frame.
    void DisplayPicturePage();
    void PrepareShow();
    void FitPictureToFrame();
    void PlaceScrollBars();
    void CentrePicture3();
    void RelayoutCurrentPage();
    void SetWebScrollBars();
    void HScroll1_Change();
    void VScroll1_Change();

    // The page's kind and its surfaces.
    void ClassifyMainFile(const QString& fileName);
    void ClassifyWithFile(const QString& fileName);
    void ShowText();
    void ShowVrml();
    void ShowNff();
    void ShowWeb();
    void ShowExe();
    void ShowAvi();
    void ShowMidi();
    void ShowCDMusic();
    void PlaySoundFile(const QString& programPath);

    // ---- Handlers
    void CommandRight_Click();
    void CommandLeft_Click();
    void HScrollPicNom_Scroll();
    void HScrollPicNom_Change();
    void CommandCopy_Click();
    void CommandDeleate_Click();
    void CommandRecov_Click();
    void CommandOpenFileList_Click();
    void CommandNoText_Click();
    void CommandExit_Click();
    void LabelDo_Click();
    void TextCount_Change();
    void TextTotal_Change();
    void TextHeadName_Change();
    void CommandHatenaSettei_Click();
    void CommandIELeft_Click();
    void CommandIERight_Click();
    void Picture3_MouseUp(QWidget* picture, Qt::MouseButton button, float x, float y);
    void CommandOption_Click();

    // ---- Picture work (FormMainPictureWork.cpp)
    void CommandModPic_Click();
    void CommandSaveImage_Click();
    void CommandWriteCommentOnPic_Click();
    void CommandEdit_Click();
    // The page's comment as text: the text after its mark, or the file it names.
    QString pageCommentText();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showWindow(const QString& name);
    void popupAt(const QString& name, const QPoint& global);
    QString mainFile() const; // column 0 of the page
    QString withFile() const; // column 1 of the page
    QString nativeOf(const QString& programPath) const;
    void companionRule(bool skipWhenResizing);
    void showCommentWindow();
    void runOption(const QString& word);
    void callSetting(int index);
    void stopAutoPage();
    void showNavigatorPage(int page);
    void keepRectangle(qint32& left, qint32& top, qint32& width, qint32& height) const;
    void prepareNextPicture();
    QSize fittedSize(const QSize& picture) const;
    bool loadPageIntoPicture2(const QString& file);
    void setCommentVisible(bool shown);
    void step(int direction);
    void relayoutVideo(bool showIt);
    void openOnPanel(MediaPanel* panel, const QString& programPath);
    void setVideoFullScreen(bool on);
    void closeVideo();
    void navigateWebAway();
    void showCdPage(const QString& programPath);
    void applyTextLook(const QString& name, const QString& size, const QString& ground,
                       const QString& letters);
    void centreVideo();
    void playMovieOverWeb(const QString& programPath);
    void showIn3DViewer(const FixedString<100>& viewerPath);
    void buildFrame1();
    void buildSelectCommands(); // FormMainSelect.cpp
    void buildFrame2();
    void buildFrame3();
    void buildBulkCommands(); // FormMainBulk.cpp
    void buildDisplay();
    void connectHandlers();
    void connectPictureWork();
    void applyFonts();
    bool isMaximized() const;
    void saveRecord();
    bool makeFoldersIfEmpty();

    VeroProcedure_Basical& basics_;
    ProgramState& state_;
    FormRegistry& forms_;
    std::unique_ptr<PictureCache> pictures_;
    AutoStartTable autoStart_;
    MediaPanel* movie_ = nullptr; // a movie page plays over the web view
    double noTextWait_ = 1000;    // the list view's wait; CommandNoText sets it to 0
    bool inResize_ = false;
    int lastStep_ = 1; // the direction of the last page turn: the neighbour prepared ahead
};

} // namespace lumen
