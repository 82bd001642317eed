#include "editor/EntryWork.h"

#include "editor/CommentForms.h"
#include "editor/EditRows.h"
#include "fileops/BasicText.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/FileSystem.h"
#include "platform/Launcher.h"
#include "platform/SafeFile.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

const QString kCrLf = QStringLiteral("\r\n");
const QString kMark = QStringLiteral("<<<<<");
const QString kTextTemp = QStringLiteral("TextTemp.txt");
const QString kSoundTemp = QStringLiteral("SoundTemp.wav");
const QString kMidiTemp = QStringLiteral("MidiTemp.mid");

} // namespace

const QString EntryWork::kCommentNotice =
    QStringLiteral("<<<<< この記号のあるものはコメントがコマンドラインに記述されています。\r\n"
                   "セーブする前に消してください。ファイルとしてセーブする場合にはこの記号は使わ"
                   "れません。");
const QString EntryWork::kSaveNote = QStringLiteral(
    "更新するためには、今アプリケーションで開いているファイル名で上書き保存してください。");

EntryWork::EntryWork(VeroProcedure_Basical& basics, EntryHost& host)
    : basics_(basics)
    , host_(host)
{}

EntryMode EntryWork::mode() const
{
    if (CommentMode)
        return EntryMode::Comment;
    if (SoundMode)
        return EntryMode::Sound;
    if (MidiMode)
        return EntryMode::Midi;
    return EntryMode::None;
}

QString EntryWork::scratch(const QString& name) const
{
    return basics_.state().ProgramRunDir + QLatin1Char('\\') + name;
}

QString EntryWork::column(int c) const
{
    const ProgramState& s = basics_.state();
    return s.ListArray.at(c, s.PicNo);
}

void EntryWork::setColumn(int c, const QString& value)
{
    ProgramState& s = basics_.state();
    s.ListArray.set(c, s.PicNo, value);
}

bool EntryWork::holds(int c, const QString& word) const
{
    return UCase(column(c)).contains(word);
}

void EntryWork::makeEmptyFile(const QString& path)
{
    writeFileSafely(basics_.services().fs.toNative(path), QByteArray());
}

void EntryWork::start(const QString& commandLine)
{
    // Started in a normal window, not waited for; a program out of reach
    // starts nothing.
    basics_.services().launcher.shell(commandLine);
}

// ---- Viewer buttons ----------------------------------------------------------------

QString EntryWork::program(EntryViewer button) const
{
    const DirecDataRecord& r = basics_.state().DirecData;
    switch (button) {
    case EntryViewer::MsPaint:
        return Trim(FixedText(r.PictureEditorPath));
    case EntryViewer::AVI:
        return Trim(FixedText(r.MediaPlayerPath));
    case EntryViewer::CyberView:
        return QString(); // two viewers: chosen by the page's file
    case EntryViewer::IntExp:
        return Trim(FixedText(r.InternetViewerPath));
    case EntryViewer::Text:
        return Trim(FixedText(r.TextEditorPath));
    case EntryViewer::NotePad:
        return Trim(FixedText(r.CommentEditorPath));
    case EntryViewer::SoundPlayer:
        return Trim(FixedText(r.SoundPlayerPath));
    case EntryViewer::Midi:
        return Trim(FixedText(r.MediaPlayerPath2));
    }
    return QString();
}

std::optional<QString> EntryWork::viewerCommand(EntryViewer button, bool* pictureSaved) const
{
    const ProgramState& s = basics_.state();
    const QString path = program(button);
    const QString file = column(kColMain);
    const auto withFile = [&]() -> QString { return path + QLatin1Char(' ') + file; };
    if (pictureSaved)
        *pictureSaved = false;
    const bool page = s.PicNo != 0;
    const auto holdsAny = [&](const QStringList& words) {
        return page && std::any_of(words.begin(), words.end(),
                                   [&](const QString& w) { return holds(kColMain, w); });
    };
    switch (button) {
    case EntryViewer::AVI:
        return holdsAny({".AVI", ".DAT"}) ? withFile() : path;
    case EntryViewer::CyberView: {
        const DirecDataRecord& r = s.DirecData;
        if (holdsAny({".WRL"}))
            return Trim(FixedText(r.VrmlViewerPath)) + QLatin1Char(' ') + file;
        if (holdsAny({".NFF"}))
            return Trim(FixedText(r.CyberViewPath)) + QLatin1Char(' ') + file;
        return std::nullopt;
    }
    case EntryViewer::IntExp:
        return holdsAny({".HTM", ".HTML", ".CO", ".XV3", ".MOV"}) ? withFile() : path;
    case EntryViewer::Text: {
        QStringList words{".TXT", ".DAT"};
        for (int slot = 0; slot < kExtSlots; ++slot) {
            if (UCase(s.ExtTypeArray.at(slot, 1)) == QLatin1String("TEXT") &&
                !Trim(s.ExtTypeArray.at(slot, 0)).isEmpty())
                words << QLatin1Char('.') + UCase(Trim(s.ExtTypeArray.at(slot, 0)));
        }
        return holdsAny(words) ? withFile() : path;
    }
    case EntryViewer::MsPaint:
        if (page)
            return withFile();
        if (host_.shownPicture()) {
            if (pictureSaved)
                *pictureSaved = true;
            return path + QLatin1Char(' ') + scratch(QStringLiteral("Temp.bmp"));
        }
        return path;
    case EntryViewer::NotePad:
    case EntryViewer::SoundPlayer:
    case EntryViewer::Midi:
        return path; // on a page these open work instead
    }
    return std::nullopt;
}

