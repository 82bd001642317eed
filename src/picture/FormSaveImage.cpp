#include "picture/FormSaveImage.h"

#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "picture/PictureWindows.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

using namespace basic;

constexpr qint32 kColorSaved = 0x80C0FF;
constexpr int kDefaultMax = 10;

QLineEdit* textBox(const QString& name, const QString& text, QWidget* parent, int width)
{
    auto* box = named<QLineEdit>(name, text, parent);
    box->setFixedWidth(width);
    return box;
}

} // namespace

FormSaveImage::FormSaveImage(VeroProcedure_Basical& basics, FormMain& main, QWidget* parent)
    // A window of the main window's: the desktop keeps it above that one.
    : FormBase(QStringLiteral("FormSaveImage"), parent ? parent : &main)
    , basics_(basics)
    , main_(main)
{
    setWindowTitle(QStringLiteral("画像の表示/読込/保存"));
    TextKariPicN = textBox(QStringLiteral("TextKariPicN"), QStringLiteral("0"), this, 40);
    HScroll1 = named<QScrollBar>(QStringLiteral("HScroll1"), Qt::Horizontal, this);
    CommandDisp = commandButton(QStringLiteral("CommandDisp"), QStringLiteral("←表示"), this);
    TextMax = textBox(QStringLiteral("TextMax"), QStringLiteral("10"), this, 40);
    CommandSetMax = commandButton(QStringLiteral("CommandSetMax"), QStringLiteral("←変更"), this);
    CommandDelAllKari =
        commandButton(QStringLiteral("CommandDelAllKari"), QStringLiteral("全仮画削除"), this);
    TextBX = textBox(QStringLiteral("TextBX"), QStringLiteral("400"), this, 50);
    TextBy = textBox(QStringLiteral("TextBy"), QStringLiteral("300"), this, 50);
    CommandMakeBlank =
        commandButton(QStringLiteral("CommandMakeBlank"), QStringLiteral("空画像作成"), this);
    CommandOpen =
        commandButton(QStringLiteral("CommandOpen"), QStringLiteral("画像ﾌｧｲﾙ読み込み"), this);
    CommandSavePicPNG =
        commandButton(QStringLiteral("CommandSavePicPNG"), QStringLiteral("PNG保存"), this);
    CommandSavePicBMP =
        commandButton(QStringLiteral("CommandSavePicBMP"), QStringLiteral("BMP保存"), this);
    CommandSavePicJPG =
        commandButton(QStringLiteral("CommandSavePicJPG"), QStringLiteral("JPG保存"), this);
    CommandUwagaki =
        commandButton(QStringLiteral("CommandUwagaki"), QStringLiteral("上書き保存"), this);
    layOut();

    connect(HScroll1, &QScrollBar::valueChanged, this, &FormSaveImage::HScroll1_Change);
    connect(CommandDisp, &QPushButton::clicked, this, &FormSaveImage::CommandDisp_Click);
    connect(CommandSetMax, &QPushButton::clicked, this, &FormSaveImage::CommandSetMax_Click);
    connect(CommandDelAllKari, &QPushButton::clicked, this,
            &FormSaveImage::CommandDelAllKari_Click);
    connect(CommandMakeBlank, &QPushButton::clicked, this, &FormSaveImage::CommandMakeBlank_Click);
    connect(CommandOpen, &QPushButton::clicked, this, &FormSaveImage::CommandOpen_Click);
    connect(CommandSavePicPNG, &QPushButton::clicked, this,
            &FormSaveImage::CommandSavePicPNG_Click);
    connect(CommandSavePicBMP, &QPushButton::clicked, this,
            &FormSaveImage::CommandSavePicBMP_Click);
    connect(CommandSavePicJPG, &QPushButton::clicked, this,
            &FormSaveImage::CommandSavePicJPG_Click);
    connect(CommandUwagaki, &QPushButton::clicked, this, &FormSaveImage::CommandUwagaki_Click);
}

void FormSaveImage::layOut()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setSpacing(4);
    grid->addWidget(new QLabel(QStringLiteral("表示仮画像番号"), this), 0, 0);
    grid->addWidget(TextKariPicN, 0, 1);
    grid->addWidget(CommandDisp, 0, 2);
    grid->addWidget(HScroll1, 1, 0, 1, 4);
    grid->addWidget(new QLabel(QStringLiteral("最大の保存数"), this), 2, 0);
    grid->addWidget(TextMax, 2, 1);
    grid->addWidget(CommandSetMax, 2, 2);
    grid->addWidget(CommandDelAllKari, 2, 3);
    grid->addWidget(new QLabel(QStringLiteral("作成画像サイズ"), this), 3, 0);
    auto* size = new QHBoxLayout;
    size->addWidget(TextBX);
    size->addWidget(new QLabel(QStringLiteral("x"), this));
    size->addWidget(TextBy);
    grid->addLayout(size, 3, 1, 1, 2);
    grid->addWidget(CommandMakeBlank, 3, 3);
    grid->addWidget(CommandOpen, 4, 0, 1, 4);
    grid->addWidget(CommandSavePicPNG, 5, 0);
    grid->addWidget(CommandSavePicBMP, 5, 1, 1, 2);
    grid->addWidget(CommandSavePicJPG, 5, 3);
    grid->addWidget(CommandUwagaki, 6, 0, 1, 4);
}

