#include "platform/DialogFilter.h"

#include "platform/FileSystem.h"
#include "platform/Launcher.h"

#include <QFileInfo>

namespace lumen {

QList<DialogFilter> dialogFilters(const QString& classicFilter)
{
    const QStringList parts = classicFilter.split(QLatin1Char('|'));
    QList<DialogFilter> filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        DialogFilter filter{parts[i], {}, false};
        for (const QString& pattern : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const QString trimmed = pattern.trimmed();
            filter.patterns << trimmed;
            if (trimmed.compare(QLatin1String("*.exe"), Qt::CaseInsensitive) == 0)
                filter.programs = true;
        }
        filters << filter;
    }
    return filters;
}

bool dialogFilterMatches(const DialogFilter& filter, const QString& nativeFile)
{
    if (filter.programs && isExecutableFile(nativeFile))
        return true;
    const QString name = QFileInfo(nativeFile).fileName();
    for (const QString& pattern : filter.patterns) {
        if (filter.programs && pattern.compare(QLatin1String("*.exe"), Qt::CaseInsensitive) == 0)
            continue; // a Windows program file is no program here
        if (wildcardPattern(pattern).match(name).hasMatch())
            return true;
    }
    return false;
}

} // namespace lumen
