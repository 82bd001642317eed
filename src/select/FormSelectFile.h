// FormSelectFile: where a list comes into being. The user walks drives and
// folders, and every file chosen becomes one line of the list text in
// Text1: by a click, a whole file box at once, a folder tree level by level
// or a drop from the file manager. The text is saved as a list file and
// shown, or handed to the list editor. The extension boxes, a search word
// and a free extension narrow the file box.
//
// The window is thin: the walk, the patterns and the files it reads and
// writes are in FolderWalk, SelectFilter, SelectionFiles and UndoStore.
#pragma once

#include "platform/FormBase.h"

#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMimeData;
class QPushButton;
class QSplitter;

namespace lumen {

class DirListBox;
class DriveListBox;
class FileListBox;
class FormRegistry;
class PreviewBox;
class RichTextBox;
class VeroProcedure_Basical;
struct ExtensionBoxes;
struct ProgramState;

// What the window reaches in windows of the libraries above its own; the
// application wires them. Links left empty do nothing, and the buttons that
// need them stand disabled until the windows behind them exist.
struct FormSelectFileLinks {
    // FormMain.
    std::function<bool()> quickWork{};                       // CheckQuiCkWork is on
    std::function<void()> showMain{};                        // shown, in front
    std::function<void(const QString& kind)> clearDisplay{}; // CleareDisp
    std::function<void(const QString& file)> openFileList{}; // OpenFileList
    std::function<void()> commandFull{};                     // CommandFull_Click
    // FormSetFontAndColor on the edit text (CommandSetEditTextFont).
    std::function<void()> setEditTextFont{};
    // The list editor, FormEditText.
    std::function<void()> openEditor{};     // TextConvertToEditorText
    std::function<bool()> editorOn{};       // EditorOn
    std::function<void()> toStandardText{}; // CommandStanderdText_Click
    std::function<void(bool english)>
        listOpened{};                   // CheckEnglishCommand, ComboCommandList, EditorOn off
    std::function<void()> text1Click{}; // Text1_Click while EditorOn
    // FormEdit2, FormReplaceEdit, FormWordSet.
    std::function<void(const QPoint& topRight)> showEdit2{};   // its top right corner there
    std::function<void()> openReplaceEditor{};                 // modal, ReplaceOpen True
    std::function<void(const QString& folder)> folderChosen{}; // Text2 while ReplaceOpen
    std::function<void(bool extensionTable)> openWordSet{};
};

class FormSelectFile : public FormBase {
    Q_OBJECT
public:
    FormSelectFile(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);
    ~FormSelectFile() override;

    FormSelectFileLinks links;
    // Call once the links are set: the buttons whose windows don't exist
    // yet stand disabled.
    void linksChanged();

    // ---- Browsing and the list text
    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
    RichTextBox* Text1;
    QLabel* Label2;
    QLabel* Label3;
    QCheckBox* CheckAddToList;
    QFrame* ShapeAddToList;
    QCheckBox* CheckLumenta;
    QFrame* ShapeLumenta;
    PreviewBox* Picture1; // hidden: the picture as loaded
    PreviewBox* Picture2; // the preview
    QPushButton* CommandAll;
    QPushButton* CommandStop;
    QPushButton* CommandCancelLastPicture;
    QPushButton* CommandClear;
    QPushButton* CommandSaveFile;
    QPushButton* CommandOpenf;
    QPushButton* CommandEditCommand1;
    QPushButton* CommandEditor;
    QPushButton* CommandSetEditTextFont;
    QPushButton* CommandReplaceEditor;
    QPushButton* CommandExploler;
    QPushButton* CommandLeft;
    QPushButton* CommandRight;
    QGroupBox* FrameAccessDir;
    QCheckBox* CheckDirectryLock;
    QPushButton* CommandDirectrySet;
    QPushButton* CommandExit;

