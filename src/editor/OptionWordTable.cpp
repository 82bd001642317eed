#include "editor/OptionWordTable.h"

#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "state/ProgramState.h"

namespace lumen {

const QList<int>& OptionWordTable::order()
{
    static const QList<int> slots = [] {
        QList<int> list;
        for (int i = kStopSound; i <= kPictBackCol1 + 4; ++i)
            list << i;
        list << kListAutoStartOn << kListAutoStartOff;
        return list;
    }();
    return slots;
}

OptionWordTable::OptionWordTable(const QString& commandListText)
    : slots_(kCommandWords + 1)
{
    applyUserCommandWords(slots_, commandListText);
    const QStringList& english = englishCommandWords();
    for (int index : order()) {
        if (!basic::Trim(slots_[index]).isEmpty())
            continue;
        // The four later background colours fall back to the first one.
        slots_[index] = index > kPictBackCol1 && index <= kPictBackCol1 + 4 ? english[kPictBackCol1]
                                                                            : english[index];
    }
}

QString OptionWordTable::translate(const QString& option, bool english) const
{
    const QStringList& englishWords = englishCommandWords();
    for (int index : order()) {
        const QString& from = english ? slots_[index] : englishWords[index];
        if (option == from)
            return english ? englishWords[index] : slots_[index];
    }
    return option;
}

} // namespace lumen
