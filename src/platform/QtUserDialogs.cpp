#include "platform/QtUserDialogs.h"

#include "platform/Colors.h"
#include "platform/FormMessage.h"
#include "platform/Launcher.h"

#include <QApplication>
#include <QColorDialog>
#include <QDateTime>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QSortFilterProxyModel>

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

namespace {

// A classic filter for programs ("...(*.exe)|*.exe"): every pattern is
// "*.exe". On this system programs have no such ending; the dialog lists
// the files that may be started instead, under the filter's caption.
bool asksForPrograms(const QString& classicFilter)
{
    const QStringList parts = classicFilter.split(QLatin1Char('|'));
    if (parts.size() < 2)
        return false;
    for (qsizetype i = 1; i < parts.size(); i += 2) {
        if (parts[i].trimmed().compare(QLatin1String("*.exe"), Qt::CaseInsensitive) != 0)
            return false;
    }
    return true;
}

// Folders, and the files with an execute bit.
class ProgramFiles : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (!files)
            return true;
        const QFileInfo info = files->fileInfo(files->index(row, 0, parent));
        return info.isDir() || isExecutableFile(info.absoluteFilePath());
    }
};

std::optional<QString> openProgramName(QWidget* owner, const QString& title,
                                       const QString& startPath, const QString& classicFilter)
{
    QFileDialog dialog(owner, title);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setProxyModel(new ProgramFiles(&dialog));
    dialog.setNameFilter(classicFilter.section(QLatin1Char('|'), 0, 0) + QStringLiteral(" (*)"));
    const QFileInfo start(startPath);
    dialog.setDirectory(start.isDir() ? startPath : start.path());
    if (!start.isDir())
        dialog.selectFile(start.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
}

} // namespace

QtUserDialogs::QtUserDialogs() = default;

QWidget* QtUserDialogs::dialogParent() const
{
    // A dialog belongs to the window the user works in, so that closing it
    // gives that window back; notes and pop-ups do not own one.
    QWidget* active = QApplication::activeWindow();
    if (active && active->isVisible() &&
        (active->windowType() == Qt::Window || active->windowType() == Qt::Dialog))
        return active;
    return owner_;
}

QtUserDialogs::~QtUserDialogs()
{
    delete message_;
}

void QtUserDialogs::msgBox(const QString& text)
{
    QMessageBox box(QMessageBox::NoIcon, kDefaultTitle, text, QMessageBox::Ok, dialogParent());
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}

int QtUserDialogs::askYesNo(const QString& text)
{
    QMessageBox box(QMessageBox::Question, kDefaultTitle, text, QMessageBox::Yes | QMessageBox::No,
                    dialogParent());
    box.setWindowModality(Qt::ApplicationModal);
    return box.exec() == QMessageBox::Yes ? kAnswerYes : kAnswerNo;
}

std::optional<QString> QtUserDialogs::inputBox(const QString& prompt, const QString& title,
                                               const QString& defaultText)
{
    bool ok = false;
    const QString text =
        QInputDialog::getText(dialogParent(), title.isEmpty() ? kDefaultTitle : title, prompt,
                              QLineEdit::Normal, defaultText, &ok);
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
    if (asksForPrograms(filter))
        return openProgramName(dialogParent(), title, startPath, filter);
    const QString name =
        QFileDialog::getOpenFileName(dialogParent(), title, startPath, qtFilterFromClassic(filter));
    if (name.isEmpty())
        return std::nullopt;
    return name;
}

std::optional<QString> QtUserDialogs::saveFileName(const QString& title, const QString& startPath,
                                                   const QString& filter)
{
    const QString name =
        QFileDialog::getSaveFileName(dialogParent(), title, startPath, qtFilterFromClassic(filter));
    if (name.isEmpty())
        return std::nullopt;
    return name;
}

QString QtUserDialogs::browseForFolder(const QString& title, const QString& startPath)
{
    return QFileDialog::getExistingDirectory(dialogParent(), title, startPath,
                                             QFileDialog::ShowDirsOnly);
}

std::optional<qint32> QtUserDialogs::chooseColor(qint32 initialBgr)
{
    const QColor chosen = QColorDialog::getColor(colorFromBgr(initialBgr), dialogParent());
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
    const QFont chosen = QFontDialog::getFont(&accepted, initial, dialogParent());
    if (!accepted)
        return std::nullopt;
    return FontChoice{chosen.family(), chosen.pointSizeF()};
}

} // namespace lumen
