// libFuzzer target: random bytes through the text decoder (Shift-JIS and
// UTF-8) and back through the writer's encoding.
#include "platform/TextCodec.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const QString cp932 = lumen::text::decodeCp932(bytes);
    if (cp932.size() > bytes.size())
        __builtin_trap(); // one character at most for each byte
    if (cp932.count(u'@') > bytes.count('@'))
        __builtin_trap(); // an "@" only where the file has one
    const QString text = lumen::text::decode(bytes);
    if (lumen::text::decode(lumen::text::encodeForFile(text)) != text)
        __builtin_trap(); // what is written reads back the same
    lumen::text::encodeField(text, int(size % 120));
    return 0;
}
