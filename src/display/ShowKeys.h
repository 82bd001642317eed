// The keys that page a show, in the main window and in the navigator of
// whole-screen mode: Right, Space and Page Down forward, Left and Page Up
// back, Home and End to the first and last page, Escape out of the list view
// or out of whole-screen mode. A text field with the focus keeps the keys it
// types with (the shortcuts give way to it).
#pragma once

#include <functional>

class QWidget;

namespace lumen {

enum class ShowKey { Next, Previous, First, Last, Escape };

// Shortcuts on the window that call `act` with what the key asks for.
void addShowKeys(QWidget* window, const std::function<void(ShowKey)>& act);

} // namespace lumen
