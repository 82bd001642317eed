#include "editor/CommentForms.h"

#include "platform/Basic.h"

#include <QList>

namespace lumen {
namespace {

using namespace basic;

const QString kCommentMark = QStringLiteral("<<<<<");
const QString kPieceEnd = QStringLiteral(" <<<<<");
const QString kCrLf = QStringLiteral("\r\n");

// The writers keep the places of at most twenty line breaks.
constexpr int kKeptBreaks = 20;

bool namesTextFile(const QString& value)
{
    return value.contains(QLatin1String(".TXT"), Qt::CaseInsensitive);
}

// Trimmed, and while a CR or LF is left the last character dropped.
QString cleanedPiece(QString piece)
{
    for (;;) {
        piece = Trim(piece);
        if (!piece.contains(QLatin1Char('\r')) && !piece.contains(QLatin1Char('\n')))
            return piece;
        piece.chop(1);
    }
}

QString joinedPieces(const QString& value, bool lastMarked)
{
    QList<qsizetype> breaks;
    for (qsizetype at = value.indexOf(kCrLf); at >= 0; at = value.indexOf(kCrLf, at + 2))
        breaks << at;
    const qsizetype n = breaks.size();
    if (n == 0)
        return value;
    QString out = value.left(breaks[0]);
    QString piece; // keeps its text when its line can't be found
    for (qsizetype i = 2; i <= n + 1; ++i) {
        const bool last = i == n + 1;
        const qsizetype needed = last ? n : i; // the break behind the line
        if (needed <= kKeptBreaks) {
            const qsizetype from = breaks[i - 2] + 2;
            piece = last ? value.mid(from) : value.mid(from, breaks[i - 1] - from);
            if (last && !lastMarked) {
                out += piece;
                break;
            }
        }
        piece = cleanedPiece(piece) + kPieceEnd;
        out += piece;
    }
    return out;
}

} // namespace

bool isFileComment(const QString& value)
{
    return namesTextFile(value) && !value.contains(kCommentMark);
}

CommentKind commentKindOf(const QString& value)
{
    const bool marked = value.contains(kCommentMark);
    if (marked && !namesTextFile(value))
        return CommentKind::Inline;
    return namesTextFile(value) ? CommentKind::File : CommentKind::Neither;
}

QString commentForFile(const QString& value)
{
    return joinedPieces(value, false);
}

QString commentForText(const QString& value)
{
    QString text = joinedPieces(value, true);
    // The last mark goes again; the blank before it stays.
    const int start = int(text.size()) - 7;
    if (start >= 1) {
        const int found = InStr(start, text, kCommentMark);
        if (found > 0)
            text.truncate(found - 1);
    }
    return text;
}

} // namespace lumen
