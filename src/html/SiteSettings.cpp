#include "html/SiteSettings.h"

namespace lumen {
namespace {

struct FieldDefault {
    SiteField field;
    const char16_t* text;
};

const FieldDefault kDefaults[] = {
    {kPosKeepHTML, u"C:\\Data"},
    {kHTMLPageName, u"page"},
    {kPosHTML, u"html"},
    {kPosMedia, u"media"},
    {kPosButton, u"button"},
    {kOyaFileName, u"../../index_kodar.html"},
    {kMP3CompR, u"20"},
    {kBackCol, u"#808080"},
    {kNumFontName, u"SHIFT_JIS"},
    {kNumFontSize, u"5"},
    {kNumFontColor, u"#FF0000"},
    {kCommentFontName, u"SHIFT_JIS"},
    {kCommentFontSize, u"4"},
    {kCommentFontColor, u"#000000"},
    {kButtonLeft, u""},
    {kButtonRight, u""},
    {kButtonHead, u""},
    {kButtonTail, u""},
    {kButtonOya, u""},
};

const FieldDefault* findDefault(SiteField field)
{
    for (const FieldDefault& entry : kDefaults) {
        if (entry.field == field)
            return &entry;
    }
    return nullptr;
}

} // namespace

const std::array<QString, kSiteFields>& siteFieldControlNames()
{
    static const std::array<QString, kSiteFields> names = {
        QStringLiteral("TextPosKeepHTML"),     QStringLiteral("TextPosHTML"),
        QStringLiteral("TextPosMedia"),        QStringLiteral("TextPosButton"),
        QStringLiteral("TextButtonOya"),       QStringLiteral("TextOyaFileName"),
        QStringLiteral("TextHTMLPageName"),    QStringLiteral("TextNumFontName"),
        QStringLiteral("TextNumFontSize"),     QStringLiteral("TextNumFontColor"),
        QStringLiteral("TextBackCol"),         QStringLiteral("TextCommentFontName"),
        QStringLiteral("TextCommentFontSize"), QStringLiteral("TextCommentFontColor"),
        QStringLiteral("TextButtonHead"),      QStringLiteral("TextButtonTail"),
        QStringLiteral("TextButtonLeft"),      QStringLiteral("TextButtonRight"),
        QStringLiteral("TextButtonBlankPic"),  QStringLiteral("TextMP3CompR"),
    };
    return names;
}

bool siteFieldHasDefault(SiteField field)
{
    return findDefault(field) != nullptr;
}

QString siteFieldDefault(SiteField field)
{
    const FieldDefault* entry = findDefault(field);
    return entry ? QString::fromUtf16(entry->text) : QString();
}

SiteSettings SiteSettings::defaults()
{
    SiteSettings settings;
    for (int field = 0; field < kSiteFields; ++field)
        settings.text[field] = siteFieldDefault(SiteField(field));
    return settings;
}

QStringList textLines(const QString& text)
{
    // The reader cuts the last line end of a text of three characters or
    // more; a shorter text keeps it, and that end closes the one line.
    if (text.isEmpty())
        return {};
    if (text == QStringLiteral("\r\n"))
        return {QString()};
    return text.split(QStringLiteral("\r\n"));
}

QString formValKeepText(const SiteSettings& settings)
{
    return QStringList(settings.text.begin(), settings.text.end()).join(QStringLiteral("\r\n"));
}

} // namespace lumen
