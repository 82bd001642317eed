// FormRClick6 over the file box of FormFileOption: opened by the right
// button on a file, it deletes the file or renames it in its folder, and
// refuses a blank name and a name that is a path.
#include "select/FormRClick6.h"

#include "fileops/FormFileOption.h"
#include "platform/FileBoxes.h"
#include "platform/FormRegistry.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"

#include <QDir>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

struct Popup : BasicsFixture {
    FormRegistry forms;
    FormFileOption* files = new FormFileOption(basics, forms);
    FormRClick6* popup = new FormRClick6(basics, *files);

    Popup()
    {
        forms.add(u"FormFileOption"_s, [this] { return files; });
        forms.add(u"FormRClick6"_s, [this] { return popup; });
        home.writeFile("pics/a.jpg", "a");
        home.writeFile("pics/b.jpg", "b");
        files->showForm();
        files->Dir1->setPath(u"C:\\pics"_s);
    }
    QStringList names() const
    {
        return QDir(home.native("pics")).entryList(QDir::Files, QDir::Name);
    }
    // The right button pressed on the row of the name in File1.
    void rightClickOn(const QString& name)
    {
        FileListBox* box = files->File1;
        const QListWidgetItem* item = box->findItems(name, Qt::MatchExactly).value(0);
        QVERIFY(item);
        const QPoint at = box->visualItemRect(item).center();
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(at),
                          QPointF(box->viewport()->mapToGlobal(at)), Qt::RightButton,
                          Qt::RightButton, Qt::NoModifier);
        QApplication::sendEvent(box->viewport(), &press);
    }
};

} // namespace

class TestFormRClick6 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void work_data();
    void work();
    void nothingPicked();
};

void TestFormRClick6::work_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("typed"); // the answer of the input box
    QTest::addColumn<QStringList>("names");
    QTest::newRow("delete") << "CommandDeleat"
                            << "" << QStringList{"b.jpg"};
    QTest::newRow("rename") << "CommandRename"
                            << "sun.jpg" << QStringList{"b.jpg", "sun.jpg"};
    QTest::newRow("rename to blanks: refused") << "CommandRename"
                                               << "  " << QStringList{"a.jpg", "b.jpg"};
    QTest::newRow("rename to a path: refused") << "CommandRename"
                                               << "C:\\\\sun.jpg" << QStringList{"a.jpg", "b.jpg"};
    QTest::newRow("rename into another folder: refused")
        << "CommandRename"
        << "..\\\\sun.jpg" << QStringList{"a.jpg", "b.jpg"};
}

void TestFormRClick6::work()
{
    Popup p;
    p.rightClickOn(u"a.jpg"_s);
    QVERIFY(p.popup->isVisible());
    QCOMPARE(p.files->File1->fileName(), u"a.jpg"_s);
    p.ui.inputs << FETCH(QString, typed);
    p.popup->findChild<QPushButton*>(FETCH(QString, button))->click();
    QCOMPARE(p.names(), FETCH(QStringList, names));
    // The file box reads the folder again.
    QStringList shown;
    for (int i = 0; i < p.files->File1->count(); ++i)
        shown << p.files->File1->item(i)->text();
    QCOMPARE(shown, FETCH(QStringList, names));
}

void TestFormRClick6::nothingPicked()
{
    Popup p;
    p.files->File1->setCurrentRow(-1);
    p.ui.inputs << u"x.jpg"_s;
    p.popup->CommandDeleat->click();
    p.popup->CommandRename->click();
    QCOMPARE(p.names(), (QStringList{"a.jpg", "b.jpg"}));
    QVERIFY(p.ui.boxes.isEmpty()); // refused without a word
    p.popup->CommandClose->click();
    QVERIFY(!p.popup->isVisible());
}

QTEST_MAIN(TestFormRClick6)
#include "tst_FormRClick6.moc"