    // ---- Filters
    QGroupBox* Frame1;
    std::array<QCheckBox*, 17> Check1{};
    QCheckBox* CheckANY;
    QLabel* Label6;
    QPushButton* CommandSerch;
    QPushButton* CommandKeyInFilter;
    QPushButton* CommandExtSet;
    QGroupBox* FrameByWord;
    QComboBox* ComboWordSerch;
    QLabel* Label4;
    QPushButton* CommandSerc;
    QCheckBox* CheckExtWork;
    QPushButton* CommandWordSet;
    QPushButton* CommandEnd;
    QGroupBox* FrameExtSerch;
    QLineEdit* TextSerchEXT;
    QLabel* Label5;
    QPushButton* CommandExtSelect;
    QPushButton* Command2;

    // ---- State
    QString KeptText;        // Text1 before the last file click
    bool ListingAll = false; // CommandAll runs: clicks preview nothing
    QStringList ChunkTable;  // the pieces of a folder walk, one a folder
    int ChunkCount = 0;
    QString CurrentPattern; // the pattern of the extension boxes
    bool TextLarge = false; // Text1 at its large size

    // ---- Interfaces
    // Builds TempList.lst in the data folder from dropped files and folders.
    void GetDataAndMakeList(const QMimeData* dropped);
    // Walks Dir1's folder and everything beneath it into Text1; `result`
    // gets the files found (each line ended by CR LF). False when stopped.
    bool FileSelectQuick(const QString& word, const QString& includeMode, const QString& target,
                         QString& result);
    void SaveLockInfo();
    // A folder's files, as a walk found them (filtered by its word when it
    // has one), into the next piece of ChunkTable.
    void ListOneFolder(const QStringList& files);
    // Dir1 set to the folder and its tree listed, as a dropped folder or one
    // named on the command line is: FileSelectQuick with "", "INC", "DIR".
    // The files, one an entry; nothing for a folder that isn't there.
    QStringList ListFolder(const QString& folder);
    // The main window in front, its display cleared, showing the list file.
    void ShowListOnMain(const QString& file);
    // RefreshFileControls: the three boxes read the disk again.
    void RefreshBoxes();

    // ---- Handlers
    void File1_Click();
    void CommandAll_Click();
    void CommandStop_Click();
    void CommandCancelLastPicture_Click();
    void CommandClear_Click();
    void CommandSaveFile_Click();
    void CommandSaveFile_Drop(const QMimeData* dropped);
    void CommandOpenf_Click();
    void CommandExploler_Click();
    void CommandDirectrySet_Click();
    void CommandExit_Click();
    void CommandLeft_Click();
    void CommandRight_Click();
    void Dir1_Change();
    void Drive1_Change();
    void Text1_DblClick();
    void CheckAddToList_Click();
    void CheckLumenta_Click();

    void BuildPatternFromChecks(bool viaAny = false);
    void BuildPatternWithWord();
    void CommandSerc_Click();
    void CommandExtSelect_Click();
    void CommandKeyInFilter_Click();
    void CommandSerch_Click();
    void ApplyCurrentFilter();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildBrowsing();
    void buildFilters();
    void buildLayout();
    void connectHandlers();
    void applyRecordLook();
    void readExtensionSlots();
    void showPopup(const QString& name, const QPoint& global);
    void preview(const QString& file);
    void setStopColor(qint32 bgr);
    // A pause in a listing: events run when some milliseconds have passed;
    // true when the listing is to stop.
    bool listingShouldStop();
    void showProgress(const QString& text, bool force = false);
    QString filterPattern() const; // the pattern ApplyCurrentFilter would give
    bool frameUp(const QWidget* frame) const;
    ExtensionBoxes extensionBoxes() const;
    void setExtensionBoxes(const ExtensionBoxes& boxes);
    void setFilePattern(const QString& pattern);
    QString settingsFile(const QString& name) const;

    VeroProcedure_Basical& basics_;
    ProgramState& state_;
    FormRegistry& forms_;
    QSplitter* boxes_ = nullptr; // Dir1 and File1 side by side
    QString lastSeen_;           // the name last clicked
    bool walking_ = false;       // a listing runs: a second one is refused
    qint64 lastPump_ = 0;
    qint64 lastShown_ = 0;
    QList<QWidget*> hiddenByLarge_;
};

} // namespace lumen
