#include "fileops/VeroProcedure_Basical.h"

#include "fileops/BasicHost.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/PictureFile.h"
#include "platform/RegularFile.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QDateTime>
#include <QFileInfo>

#include <cmath>
#include <limits>

namespace lumen {
namespace {

using namespace basic;

const QString kCrLf = QStringLiteral("\r\n");

// The run-time's own texts for the errors the readers can meet.
const QString kErrorFileNotFound = QStringLiteral("ファイルが見つかりません。");
const QString kErrorFileAccess = QStringLiteral("パス/ファイル アクセス エラーです。");
const QString kErrorOutOfMemory = QStringLiteral("メモリが不足しています。");
const QString kErrorSubscript = QStringLiteral("インデックスが有効範囲にありません。");

constexpr int kChunkLines = 50;
constexpr int kChunks = 700;
constexpr int kMaxLines = kChunkLines * kChunks; // 35,000
constexpr int kStopShownAtLine = 1000;

bool holdsWildcard(const QString& text)
{
    return text.contains(QLatin1Char('*')) || text.contains(QLatin1Char('?'));
}

} // namespace

VeroProcedure_Basical::VeroProcedure_Basical(ProgramState& state, const Services& services,
                                             BasicHost& host)
    : state_(state)
    , services_(services)
    , host_(host)
{}

QString VeroProcedure_Basical::nativePath(const QString& path) const
{
    return services_.fs.toNative(path);
}

void VeroProcedure_Basical::setCaption(const QString& caption)
{
    host_.setMainCaption(caption);
}

// ---- Existence tests -------------------------------------------------------

bool VeroProcedure_Basical::FileExists(QString& path) const
{
    TrimLineEnds(path);
    if (path.isEmpty())
        return false;
    if (path.contains(QLatin1String("://")))
        return true;
    // A device or a pipe in a file's place is there, though it is never
    // opened: a default is never written over it.
    return !services_.fs.dir(path).isEmpty() || services_.fs.isSpecialFile(path);
}

bool VeroProcedure_Basical::FileExists(const QString& path) const
{
    QString copy = path;
    return FileExists(copy);
}

bool VeroProcedure_Basical::FolderExists(QString& path) const
{
    TrimLineEnds(path);
    if (path.isEmpty() || !path.contains(QLatin1Char(':')))
        return false;
    if (path == state_.DataDir || path == state_.ProgramRunDir)
        return true;
    return services_.fs.isFolder(path);
}

bool VeroProcedure_Basical::FolderExists(const QString& path) const
{
    QString copy = path;
    return FolderExists(copy);
}

QString VeroProcedure_Basical::FileSizeInMB(const QString& path) const
{
    if (!path.contains(QLatin1Char(':')) || !path.contains(QLatin1Char('.')))
        return QString();
    if (!FileExists(path))
        return QStringLiteral("0.000MB");
    const qint64 length = qMax<qint64>(0, services_.fs.fileLength(path));
    return Format(double(length) / 1000000.0, QStringLiteral("##0.000")) + QStringLiteral("MB");
}

QString VeroProcedure_Basical::PadToWidth(const QString& text, int width) const
{
    if (text.size() > width) {
        services_.ui.msgBox(QStringLiteral(" Line text is bigger than you want"));
        return QString();
    }
    return text + Space(width - int(text.size()));
}

// ---- File changes ----------------------------------------------------------

void VeroProcedure_Basical::MakeFolderTree(QString& path)
{
    TrimLineEnds(path);
    const QStringList parts = path.split(QLatin1Char('\\'));
    QString walked;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (parts[i].isEmpty())
            continue;
        walked = walked.isEmpty() ? parts[i] : walked + QLatin1Char('\\') + parts[i];
        if (i == 0 && walked.endsWith(QLatin1Char(':'))) {
            services_.fs.chDir(walked + QLatin1Char('\\'));
            continue;
        }
        if (!FolderExists(walked))
            services_.fs.makeFolder(walked);
        services_.fs.chDir(walked);
    }
}

void VeroProcedure_Basical::MakeFolderTree(const QString& path)
{
    QString copy = path;
    MakeFolderTree(copy);
}

