#include "organise/frmMove.h"

#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/Main.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Theme.h"

#include <QHBoxLayout>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int keyRole = Qt::UserRole;

QTreeWidgetItem* NewNode(QTreeWidgetItem* node, const Category& category, QChar letter)
{
    node->setText(0, category.Description);
    node->setData(0, keyRole, letter + CStr(category.RecID));
    return node;
}

Long KeyOf(const QTreeWidgetItem* node)
{
    return GetKey(node->data(0, keyRole).toString());
}

} // namespace

frmMove::frmMove(What what, const QString& caption, const QString& movedName)
    : Form(u"frmMove"_s), m_what(what), m_movedName(movedName), m_tree(new QTreeWidget(this))
{
    setWindowTitle(caption);
    m_tree->setObjectName(u"TreeView1"_s);
    m_tree->setAccessibleName(u"Destination"_s);
    m_tree->setHeaderHidden(true);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(Theme::Spacing);
    layout->addWidget(m_tree);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    layout->addLayout(buttons);
    auto* choices = new HoverButtonArray(*this, *buttons, {{2, u"Ok"_s, u"Ok"_s}, {1, u"Cancel"_s, u"Cancel"_s}});
    resize(420, 440);
    setMinimumSize(240, 200);
    CenterForm(*this);
    // A window that is closed by its box has chosen nothing.
    gReturnValue = u"Cancelled"_s;
    connect(choices, &HoverButtonArray::Click, this, &frmMove::cmdButton_Click);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* node) {
        // A category that can't be the target opens and closes by a double click, as in every tree.
        if (m_what == What::Category || node->parent() != nullptr)
            cmdButton_Click(2);
    });
}

frmMove::~frmMove() = default;

void frmMove::Form_Activate()
{
    if (m_tree->topLevelItemCount() == 0)
        LoadCategories();
    m_tree->setFocus();
}

void frmMove::LoadCategories()
{
    Trap(u"frmMove LoadCategories Error #"_s, Icon::Critical, [this] {
        gCategories.ForEach([this](Long, const std::shared_ptr<Category>& category) {
            if (!category || (m_what == What::Category && category->Description == m_movedName))
                return;
            auto* root = NewNode(new QTreeWidgetItem(m_tree), *category, u'C');
            if (m_what != What::Contact || !category->Subs)
                return;
            for (const std::shared_ptr<Category>& sub : *category->Subs)
                NewNode(new QTreeWidgetItem(root), *sub, u'S');
        });
    });
}

void frmMove::EscapePressed()
{
    cmdButton_Click(1);
}

void frmMove::cmdButton_Click(int index)
{
    Trap(u"frmMove cmdButton_Click Error #"_s, Icon::Critical, [&] {
        if (index == 2) {
            OkClick();
            return;
        }
        gReturnValue = u"Cancelled"_s;
        Unload();
    });
}

void frmMove::OkClick()
{
    if (m_tree->currentItem() == nullptr)
        m_tree->setCurrentItem(m_tree->topLevelItem(0));
    QTreeWidgetItem* node = m_tree->currentItem();
    if (node == nullptr)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    QTreeWidgetItem* parent = node->parent();
    if (m_what == What::Category) {
        gReturnValue = CStr(KeyOf(node));
    } else if (parent == nullptr) {
        node->setExpanded(true);
        MsgBox(u"Please select a subcategory under "_s + node->text(0) + u"."_s, Buttons::Ok, Icon::Information,
               u"I can move contacts only to other subcategories"_s);
        return;
    } else {
        gReturnValue = CStr(qint64{parent->indexOfChild(node) + 1}) + u"-"_s + CStr(KeyOf(parent));
    }
    Unload();
}
