// FormSelectFile: building the list text: a file click with its preview, a
// whole file box, a folder tree level by level, and the stop of a listing.
#include "select/FormSelectFile.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "select/FolderWalk.h"
#include "select/Preview.h"
#include "select/PreviewBox.h"
#include "select/RichTextBox.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QPushButton>

namespace lumen {

namespace {

using basic::Trim;

const QString kCrLf = QStringLiteral("\r\n");

// Events run this often during a listing, so that CommandStop and the rest
// of the window answer; running them after every name would cost more than
// the listing itself.
constexpr qint64 kPumpMs = 15;
// The list text shows the progress this often.
constexpr qint64 kShowMs = 100;
// Names a piece of CommandAll, and a part of a folder's piece in a walk.
constexpr int kAllPieceNames = 15;
constexpr int kFolderPartNames = 50;

} // namespace

bool FormSelectFile::listingShouldStop()
{
    Clock& clock = basics_.services().clock;
    const qint64 now = clock.tickCount();
    if (now - lastPump_ >= kPumpMs) {
        lastPump_ = now;
        basics_.DoEvents();
    }
    return state_.StopRequested || clock.ending();
}

void FormSelectFile::showProgress(const QString& text, bool force)
{
    const qint64 now = basics_.services().clock.tickCount();
    if (!force && now - lastShown_ < kShowMs)
        return;
    lastShown_ = now;
    Text1->setText(text);
}

void FormSelectFile::CommandStop_Click()
{
    state_.StopRequested = true;
    basics_.services().ui.beep();
    setStopColor(kColorGrey);
}

void FormSelectFile::File1_Click()
{
    const QString name = File1->fileName();
    if (name.isEmpty())
        return;
    state_.SelectedFile = joinFolderAndName(Trim(File1->path()), name);
    if (state_.SelectedFile != lastSeen_) {
        lastSeen_ = state_.SelectedFile;
        if (CheckLumenta->isChecked() && !ListingAll && isPreviewName(state_.SelectedFile))
            preview(state_.SelectedFile);
    }
    KeptText = Text1->text();
    // A name that a list line would split is shown but never listed.
    if (CheckAddToList->isChecked() && staysOneMainFile(state_.SelectedFile)) {
        Text1->appendText(state_.SelectedFile + kCrLf);
        basics_.services().ui.beep();
    }
    Text1->moveCursor(QTextCursor::End);
}

void FormSelectFile::preview(const QString& file)
{
    const QImage picture = loadPreview(basics_.services().fs.toNative(file), Picture2->size());
    Picture1->setPicture(picture);
    Picture2->setPicture(picture);
}

void FormSelectFile::CommandAll_Click()
{
    if (walking_)
        return;
    walking_ = true;
    state_.StopRequested = false;
    setStopColor(kColorRed);
    ListingAll = true;
    const QString path = Trim(File1->path());
    // The names as the box holds them now: events during the listing may
    // take the box to another folder.
    QStringList names;
    names.reserve(File1->count());
    for (int i = 0; i < File1->count(); ++i)
        names.append(File1->item(i)->text());

    QStringList pieces{Text1->text()};
    pieces.reserve(names.size() / kAllPieceNames + 2);
    Text1->setText(QString());
    QString piece;
    int inPiece = 0;
    lastPump_ = lastShown_ = basics_.services().clock.tickCount();
    for (const QString& name : std::as_const(names)) {
        if (listingShouldStop())
            break;
        state_.SelectedFile = joinFolderAndName(path, name);
        if (!staysOneMainFile(state_.SelectedFile))
            continue;
        piece += state_.SelectedFile + kCrLf;
        showProgress(piece);
        if (++inPiece == kAllPieceNames) {
            pieces.append(std::exchange(piece, QString()));
            inPiece = 0;
        }
    }
    pieces.append(piece);
    Text1->setText(pieces.join(QString()));
    Text1->moveCursor(QTextCursor::End);
    basics_.services().ui.beep();
    if (CheckLumenta->isChecked() && isPreviewName(state_.SelectedFile))
        preview(state_.SelectedFile);
    ListingAll = false;
    state_.StopRequested = false;
    setStopColor(kColorGrey);
    walking_ = false;
}

void FormSelectFile::ListOneFolder(const QStringList& files)
{
    // Built in parts of 50 names, each shown as it fills, then joined.
    QStringList parts;
    QString part;
    int inPart = 0;
    for (const QString& file : files) {
        part += file + kCrLf;
        showProgress(part);
        if (++inPart == kFolderPartNames) {
            parts.append(std::exchange(part, QString()));
            inPart = 0;
        }
    }
    parts.append(part);
    ChunkTable.append(parts.join(QString()));
    ++ChunkCount;
}

bool FormSelectFile::FileSelectQuick(const QString& word, const QString& includeMode,
                                     const QString& target, QString& result)
{
    result.clear();
    if (walking_)
        return false;
    walking_ = true;
    const QString startText = CheckAddToList->isChecked() ? Text1->text() : QString();
    state_.StopRequested = false;
    ChunkTable.clear();
    ChunkCount = 0;
    ApplyCurrentFilter();
    setStopColor(kColorRed);

    FolderWalkOptions options;
    if (!Trim(word).isEmpty()) {
        options.word = word;
        options.includeMode = includeMode;
        options.target = target;
    }
    options.levelFolder = state_.ProgramRunDir;
    FolderWalkHooks hooks;
    hooks.stop = [this] { return listingShouldStop(); };
    hooks.pattern = [this] { return filterPattern(); };
    hooks.folderListed = [this](const QString&, const QStringList& files) { ListOneFolder(files); };
    lastPump_ = lastShown_ = basics_.services().clock.tickCount();
    const FolderWalkResult walk =
        walkFolderTree(basics_.services().fs, Dir1->path(), options, hooks);
    setStopColor(kColorGrey);
    if (walk.stopped) {
        // The text as far as it was built; the level files are gone.
        result = walk.listText();
        Text1->setText(startText + result);
        walking_ = false;
        return false;
    }
    basics_.services().ui.beep();
    state_.StopRequested = false;
    for (int i = 0; i < ChunkCount; ++i) {
        result += ChunkTable.at(i);
        showProgress(QStringLiteral("%1 of %2").arg(i).arg(ChunkCount));
    }
    Text1->setText(startText + result);
    walking_ = false;
    return true;
}

} // namespace lumen
