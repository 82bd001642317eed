#include "fileops/BulkWork.h"

#include "fileops/BasicText.h"
#include "platform/Basic.h"

namespace lumen {

using namespace basic;

std::optional<BulkMode> copyOrDeleteMode(const QString& mode)
{
    if (mode == QLatin1String("ALLCOPY"))
        return BulkMode::AllCopy;
    if (mode == QLatin1String("ALLDELEAT"))
        return BulkMode::AllDelete;
    if (mode == QLatin1String("SELECTCOPY"))
        return BulkMode::SelectCopy;
    if (mode == QLatin1String("SELECTDELEAT"))
        return BulkMode::SelectDelete;
    return std::nullopt;
}

bool isSelectMode(BulkMode mode)
{
    return mode == BulkMode::SelectCopy || mode == BulkMode::SelectDelete ||
           mode == BulkMode::NumberedSelect || mode == BulkMode::Replace;
}

bool isDeleteMode(BulkMode mode)
{
    return mode == BulkMode::AllDelete || mode == BulkMode::SelectDelete;
}

std::optional<BulkMode> BulkOptions::mode() const
{
    if (AllSelected) {
        if (JustCopy)
            return BulkMode::AllCopy;
        if (Deleting)
            return BulkMode::AllDelete;
        if (AutoRename)
            return BulkMode::NumberedAll;
        return std::nullopt;
    }
    if (JustCopy)
        return BulkMode::SelectCopy;
    if (Deleting)
        return BulkMode::SelectDelete;
    if (AutoRename)
        return BulkMode::NumberedSelect;
    if (Replacing)
        return BulkMode::Replace;
    return std::nullopt;
}

QString bulkQuestion(BulkMode mode, const BulkTexts& t)
{
    switch (mode) {
    case BulkMode::AllCopy:
        return t.directory + QStringLiteral("すべてのファイルをコピーします");
    case BulkMode::AllDelete:
        return QStringLiteral("すべてのファイルを消去します");
    case BulkMode::SelectCopy:
        return t.directory + t.word + QStringLiteral(" を含むファイルのみコピーします");
    case BulkMode::SelectDelete:
        return t.word + QStringLiteral(" を含むファイルのみ消去します");
    case BulkMode::NumberedAll:
        return t.directory + QStringLiteral("すべてのファイルを") + t.stem +
               QStringLiteral(" に ") + t.number +
               QStringLiteral(" から始まる連続番号を付けて、全ファイルをコピーします");
    case BulkMode::NumberedSelect:
        return t.directory + t.word + QStringLiteral(" を含むファイルのみ ") + t.stem +
               QStringLiteral(" に ") + t.number +
               QStringLiteral(" から始まる連続番号を付けて、全ファイルをコピーします");
    case BulkMode::Replace:
        return t.word + QStringLiteral(" を ") + t.replacement +
               QStringLiteral(
                   "に置き換えてファイルをコピーします(ディレクトリー名は対象としません)");
    }
    return QString();
}

bool holdsWord(const QString& file, const QString& word)
{
    return UCase(file).contains(UCase(word));
}

QString copyTarget(const QString& folder, const QString& file)
{
    return folder + QLatin1Char('\\') + NameAfterLastBackslash(file);
}

QString numberedTarget(const QString& folder, const QString& stem, qint16 number,
                       const QString& file)
{
    return folder + QLatin1Char('\\') + stem + Format(number, QStringLiteral("000")) +
           QLatin1Char('.') + TextAfterFirstDot(NameAfterLastBackslash(file));
}

std::optional<QString> replaceTarget(const QString& folder, const QString& file,
                                     const QString& word, const QString& replacement)
{
    const QString name = NameAfterLastBackslash(file);
    const int at = InStr(UCase(name), UCase(word));
    if (word.isEmpty() || at == 0)
        return std::nullopt;
    return folder + QLatin1Char('\\') + Left(name, at - 1) + replacement +
           Mid(name, at + int(word.size()));
}

} // namespace lumen