void VeroProcedure_Basical::DeleteFolderTree(const QString& path)
{
    if (!FolderExists(path))
        return;
    FileSystem& fs = services_.fs;
    const QString current = fs.curDir();
    if (UCase(path).contains(UCase(StripTrailingBackslash(current))) &&
        UCase(Trim(LastFolderName(path))) == UCase(Trim(LastFolderName(current)))) {
        // A folder in use can't go; step out of it first.
        if (!fs.chDir(GetWindowsFolder()))
            fs.chDir(QStringLiteral("C:\\"));
    }
    setCaption(QStringLiteral("フォルダー削除中 "));
    WaitMilliseconds(100);
    const TreeDeleteResult result = fs.deleteTree(path);
    if (result == TreeDeleteResult::Refused || result == TreeDeleteResult::Failed) {
        setCaption(QStringLiteral("Folder Not Deleated"));
        return;
    }
    WaitMilliseconds(300);
    WaitForFolderGone(path);
    setCaption(QString());
    RefreshFileControls();
}

void VeroProcedure_Basical::DeleteFileForced(const QString& path)
{
    if (Trim(path).isEmpty() || !FileExists(path))
        return;
    setCaption(QStringLiteral("ファイル削除中"));
    services_.fs.clearAttributes(path);
    services_.fs.deleteFile(path);
    setCaption(QString());
    RefreshFileControls();
}

void VeroProcedure_Basical::DeleteFileConfirmed(const QString& path)
{
    static const QMap<int, QString> questions = {
        {1, QStringLiteral("このファイルは読み出し専用です。それでも消去しますか？")},
        {2, QStringLiteral("このファイルは隠しファイルです。それでも消去しますか？")},
        {4, QStringLiteral("このファイルはシステムファイルです。それでも消去しますか？")},
        {8, QStringLiteral("このファイルはボリュームラベルです。それでも消去しますか？")},
        {16, QStringLiteral("このファイルはMS_DOSラベルです。それでも消去しますか？")},
    };
    FileSystem& fs = services_.fs;
    const int attributes = fs.attributes(path);
    const auto question = questions.constFind(attributes);
    if (question == questions.constEnd()) {
        fs.deleteFile(path);
        return;
    }
    if (services_.ui.askYesNo(*question) != kAnswerYes)
        return;
    fs.clearAttributes(path);
    fs.deleteFile(path);
    BeepBurst();
}

void VeroProcedure_Basical::MoveFileByPair(const QString& pair)
{
    if (holdsWildcard(pair)) {
        setCaption(QStringLiteral("[*] と [?] は使うことができません。"));
        RefreshFileControls();
        return;
    }
    auto [from, to] = SplitFilePair(pair);
    if (FileExists(from)) {
        QString folder = FolderOfPath(to);
        if (FolderExists(folder)) {
            if (FileExists(to)) {
                DeleteFileForced(to);
                WaitMilliseconds(100);
            }
        } else {
            MakeFolderTree(folder);
            WaitMilliseconds(100);
        }
        services_.fs.renameFile(from, to);
        WaitForFileReady(to);
    }
    RefreshFileControls();
}

void VeroProcedure_Basical::CopyFileByPair(const QString& pair)
{
    if (holdsWildcard(pair)) {
        setCaption(QStringLiteral("[*]と[?]は使うことができません。"));
        RefreshFileControls();
        return;
    }
    auto [from, to] = SplitFilePair(pair);
    if (FileExists(from)) {
        setCaption(QStringLiteral("ファイル複製中 ") + FileSizeInMB(from));
        FileSystem& fs = services_.fs;
        if (UCase(Trim(to)) == QLatin1String("AUTO_BY_DATE")) {
            const QString name = FileNameOfPath(from);
            const QString target = state_.DataDir + QLatin1Char('\\') + NameBeforeFirstDot(name) +
                                   QLatin1Char('_') + MakeDateTimeStamp() + QLatin1Char('.') +
                                   TextAfterFirstDot(name);
            if (to != target) {
                fs.copyFile(from, target);
                WaitForFileReady(target);
            }
        } else {
            QString folder = FolderOfPath(to);
            if (!FolderExists(folder))
                MakeFolderTree(folder);
            // An old target is replaced by a complete copy only, never deleted
            // first; a target that is the source itself is passed over, so the
            // source survives.
            if (fs.copyFile(from, to))
                WaitForFileReady(to);
        }
    }
    RefreshFileControls();
    setCaption(QString());
}

