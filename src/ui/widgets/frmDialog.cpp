#include "ui/widgets/frmDialog.h"

#include "ui/widgets/HoverButtonArray.h"
#include "ui_frmDialog.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cancel = 1;
constexpr int Ok = 2;

} // namespace

frmDialog::frmDialog(const QString& caption, int maxLength)
    : Form(u"frmDialog"_s, Qt::Dialog), m_ui(std::make_unique<Ui::frmDialog>())
{
    m_ui->setupUi(this);
    setWindowTitle(caption);
    m_ui->txtInput->setAccessibleName(caption);
    if (maxLength > 0)
        m_ui->txtInput->setMaxLength(maxLength);
    setMinimumWidth(std::max(TitleWidth(), minimumSizeHint().width()));
    auto* buttons = new HoverButtonArray(*this, {{Cancel, u"Cancel"_s, u"Cancel"_s}, {Ok, u"Ok"_s, u"Ok"_s}});
    connect(buttons, &HoverButtonArray::Click, this, &frmDialog::cmdButton_Click);
    m_ui->txtInput->setFocus();
    CenterForm(*this);
}

frmDialog::~frmDialog() = default;

void frmDialog::cmdButton_Click(int index)
{
    m_reply = index == Ok ? m_ui->txtInput->text() : QString();
    Unload();
}

bool frmDialog::KeyPreview(QKeyEvent* event)
{
    return EnterIsOk(*event, [this] { cmdButton_Click(Ok); });
}

void frmDialog::EscapePressed()
{
    cmdButton_Click(Cancel);
}
