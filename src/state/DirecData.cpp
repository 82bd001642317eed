#include "state/DirecData.h"

#include "platform/RegularFile.h"
#include "platform/SafeFile.h"

#include <QFile>
#include <QtEndian>

namespace lumen {
namespace {

// Walks the fields in their order in the record, so that writing and reading
// share one description of the layout.
template <class Record, class Visitor> void visitFields(Record& r, Visitor&& v)
{
    v(r.PictureEditorPath);
    v(r.CommentEditorPath);
    v(r.SoundPlayerPath);
    v(r.TextEditorPath);
    v(r.VrmlViewerPath);
    v(r.CyberViewPath);
    v(r.MediaPlayerPath);
    v(r.MediaPlayerPath2);
    v(r.InternetViewerPath);
    v(r.CommentFontName);
    v(r.CommentFontSize);
    v(r.CommentBackColor);
    v(r.CommentForeColor);
    v(r.TextFontName);
    v(r.TextFontSize);
    v(r.TextFontColor);
    v(r.TextBackColor);
    v(r.DispFontName);
    v(r.DispFontSize);
    v(r.DispFontColor);
    v(r.DispBackColor);
    v(r.PictBackColor);
    v(r.AutoPageInterval);
    v(r.NormalWindowLeft);
    v(r.NormalWindowTop);
    v(r.NormalWindowWidth);
    v(r.NormalWindowHeight);
    v(r.MainWindowLeft);
    v(r.MainWindowTop);
    v(r.MainWindowWidth);
    v(r.MainWindowHeight);
    v(r.OriginalSizeOn);
    v(r.CyberViewOn);
    v(r.HtmlDelFolderFlag);
    for (auto& value : r.SaveImageValues)
        v(value);
    for (auto& value : r.ModPicValues)
        v(value);
    for (auto& text : r.ModPicTexts)
        v(text);
    for (auto& value : r.ModPicValues2)
        v(value);
    v(r.PastCommentLeft);
    v(r.PastCommentTop);
    v(r.PastCommentWidth);
    v(r.PastCommentHeight);
    for (auto& text : r.Reserved)
        v(text);
    v(r.LastListFile);
    v(r.ListAutoStart);
}

struct Writer {
    QByteArray& out;
    void operator()(qint16 value)
    {
        char bytes[2];
        qToLittleEndian(value, bytes);
        out.append(bytes, 2);
    }
    template <int N> void operator()(const FixedString<N>& text) { out.append(text.bytes()); }
};

struct Reader {
    const QByteArray& in;
    qsizetype pos = 0;
    void operator()(qint16& value)
    {
        value = qFromLittleEndian<qint16>(in.constData() + pos);
        pos += 2;
    }
    template <int N> void operator()(FixedString<N>& text)
    {
        text.setBytes(in.mid(pos, N));
        pos += N;
    }
};

} // namespace

QByteArray DirecDataRecord::toBytes() const
{
    QByteArray out;
    out.reserve(kSize);
    visitFields(*this, Writer{out});
    Q_ASSERT(out.size() == kSize);
    return out;
}

DirecDataRecord DirecDataRecord::fromBytes(const QByteArray& bytes)
{
    QByteArray padded = bytes.left(kSize);
    padded.append(QByteArray(kSize - padded.size(), '\0'));
    DirecDataRecord record;
    visitFields(record, Reader{padded});
    return record;
}

DirecDataRecord readDirecData(const QString& nativePath)
{
    switch (pathKind(nativePath)) {
    case PathKind::Missing:
        // Opening a random-access file creates it; the record reads as empty.
        writeFileSafely(nativePath, QByteArray());
        return {};
    case PathKind::Regular:
        break;
    case PathKind::Folder:
    case PathKind::Other:
        return {}; // never opened: it reads as an empty record and stays
    }
    QFile file;
    if (!openRegularFile(file, nativePath))
        return {};
    return DirecDataRecord::fromBytes(file.read(DirecDataRecord::kSize));
}

// The record is the one file that holds every setting: its rename is on the
// disk before the write counts as done.
bool writeDirecData(const QString& nativePath, const DirecDataRecord& record)
{
    return writeFileSafely(nativePath, record.toBytes(), Durability::SyncedWithFolder);
}

} // namespace lumen
