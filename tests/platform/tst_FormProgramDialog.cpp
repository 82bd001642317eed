// The real open dialog asked for programs ("(*.exe)|*.exe"): it keeps the
// filter's caption, lists folders and the files that may be started, hides
// other files whatever their names, and hands back the chosen program.
#include "platform/QtUserDialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace lumen;
using namespace Qt::StringLiterals;

namespace {

void makeFile(const QString& path, bool executable)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n");
    file.close();
    QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner;
    if (executable)
        permissions |= QFile::ExeOwner;
    file.setPermissions(permissions);
}

// Runs `look` on the open dialog once its folder is listed, then closes it
// through `close`.
void whenListed(const QString& folder, std::function<void(QFileDialog*, QStringList)> look)
{
    auto* poll = new QTimer;
    poll->setInterval(20);
    auto tries = std::make_shared<int>(0);
    QObject::connect(poll, &QTimer::timeout, poll, [=] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        auto* proxy = dialog->proxyModel();
        auto* files = proxy ? qobject_cast<QFileSystemModel*>(proxy->sourceModel()) : nullptr;
        QStringList names;
        if (files) {
            const QModelIndex root = proxy->mapFromSource(files->index(folder));
            for (int row = 0; row < proxy->rowCount(root); ++row)
                names << proxy->index(row, 0, root).data().toString();
        }
        if (names.size() < 2 && ++*tries < 100)
            return;
        poll->stop();
        poll->deleteLater();
        names.sort();
        look(dialog, names);
    });
    poll->start();
}

} // namespace

class TestFormProgramDialog : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void listsWhatMayBeStarted();
};

void TestFormProgramDialog::listsWhatMayBeStarted()
{
    QTemporaryDir dir;
    makeFile(dir.filePath("gimp"), true);
    makeFile(dir.filePath("notes.txt"), false);
    makeFile(dir.filePath("setup.exe"), false); // the name alone doesn't make a program
    QDir(dir.path()).mkdir("tools");
    QtUserDialogs dialogs;
    const QString filter = u"Aplication Programs to use.(*.exe)|*.exe"_s;

    QStringList listed;
    QString caption;
    whenListed(dir.path(), [&](QFileDialog* dialog, const QStringList& names) {
        listed = names;
        caption = dialog->selectedNameFilter();
        dialog->reject();
    });
    QCOMPARE(dialogs.openFileName(u"画像ｴﾃﾞｨﾀｰの選択"_s, dir.filePath("gimp"), filter),
             std::optional<QString>());
    QCOMPARE(listed, (QStringList{u"gimp"_s, u"tools"_s}));
    QVERIFY2(caption.startsWith(u"Aplication Programs to use.(*.exe)"_s), qPrintable(caption));

    // The start names a program: it is chosen as it stands.
    whenListed(dir.path(), [](QFileDialog* dialog, const QStringList&) {
        static_cast<QDialog*>(dialog)->accept();
    });
    QCOMPARE(dialogs.openFileName(u"画像ｴﾃﾞｨﾀｰの選択"_s, dir.filePath("gimp"), filter),
             std::optional<QString>(dir.filePath("gimp")));
}

QTEST_MAIN(TestFormProgramDialog)
#include "tst_FormProgramDialog.moc"
