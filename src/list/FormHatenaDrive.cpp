#include "list/FormHatenaDrive.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace lumen {
namespace {

using namespace basic;

QComboBox* makeCombo(const QString& name, QWidget* parent)
{
    auto* combo = named<QComboBox>(name, parent);
    combo->setEditable(true);
    return combo;
}

// "C:" of a text that holds a drive, or "" when it holds no ":".
QString driveOf(const QString& text)
{
    const QString trimmed = UCase(Trim(text));
    const int colon = InStr(trimmed, QStringLiteral(":"));
    return Left(trimmed, colon);
}

} // namespace

FormHatenaDrive::FormHatenaDrive(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormHatenaDrive"), parent, Qt::Dialog)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("ドライブ指定"));
    FileSystem& fs = basics_.services().fs;
    ComboHatenaDrive = makeCombo(QStringLiteral("ComboHatenaDrive"), this);
    ComboHatenaDrive->addItems({QStringLiteral("?:"), QStringLiteral("*:")});
    ComboNewDrive = makeCombo(QStringLiteral("ComboNewDrive"), this);
    Drive1 = new DriveListBox(fs, QStringLiteral("Drive1"), this);
    Dir1 = new DirListBox(fs, QStringLiteral("Dir1"), this);
    File1 = new FileListBox(fs, QStringLiteral("File1"), this);
    File1->setPattern(QStringLiteral("*.Lst"));
    CommandDo = named<QPushButton>(QStringLiteral("CommandDo"), QStringLiteral("設定"), this);
    CommandExit = named<QPushButton>(QStringLiteral("CommandExit"), QStringLiteral("終了"), this);
    setBackColor(CommandDo, 0x80FF80);

    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel(QStringLiteral("ドライブ記号"), this), 0, 0);
    grid->addWidget(ComboHatenaDrive, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("→ 使うドライブ"), this), 0, 2);
    grid->addWidget(ComboNewDrive, 0, 3);
    grid->addWidget(Drive1, 1, 0, 1, 4);
    grid->addWidget(Dir1, 2, 0, 1, 2);
    grid->addWidget(File1, 2, 2, 1, 2);
    grid->addWidget(CommandDo, 3, 2);
    grid->addWidget(CommandExit, 3, 3);
    resize(520, 360);

    connect(Drive1, &DriveListBox::driveChanged, this, &FormHatenaDrive::Drive1_Change);
    connect(Dir1, &DirListBox::pathChanged, this, &FormHatenaDrive::Dir1_Change);
    connect(CommandDo, &QPushButton::clicked, this, &FormHatenaDrive::CommandDo_Click);
    connect(CommandExit, &QPushButton::clicked, this, &FormHatenaDrive::CommandExit_Click);
}

void FormHatenaDrive::Form_Load()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    QFont font = this->font();
    const QString family = FixedText(record.DispFontName);
    qint16 size = 0; // a size that doesn't fit is passed over
    StoreInt16(size, Val(FixedText(record.DispFontSize)));
    if (!family.isEmpty())
        font.setFamily(family);
    if (size > 0)
        font.setPointSize(size);
    for (QWidget* control :
         std::initializer_list<QWidget*>{ComboHatenaDrive, ComboNewDrive, Drive1, Dir1, File1})
        control->setFont(font);
    Drive1->refresh();
    Drive1_Change();
}

void FormHatenaDrive::ask(const QString& mark)
{
    load();
    ComboHatenaDrive->setEditText(mark);
    showModal();
}

void FormHatenaDrive::Drive1_Change()
{
    Dir1->setPath(Drive1->drive() + QLatin1Char('\\'));
    File1->setPath(Dir1->path());
    ComboNewDrive->setEditText(UCase(Drive1->drive()));
}

void FormHatenaDrive::Dir1_Change()
{
    File1->setPath(Dir1->path());
    ComboNewDrive->setEditText(UCase(Left(Dir1->path(), 2)));
}

void FormHatenaDrive::CommandDo_Click()
{
    ProgramState& state = basics_.state();
    state.ForcedDriveFrom = driveOf(ComboHatenaDrive->currentText());
    state.ForcedDriveTo = driveOf(ComboNewDrive->currentText());
    if (replaceDriveInFileName)
        replaceDriveInFileName(state.ForcedDriveFrom, state.ForcedDriveTo);
    setBackColor(CommandDo, 0xFFFF);
    basics_.WaitMilliseconds(300);
    setBackColor(CommandDo, 0x80FF80);
}

void FormHatenaDrive::CommandExit_Click()
{
    ProgramState& state = basics_.state();
    if (!state.HatenaDriveAsked) {
        unload();
        return;
    }
    if (state.ForcedDriveTo.isEmpty()) {
        basics_.services().ui.msgBox(
            QStringLiteral("ﾄﾞﾗｲﾌﾞがまだ指定されていませんので指定してください"));
        return;
    }
    unload();
    if (takeMainAction)
        takeMainAction();
}

} // namespace lumen
