#include "select/FormRClick6.h"

#include "fileops/FormFileOption.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"

#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace lumen {
namespace {

// A name the pop-up works on: not blank, and no path of its own.
bool acceptable(const QString& name)
{
    return !basic::Trim(name).isEmpty() && !name.contains(QLatin1Char(':')) &&
           !name.contains(QLatin1Char('\\'));
}

} // namespace

FormRClick6::FormRClick6(VeroProcedure_Basical& basics, FormFileOption& files, QWidget* parent)
    : FormBase(QStringLiteral("FormRClick6"), parent, Qt::Tool | Qt::WindowStaysOnTopHint)
    , basics_(basics)
    , files_(files)
{
    CommandDeleat = commandButton(QStringLiteral("CommandDeleat"), QStringLiteral("削除"), this);
    CommandRename = commandButton(QStringLiteral("CommandRename"), QStringLiteral("Rename"), this);
    CommandClose = commandButton(QStringLiteral("CommandClose"), QString(), this);
    CommandClose->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(2);
    column->addWidget(CommandDeleat);
    column->addWidget(CommandRename);
    column->addWidget(CommandClose, 0, Qt::AlignRight);
    setFixedSize(sizeHint());

    connect(CommandDeleat, &QPushButton::clicked, this, &FormRClick6::CommandDeleat_Click);
    connect(CommandRename, &QPushButton::clicked, this, &FormRClick6::CommandRename_Click);
    connect(CommandClose, &QPushButton::clicked, this, &FormRClick6::CommandClose_Click);
}

QString FormRClick6::pickedFolder() const
{
    QString folder = files_.Dir1->path();
    if (!folder.endsWith(QLatin1Char('\\')))
        folder += QLatin1Char('\\');
    return folder;
}

void FormRClick6::done(QPushButton* button)
{
    basics_.services().ui.beep();
    basics_.WaitMilliseconds(kShownMs);
    setBackColor(button, kColorButtonFace);
    files_.File1->refresh();
}

void FormRClick6::CommandDeleat_Click()
{
    const QString name = files_.File1->fileName();
    if (!acceptable(name))
        return;
    setBackColor(CommandDeleat, kColorRed);
    basics_.DeleteFileConfirmed(pickedFolder() + name);
    done(CommandDeleat);
}

void FormRClick6::CommandRename_Click()
{
    const QString name = files_.File1->fileName();
    if (!acceptable(name))
        return;
    const auto newName = basics_.services().ui.inputBox(
        QStringLiteral("新ファイル名を入力してください"), QString(), QString());
    if (!newName || !acceptable(*newName))
        return;
    basics_.services().fs.renameFile(pickedFolder() + name, pickedFolder() + *newName);
    setBackColor(CommandRename, kColorGreen);
    done(CommandRename);
}

void FormRClick6::CommandClose_Click()
{
    unload();
}

} // namespace lumen