void VeroProcedure_Basical::RefreshFileControls()
{
    host_.refreshFileControls();
}

bool VeroProcedure_Basical::WriteTextToFile(const QString& text, const QString& path)
{
    return writeTextFileSafely(nativePath(path), text + kCrLf);
}

// ---- Reading text files ----------------------------------------------------

struct VeroProcedure_Basical::ReadResult {
    bool ok = false;
    QString text;
    int kept = 0;            // lines that weren't blank (cleaning only)
    bool sameAsFile = false; // the text is the file's own, line ends included
};

namespace {

// The text a reader puts out, line by line. As long as what comes out is
// the very text that was read (a view at the same place, or the same
// characters), nothing is copied; the first difference copies what came
// before and from then on the text is built.
class LineOutput {
public:
    explicit LineOutput(QStringView source)
        : source_(source)
    {}

    void add(QStringView piece)
    {
        if (!built_) {
            const bool same =
                piece.data() == source_.data() + kept_ || source_.mid(kept_, piece.size()) == piece;
            if (same && kept_ + piece.size() <= source_.size()) {
                kept_ += piece.size();
                return;
            }
            built_ = true;
            text_.reserve(source_.size() + source_.size() / 8 + 2);
            text_ += source_.left(kept_);
        }
        text_ += piece;
    }

    bool unchanged(qsizetype sourceSize) const { return !built_ && kept_ == sourceSize; }

    // The text put out; `whole` is the text that was read, handed over when
    // nothing differed.
    QString take(QString& whole)
    {
        if (built_)
            return std::move(text_);
        if (kept_ == whole.size())
            return std::move(whole);
        return whole.left(kept_);
    }

private:
    QStringView source_;
    qsizetype kept_ = 0;
    bool built_ = false;
    QString text_;
};

} // namespace

VeroProcedure_Basical::ReadResult
VeroProcedure_Basical::readLinesChunked(const QString& path, bool cleaning, qint64 limit)
{
    auto fail = [this](const QString& errorText) {
        services_.ui.beep();
        services_.ui.msgBox(errorText);
        host_.unloadStop();
        return ReadResult{};
    };
    // Only a regular file is read, and no more of it than the limit.
    const QString native = nativePath(path);
    const PathKind kind = pathKind(native);
    if (kind == PathKind::Missing)
        return fail(kErrorFileNotFound);
    if (kind != PathKind::Regular)
        return fail(kErrorFileAccess);
    const auto bytes = readRegularFile(native, limit);
    if (!bytes)
        return fail(QFileInfo(native).size() > limit ? kErrorOutOfMemory : kErrorFileAccess);
    QString whole = text::decode(*bytes);

    ReadResult result;
    const QStringView all(whole);
    LineOutput output(all);
    const QString crLf = kCrLf;
    qsizetype pos = 0;
    int lineNo = 0;
    bool stopShown = false;
    while (pos < all.size()) {
        // One line: up to CR LF, LF or CR.
        qsizetype end = all.indexOf(QLatin1Char('\n'), pos);
        if (end < 0)
            end = all.size();
        const qsizetype cr = all.mid(pos, end - pos).indexOf(QLatin1Char('\r'));
        if (cr >= 0)
            end = pos + cr;
        const QStringView line = all.mid(pos, end - pos);
        pos = end;
        if (pos < all.size() && all[pos] == QLatin1Char('\r')) {
            ++pos;
            if (pos < all.size() && all[pos] == QLatin1Char('\n'))
                ++pos;
        } else if (pos < all.size() && all[pos] == QLatin1Char('\n')) {
            ++pos;
        }

        ++lineNo;
        if (lineNo > kMaxLines)
            return fail(kErrorSubscript);
        // Events run every chunk of lines: a click on LabelStop is seen within
        // microseconds, and a long list doesn't pay for a pump on every line.
        if (lineNo % kChunkLines == 0)
            DoEvents();
        if (state_.StopRequested || services_.clock.ending()) {
            host_.unloadStop();
            return ReadResult{};
        }
        if (lineNo == kStopShownAtLine) {
            host_.showStop();
            stopShown = true;
        }
        if (stopShown && lineNo % kChunkLines == 0)
            host_.setStopText(line.toString());

        if (cleaning) {
            const QStringView trimmed = TrimLineEndsView(line);
            if (trimmed.isEmpty())
                continue;
            ++result.kept;
            if (HoldsDriveMark(trimmed) || !state_.ForcedDriveFrom.isEmpty()) {
                const QString resolved = ResolveDriveName(trimmed.toString());
                output.add(resolved == trimmed ? trimmed : QStringView(resolved));
            } else {
                output.add(trimmed);
            }
        } else {
            output.add(line);
        }
        output.add(crLf);
    }
    if (stopShown) {
        const int chunks = lineNo / kChunkLines + 1;
        for (int chunk = 1; chunk <= chunks; ++chunk)
            host_.setStopText(QString::number(chunk * kChunkLines));
    }
    result.ok = true;
    result.sameAsFile = output.unchanged(whole.size());
    result.text = output.take(whole);
    return result;
}