QString FormSaveImage::settingsFolder() const
{
    return basics_.state().ProgramRunDir;
}

void FormSaveImage::Form_Load()
{
    const DirecDataRecord& record = basics_.state().DirecData;
    adjustSize();
    placeFromRecord(this, record.SaveImageValues[0], record.SaveImageValues[1], Qt::TopRightCorner);
    TextKariPicN->setText(QStringLiteral("0"));
    const qint16 kept = record.SaveImageValues[4];
    TextMax->setText(QString::number(kept == 0 ? kDefaultMax : kept));
    CommandSetMax_Click();
}

void FormSaveImage::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    DirecDataRecord& record = basics_.state().DirecData;
    const RecordPlace place = recordPlace(this);
    record.SaveImageValues = {place.left, place.top, place.width, place.height,
                              ClampInt16(Val(TextMax->text()))};
}

void FormSaveImage::setKariMax(double value)
{
    // A 16-bit property: a value that doesn't fit is passed over.
    if (!StoreInt16(kariMax_, value))
        return;
    const QSignalBlocker quiet(HScroll1);
    HScroll1->setRange(0, std::max<int>(0, kariMax_));
}

void FormSaveImage::HScroll1_Change()
{
    TextKariPicN->setText(QString::number(HScroll1->value()));
}

void FormSaveImage::SaveKariPic()
{
    load();
    setKariMax(Val(TextMax->text()) - 1);
    const QString folder = settingsFolder();
    shiftLastPics(basics_, folder, kariMax_);
    const QString newest = lastPicFile(folder, 0);
    if (!basics_.SavePictureAsPNG(main_.Picture2->Image(), newest))
        basics_.services().ui.msgBox(QStringLiteral("画像を保存できませんでした。\r\n") +
                                     basics_.services().fs.toNative(newest));
    basics_.WaitForFileReady(newest);
    TextKariPicN->setText(QStringLiteral("0"));
    CommandDisp_Click();
}

void FormSaveImage::showInPicture2(const QImage& picture)
{
    PictureBox* box = main_.Picture2;
    box->setPicture(picture);
    main_.PrepareShow();
    // A shrunk page is taken down: the picture is seen at its own size.
    if (main_.Picture3->isVisible())
        main_.PlaceScrollBars();
}

void FormSaveImage::CommandDisp_Click()
{
    const QString file = lastPicFile(settingsFolder(), Trim(TextKariPicN->text()));
    if (!basics_.FileExists(file))
        return;
    const QImage picture = basics_.LoadPictureByPNGObject(file);
    if (!picture.isNull())
        showInPicture2(picture);
}

void FormSaveImage::CommandSetMax_Click()
{
    setKariMax(Val(TextMax->text()) - 1);
}

void FormSaveImage::CommandDelAllKari_Click()
{
    main_.Picture2->clearPicture();
    // The count is a 16-bit loop: it ends where the numbers end.
    const double last = std::min(Val(TextMax->text()), 32767.0);
    for (int n = 0; n <= last; ++n) {
        const QString file = lastPicFile(settingsFolder(), n);
        if (basics_.FileExists(file))
            basics_.services().fs.deleteFile(file);
    }
}

void FormSaveImage::CommandMakeBlank_Click()
{
    main_.CleareDisp(QStringLiteral("PIC"));
    PictureBox* box = main_.Picture2;
    box->drawSettings().ScaleMode = kScalePixels;
    box->clearPicture();
    const QString blank = settingsFile(basics_.state(), QStringLiteral("Blank.bmp"));
    if (basics_.FileExists(blank))
        basics_.services().fs.deleteFile(blank);
    box->hide();
    box->setAutoRedraw(true);

    // A size the picture reader wouldn't take back isn't made at all.
    const double width = std::floor(Val(TextBX->text()));
    const double height = std::floor(Val(TextBy->text()));
    const double limit = double(QImageReader::allocationLimit()) * 1024 * 1024;
    if (width < 1 || height < 1 || (limit > 0 && width * height * 4 > limit)) {
        basics_.services().ui.beep();
        return;
    }
    QImage ground(int(width), int(height), QImage::Format_RGB32);
    ground.fill(box->palette().color(QPalette::Window));
    basics_.SavePictureAsBMP(ground, blank);
    basics_.WaitMilliseconds(100);
    box->setPicture(basics_.LoadPictureByPNGObject(blank));
    box->show();
    main_.PrepareShow();
}

