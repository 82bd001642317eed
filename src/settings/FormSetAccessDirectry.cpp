#include "settings/FormSetAccessDirectry.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "settings/ProgramCandidates.h"
#include "state/ProgramState.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace lumen {
namespace {

using namespace basic;

constexpr qint32 kColorBlue = 0xFF0000; // BGR
constexpr int kSoundRow = 3;

struct Row {
    const char* box;
    QString name;
    QString designText;
    QString filter;
};

// The six program rows, in the order of the boxes and buttons.
const std::array<Row, FormSetAccessDirectry::kRows>& rows()
{
    static const std::array<Row, FormSetAccessDirectry::kRows> table{{
        {"TextComment", QStringLiteral("コメント"),
         QStringLiteral("コメントテキスト編集用のエディター (Notepad.exe等)"),
         QStringLiteral("コメント用エディター (*.exe)|*.exe")},
        {"TextText", QStringLiteral("テキスト"),
         QStringLiteral("テキスト編集用エディター (Notepad.exe等)"),
         QStringLiteral("テキストエディター (*.exe)|*.exe")},
        {"TextMpl2", QStringLiteral("メディア"),
         QStringLiteral("Midiやアニメを見るための\"MPLAYER2.EXE\"等"),
         QStringLiteral("メディアプレーヤー (*.exe)|*.exe")},
        {"TextSnd", QStringLiteral("サウンド"),
         QStringLiteral("音の録音、放音のために\"SNDREC32.EXE\" (別の選択はできません)"),
         QStringLiteral("サウンドプレーヤー(Sndrec32.exeに固定) (*.exe)|*.exe")},
        {"TextIE", QStringLiteral("IE"),
         QStringLiteral("インターネットのデータ表示用ビューワ (Iexplore.exe等)"),
         QStringLiteral("インターネットファイルエディター (*.exe)|*.exe")},
        {"TextPic", QStringLiteral("画像"),
         QStringLiteral("画像編集のためのエディター (Pbrush.exe,MsPaint.exe等)"),
         QStringLiteral("画像エディター (*.exe)|*.exe")},
    }};
    return table;
}

const QString kNotAProgram =
    QStringLiteral("実行できるファイルではありません。プログラムを選んでください。");
const QString kClosingNote1 =
    QStringLiteral(" デジタルカメラで良く使われているMOVファイルを見るためにはQuickTimeが、");
const QString kClosingNote2 =
    QStringLiteral("3D画像を見るためにはLattice Viewerが必要です。インストールしてありますか？");

QFrame* makeRule(QWidget* parent)
{
    auto* rule = new QFrame(parent);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    return rule;
}

// The name of a program path in capitals: "Z:\usr\bin\audacity" gives "AUDACITY".
QString programName(const QString& path)
{
    return UCase(FileNameOfPath(Trim(path)));
}

} // namespace

FormSetAccessDirectry::FormSetAccessDirectry(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormSetAccessDirectry"), parent)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("☆　編集作業のための、アプリケーション指定　☆"));
    for (int i = 0; i < kRows; ++i) {
        const Row& row = rows()[size_t(i)];
        rowBoxes_[size_t(i)] = named<QLineEdit>(QString::fromLatin1(row.box), row.designText, this);
        setForeColor(rowBox(i), kColorRed);
        Label11[size_t(i)] = named<QLabel>(QStringLiteral("Label11_%1").arg(i), row.name, this);
        CommandApliPos[size_t(i)] = named<QPushButton>(QStringLiteral("CommandApliPos_%1").arg(i),
                                                       QStringLiteral("参照..."), this);
        connect(CommandApliPos[size_t(i)], &QPushButton::clicked, this,
                [this, i] { CommandApliPos_Click(i); });
    }
    TextComment = rowBoxes_[0];
    TextText = rowBoxes_[1];
    TextMpl2 = rowBoxes_[2];
    TextSnd = rowBoxes_[3];
    TextIE = rowBoxes_[4];
    TextPic = rowBoxes_[5];
    TextIntialAccessDirectry = named<QLineEdit>(QStringLiteral("TextIntialAccessDirectry"),
                                                QStringLiteral("C:\\Lumentas"), this);
    TextDirectryProgramRunning =
        named<QLineEdit>(QStringLiteral("TextDirectryProgramRunning"),
                         QStringLiteral("C:\\Lumentas\\ForProgramRun"), this);
    for (QLineEdit* fixed : {TextIntialAccessDirectry, TextDirectryProgramRunning}) {
        fixed->setReadOnly(true);
        setBackColor(fixed, kColorButtonFace);
    }
    CommandExit =
        named<QPushButton>(QStringLiteral("CommandExit"), QStringLiteral("設定/完了"), this);
    CommandExit->setEnabled(false);
    connect(CommandExit, &QPushButton::clicked, this, &FormSetAccessDirectry::CommandExit_Click);

    const std::array<QLabel*, 6> notes{
        named<QLabel>(QStringLiteral("Label1"),
                      QStringLiteral("プログラムが最初にアプローチするディレクトリー"), this),
        named<QLabel>(QStringLiteral("Label2"),
                      QStringLiteral("使用者が設定した値を格納しているディレクトリー"), this),
        named<QLabel>(QStringLiteral("Label3"),
                      QStringLiteral("↓下記の設定は固定されて変更することはできません。"), this),
        named<QLabel>(QStringLiteral("Label4"),
                      QStringLiteral("下記の表示用のアプリケーションの指定が正しくない場合は、"
                                     "手動で再設定してください。"),
                      this),
        named<QLabel>(QStringLiteral("Label5"),
                      QStringLiteral("↓全部青色の表示になっていれば設定は完了できます"), this),
        named<QLabel>(
            QStringLiteral("Label6"),
            QStringLiteral("↑赤色表示された所は、アプリケーションが見つからなかりませんでした。"),
            this),
    };
    setForeColor(notes[4], kColorBlue);
    setForeColor(notes[5], kColorRed);
    layOut(notes);
}

