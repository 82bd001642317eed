// FormMakeHTML: the settings of the HTML picture book and the command that
// makes it. A row of commands in FrameMain, and four setting frames of
// which one shows at a time under it. The settings live in
// HTMLFormValKeep.txt and HTMLReplaceWord.txt; while the window lives its
// text boxes are the truth.
#pragma once

#include "html/SiteMaker.h"
#include "platform/FormBase.h"

#include <QLabel>
#include <QList>
#include <array>
#include <functional>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace lumen {

class FormRegistry;
class VeroProcedure_Basical;

// A picture box: shows a picture and keeps it whole for saving.
class PictureHolder : public QLabel {
public:
    PictureHolder(const QString& name, QWidget* parent);
    void setPicture(const QImage& picture);
    const QImage& picture() const { return picture_; }

private:
    QImage picture_;
};

// What the window needs from the show.
struct FormMakeHTMLLinks {
    std::function<QString()> listTotal;  // FormMain's TextTotal
    std::function<void()> clearDisplay;  // FormMain's CleareDisp with no kind
    std::function<void()> unloadComment; // FormComment goes
};

class FormMakeHTML : public FormBase {
    Q_OBJECT
public:
    FormMakeHTML(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);

    FormMakeHTMLLinks links;
    SiteMaker& maker() { return maker_; }

    QGroupBox* FrameMain;
    QPushButton* CommandShowSampleHtml;
    QPushButton* CommandDispConfirm;
    QPushButton* CommandShowFolderSet;
    QPushButton* CommandSetFont;
    QPushButton* CommandShowSetButton;
    QPushButton* CommandShowSetDaisuu;
    QPushButton* CommandMakeHTML;

    QGroupBox* FrameSetDir;
    QLineEdit* TextPosKeepHTML;
    QLineEdit* TextHTMLPageName;
    QLineEdit* TextPosHTML;
    QLineEdit* TextPosMedia;
    QLineEdit* TextPosButton;
    QLineEdit* TextOyaFileName;
    QCheckBox* CheckConvertSmallChara;
    QCheckBox* CheckDelHTMLFolder;
    QCheckBox* CheckWAVConvert;
    QLineEdit* TextMP3CompR;
    QScrollBar* HScrollMP3CompR;
    QPushButton* CommandSelectFolder;
    QPushButton* CommandMakeFolder;
    QPushButton* CommandDelFolder;
    QPushButton* CommandInitialSet;

    QGroupBox* FrameSetFont;
    QLineEdit* TextBackCol;
    QLineEdit* TextNumFontName;
    QLineEdit* TextNumFontSize;
    QLineEdit* TextNumFontColor;
    QLineEdit* TextCommentFontName;
    QLineEdit* TextCommentFontSize;
    QLineEdit* TextCommentFontColor;

    QGroupBox* FrameSetButton;
    QLineEdit* TextButtonLeft;
    QLineEdit* TextButtonRight;
    QLineEdit* TextButtonHead;
    QLineEdit* TextButtonTail;
    QLineEdit* TextButtonOya;
    QLineEdit* TextButtonBlankPic;
    PictureHolder* PictureLeft;
    PictureHolder* PictureRight;
    PictureHolder* PictureHead;
    PictureHolder* PictureTail;
    PictureHolder* PictureOya;
    PictureHolder* PictureBlank;
    PictureHolder* PictureKeepLeft;
    PictureHolder* PictureKeepRight;
    PictureHolder* PictureKeepHead;
    PictureHolder* PictureKeepTail;
    PictureHolder* PictureKeepOya;
    PictureHolder* PictureKeepBlank;
    QPushButton* CommandFinedLeftIcon;
    QPushButton* CommandFinedRightIcon;
    QPushButton* CommandSelectHeadIcon;
    QPushButton* CommandSelectTailIcon;
    QPushButton* CommandFinedOyaIcon;
    QPushButton* CommandFinedBlankPicIcon;

    // Control arrays, index 0 to 23: object name "ExchageWord" and
    // "LabelReplaceWord", the index in the property "Index".
    QGroupBox* FrameSetDaisuu;
    QList<QLineEdit*> ExchageWord;
    QList<QLabel*> LabelReplaceWord;
    QPushButton* CommandDaeisuuInitialSet;
    QPushButton* CommandSetDaisuu;

    QString MakeSampleHTML() { return maker_.MakeSampleHTML(); }

    void CommandShowSampleHtml_Click();
    void CommandDispConfirm_Click();
    void CommandShowFolderSet_Click();
    void CommandSetFont_Click();
    void CommandShowSetButton_Click();
    void CommandShowSetDaisuu_Click();
    void CommandMakeHTML_Click();
    void CommandSelectFolder_Click();
    void CommandMakeFolder_Click();
    void CommandDelFolder_Click();
    void CommandInitialSet_Click();
    void CheckDelHTMLFolder_Click();
    void HScrollMP3CompR_Change();
    void TextMP3CompR_DblClick();
    void CommandDaeisuuInitialSet_Click();
    void CommandSetDaisuu_Click();

    // The text boxes and check boxes as they stand.
    SiteSettings settings() const;

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct ButtonRow {
        QLineEdit* path;
        PictureHolder* picture;
        PictureHolder* kept;
        QPushButton* find;
    };
    void buildFrameMain();
    void buildFrameSetDir();
    void buildFrameSetFont();
    void buildFrameSetButton();
    void buildFrameSetDaisuu();
    void connectHandlers();
    void showFrame(QGroupBox* frame);
    void layOutFrames();
    void readWordFile();
    void readFormValKeep();
    void findIcon(const ButtonRow& row);
    void loadButtonPicture(const ButtonRow& row);
    QString siteRoot() const;
    QStringList siteFolders() const;
    QString wordFilePath() const;
    QString formValKeepPath() const;

    VeroProcedure_Basical& basics_;
    FormRegistry& forms_;
    SiteMaker maker_;
    std::array<QLineEdit*, kSiteFields> fields_{};
    std::array<ButtonRow, 6> buttonRows_{};
    QGroupBox* shownFrame_ = nullptr;
    bool layingOut_ = false;
};

} // namespace lumen
