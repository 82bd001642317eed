// What the windows of picture work share: the settings folder's files, the
// original-size switch of the main window, and window places kept in the
// settings record.
#pragma once

#include <QString>
#include <QtGlobal>

#include <Qt>

#include <optional>

class QWidget;

namespace lumen {

class FormMain;
struct ProgramState;

// A file in the settings folder, in program form.
QString settingsFile(const ProgramState& state, const QString& name);

// CheckOriginalSize set to 1; the box's click redoes the page at its own
// size when it was off.
void turnOriginalSizeOn(FormMain& main);

// Moves a window to a place kept in the record (twips of its frame); a place
// off the screen or negative goes back to 0. A record that has never held a
// place (0, 0) puts the window in the given corner of the screen instead.
void placeFromRecord(QWidget* window, qint16 left, qint16 top, Qt::Corner firstPlace);
// The first place of a window: a corner of the screen's free area; with
// `left` (pixels), the frame's left edge as near to it as the area allows.
void placeFirstTime(QWidget* window, Qt::Corner corner, std::optional<int> left = std::nullopt);

// The window's place and size in twips, as 16-bit record fields.
struct RecordPlace {
    qint16 left, top, width, height;
};
RecordPlace recordPlace(const QWidget* window);

} // namespace lumen
