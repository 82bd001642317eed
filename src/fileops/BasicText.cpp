#include "fileops/BasicText.h"

#include "platform/Basic.h"

#include <QDateTime>

namespace lumen {
namespace {

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\r') || c == QLatin1Char('\n') || c == QChar(0);
}

const QString kBackslash = QStringLiteral("\\");

} // namespace

QStringView TrimLineEndsView(QStringView text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    bool cut;
    do {
        while (start < end && text[start] == QLatin1Char(' '))
            ++start;
        while (end > start && text[end - 1] == QLatin1Char(' '))
            --end;
        cut = false;
        while (end > start && isLineEnd(text[end - 1])) {
            --end;
            cut = true;
        }
    } while (cut);
    while (start < end && isLineEnd(text[start]))
        ++start;
    return text.mid(start, end - start);
}

QString TrimLineEnds(QString& text)
{
    const QStringView trimmed = TrimLineEndsView(text);
    if (trimmed.size() != text.size())
        text = trimmed.toString();
    return text;
}

bool HoldsDriveMark(QStringView text)
{
    for (qsizetype colon = text.indexOf(QLatin1Char(':'), 1); colon > 0;
         colon = text.indexOf(QLatin1Char(':'), colon + 1)) {
        const QChar mark = text[colon - 1];
        if (mark == QLatin1Char('*') || mark == QLatin1Char('?') || mark == QLatin1Char('%'))
            return true;
    }
    return false;
}

QString TrimLineEnds(const QString& text)
{
    QString copy = text;
    return TrimLineEnds(copy);
}

QString FixedText(const QString& field)
{
    QString text = TrimLineEnds(field);
    while (text.startsWith(QChar(0)))
        text.remove(0, 1);
    return basic::Trim(text);
}

QString FileNameOfPath(const QString& path)
{
    const QString separator =
        path.toUpper().contains(QLatin1String("://")) ? QStringLiteral("/") : kBackslash;
    const qsizetype last = path.lastIndexOf(separator);
    return last < 0 ? path : path.mid(last + 1);
}

QString NameAfterLastBackslash(const QString& path)
{
    const qsizetype last = path.lastIndexOf(kBackslash);
    return last < 0 ? QString() : path.mid(last + 1);
}

QString FolderOfPath(const QString& path)
{
    const qsizetype last = path.lastIndexOf(kBackslash);
    return last < 0 ? QString() : path.left(last + 1);
}

QString LastFolderName(const QString& path)
{
    if (!path.contains(kBackslash))
        return path;
    const QStringList parts = path.split(kBackslash);
    const QString last = parts.last();
    if (last.contains(QLatin1Char('.')) && parts.size() >= 2)
        return parts[parts.size() - 2];
    return last;
}

QString NameBeforeFirstDot(const QString& name)
{
    const qsizetype dot = name.indexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.left(dot);
}

QString TextAfterFirstDot(const QString& name)
{
    const qsizetype dot = name.indexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString StripTrailingBackslash(const QString& path)
{
    if (basic::Trim(path).isEmpty())
        return QString();
    QString text = TrimLineEnds(path);
    while (text.endsWith(kBackslash))
        text.chop(1);
    return text;
}

QString CollapseDoubleBackslash(const QString& path)
{
    // Blanks are trimmed only from a path without a doubled backslash.
    const qsizetype doubled = path.indexOf(QLatin1String("\\\\"));
    if (doubled < 0)
        return basic::Trim(path);
    return QString(path).remove(doubled, 1);
}

QString SerchAndReplace(const QString& source, const QString& find, const QString& replacement)
{
    if (find.isEmpty())
        return source;
    QString out;
    qsizetype p = 0;
    for (;;) {
        const qsizetype hit = source.indexOf(find, p);
        if (hit < 0)
            break;
        out += QStringView(source).mid(p, hit - p);
        out += replacement;
        p = hit + find.size();
    }
    out += QStringView(source).mid(p);
    return out;
}

QString MakeDateTimeStamp(const QDateTime& moment)
{
    return moment.toString(QStringLiteral("yyyy_MM_dd_HH_mm_ss"));
}

FilePair SplitFilePair(const QString& pair)
{
    const qsizetype comma = pair.indexOf(QLatin1Char(','));
    if (comma < 0)
        return {pair, QString()};
    return {pair.left(comma), pair.mid(comma + 1)};
}

} // namespace lumen
