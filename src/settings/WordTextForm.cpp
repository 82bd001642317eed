#include "settings/WordTextForm.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lumen {

WordTextForm::WordTextForm(const QString& name, const QString& resetName,
                           VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(name, parent, Qt::Dialog)
    , basics_(basics)
{
    Text1 = named<QPlainTextEdit>(QStringLiteral("Text1"), this);
    Text1->setLineWrapMode(QPlainTextEdit::NoWrap);
    Text1->setMinimumSize(520, 420);
    CommandDo = commandButton(QStringLiteral("CommandDo"), QStringLiteral("設定"), this);
    reset_ = commandButton(resetName, QStringLiteral("初期設定"), this);
    CommandExit = commandButton(QStringLiteral("CommandExit"), QStringLiteral("終了"), this);
    auto* commands = new QHBoxLayout;
    commands->addStretch(1);
    commands->addWidget(CommandDo);
    commands->addWidget(reset_);
    commands->addWidget(CommandExit);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(Text1, 1);
    whole->addLayout(commands);
    connect(CommandExit, &QPushButton::clicked, this, [this] { unload(); });
}

QString WordTextForm::text() const
{
    return Text1->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}

void WordTextForm::setText(const QString& text)
{
    QString plain = text;
    plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    Text1->setPlainText(plain);
}

void WordTextForm::applyRecordFont()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    Text1->setFont(fontFrom(Text1->font(), FixedText(record.DispFontName),
                            basic::Val(FixedText(record.DispFontSize))));
}

void WordTextForm::storeGreen(const QString& file, const std::function<bool()>& store, bool burst)
{
    setBackColor(CommandDo, kColorGreen);
    UserDialogs& ui = basics_.services().ui;
    if (store()) {
        if (burst)
            basics_.BeepBurst();
        basics_.WaitMilliseconds(300);
    } else {
        // The file as it was stays whole; nothing was read from the text.
        ui.msgBox(QStringLiteral("ファイルに保存できませんでした。\r\n") + file);
    }
    setBackColor(CommandDo, kColorButtonFace);
}

} // namespace lumen