void EntryWork::viewer(EntryViewer button)
{
    const bool work = button == EntryViewer::NotePad || button == EntryViewer::SoundPlayer ||
                      button == EntryViewer::Midi;
    if (work && basics_.state().PicNo != 0) {
        if (button == EntryViewer::NotePad)
            openComment();
        else if (button == EntryViewer::SoundPlayer)
            openSound();
        else
            openMidi();
        return;
    }
    bool savePicture = false;
    const std::optional<QString> command = viewerCommand(button, &savePicture);
    if (!command)
        return;
    if (savePicture) {
        const QString temp = scratch(QStringLiteral("Temp.bmp"));
        basics_.SavePictureAsBMP(*host_.shownPicture(), temp);
        basics_.WaitForFileReady(temp);
    }
    start(*command);
}

// ---- Opening work --------------------------------------------------------------------

void EntryWork::openComment()
{
    const ProgramState& s = basics_.state();
    FileSystem& fs = basics_.services().fs;
    if (fs.dir(s.ProgramRunDir + QStringLiteral("\\*.*")).isEmpty())
        basics_.MakeFolderTree(s.ProgramRunDir);
    const QString temp = scratch(kTextTemp);
    if (basics_.FileExists(temp))
        basics_.DeleteFileConfirmed(temp);
    if (!fs.isFile(temp))
        basics_.WriteTextToFile(QStringLiteral(">>>>>") + kCrLf, temp);
    CommentMode = true;
    SoundMode = false;
    MidiMode = false;
    if (Trim(column(kColComment)).isEmpty())
        setColumn(kColComment, kCommentNotice);
    const QString comment = column(kColComment);
    MarkPos = InStr(comment, kMark);
    if (MarkPos >= 1 && MarkPos <= 4) {
        basics_.WriteTextToFile(comment, temp);
        host_.showComment(Mid(comment, MarkPos + 6));
    } else {
        host_.showComment(basics_.ReadTextOfFile(comment));
    }
    host_.showOnMain(column(kColMain), kColorGrey);
}

void EntryWork::openSound()
{
    const QString temp = scratch(kSoundTemp);
    basics_.DeleteFileForced(temp);
    if (!basics_.services().fs.isFile(temp))
        makeEmptyFile(temp);
    SoundMode = true;
    CommentMode = false;
    MidiMode = false;
}

void EntryWork::openMidi()
{
    const QString temp = scratch(kMidiTemp);
    if (basics_.FileExists(temp))
        basics_.DeleteFileConfirmed(temp);
    MidiMode = true;
    CommentMode = false;
    SoundMode = false;
}

// ---- CommandOpenEdit -------------------------------------------------------------------

bool EntryWork::reachable(const QString& programPath) const
{
    return programPath.contains(QLatin1Char(':')) &&
           !basics_.services().fs.dir(programPath).isEmpty();
}

void EntryWork::note()
{
    host_.showOnMain(kSaveNote, kColorYellow);
}

void EntryWork::CommandOpenEdit()
{
    struct Setting {
        EntryViewer viewer;
        QString question;
        void (EntryHost::*setUp)();
    };
    const EntryMode m = mode();
    if (m == EntryMode::None)
        return;
    const Setting setting =
        m == EntryMode::Comment
            ? Setting{EntryViewer::NotePad,
                      QStringLiteral("プログラムがNotepadへ到達できません。今再設定しますか？"),
                      &EntryHost::setUpCommentProgram}
        : m == EntryMode::Sound
            ? Setting{EntryViewer::SoundPlayer,
                      QStringLiteral("プログラムがSoundPlayerへ到達できません。今再設定しますか？"),
                      &EntryHost::setUpSoundProgram}
            : Setting{
                  EntryViewer::Midi,
                  QStringLiteral("プログラムがMediaPlayer2へ到達できません。今再設定しますか？"),
                  &EntryHost::setUpMidiProgram};
    if (!reachable(program(setting.viewer))) {
        if (basics_.services().ui.askYesNo(setting.question) != kAnswerYes)
            return;
        (host_.*setting.setUp)();
    }
    const QString path = program(setting.viewer); // as set up now
    if (m == EntryMode::Comment)
        editComment(path);
    else
        editCompanion(path, m == EntryMode::Sound ? QStringLiteral(".WAV") : QStringLiteral(".MID"),
                      m == EntryMode::Midi);
}

