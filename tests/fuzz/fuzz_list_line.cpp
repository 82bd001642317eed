// libFuzzer target: random bytes as a list file, every line through the
// line grammar with the English and the user's words.
#include "list/CommandWords.h"
#include "list/ListGrammar.h"
#include "platform/TextCodec.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const QStringList english = lumen::englishCommandWords();
    static const QStringList user = [] {
        QStringList words = lumen::englishCommandWords();
        lumen::applyUserCommandWords(words,
                                     lumen::defaultCommandListLines().join(QStringLiteral("\r\n")));
        return words;
    }();
    const QString text =
        lumen::text::decode(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    const QStringList& words = lumen::listLanguageOf(text) == QLatin1String("EG") ? english : user;
    for (const QString& line : lumen::text::splitLines(text)) {
        if (lumen::lineKindOf(line) != lumen::LineKind::Command)
            continue;
        const lumen::ParsedLine parsed = lumen::parseListLine(line, words);
        if (parsed.row.delay.isNull())
            __builtin_trap(); // a row always has its delay text
        lumen::parseListLine(line, english);
    }
    return 0;
}
