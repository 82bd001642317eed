#include "platform/QtUserDialogs.h"

#include "platform/Colors.h"
#include "platform/FormMessage.h"

#include <QApplication>
#include <QColorDialog>
#include <QDateTime>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace lumen {

QString qtFilterFromClassic(const QString& classicFilter)
{
    const QStringList parts = classicFilter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (QString& pattern : patterns) {
            pattern = pattern.trimmed();
            if (pattern == QLatin1String("*.*"))
                pattern = QStringLiteral("*");
        }
        filters << parts[i] + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return filters.join(QStringLiteral(";;"));
}

QtUserDialogs::QtUserDialogs() = default;

QtUserDialogs::~QtUserDialogs()
{
    delete message_;
}

void QtUserDialogs::msgBox(const QString& text)
{
    QMessageBox box(QMessageBox::NoIcon, kDefaultTitle, text, QMessageBox::Ok, owner_);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}

int QtUserDialogs::askYesNo(const QString& text)
{
    QMessageBox box(QMessageBox::Question, kDefaultTitle, text, QMessageBox::Yes | QMessageBox::No,
                    owner_);
    box.setWindowModality(Qt::ApplicationModal);
    return box.exec() == QMessageBox::Yes ? kAnswerYes : kAnswerNo;
}

std::optional<QString> QtUserDialogs::inputBox(const QString& prompt, const QString& title,
                                               const QString& defaultText)
{
    bool ok = false;
    const QString text = QInputDialog::getText(owner_, title.isEmpty() ? kDefaultTitle : title,
                                               prompt, QLineEdit::Normal, defaultText, &ok);
    if (!ok)
        return std::nullopt;
    return text;
}

void QtUserDialogs::beep()
{
    // Beeps that come in a burst sound as one, as the system's sound did.
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now - lastBeep_ < 100)
        return;
    lastBeep_ = now;
    QApplication::beep();
}

FormMessage* QtUserDialogs::formMessage()
{
    if (!message_)
        message_ = new FormMessage;
    return message_;
}

void QtUserDialogs::showMessage(int leftTwips, int topTwips, const QString& text)
{
    formMessage()->showAt(leftTwips, topTwips, text);
}

void QtUserDialogs::hideMessage()
{
    if (message_)
        message_->hide();
}

std::optional<QString> QtUserDialogs::openFileName(const QString& title, const QString& startPath,
                                                   const QString& filter)
{
    const QString name =
        QFileDialog::getOpenFileName(owner_, title, startPath, qtFilterFromClassic(filter));
    if (name.isEmpty())
        return std::nullopt;
    return name;
}

std::optional<QString> QtUserDialogs::saveFileName(const QString& title, const QString& startPath,
                                                   const QString& filter)
{
    const QString name =
        QFileDialog::getSaveFileName(owner_, title, startPath, qtFilterFromClassic(filter));
    if (name.isEmpty())
        return std::nullopt;
    return name;
}

QString QtUserDialogs::browseForFolder(const QString& title, const QString& startPath)
{
    return QFileDialog::getExistingDirectory(owner_, title, startPath, QFileDialog::ShowDirsOnly);
}

std::optional<qint32> QtUserDialogs::chooseColor(qint32 initialBgr)
{
    const QColor chosen = QColorDialog::getColor(colorFromBgr(initialBgr), owner_);
    if (!chosen.isValid())
        return std::nullopt;
    return bgrFromColor(chosen);
}

std::optional<FontChoice> QtUserDialogs::chooseFont(const QString& family, double pointSize)
{
    QFont initial(family);
    if (pointSize > 0)
        initial.setPointSizeF(pointSize);
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, initial, owner_);
    if (!accepted)
        return std::nullopt;
    return FontChoice{chosen.family(), chosen.pointSizeF()};
}

} // namespace lumen