void EntryWork::editComment(const QString& path)
{
    note();
    const QString comment = column(kColComment);
    MarkPos = InStr(comment, kMark);
    if (MarkPos >= 1 && MarkPos <= 4) {
        const QString temp = scratch(kTextTemp);
        basics_.WriteTextToFile(comment, temp);
        host_.showComment(Mid(comment, MarkPos + 6));
        start(path + QLatin1Char(' ') + temp);
        if (Trim(basics_.ReadTextOfFile(temp)).isEmpty())
            setColumn(kColComment, QString());
    } else {
        // A file comment is edited where it lies.
        host_.showComment(basics_.ReadTextOfFile(comment));
        start(path + QLatin1Char(' ') + comment);
    }
}

void EntryWork::editCompanion(const QString& path, const QString& extension, bool midi)
{
    if (holds(kColMain, extension)) {
        note();
        start(path + QLatin1Char(' ') + column(kColMain));
    } else if (holds(kColWith, extension)) {
        note();
        start(path + QLatin1Char(' ') + column(kColWith));
    } else if (!midi) {
        start(path + QLatin1Char(' ') + scratch(kSoundTemp));
    } else {
        host_.showOnMain(QStringLiteral("更新するためには、") + basics_.state().ProgramRunDir +
                             QStringLiteral("\\MidiTemp.midとして上書き保存してください。"),
                         kColorYellow);
        makeEmptyFile(scratch(kMidiTemp));
        start(path);
    }
}

// ---- CommandDo -------------------------------------------------------------------------

void EntryWork::showAgain()
{
    host_.showOnMain(column(kColMain), kColorGrey);
}

void EntryWork::CommandDo(EntrySave save)
{
    switch (mode()) {
    case EntryMode::Comment:
        storeComment(save);
        break;
    case EntryMode::Sound:
        storeCompanion(save, QStringLiteral(".WAV"), kSoundTemp);
        break;
    case EntryMode::Midi:
        storeCompanion(save, QStringLiteral(".MID"), kMidiTemp);
        break;
    case EntryMode::None:
        break;
    }
}

// A comment without its mark gets one, on a line of its own, in the column
// and in TextTemp.txt.
void EntryWork::prefixMark()
{
    const QString comment = column(kColComment);
    if (comment.startsWith(kMark) || comment.isEmpty())
        return;
    setColumn(kColComment, kMark + kCrLf + comment);
    basics_.WriteTextToFile(column(kColComment), scratch(kTextTemp));
}

void EntryWork::storeComment(EntrySave save)
{
    const QString temp = scratch(kTextTemp);
    if (save == EntrySave::Delete) {
        basics_.WriteTextToFile(QString(), temp);
        setColumn(kColComment, QString());
    }
    MarkPos = InStr(column(kColComment), kMark);
    if (MarkPos >= 1 && MarkPos <= 4) {
        // A comment on the line, edited through TextTemp.txt.
        TextTempContent = basics_.ReadTextOfFile(temp);
        if (Trim(TextTempContent).isEmpty())
            setColumn(kColComment, QString());
        if (save == EntrySave::ToFile) {
            const QString main = column(kColMain);
            DotPos = InStr(main, QStringLiteral("."));
            // A main file without a dot gives no name, and nothing is copied.
            if (DotPos > 0) {
                ComFileName = Left(main, DotPos - 1) + QStringLiteral("_Com.txt");
                basics_.services().fs.copyFile(temp, ComFileName);
                setColumn(kColComment, ComFileName);
            }
            ArrayToFile();
            host_.takeMainAction();
        } else if (save == EntrySave::ToCommandLine) {
            setColumn(kColComment, Trim(basics_.ReadTextOfFile(temp)));
            prefixMark();
            ReadBackComment();
            host_.takeMainAction();
        }
    } else {
        // A file comment, or none.
        const QString file = column(kColComment);
        if (Trim(basics_.ReadTextOfFile(file)).isEmpty())
            setColumn(kColComment, QString());
        if (save == EntrySave::ToFile) {
            ArrayToFile();
            host_.takeMainAction();
        } else if (save == EntrySave::ToCommandLine) {
            setColumn(kColComment, Trim(basics_.ReadTextOfFile(column(kColComment))));
            prefixMark();
            ReadBackComment();
            host_.takeMainAction();
        }
    }
    showAgain();
    if (basics_.FileExists(temp))
        basics_.DeleteFileConfirmed(temp);
    // A deletion reaches the list file only at the next ArrayToFile.
    if (save == EntrySave::Delete)
        host_.takeMainAction();
}