void FormSetAccessDirectry::layOut(const std::array<QLabel*, 6>& notes)
{
    auto* page = new QVBoxLayout(this);
    page->setSpacing(8);

    page->addWidget(notes[2]);
    auto* folders = new QGridLayout;
    folders->addWidget(notes[0], 0, 0);
    folders->addWidget(TextIntialAccessDirectry, 0, 1);
    folders->addWidget(notes[1], 1, 0);
    folders->addWidget(TextDirectryProgramRunning, 1, 1);
    folders->setColumnStretch(1, 1);
    page->addLayout(folders);

    page->addWidget(makeRule(this));
    page->addWidget(notes[3]);
    auto* programs = new QGridLayout;
    for (int i = 0; i < kRows; ++i) {
        programs->addWidget(Label11[size_t(i)], i, 0);
        programs->addWidget(rowBox(i), i, 1);
        programs->addWidget(CommandApliPos[size_t(i)], i, 2);
    }
    programs->setColumnStretch(1, 1);
    page->addLayout(programs);
    page->addWidget(notes[5]);

    page->addWidget(makeRule(this));
    auto* closing = new QHBoxLayout;
    closing->addWidget(notes[4], 1);
    closing->addWidget(CommandExit);
    page->addLayout(closing);

    for (int i = 0; i < kRows; ++i)
        rowBox(i)->setMinimumWidth(420);
    CommandExit->setMinimumWidth(120);
}

QLineEdit* FormSetAccessDirectry::rowBox(int index) const
{
    return rowBoxes_[size_t(index)];
}

QString FormSetAccessDirectry::rowField(int index) const
{
    const DirecDataRecord& record = basics_.state().DirecData;
    const std::array<QString, kRows> fields{record.CommentEditorPath,  record.TextEditorPath,
                                            record.MediaPlayerPath,    record.SoundPlayerPath,
                                            record.InternetViewerPath, record.PictureEditorPath};
    return FixedText(fields[size_t(index)]);
}

void FormSetAccessDirectry::setRowField(int index, const QString& path)
{
    DirecDataRecord& record = basics_.state().DirecData;
    const std::array<FixedString<100>*, kRows> fields{
        &record.CommentEditorPath, &record.TextEditorPath,     &record.MediaPlayerPath,
        &record.SoundPlayerPath,   &record.InternetViewerPath, &record.PictureEditorPath};
    *fields[size_t(index)] = path;
}

void FormSetAccessDirectry::Form_Load()
{
    completed_ = false;
    const QString windowsFolder = basics_.GetWindowsFolder();
    const QString drive = Left(windowsFolder, InStr(windowsFolder, QStringLiteral(":")));
    TextIntialAccessDirectry->setText(drive + QStringLiteral("\\Lumentas"));
    TextDirectryProgramRunning->setText(drive + QStringLiteral("\\Lumentas\\ForProgramRun_KDR"));
    searchPrograms();
    CheckFoundApps();
}

void FormSetAccessDirectry::searchPrograms()
{
    const QString system = basics_.GetSystemFolder();
    const FileSystem& fs = basics_.services().fs;
    DirecDataRecord& record = basics_.state().DirecData;
    const QString editor = findProgram(ProgramRole::TextEditor, system, fs);
    const QString player = findProgram(ProgramRole::MediaPlayer, system, fs);
    record.CommentEditorPath = editor;
    record.TextEditorPath = editor;
    record.PictureEditorPath = findProgram(ProgramRole::PictureEditor, system, fs);
    record.SoundPlayerPath = findProgram(ProgramRole::SoundRecorder, system, fs);
    record.VrmlViewerPath = findProgram(ProgramRole::VrmlViewer, system, fs);
    record.CyberViewPath = findProgram(ProgramRole::SecondViewer, system, fs);
    record.MediaPlayerPath = player;
    record.MediaPlayerPath2 = player;
    record.InternetViewerPath = findProgram(ProgramRole::WebBrowser, system, fs);
}

