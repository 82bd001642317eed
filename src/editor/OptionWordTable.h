// The option words as a list is written: the table that the writer builds
// from CommandList.txt to turn an option word into the English word or the
// user's word. Slots 1 to 22, 33 and 34 are used, as in CommandWord.
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

class OptionWordTable {
public:
    // The slots from the text of CommandList.txt; a slot the text gives no
    // word takes its default: its English word, and for PICTBACKCOL2 to
    // PICTBACKCOL5 the word PICTBACKCOL1.
    explicit OptionWordTable(const QString& commandListText);

    // Ticked English mode: the first slot whose word equals `option` gives
    // its English word. User mode: the first English word equal to `option`
    // gives its slot's word. The whole value is compared, case-sensitive; a
    // value that matches nothing is given back as it is.
    QString translate(const QString& option, bool english) const;

    QString slot(int index) const { return slots_.value(index); }

    // The slots in the order they are compared: 1 to 22, then 33 and 34.
    static const QList<int>& order();

private:
    QStringList slots_; // index 0 to 34
};

} // namespace lumen