void FormSaveImage::CommandOpen_Click()
{
    const Services& services = basics_.services();
    FileSystem& fs = services.fs;
    const auto chosen =
        services.ui.openFileName(QString(), fs.toNative(fs.curDir()),
                                 QStringLiteral("(*.png;*.bmp;*.jpg)|*.png;*.bmp;*.jpg|(*.*)|*.*"));
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    // PNG through the PNG reader and the rest through LoadPicture: one reader
    // serves both here.
    const QImage picture = basics_.LoadPictureByPNGObject(fs.toProgram(*chosen));
    if (picture.isNull()) {
        services.ui.beep();
        return;
    }
    showInPicture2(picture);
}

bool FormSaveImage::saveTestsPass()
{
    UserDialogs& ui = basics_.services().ui;
    if (!main_.CheckOriginalSize->isChecked()) {
        ui.msgBox(QStringLiteral("画像を元サイズにして再実行してください。"));
        turnOriginalSizeOn(main_);
        return false;
    }
    const ProgramState& state = basics_.state();
    if (state.PicNo == 0) {
        ui.msgBox(
            QStringLiteral("ここの保存機能は、画面下にﾌｧｲﾙ名が表示されていないと使えません。"));
        return false;
    }
    if (!isPictureName(state.ListArray.at(kColMain, state.PicNo))) {
        ui.msgBox(
            QStringLiteral("現在のファイル名はタイプがBMP,PNG,JPG以外のため保存できません。"));
        return false;
    }
    return true;
}

bool FormSaveImage::writePicture(PictureFormat format, const QString& path)
{
    const Services& services = basics_.services();
    const QImage picture = main_.Picture2->Image();
    bool saved = false;
    // A file marked read-only is not written over.
    const int attributes = services.fs.attributes(path);
    if (attributes < 0 || !(attributes & 1)) {
        switch (format) {
        case PictureFormat::Bmp:
            saved = basics_.SavePictureAsBMP(picture, path);
            break;
        case PictureFormat::Png:
            saved = basics_.SavePictureAsPNG(picture, path);
            break;
        case PictureFormat::Jpg:
            saved = basics_.SavePictureAsJPG(picture, path);
            break;
        }
    }
    if (!saved)
        services.ui.msgBox(QStringLiteral("画像を保存できませんでした。\r\n") +
                           services.fs.toNative(path));
    return saved;
}

void FormSaveImage::saveAs(PictureFormat format, QPushButton* button)
{
    setBackColor(button, kColorGreen);
    if (!saveTestsPass())
        return;
    const Services& services = basics_.services();
    FileSystem& fs = services.fs;
    const SaveFormat& kind = saveFormat(format);
    const QString page = basics_.state().ListArray.at(kColMain, basics_.state().PicNo);
    const QString proposed = fs.toNative(proposedSaveName(page, format));
    std::optional<QString> chosen;
    do {
        chosen = services.ui.saveFileName(button->text(), proposed, kind.filter);
        if (!chosen)
            return; // cancelled: nothing is written
    } while (InStr(UCase(*chosen), kind.extension) == 0);
    fs.chDirToFolderOf(*chosen);
    writePicture(format, fs.toProgram(*chosen));
    basics_.WaitMilliseconds(300);
    setBackColor(button, kColorSaved);
}

void FormSaveImage::CommandSavePicPNG_Click()
{
    saveAs(PictureFormat::Png, CommandSavePicPNG);
}

void FormSaveImage::CommandSavePicBMP_Click()
{
    saveAs(PictureFormat::Bmp, CommandSavePicBMP);
}

void FormSaveImage::CommandSavePicJPG_Click()
{
    saveAs(PictureFormat::Jpg, CommandSavePicJPG);
}

void FormSaveImage::CommandUwagaki_Click()
{
    setBackColor(CommandUwagaki, kColorGreen);
    if (!saveTestsPass())
        return;
    const QString page = Trim(basics_.state().ListArray.at(kColMain, basics_.state().PicNo));
    const auto format = formatByExtension(page);
    if (!format) {
        basics_.services().ui.msgBox(
            QStringLiteral("現在のファイル名はタイプがBMP,PNG,JPG以外のため保存できません。"));
        return;
    }
    writePicture(*format, page);
    basics_.WaitMilliseconds(300);
    setBackColor(CommandUwagaki, kColorSaved);
}

} // namespace lumen
