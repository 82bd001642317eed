// Qt's own texts (the buttons of message boxes, the labels of the file,
// folder, colour and font dialogs) in Japanese, as the rest of the program,
// whatever the locale the program runs under.
#pragma once

#include <QString>

namespace lumen {

// Loads qtbase_ja.qm from Qt's translations folder, or from `folder` when
// given, and installs it on the application. False when it isn't there.
bool installJapaneseQtTexts(const QString& folder = QString());

} // namespace lumen
