#include "platform/QtUserDialogs.h"

#include "platform/Colors.h"
#include "platform/DialogFilter.h"
#include "platform/FormMessage.h"

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
    QStringList filters;
    for (const DialogFilter& filter : dialogFilters(classicFilter)) {
        QStringList patterns = filter.patterns;
        for (QString& pattern : patterns) {
            if (pattern == QLatin1String("*.*") || filter.programs)
                pattern = QStringLiteral("*");
        }
        patterns.removeDuplicates();
        filters << filter.caption + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return filters.join(QStringLiteral(";;"));
}

namespace {

// What the file dialog lists: folders, and the files that the chosen filter
// of the classic form picks (DialogFilter), programs by their exec bit.
class DialogFilterModel : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void choose(const DialogFilter& filter)
    {
        filter_ = filter;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
        if (!files)
            return true;
        const QModelIndex index = files->index(row, 0, parent);
        return files->isDir(index) || dialogFilterMatches(filter_, files->filePath(index));
    }

private:
    DialogFilter filter_{QString(), {QStringLiteral("*")}, false};
};

std::optional<QString> runFileDialog(QWidget* owner, QFileDialog::AcceptMode mode,
                                     const QString& title, const QString& startPath,
                                     const QString& classicFilter)
{
    QFileDialog dialog(owner, title, startPath);
    dialog.setObjectName(QStringLiteral("FileDialog"));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                       : QFileDialog::AnyFile);
    // Qt's own dialog, whose listing goes through the filter model; the
    // captions stand as they are given.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QList<DialogFilter> filters = dialogFilters(classicFilter);
    const QStringList names = qtFilterFromClassic(classicFilter).split(QStringLiteral(";;"));
    auto* model = new DialogFilterModel(&dialog);
    dialog.setProxyModel(model);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(names);
        model->choose(filters.first());
    }
    QObject::connect(&dialog, &QFileDialog::filterSelected, model, [&](const QString& chosen) {
        const qsizetype index = names.indexOf(chosen);
        if (index >= 0 && index < filters.size())
            model->choose(filters[index]);
    });
    dialog.setWindowModality(Qt::ApplicationModal);
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

void QtUserDialogs::msgBoxExclamation(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, kDefaultTitle, text, QMessageBox::Ok, dialogParent());
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
    return runFileDialog(dialogParent(), QFileDialog::AcceptOpen, title, startPath, filter);
}

std::optional<QString> QtUserDialogs::saveFileName(const QString& title, const QString& startPath,
                                                   const QString& filter)
{
    return runFileDialog(dialogParent(), QFileDialog::AcceptSave, title, startPath, filter);
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
