#include "picture/FormPastComment.h"

#include "display/FormComment.h"
#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "picture/Canvas.h"
#include "picture/FormSaveImage.h"
#include "picture/PictureFiles.h"
#include "picture/PictureWindows.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/SafeFile.h"
#include "platform/UserDialogs.h"
#include "settings/FormSetFontAndColor.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace lumen {
namespace {

using namespace basic;

constexpr double kDefaultWidth = 330 * 15; // twips
constexpr double kDefaultHeight = 220 * 15;

} // namespace

FormPastComment::FormPastComment(VeroProcedure_Basical& basics, FormMain& main, FormRegistry& forms,
                                 QWidget* parent)
    // A window of the main window's: the desktop keeps it above that one.
    : FormBase(QStringLiteral("FormPastComment"), parent ? parent : &main)
    , basics_(basics)
    , main_(main)
    , forms_(forms)
{
    setWindowTitle(QStringLiteral("画像にコメント貼り付け"));
    Text1 = named<QPlainTextEdit>(QStringLiteral("Text1"), this);
    TextPastCommentPitch =
        named<QLineEdit>(QStringLiteral("TextPastCommentPitch"), QStringLiteral("0"), this);
    TextPastCommentPitch->setFixedWidth(50);
    CommandSetFont = commandButton(QStringLiteral("CommandSetFont"), QStringLiteral("ﾌｫﾝﾄ"), this);
    CommandSetText =
        commandButton(QStringLiteral("CommandSetText"), QStringLiteral("↓ﾃｷｽﾄｾｯﾄ"), this);
    CommandPast = commandButton(QStringLiteral("CommandPast"), QStringLiteral("画像に貼付"), this);
    layOut();
    connect(CommandPast, &QPushButton::clicked, this, &FormPastComment::CommandPast_Click);
    connect(CommandSetFont, &QPushButton::clicked, this, &FormPastComment::CommandSetFont_Click);
    connect(CommandSetText, &QPushButton::clicked, this, &FormPastComment::CommandSetText_Click);
}

void FormPastComment::layOut()
{
    // Form_Resize: the text fills the window above the commands.
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(QStringLiteral("行間"), this));
    row->addWidget(TextPastCommentPitch);
    row->addWidget(CommandSetFont);
    row->addStretch(1);
    row->addWidget(CommandSetText);
    row->addWidget(CommandPast);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addLayout(row);
    column->addWidget(Text1, 1);
}

void FormPastComment::Form_Load()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    if (record.PastCommentWidth > 0 && record.PastCommentHeight > 0) {
        twResize(this, record.PastCommentWidth, record.PastCommentHeight);
        placeFromRecord(this, record.PastCommentLeft, record.PastCommentTop, Qt::TopLeftCorner);
    } else {
        // First use: low on the screen, right of where the picture ends.
        twResize(this, kDefaultWidth, kDefaultHeight);
        placeFirstTime(this, Qt::BottomLeftCorner,
                       main_.Picture2->mapToGlobal(QPoint(main_.Picture2->width(), 0)).x());
    }
    // The newest temporary picture is the one to paste on.
    auto* store = static_cast<FormSaveImage*>(forms_.form(QStringLiteral("FormSaveImage")));
    if (store && basics_.FileExists(lastPicFile(basics_.state().ProgramRunDir, 0))) {
        store->load();
        store->TextKariPicN->setText(QStringLiteral("0"));
        store->CommandDisp_Click();
    }
}

void FormPastComment::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    DirecDataRecord& record = basics_.state().DirecData;
    const RecordPlace place = recordPlace(this);
    record.PastCommentLeft = place.left;
    record.PastCommentTop = place.top;
    record.PastCommentWidth = place.width;
    record.PastCommentHeight = place.height;
    // Pasting ends with the window: pages are no longer pasted on.
    setBackColor(main_.CommandWriteCommentOnPic, kColorButtonFace);
}

void FormPastComment::CommandPast_Click()
{
    setBackColor(CommandPast, kColorGreen);
    qint32 pitch = 0;
    StoreInt32(pitch, Val(TextPastCommentPitch->text()));
    WriteCommentOnPic(pitch);
    basics_.WaitMilliseconds(100);
    if (auto* store = static_cast<FormSaveImage*>(forms_.form(QStringLiteral("FormSaveImage"))))
        store->SaveKariPic();
    setBackColor(CommandPast, kColorRed);
}

void FormPastComment::CommandSetFont_Click()
{
    if (auto* set =
            static_cast<FormSetFontAndColor*>(forms_.form(QStringLiteral("FormSetFontAndColor")))) {
        set->setMode(QStringLiteral("COMMENT"));
        set->showForm();
    }
}

void FormPastComment::CommandSetText_Click()
{
    const QString text = main_.pageCommentText();
    Text1->setPlainText(text);
    if (auto* comment = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment"))))
        comment->setCommentText(text);
}

QStringList FormPastComment::linesOfTempFile(const QString& programPath) const
{
    // Line by line as the file is read: a line ends at CR LF, CR or LF.
    const auto text = readTextFile(basics_.services().fs.toNative(programPath));
    if (!text)
        return {};
    QStringList lines = text->split(QRegularExpression(QStringLiteral("\r\n|\r|\n")));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

void FormPastComment::WriteCommentOnPic(qint32 pitch)
{
    if (!main_.CheckOriginalSize->isChecked()) {
        basics_.services().ui.msgBox(QStringLiteral("画像を元サイズにして再実行します。"));
        turnOriginalSizeOn(main_);
        return;
    }
    qint32 x = 0;
    qint32 y = 0;
    StoreInt32(x, twLeft(main_.LabelComment));
    StoreInt32(y, twTop(main_.LabelComment));

    // The comment window's font: name, size, bold, italic and colour, at
    // the size it has on the screen.
    PictureBox* box = main_.Picture2;
    DrawSettings& settings = box->drawSettings();
    auto* comment = static_cast<FormComment*>(forms_.form(QStringLiteral("FormComment")));
    if (comment) {
        comment->load();
        const QFont shown = comment->Label1->font();
        QFont font(shown.family());
        font.setPixelSize(QFontInfo(shown).pixelSize());
        font.setBold(shown.bold());
        font.setItalic(shown.italic());
        settings.Font = font;
        const qint32 letters = foreColor(comment->Label1);
        settings.ForeColor =
            letters >= 0 ? letters
                         : bgrFromColor(comment->Label1->palette().color(QPalette::WindowText));
    }
    settings.CurrentX = float(x);
    settings.CurrentY = float(y);
    box->setAutoRedraw(true);

    const QString temp = settingsFile(basics_.state(), QStringLiteral("Temp.dat"));
    basics_.WriteTextToFile(Text1->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")),
                            temp);
    Canvas canvas(box->surface(), settings);
    for (const QString& line : linesOfTempFile(temp)) {
        canvas.Print(Trim(line));
        settings.CurrentX = float(x);
        settings.CurrentY += float(pitch);
    }
    box->surfaceChanged();
}

} // namespace lumen