QString VeroProcedure_Basical::ReadTextOfFile(const QString& path, qint64 limit)
{
    state_.StopRequested = false;
    if (path.isEmpty())
        return QString();
    ReadResult read = readLinesChunked(path, false, limit);
    if (!read.ok)
        return QString();
    if (read.text.size() >= 3 && read.text.endsWith(kCrLf))
        read.text.chop(2);
    return read.text;
}

int VeroProcedure_Basical::CleanListFile(const QString& path)
{
    return CleanListFile(path, nullptr);
}

int VeroProcedure_Basical::CleanListFile(const QString& path, QString* cleanedText, bool rewrite)
{
    if (!FileExists(path))
        return 0;
    ReadResult read = readLinesChunked(path, true, kListFileLimit);
    if (!read.ok)
        return 0;
    if (read.kept > 0) {
        while (read.text.endsWith(QLatin1Char('\r')) || read.text.endsWith(QLatin1Char('\n')))
            read.text.chop(1);
        read.text += kCrLf; // as WriteTextToFile prints it, without a second copy
        // A file that already holds this text is left as it is: every line
        // came out as it was, each ended by CR LF.
        if (!read.sameAsFile && rewrite)
            writeTextFileSafely(nativePath(path), read.text);
        host_.unloadStop();
        WaitForFileReady(path);
    }
    if (cleanedText)
        *cleanedText = std::move(read.text);
    return read.kept;
}

// ---- Waits, sound and messages ---------------------------------------------

void VeroProcedure_Basical::WaitMilliseconds(double milliseconds)
{
    // A length that is no number waits nothing; one beyond any clock waits
    // until the program ends.
    Clock& clock = services_.clock;
    const qint64 now = clock.tickCount();
    const double length = std::ceil(milliseconds);
    const qint64 longest = std::numeric_limits<qint64>::max() - now;
    qint64 target = now;
    if (length >= double(longest))
        target = std::numeric_limits<qint64>::max();
    else if (length > 0)
        target = now + qint64(length);
    clock.waitUntil(target);
}

void VeroProcedure_Basical::DoEvents()
{
    services_.clock.doEvents();
}

void VeroProcedure_Basical::WaitForFileReady(const QString& path)
{
    // The length compared before and after the pause is the path's own text,
    // which can't change, so this is a plain 10 ms pause, as callers expect.
    const qsizetype before = path.size();
    WaitMilliseconds(10);
    Q_UNUSED(before);
}

void VeroProcedure_Basical::WaitForFolderGone(const QString& path)
{
    Clock& clock = services_.clock;
    qint64 mark = clock.tickCount();
    while (!clock.ending()) {
        WaitMilliseconds(10);
        if (!FolderExists(path))
            return;
        const qint64 seconds = (clock.tickCount() - mark) / 1000;
        if (seconds >= 30) {
            const QString question = QStringLiteral("フォルダーの削除を待って") +
                                     Format(double(seconds), QStringLiteral("##0")) +
                                     QStringLiteral("秒経過しました。継続しますか？");
            if (services_.ui.askYesNo(question) == kAnswerNo)
                return;
            mark = clock.tickCount();
        }
    }
}

