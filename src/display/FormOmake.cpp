#include "display/FormOmake.h"

#include "display/PopupSupport.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace lumen {
namespace {

// Option buttons of one group can't be cleared one by one while they
// exclude each other.
void clearOptions(std::initializer_list<QRadioButton*> options)
{
    for (QRadioButton* button : options) {
        button->setAutoExclusive(false);
        button->setChecked(false);
        button->setAutoExclusive(true);
    }
}

} // namespace

FormOmake::FormOmake(FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormOmake"), parent, Qt::Tool | Qt::WindowStaysOnTopHint)
    , forms_(forms)
{
    setWindowTitle(QStringLiteral("ｺﾒﾝﾄ"));
    Option1 = named<QRadioButton>(QStringLiteral("Option1"), QStringLiteral("コメント消去"), this);
    Option2 =
        named<QRadioButton>(QStringLiteral("Option2"), QStringLiteral("文字、背景色変更"), this);
    Option3 = named<QRadioButton>(QStringLiteral("Option3"), QString(), this);
    Option3->hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 6);
    column->addWidget(Option1);
    column->addWidget(Option2);
    column->addWidget(Option3);
    setFixedSize(sizeHint());
    connect(Option1, &QRadioButton::clicked, this, &FormOmake::Option1_Click);
    connect(Option2, &QRadioButton::clicked, this, &FormOmake::Option2_Click);
}

void FormOmake::Form_Load()
{
    clearOptions({Option1, Option2});
}

void FormOmake::Option1_Click()
{
    forms_.unload(QStringLiteral("FormComment"));
    forms_.unload(kFontAndColorForm);
    unload();
}

void FormOmake::Option2_Click()
{
    // The settings window opens beside the popup, in the comment's mode.
    openFontAndColor(forms_, QStringLiteral("COMMENT"), twLeft(this) + twWidth(this), twTop(this));
    unload();
}

} // namespace lumen
