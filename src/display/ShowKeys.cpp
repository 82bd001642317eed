#include "display/ShowKeys.h"

#include <QShortcut>
#include <QWidget>

#include <utility>

namespace lumen {

void addShowKeys(QWidget* window, const std::function<void(ShowKey)>& act)
{
    static const std::pair<int, ShowKey> keys[] = {
        {Qt::Key_Right, ShowKey::Next},      {Qt::Key_Space, ShowKey::Next},
        {Qt::Key_PageDown, ShowKey::Next},   {Qt::Key_Left, ShowKey::Previous},
        {Qt::Key_PageUp, ShowKey::Previous}, {Qt::Key_Home, ShowKey::First},
        {Qt::Key_End, ShowKey::Last},        {Qt::Key_Escape, ShowKey::Escape},
    };
    for (const auto& [key, meaning] : keys) {
        auto* shortcut = new QShortcut(QKeySequence(key), window);
        QObject::connect(shortcut, &QShortcut::activated, window,
                         [act, what = meaning] { act(what); });
    }
}

} // namespace lumen