void VeroProcedure_Basical::BeepBurst()
{
    for (int i = 0; i < 21; ++i)
        services_.ui.beep();
}

void VeroProcedure_Basical::ShowFloatingMessage(int leftTwips, int topTwips, const QString& text)
{
    if (state_.AutoPageOn)
        return;
    if (++floatMessageCount_ != 1) {
        floatMessageCount_ = 0;
        return;
    }
    services_.ui.showMessage(leftTwips, topTwips, text);
    WaitMilliseconds(1000);
    services_.ui.hideMessage();
}

// ---- Platform and pictures -------------------------------------------------

QString VeroProcedure_Basical::BrowseForFolder(QString& title)
{
    const QString chosen = services_.ui.browseForFolder(title, nativePath(services_.fs.curDir()));
    if (chosen.isEmpty())
        return QString();
    const QString folder = StripTrailingBackslash(services_.fs.toProgram(chosen));
    services_.fs.chDir(folder);
    return folder;
}

QString VeroProcedure_Basical::GetWindowsFolder() const
{
    return TrimLineEnds(QStringLiteral("C:\\.local\\bin"));
}

QString VeroProcedure_Basical::GetSystemFolder() const
{
    return TrimLineEnds(QStringLiteral("Z:\\usr\\bin"));
}

bool VeroProcedure_Basical::savePicture(const QImage& picture, const QString& path,
                                        const char* format)
{
    const bool ok = writePicture(picture, nativePath(path), format);
    WaitForFileReady(path);
    return ok;
}

bool VeroProcedure_Basical::SavePictureAsJPG(const QImage& picture, const QString& path)
{
    return savePicture(picture, path, "jpg");
}

bool VeroProcedure_Basical::SavePictureAsPNG(const QImage& picture, const QString& path)
{
    return savePicture(picture, path, "png");
}

bool VeroProcedure_Basical::SavePictureAsBMP(const QImage& picture, const QString& path)
{
    return savePicture(picture, path, "bmp");
}

QImage VeroProcedure_Basical::LoadPictureByPNGObject(const QString& path) const
{
    return readPicture(nativePath(path));
}

QString VeroProcedure_Basical::MovieWrapperHtml(const QString& movie)
{
    const QStringList lines = {
        QStringLiteral("<HTML>"),
        QStringLiteral("<HEAD>"),
        QStringLiteral("<TITLE></TITLE>"),
        QStringLiteral("</HEAD>"),
        QStringLiteral("<BODY BGCOLOR=#000048>"),
        QStringLiteral("<BODY TOPMARGIN=0 MARGINHEIGHT=0 LEFTMARGIN=0 MARGINWIDTH=0 "
                       "scroll=\"no\">"),
        QStringLiteral("<OBJECT CLASSID=\"clsid:02BF25D5-8C17-4B23-BC80-D3488ABDDC6B\" "
                       "WIDTH=100% HEIGHT=100% "
                       "CODEBASE=\"http://www.apple.com/qtactivex/qtplugin.lzh\" "
                       "scale=\"tofit\">"),
        QStringLiteral("<PARAM NAME=\"BgColor\" VALUE=\"#000048\">"),
        QStringLiteral("<param name=\"SRC\" value=") + movie + QLatin1Char('>'),
        QStringLiteral("<PARAM name=\"AUTOPLAY\" VALUE=\"true\">"),
        QStringLiteral("<PARAM name=\"CONTROLLER\" VALUE=\"true\">"),
        QStringLiteral("</OBJECT>"),
        QStringLiteral("</BODY BGCOLOR>"),
        QStringLiteral("</BODY>"),
        QStringLiteral("</HTML>"),
    };
    return lines.join(kCrLf) + kCrLf;
}

void VeroProcedure_Basical::MakeMovieWrapperHtml(const QString& movie, const QString& path)
{
    writeTextFileSafely(nativePath(path), MovieWrapperHtml(movie));
}

QString VeroProcedure_Basical::MakeDateTimeStamp() const
{
    return lumen::MakeDateTimeStamp(QDateTime::currentDateTime());
}

} // namespace lumen