void EntryWork::storeCompanion(EntrySave save, const QString& extension, const QString& scratchName)
{
    const bool deleting = save == EntrySave::Delete;
    for (int c : {int(kColMain), int(kColWith)}) {
        if (!holds(c, extension))
            continue;
        // Saved by the outside program under its own name: only a deletion
        // has anything to do.
        if (deleting) {
            setColumn(c, QString());
            showAgain();
            ArrayToFile();
            host_.takeMainAction();
        }
        return;
    }
    const QString temp = scratch(scratchName);
    if (deleting) {
        setColumn(kColWith, QString());
    } else {
        const QString main = column(kColMain);
        DotPos = InStr(main, QStringLiteral("."));
        // A main file without a dot gives no name, and nothing is copied.
        if (DotPos > 0) {
            const QString name = Left(main, DotPos) + extension.mid(1).toLower();
            (extension == QLatin1String(".WAV") ? SoundFileName : MidiFileName) = name;
            basics_.services().fs.copyFile(temp, name);
            setColumn(kColWith, name);
        }
    }
    showAgain();
    ArrayToFile();
    host_.takeMainAction();
    if (basics_.FileExists(temp))
        basics_.DeleteFileConfirmed(temp);
}

void EntryWork::CommandExit()
{
    showAgain();
}

// ---- Waits -------------------------------------------------------------------------------

std::optional<QString> EntryWork::waitText() const
{
    if (Trim(column(kColMain)).isEmpty())
        return std::nullopt;
    const double delay = Val(column(kColDelay));
    return delay == 9999 ? QStringLiteral("0") : Format(delay, QStringLiteral("0"));
}

void EntryWork::addWait(const QString& textWait)
{
    const QString wait = Trim(textWait);
    setColumn(kColDelay, wait.isEmpty() || Val(wait) == 0 ? QStringLiteral("9999") : wait);
    ArrayToFile();
    basics_.BeepBurst();
    basics_.WaitMilliseconds(300);
}

// ---- Storing the list --------------------------------------------------------------------

QString EntryWork::listText()
{
    const ProgramState& s = basics_.state();
    const QStringList& words = s.CommandWord;
    QString out;
    for (int row = 1; row <= host_.listTotal(); ++row) {
        QString line;
        appendLineHead(line, s.ListArray, row, words);
        const QString comment = s.ListArray.at(kColComment, row);
        if (!comment.isEmpty()) {
            switch (commentKindOf(comment)) {
            case CommentKind::Inline:
                // A comment of one line is taken from the editor's array, and
                // is empty where that holds none: kept so, the list's backup
                // keeps what it loses.
                appendItem(line, words, kComment,
                           comment.contains(kCrLf) ? commentForFile(comment)
                                                   : s.EditArray.at(kColComment, row));
                break;
            case CommentKind::File:
                appendItem(line, words, kFileComment, comment);
                break;
            case CommentKind::Neither:
                basics_.services().ui.msgBox(QStringLiteral("Check"));
                break;
            }
        }
        if (!s.ListArray.view(kColOption, row).isEmpty())
            appendItem(line, words, kOption, s.ListArray.view(kColOption, row));
        out += line;
        out += kCrLf;
    }
    return TrimLineEnds(out);
}

bool EntryWork::ArrayToFile()
{
    const ProgramState& s = basics_.state();
    const QString text = listText();
    FileSystem& fs = basics_.services().fs;
    // One generation of the old list is kept before it is written over.
    const QString backup = scratch(QStringLiteral("ListBackup.Lst"));
    if (basics_.FileExists(s.ListFileName) && !fs.isSameFile(s.ListFileName, backup) &&
        !fs.copyFile(s.ListFileName, backup)) {
        basics_.services().ui.msgBox(
            QStringLiteral("リストファイルの控えを作れないため、書き込みをやめました: ") +
            s.ListFileName);
        return false;
    }
    if (!basics_.WriteTextToFile(text, s.ListFileName)) {
        basics_.services().ui.msgBox(QStringLiteral("リストファイルに書き込めません: ") +
                                     s.ListFileName);
        return false;
    }
    basics_.WaitMilliseconds(100);
    basics_.WriteTextToFile(text, scratch(QStringLiteral("SelectFile.txt")));
    return true;
}

void EntryWork::ReadBackComment()
{
    setColumn(kColComment, basics_.ReadTextOfFile(scratch(kTextTemp)));
    ArrayToFile();
}

} // namespace lumen
