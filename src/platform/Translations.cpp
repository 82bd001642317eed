#include "platform/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace lumen {

bool installJapaneseQtTexts(const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    const QString from =
        folder.isEmpty() ? QLibraryInfo::path(QLibraryInfo::TranslationsPath) : folder;
    if (!translator->load(QStringLiteral("qtbase_ja"), from) ||
        !QCoreApplication::installTranslator(translator)) {
        delete translator;
        return false;
    }
    return true;
}

} // namespace lumen
