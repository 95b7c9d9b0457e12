#include "letters/frmLabelType.h"

#include "core/Trap.h"
#include "letters/Chosen.h"
#include "model/faces.h"
#include "model/Main.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui_frmLabelType.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int Cancel = 1;
constexpr int Ok = 2;

Long ProductOf(const QListWidgetItem& line)
{
    return line.data(Qt::UserRole).value<Long>();
}

} // namespace

frmLabelType::frmLabelType() : Form(u"frmLabelType"_s, Qt::Dialog), m_ui(std::make_unique<Ui::frmLabelType>())
{
    m_ui->setupUi(this);
    m_buttons = new HoverButtonArray(*this, {{Cancel, u"Cancel"_s, u"Cancel"_s}, {Ok, u"Ok"_s, u"Ok"_s}});
    connect(m_buttons, &HoverButtonArray::Click, this, &frmLabelType::cmdButton_Click);
    connect(m_ui->lstProducts, &QListWidget::itemSelectionChanged, this, &frmLabelType::lstProducts_Click);
    connect(m_ui->lstNumbers, &QListWidget::itemSelectionChanged, this,
            [this] { m_buttons->SetEnabled(Ok, Chosen(*m_ui->lstNumbers) != nullptr); });
    connect(m_ui->lstNumbers, &QListWidget::itemDoubleClicked, this, [this] { cmdButton_Click(Ok); });
    // There is nothing to print on before a number is chosen.
    m_buttons->SetEnabled(Ok, false);
    Form_Load();
    m_ui->lstProducts->setFocus();
}

frmLabelType::~frmLabelType() = default;

void frmLabelType::Form_Load()
{
    Trap(u"frmLabelType Form_Load Error #"_s, Icon::Critical, [this] {
        CenterForm(*this);
        if (m_types.IsEmpty())
            LoadLabelData();
        FillListBoxes();
        if (gSettings.LabelProduct != 0)
            ShowChoice();
    });
}

void frmLabelType::LoadLabelData()
{
    Trap(u"frmLabelType LoadLabelData Error #"_s, Icon::Critical, [this] { LoadLabelTypes(m_types); });
}

void frmLabelType::FillListBoxes()
{
    Trap(u"frmLabelType FillListBoxes Error #"_s, Icon::Critical, [this] {
        QListWidget& products = *m_ui->lstProducts;
        const QSignalBlocker quiet(products);
        m_types.ForEach([&products](const QString&, const LabelType& type) {
            const int last = products.count() - 1;
            if (last >= 0 && ProductOf(*products.item(last)) == type.ProductID)
                return;
            auto* line = new QListWidgetItem(type.BrandName, &products);
            line->setData(Qt::UserRole, type.ProductID);
        });
    });
}

void frmLabelType::ShowChoice()
{
    for (int row = 0; row < m_ui->lstProducts->count(); ++row) {
        if (ProductOf(*m_ui->lstProducts->item(row)) == gSettings.LabelProduct) {
            m_ui->lstProducts->setCurrentRow(row);
            break;
        }
    }
    const QList<QListWidgetItem*> numbers = m_ui->lstNumbers->findItems(gSettings.LabelNumber, Qt::MatchExactly);
    if (!numbers.isEmpty())
        m_ui->lstNumbers->setCurrentItem(numbers.front());
}

void frmLabelType::lstProducts_Click()
{
    Trap(u"frmLabelType lstProducts_Click Error #"_s, Icon::Critical, [this] {
        m_ui->lstNumbers->clear();
        m_buttons->SetEnabled(Ok, false);
        const QListWidgetItem* chosen = Chosen(*m_ui->lstProducts);
        if (chosen == nullptr)
            return;
        m_types.ForEach([this, product = ProductOf(*chosen)](const QString&, const LabelType& type) {
            if (type.ProductID == product)
                m_ui->lstNumbers->addItem(type.Number);
        });
    });
}

void frmLabelType::cmdButton_Click(int index)
{
    Trap(u"frmLabelType cmdButton_Click Error #"_s, Icon::Critical, [this, index] {
        if (index == Ok) {
            if (Chosen(*m_ui->lstProducts) == nullptr || Chosen(*m_ui->lstNumbers) == nullptr)
                return;
            Choose();
        }
        Unload();
    });
}

void frmLabelType::Choose()
{
    gSettings.LabelProduct = static_cast<Integer>(ProductOf(*Chosen(*m_ui->lstProducts)));
    gSettings.LabelNumber = Chosen(*m_ui->lstNumbers)->text();
    if (auto* letters = Face<LettersFace>::Get())
        letters->ShowLabelType(gSettings.LabelNumber);
    UpdateSettings();
}

bool frmLabelType::KeyPreview(QKeyEvent* event)
{
    const bool inList = m_ui->lstProducts->hasFocus() || m_ui->lstNumbers->hasFocus();
    return inList && EnterIsOk(*event, [this] { cmdButton_Click(Ok); });
}

void frmLabelType::EscapePressed()
{
    cmdButton_Click(Cancel);
}
