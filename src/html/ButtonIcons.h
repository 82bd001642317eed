// The built-in button pictures of a site: small icons drawn by the program,
// for the previous, next, first, last and parent links, and the blank
// picture of pages that show no picture.
#pragma once

#include <QImage>

namespace lumen {

enum class ButtonIcon { Left, Right, Head, Tail, Oya, Blank };

QImage builtInButtonPicture(ButtonIcon icon);

} // namespace lumen
