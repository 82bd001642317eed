// Fonts named in the settings record. Windows names such as "MS UI Gothic"
// are substituted by an installed Japanese Gothic; a stored name that was cut
// to its field resolves to the first installed family that starts with it.
#pragma once

#include <QFont>
#include <QString>

namespace lumen {

// Once, after the application object exists.
void installFontSubstitutes();

// The family to use for a stored font name (the name itself when nothing
// better is installed; Qt then falls back).
QString resolveFontFamily(const QString& storedName);

// A copy of `base` with the stored family and size applied; an empty name or
// a size that isn't positive, or is beyond 2160 points (not a number
// either), leaves that part as it was.
QFont fontFrom(const QFont& base, const QString& storedName, double pointSize);

} // namespace lumen