void FormSetAccessDirectry::CheckFoundApps()
{
    // A row whose program isn't there keeps its design text, red.
    for (int i = 0; i < kRows; ++i) {
        const QString path = rowField(i);
        rowBox(i)->setText(basics_.FileExists(Trim(path)) ? path : rows()[size_t(i)].designText);
        checkRow(i);
    }
    updateCommandExit();
}

bool FormSetAccessDirectry::checkRow(int index)
{
    const bool found = basics_.FileExists(Trim(rowBox(index)->text()));
    found_[size_t(index)] = found;
    setForeColor(rowBox(index), found ? kColorBlue : kColorRed);
    if (!found)
        basics_.services().ui.beep();
    return found;
}

void FormSetAccessDirectry::updateCommandExit()
{
    const bool allFound = std::all_of(found_.begin(), found_.end(), [](bool f) { return f; });
    CommandExit->setEnabled(allFound);
    if (!allFound) {
        setBackColor(CommandExit, kColorButtonFace);
        return;
    }
    setBackColor(CommandExit, kColorGreen);
    basics_.services().ui.beep();
}

void FormSetAccessDirectry::CommandApliPos_Click(int index)
{
    if (index < 0 || index >= kRows)
        return;
    FileSystem& fs = basics_.services().fs;
    QString filter = rows()[size_t(index)].filter;
    if (index == kSoundRow)
        filter.replace(QStringLiteral("Sndrec32.exe"), FileNameOfPath(Trim(TextSnd->text())));
    const std::optional<QString> chosen = basics_.services().ui.openFileName(
        Label11[size_t(index)]->text(), fs.toNative(FolderOfPath(rowField(index))), filter);
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    const QString program = fs.toProgram(*chosen);
    if (!acceptsChoice(index, *chosen, program))
        return;
    rowBox(index)->setText(program);
    if (checkRow(index))
        setRowField(index, program);
    updateCommandExit();
}

bool FormSetAccessDirectry::acceptsChoice(int index, const QString& nativePath,
                                          const QString& programPath)
{
    UserDialogs& ui = basics_.services().ui;
    if (index == kSoundRow) {
        // The recorder is fixed: the program the search put in the row.
        const QString fixed = programName(TextSnd->text());
        if (programName(programPath) != fixed) {
            ui.msgBox(QStringLiteral("必ず、") + fixed + QStringLiteral("を使用してください。"));
            return false;
        }
    }
    if (!isProgramFile(nativePath)) {
        ui.msgBox(kNotAProgram);
        return false;
    }
    return true;
}

void FormSetAccessDirectry::CommandExit_Click()
{
    DirecDataRecord& record = basics_.state().DirecData;
    record.CommentEditorPath = Trim(TextComment->text());
    record.TextEditorPath = Trim(TextText->text());
    record.MediaPlayerPath = Trim(TextMpl2->text());
    record.MediaPlayerPath2 = Trim(TextMpl2->text());
    record.SoundPlayerPath = Trim(TextSnd->text());
    record.InternetViewerPath = Trim(TextIE->text());
    record.PictureEditorPath = Trim(TextPic->text());

    const QString gothic = QStringLiteral("MS UI Gothic");
    const QString nine = QStringLiteral("9");
    record.CommentFontName = gothic;
    record.TextFontName = gothic;
    record.DispFontName = gothic;
    record.CommentFontSize = nine;
    record.TextFontSize = nine;
    record.DispFontSize = nine;
    record.CommentBackColor = QStringLiteral("&H00FF8080&");
    record.CommentForeColor = QStringLiteral("0");
    record.TextFontColor = QString::number(0x808040);
    record.TextBackColor = QStringLiteral("0");
    record.DispFontColor = QString::number(0xF4C657);
    record.DispBackColor = QStringLiteral("0");
    record.PictBackColor = QString::number(0xC0C0C0);
    record.AutoPageInterval = 3;

    completed_ = true;
    unload();
}

void FormSetAccessDirectry::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    if (!completed_) {
        if (onAbandoned)
            onAbandoned();
        return;
    }
    completed_ = false;
    const ProgramState& state = basics_.state();
    const FileSystem& fs = basics_.services().fs;
    writeDirecData(fs.toNative(state.ProgramRunDir + QStringLiteral("\\DirecData.ran")),
                   state.DirecData);
    basics_.services().ui.msgBox(kClosingNote1 + kClosingNote2);
    if (onCompleted)
        onCompleted();
}

} // namespace lumen
