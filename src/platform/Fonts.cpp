#include "platform/Fonts.h"

#include <QFontDatabase>
#include <QStringList>

namespace lumen {
namespace {

constexpr double kLargestPointSize = 2160;

} // namespace

void installFontSubstitutes()
{
    const QStringList gothic = {QStringLiteral("IPAPGothic"), QStringLiteral("IPAGothic"),
                                QStringLiteral("Noto Sans CJK JP"), QStringLiteral("VL PGothic")};
    for (const char* name :
         {"MS UI Gothic", "ＭＳ Ｐゴシック", "MS PGothic", "ＭＳ ゴシック", "MS Gothic"})
        QFont::insertSubstitutions(QString::fromUtf8(name), gothic);
}

QString resolveFontFamily(const QString& storedName)
{
    const QString name = storedName.trimmed();
    if (name.isEmpty() || QFontDatabase::hasFamily(name) || !QFont::substitutes(name).isEmpty())
        return name;
    for (const QString& family : QFontDatabase::families()) {
        if (family.startsWith(name, Qt::CaseInsensitive))
            return family;
    }
    return name;
}

QFont fontFrom(const QFont& base, const QString& storedName, double pointSize)
{
    QFont font = base;
    const QString family = resolveFontFamily(storedName);
    if (!family.isEmpty())
        font.setFamily(family);
    // Sizes beyond the largest a font may have are passed over.
    if (pointSize > 0 && pointSize <= kLargestPointSize)
        font.setPointSizeF(pointSize);
    return font;
}

} // namespace lumen
