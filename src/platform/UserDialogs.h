// Talking to the user: message boxes with the program's default title, the
// Yes/No question, the input box, beeps, the floating message window and the
// file and folder dialogs. Windows reach the user only through this service,
// so that tests can answer from a script and read what was said.
#pragma once

#include <QString>
#include <optional>

namespace lumen {

inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

// What the font dialog hands back.
struct FontChoice {
    QString family;
    double pointSize = 0;
};

// The title of message boxes that name none.
inline const QString kDefaultTitle = QStringLiteral("Lumenta_KDR");

class UserDialogs {
public:
    virtual ~UserDialogs() = default;

    virtual void msgBox(const QString& text) = 0;            // OK only
    virtual void msgBoxExclamation(const QString& text) = 0; // OK only, with the exclamation mark
    virtual int askYesNo(const QString& text) = 0;           // kAnswerYes or kAnswerNo
    // Nothing when cancelled.
    virtual std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                            const QString& defaultText) = 0;
    virtual void beep() = 0;

    // FormMessage: a small floating label at a screen position in twips,
    // sized to its text. hideMessage() takes it down.
    virtual void showMessage(int leftTwips, int topTwips, const QString& text) = 0;
    virtual void hideMessage() = 0;

    // File dialogs. Paths are native; `filter` is in the classic form
    // "(*.lst)|*.lst|(*.*)|*.*" (DialogFilter.h: "*.exe" lists programs).
    // Nothing on cancel.
    virtual std::optional<QString> openFileName(const QString& title, const QString& startPath,
                                                const QString& filter) = 0;
    virtual std::optional<QString> saveFileName(const QString& title, const QString& startPath,
                                                const QString& filter) = 0;
    // A folder, or "" on cancel.
    virtual QString browseForFolder(const QString& title, const QString& startPath) = 0;

    // The colour dialog, opened on a BGR colour; the chosen colour, or
    // nothing on cancel.
    virtual std::optional<qint32> chooseColor(qint32 initialBgr) = 0;
    // The font dialog, opened on a family and size; nothing on cancel.
    virtual std::optional<FontChoice> chooseFont(const QString& family, double pointSize) = 0;
};

// Qt's classic-filter translation: "(*.lst)|*.lst|(*.*)|*.*" becomes
// "(*.lst) (*.lst);;(*.*) (*)", and a programs filter "(*.exe)|*.exe"
// becomes "(*.exe) (*)", the filter model picking the programs. Exposed for tests.
QString qtFilterFromClassic(const QString& classicFilter);

} // namespace lumen
