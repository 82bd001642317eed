#include "platform/TextCodec.h"

#include <QByteArrayView>
#include <QStringDecoder>
#include <QSysInfo>

#include <algorithm>
#include <cstring>
#include <iconv.h>
#include <vector>

namespace lumen::text {

namespace {

const char* const kUtf16 = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? "UTF-16LE" : "UTF-16BE";
const char kCp932[] = "CP932";
const QByteArrayView kUtf8Bom("\xEF\xBB\xBF");

// An iconv conversion descriptor, closed when it goes out of scope.
class Converter {
public:
    Converter(const char* to, const char* from)
        : cd_(iconv_open(to, from))
    {}
    ~Converter()
    {
        if (valid())
            iconv_close(cd_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool valid() const { return cd_ != iconv_t(-1); }

    // Converts as far as it can; false where it stopped early, errno says why.
    bool convert(const char*& in, std::size_t& inLeft, char*& out, std::size_t& outLeft)
    {
        return iconv(cd_, const_cast<char**>(&in), &inLeft, &out, &outLeft) != std::size_t(-1);
    }

private:
    iconv_t cd_;
};

// CP932 bytes that also form UTF-8 holding non-ASCII bytes would be read back
// as UTF-8: a few runs of half-width kana do ("ﾃｽ" is C3 BD, "ý" in UTF-8).
bool readsAsUtf8(QByteArrayView bytes)
{
    return bytes.isValidUtf8() &&
           !std::all_of(bytes.begin(), bytes.end(), [](char byte) { return uchar(byte) < 0x80; });
}

bool isCp932LeadByte(uchar byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || byte >= 0xE0;
}

// The bytes that may begin and end a double-byte character of CP932.
bool isPairLead(uchar byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

bool isPairTrail(uchar byte)
{
    return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
}

// The longest start of CP932 bytes that fits `width` without halving a
// double-byte character. The bytes come from encodeCp932, so they are whole.
QByteArray cutCp932(const QByteArray& bytes, int width)
{
    qsizetype end = 0;
    while (end < bytes.size()) {
        const qsizetype next = end + (isCp932LeadByte(uchar(bytes[end])) ? 2 : 1);
        if (next > width)
            break;
        end = next;
    }
    return bytes.left(end);
}

QByteArray cutUtf8(const QByteArray& bytes, int width)
{
    if (bytes.size() <= width)
        return bytes;
    qsizetype end = width;
    while (end > 0 && (uchar(bytes[end]) & 0xC0) == 0x80) // a continuation byte
        --end;
    return bytes.left(end);
}

// The characters that CP932 bytes decode to. iconv also maps a few others
// one way only ("¥" to "\\", "−" to "－", "〜" to "～"); those would read back
// as other characters, so a text holding them doesn't fit CP932. The table is
// made once, from every one- and two-byte code.
const std::vector<bool>& cp932Image()
{
    static const std::vector<bool> image = [] {
        std::vector<bool> seen(0x10000, false);
        QByteArray codes;
        for (int byte = 0; byte < 0x100; ++byte) {
            if (!isCp932LeadByte(uchar(byte)))
                codes.append(char(byte));
        }
        const QString singles = decodeCp932(codes);
        for (QChar c : singles)
            seen[c.unicode()] = true;
        for (int lead = 0x81; lead <= 0xFC; ++lead) {
            if (!isCp932LeadByte(uchar(lead)))
                continue;
            for (int trail = 0x40; trail <= 0xFC; ++trail) {
                const char pair[2] = {char(lead), char(trail)};
                const QString one = decodeCp932(QByteArray(pair, 2));
                if (one.size() == 1)
                    seen[one[0].unicode()] = true;
            }
        }
        seen[QChar::ReplacementCharacter] = false;
        return seen;
    }();
    return image;
}

} // namespace

QString decode(const QByteArray& bytes)
{
    if (bytes.startsWith(kUtf8Bom)) {
        // One mark is the file's; a second is a character of the text
        // (fromUtf8 would drop it too).
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        return utf8(QByteArrayView(bytes).sliced(kUtf8Bom.size()));
    }
    if (QByteArrayView(bytes).isValidUtf8()) // pure ASCII too: it reads the same either way
        return QString::fromUtf8(bytes);
    return decodeCp932(bytes);
}

QString decodeCp932(const QByteArray& bytes)
{
    // Every CP932 character and every bad byte or pair gives one UTF-16 unit.
    QString text(bytes.size(), Qt::Uninitialized);
    char* const begin = reinterpret_cast<char*>(text.data());
    char* out = begin;
    std::size_t outLeft = std::size_t(text.size()) * sizeof(char16_t);
    const char* in = bytes.constData();
    std::size_t inLeft = std::size_t(bytes.size());

    Converter cp932(kUtf16, kCp932);
    while (inLeft > 0) {
        // One call converts everything up to the next bad byte (or the end).
        if (cp932.valid() && cp932.convert(in, inLeft, out, outLeft))
            break;
        if (outLeft < sizeof(char16_t)) // can't happen, see above; never write past the end
            break;
        // A byte that isn't CP932, a lead byte cut off at the end, or a
        // double-byte pair that maps to no character: one replacement each,
        // so that the trail byte of a pair ("@" is 40) never stands alone.
        const char16_t replacement = QChar::ReplacementCharacter;
        std::memcpy(out, &replacement, sizeof replacement);
        out += sizeof replacement;
        outLeft -= sizeof replacement;
        const std::size_t taken =
            inLeft >= 2 && isPairLead(uchar(in[0])) && isPairTrail(uchar(in[1])) ? 2 : 1;
        in += taken;
        inLeft -= taken;
    }
    text.truncate((out - begin) / qsizetype(sizeof(char16_t)));
    return text;
}

std::optional<QByteArray> encodeCp932(const QString& text)
{
    const std::vector<bool>& image = cp932Image();
    for (QChar c : text) {
        if (c.unicode() >= 0x80 && !image[c.unicode()])
            return std::nullopt;
    }
    Converter cp932(kCp932, kUtf16);
    if (!cp932.valid())
        return std::nullopt;
    // A UTF-16 unit gives at most two bytes.
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    const char* in = reinterpret_cast<const char*>(text.utf16());
    std::size_t inLeft = std::size_t(text.size()) * sizeof(char16_t);
    char* out = bytes.data();
    std::size_t outLeft = std::size_t(bytes.size());
    if (!cp932.convert(in, inLeft, out, outLeft) || inLeft != 0)
        return std::nullopt;
    bytes.truncate(out - bytes.constData());
    return bytes;
}

QByteArray encodeForFile(const QString& text)
{
    if (const auto cp932 = encodeCp932(text); cp932 && !readsAsUtf8(*cp932))
        return *cp932;
    return encodeUtf8WithBom(text);
}

QByteArray encodeUtf8WithBom(const QString& text)
{
    return kUtf8Bom.toByteArray() + text.toUtf8();
}

QByteArray encodeField(const QString& text, int width)
{
    if (width <= 0)
        return QByteArray();
    if (const auto cp932 = encodeCp932(text)) {
        QByteArray field = cutCp932(*cp932, width);
        if (!readsAsUtf8(field))
            return field;
    }
    return cutUtf8(text.toUtf8(), width);
}

QStringList splitLines(const QString& text)
{
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c != u'\r' && c != u'\n')
            continue;
        lines.append(text.mid(start, i - start));
        if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines.append(text.mid(start));
    return lines;
}

} // namespace lumen::text
