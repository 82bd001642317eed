#include "select/SelectFilter.h"

#include "platform/Basic.h"
#include "platform/StringGrid.h"
#include "platform/TextCodec.h"

namespace lumen {

namespace {

using basic::Trim;

QString dropLeadingSemicolon(const QString& pattern)
{
    return pattern.startsWith(u';') ? pattern.mid(1) : pattern;
}

bool isOn(const ExtensionBoxes& boxes, qsizetype box)
{
    return boxes.checked.value(box);
}

} // namespace

QString patternFromChecks(ExtensionBoxes& boxes, bool viaAny)
{
    QString pattern;
    for (qsizetype box = 0; box < boxes.names.size(); ++box) {
        if (!isOn(boxes, box))
            continue;
        pattern += QStringLiteral(";*.") + boxes.names.at(box);
        if (!viaAny)
            boxes.any = false;
    }
    if (boxes.any) {
        boxes.checked.fill(false);
        pattern = QStringLiteral("*.*");
    }
    pattern = dropLeadingSemicolon(pattern);
    return Trim(pattern).isEmpty() ? kNoFilesPattern : pattern;
}

QString patternWithWord(const QString& word, const ExtensionBoxes& boxes)
{
    const QString trimmed = Trim(word);
    QString pattern;
    for (qsizetype box = 0; box < boxes.names.size(); ++box) {
        if (isOn(boxes, box))
            pattern += u';' + (u'*' + trimmed + QStringLiteral("*.") + boxes.names.at(box));
    }
    if (pattern.isEmpty())
        return u'*' + trimmed + QStringLiteral(".*");
    return dropLeadingSemicolon(pattern);
}

QString patternOfWordSearch(const QString& word, bool extensionsCount, const ExtensionBoxes& boxes,
                            bool extensionFrameShown, const QString& extension)
{
    if (extensionsCount)
        return patternWithWord(word, boxes);
    const QString stem = u'*' + Trim(word) + u'*';
    if (extensionFrameShown)
        return dropLeadingSemicolon(stem + u'.' + Trim(extension));
    return dropLeadingSemicolon(stem);
}

QString patternOfExtension(const QString& extension)
{
    return QStringLiteral("*.") + Trim(extension);
}

QStringList defaultSearchWordLines()
{
    return {QStringLiteral("'ここに頻繁に検索する単語を登録できます。"),
            QStringLiteral("'"),
            QStringLiteral("'"),
            QStringLiteral("ZBFI"),
            QStringLiteral("ZIG"),
            QStringLiteral("T3D"),
            QStringLiteral("VXPR"),
            QStringLiteral("SMD"),
            QStringLiteral("0"),
            QStringLiteral("9"),
            QStringLiteral("18"),
            QStringLiteral("27")};
}

QStringList searchWordsOf(const QString& text)
{
    QStringList words;
    for (const QString& line : text::splitLines(text)) {
        const QString word = Trim(line);
        if (!word.isEmpty() && !word.startsWith(u'\''))
            words.append(word);
    }
    return words;
}

int findRowByWord(const StringGrid& list, const QString& word, int from, int step, int last)
{
    const QString wanted = basic::UCase(Trim(word));
    if (step == 0)
        return 0;
    for (int row = from; row >= 1 && row <= last; row += step) {
        if (basic::InStr(basic::UCase(list.at(0, row)), wanted) > 0)
            return row;
    }
    return 0;
}

} // namespace lumen
