#include "fileops/FormStop.h"

#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "state/ProgramState.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace lumen {

FormStop::FormStop(ProgramState& state, QWidget* parent)
    : FormBase(QStringLiteral("FormStop"), parent,
               Qt::Tool | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint)
    , state_(state)
{
    setWindowTitle(QStringLiteral("処理中"));
    Text1 = named<QLineEdit>(QStringLiteral("Text1"), this);
    Text1->setReadOnly(true);
    Text1->setMinimumWidth(220);
    LabelStop = new ClickLabel(QStringLiteral("LabelStop"), QStringLiteral("ｸﾘｯｸで中止"), this);
    LabelStop->setAlignment(Qt::AlignCenter);
    LabelStop->setMargin(4);
    setBackColor(LabelStop, kColorRed);
    setForeColor(LabelStop, 0xFFFFFF);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(Text1, 1);
    layout->addWidget(LabelStop);
    connect(LabelStop, &ClickLabel::clicked, this, &FormStop::LabelStop_Click);
}

void FormStop::applyFont(const QString& family, int pointSize)
{
    QFont font = Text1->font();
    if (!family.isEmpty())
        font.setFamily(family);
    font.setPointSize(pointSize);
    Text1->setFont(font);
    LabelStop->setFont(font);
}

void FormStop::LabelStop_Click()
{
    state_.StopRequested = true;
}

} // namespace lumen
