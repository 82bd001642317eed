// VeroProcedure_Basical: the small procedures on which the whole program
// stands: existence tests, copying, moving and deleting with the program's
// own waits and captions, text file input and output, waits, beeps and the
// drive marks of list lines. Paths are in program form. Failures are passed
// over, as everywhere in the program: callers look at the file afterwards.
#pragma once

#include "fileops/BasicText.h"
#include "platform/RegularFile.h"
#include "platform/Services.h"

#include <QImage>
#include <QString>

namespace lumen {

class BasicHost;
struct ProgramState;

class VeroProcedure_Basical {
public:
    VeroProcedure_Basical(ProgramState& state, const Services& services, BasicHost& host);

    // Existence tests. Both run TrimLineEnds on a variable they are given.
    bool FileExists(QString& path) const;
    bool FileExists(const QString& path) const;
    bool FolderExists(QString& path) const;
    bool FolderExists(const QString& path) const;

    QString FileSizeInMB(const QString& path) const; // "1.500MB"
    QString PadToWidth(const QString& text, int width) const;

    // File changes.
    void MakeFolderTree(QString& path);
    void MakeFolderTree(const QString& path);
    void DeleteFolderTree(const QString& path);
    void DeleteFileForced(const QString& path);
    void DeleteFileConfirmed(const QString& path);
    void MoveFileByPair(const QString& pair);
    void CopyFileByPair(const QString& pair);
    void RefreshFileControls();
    // False when the file couldn't be written; an old file then stays whole.
    bool WriteTextToFile(const QString& text, const QString& path);
    // Reads no more than `limit` bytes: a larger file, like one that isn't a
    // regular file, can't be read. Settings files pass kSettingsFileLimit.
    QString ReadTextOfFile(const QString& path, qint64 limit = kListFileLimit);
    int CleanListFile(const QString& path);
    // The same, handing back the text now in the file (lines parted and
    // ended by CR LF), so that a reader need not read it again. Without
    // `rewrite` the file is left as it is (a list that isn't the program's
    // own copy) and only the text is cleaned.
    int CleanListFile(const QString& path, QString* cleanedText, bool rewrite = true);

    // Waits, sound and messages.
    void WaitMilliseconds(double milliseconds);
    void DoEvents();
    void WaitForFileReady(const QString& path);
    void WaitForFolderGone(const QString& path);
    void BeepBurst();
    void ShowFloatingMessage(int leftTwips, int topTwips, const QString& text);

    // Platform and pictures. Pictures are read and written through
    // platform/PictureFile.h: upright, refused when too large, saved whole.
    QString BrowseForFolder(QString& title);
    QString GetWindowsFolder() const;
    QString GetSystemFolder() const;
    bool SavePictureAsJPG(const QImage& picture, const QString& path);
    bool SavePictureAsPNG(const QImage& picture, const QString& path);
    bool SavePictureAsBMP(const QImage& picture, const QString& path); // SavePicture
    QImage LoadPictureByPNGObject(const QString& path) const;
    void MakeMovieWrapperHtml(const QString& movie, const QString& path);

    // Drive marks "*:", "?:" and "%:" of a list line made real.
    QString ResolveDriveName(const QString& line);

    QString MakeDateTimeStamp() const;

    // The bytes of the movie page (exposed for tests and the web view).
    static QString MovieWrapperHtml(const QString& movie);

    ProgramState& state() { return state_; }
    const ProgramState& state() const { return state_; }
    const Services& services() const { return services_; }
    BasicHost& host() { return host_; }

private:
    struct ReadResult;
    ReadResult readLinesChunked(const QString& path, bool cleaning, qint64 limit);
    QString nativePath(const QString& path) const;
    void setCaption(const QString& caption);
    bool savePicture(const QImage& picture, const QString& path, const char* format);

    ProgramState& state_;
    Services services_;
    BasicHost& host_;
    int floatMessageCount_ = 0;
};

} // namespace lumen
