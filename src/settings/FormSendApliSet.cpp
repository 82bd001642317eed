#include "settings/FormSendApliSet.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "settings/SendToList.h"
#include "state/ProgramState.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace lumen {
namespace {

using namespace basic;

const QString kProgramsPattern = QStringLiteral("*.exe");
const QString kAllPattern = QStringLiteral("*.*");
const QString kShowAll = QStringLiteral("全部表示");
const QString kShowPrograms = QStringLiteral("Exe表示");

} // namespace

FormSendApliSet::FormSendApliSet(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormSendApliSet"), parent)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("ｱﾌﾟﾘｹｰｼｮﾝ設定"));
    FileSystem& fs = basics_.services().fs;
    Drive1 = new DriveListBox(fs, QStringLiteral("Drive1"), this);
    Dir1 = new DirListBox(fs, QStringLiteral("Dir1"), this);
    File1 = new FileListBox(fs, QStringLiteral("File1"), this);
    OptionZenbuHyouji = named<QRadioButton>(QStringLiteral("OptionZenbuHyouji"), kShowAll, this);
    TextDirectry = named<QLineEdit>(QStringLiteral("TextDirectry"), this);
    Text1 = named<QPlainTextEdit>(QStringLiteral("Text1"), this);
    Text1->setLineWrapMode(QPlainTextEdit::NoWrap);
    CommandDo = named<QPushButton>(QStringLiteral("CommandDo"), QStringLiteral("設定"), this);
    CommandReset =
        named<QPushButton>(QStringLiteral("CommandReset"), QStringLiteral("初期設定"), this);
    CommandExit = named<QPushButton>(QStringLiteral("CommandExit"), QStringLiteral("終了"), this);
    showProgramsOnly(true);
    layOut();

    connect(Drive1, &DriveListBox::driveChanged, this, &FormSendApliSet::Drive1_Change);
    connect(Dir1, &DirListBox::pathChanged, this, &FormSendApliSet::Dir1_Change);
    connect(File1, &QListWidget::currentItemChanged, this, &FormSendApliSet::File1_Click);
    connect(OptionZenbuHyouji, &QRadioButton::clicked, this,
            &FormSendApliSet::OptionZenbuHyouji_Click);
    connect(CommandDo, &QPushButton::clicked, this, &FormSendApliSet::CommandDo_Click);
    connect(CommandReset, &QPushButton::clicked, this, &FormSendApliSet::CommandReset_Click);
    connect(CommandExit, &QPushButton::clicked, this, &FormSendApliSet::CommandExit_Click);
}

void FormSendApliSet::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->addWidget(Drive1, 0, 0);
    grid->addWidget(TextDirectry, 0, 1);
    grid->addWidget(Dir1, 1, 0);
    grid->addWidget(File1, 2, 0);
    grid->addWidget(OptionZenbuHyouji, 3, 0);
    grid->addWidget(Text1, 1, 1, 3, 1);
    auto* commands = new QHBoxLayout;
    commands->addStretch(1);
    commands->addWidget(CommandDo);
    commands->addWidget(CommandReset);
    commands->addWidget(CommandExit);
    grid->addLayout(commands, 4, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    Drive1->setMinimumWidth(220);
    Text1->setMinimumSize(600, 420);
}

void FormSendApliSet::Form_Load()
{
    const QString file = sendToListPath(basics_.state());
    if (!basics_.FileExists(file)) {
        writeDefaultSendToList(basics_);
        basics_.WaitMilliseconds(100);
    }
    QString text = basics_.ReadTextOfFile(file, kSettingsFileLimit);
    Text1->setPlainText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));

    showProgramsOnly(true);
    const QString folder = basics_.services().fs.curDir();
    {
        const QSignalBlocker block(Drive1);
        Drive1->setDrive(folder);
    }
    Dir1->setPath(folder);
    File1->setPath(Dir1->path());
    applyRecordLook();
}

// The boxes take the font and the two colours of the settings record: the
// first colour field grounds them, the second colours the letters.
void FormSendApliSet::applyRecordLook()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    const QString ground = FixedText(record.DispFontColor);
    const QString letters = FixedText(record.DispBackColor);
    const QList<QWidget*> boxes{Drive1, Dir1, File1, TextDirectry, Text1};
    for (QWidget* box : boxes) {
        box->setFont(fontFrom(box->font(), FixedText(record.DispFontName),
                              Val(FixedText(record.DispFontSize))));
        if (!ground.isEmpty())
            setBackColor(box, bgrFromText(ground));
        if (!letters.isEmpty())
            setForeColor(box, bgrFromText(letters));
    }
}

void FormSendApliSet::showProgramsOnly(bool on)
{
    File1->setPattern(on ? kProgramsPattern : kAllPattern);
    File1->setExecutablesOnly(on);
    OptionZenbuHyouji->setText(on ? kShowAll : kShowPrograms);
}

void FormSendApliSet::Drive1_Change()
{
    Dir1->setPath(Drive1->drive());
}

void FormSendApliSet::Dir1_Change()
{
    File1->setPath(Dir1->path());
}

void FormSendApliSet::File1_Click()
{
    const QString name = File1->fileName();
    if (name.isEmpty())
        return;
    const QString folder = File1->path();
    const bool endsInSeparator = Right(folder, 1) == QStringLiteral("\\");
    TextDirectry->setText(folder + (endsInSeparator ? QString() : QStringLiteral("\\")) + name);
}

void FormSendApliSet::OptionZenbuHyouji_Click()
{
    showProgramsOnly(OptionZenbuHyouji->text() != kShowAll);
}

void FormSendApliSet::CommandDo_Click()
{
    QString text = Text1->toPlainText();
    basics_.WriteTextToFile(text.replace(QLatin1Char('\n'), QStringLiteral("\r\n")),
                            sendToListPath(basics_.state()));
    basics_.BeepBurst();
    basics_.WaitMilliseconds(300);
    if (onSaved)
        onSaved();
}

void FormSendApliSet::CommandReset_Click()
{
    const QString file = sendToListPath(basics_.state());
    if (basics_.FileExists(file))
        basics_.services().fs.deleteFile(file);
}

void FormSendApliSet::CommandExit_Click()
{
    unload();
}

} // namespace lumen
