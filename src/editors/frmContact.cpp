#include "editors/frmContact.h"

#include "core/Convert.h"
#include "core/Strings.h"
#include "core/Trap.h"
#include "editors/ContactRecord.h"
#include "editors/ContactRows.h"
#include "editors/SheetButtons.h"
#include "editors/SheetEditor.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "ui/widgets/HoverButtonArray.h"
#include "ui/widgets/Theme.h"

#include <QBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString NewCaption()
{
    return u"New Contact Under "_s + CurrentSub()->Description;
}

} // namespace

frmContact::frmContact() : Form(u"frmContact"_s)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::Spacing, Theme::Spacing, Theme::Spacing, Theme::Spacing);
    layout->setSpacing(Theme::Spacing);
    m_sheet = new SheetEditor(ContactRows(), this);
    m_sheet->SetStartRow([this](int curRow) { return StartRow(curRow); });
    layout->addWidget(m_sheet, 1);
    LoadBitMaps();
    Form_Load();
    // All rows at once where the screen has the room; CenterForm takes away what it has not.
    resize(sizeHint());
    CenterForm(*this);
}

frmContact::~frmContact()
{
    gEditMode = EditMode::Neutral;
    if (auto* list = Face<ContactListFace>::Get(); list != nullptr && list->Rows() == 0)
        list->UnloadList();
}

void frmContact::Form_Load()
{
    Trap(u"frmContact Form_Load Error #"_s, Icon::Critical, [this] {
        if (gEditMode != EditMode::ModifyContact) {
            setWindowTitle(NewCaption());
            ShoWait(u"Adding a Contact.."_s);
        } else {
            LoadContact();
            setWindowTitle(FormatName());
            ShoWait(FormatName());
        }
    });
}

void frmContact::LoadBitMaps()
{
    m_buttons = AddSheetButtons(*this, *static_cast<QBoxLayout*>(layout()));
    connect(m_buttons, &HoverButtonArray::Click, this, &frmContact::Press);
}

void frmContact::LoadContact()
{
    if (!curContact)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    for (int row = 1; row <= m_sheet->Rows(); ++row)
        m_sheet->SetValue(row, RowText(*curContact, row));
}

int frmContact::StartRow(int curRow) const
{
    if (curRow == ContactRow::FirstName || gEditMode == EditMode::NewContact)
        return ContactRow::FirstName;
    // 0, which stands for the first row, where the list's column is none of the sheet.
    return m_sheet->RowOfTag(gFocusField);
}

void frmContact::ClearGrids()
{
    m_sheet->Clear();
    m_sheet->txtFirst_GotFocus();
}

// Leaving.

void frmContact::EscapePressed()
{
    Press(SheetButton::Cancel);
}

void frmContact::Form_QueryUnload(bool&, UnloadMode mode)
{
    if (mode == UnloadMode::CloseBox)
        Trap(u"frmContact cmdButton_Click Error #"_s, Icon::Critical, [this] { CancelContact(); });
}

void frmContact::Form_Unload(bool&)
{
    gEditMode = EditMode::Neutral;
    if (auto* tree = Face<TreeFace>::Get())
        tree->ShowSubContactCount();
}

// The buttons.

void frmContact::Press(int index)
{
    if (IsUnloaded() || (index != SheetButton::Cancel && !m_sheet->Leave()))
        return;
    Trap(u"frmContact cmdButton_Click Error #"_s, Icon::Critical, [this, index] { cmdButton_Click(index); });
}

void frmContact::cmdButton_Click(int index)
{
    if (index == SheetButton::Cancel) {
        CancelContact();
        Unload();
        return;
    }
    if (Trim(m_sheet->Value(ContactRow::FirstName)).isEmpty() && Trim(m_sheet->Value(ContactRow::LastName)).isEmpty()) {
        MsgBox(u"I did not save this contact because\r\n you did not enter a contact name."_s, Buttons::Ok,
               Icon::Information, u"Contact not Saved"_s);
        return;
    }
    if (!SaveContact()) {
        // The row that New added goes with every refusal, the second one too, which is meant.
        auto* list = Face<ContactListFace>::Get();
        if (list != nullptr && gEditMode == EditMode::NewContact && list->Rows() > 0)
            list->RemoveLastRow();
        return;
    }
    ApplyChanges(*m_sheet);
    if (index == SheetButton::SaveAndExit) {
        Unload();
        ShoWait(u"Saved"_s);
    } else {
        AddAnother();
    }
}

void frmContact::CancelContact()
{
    auto* list = Face<ContactListFace>::Get();
    if (gEditMode == EditMode::NewContact && list != nullptr && list->Rows() > 0)
        list->TakeNewRowAway();
    ShoWait(u"Cancelled"_s);
}

void frmContact::AddAnother()
{
    gEditMode = EditMode::NewContact;
    ClearGrids();
    auto* list = Face<ContactListFace>::Get();
    // Without the list the old caption stays, which is meant.
    if (list == nullptr)
        return;
    list->UnSelectAll();
    list->AddRow();
    list->SelectLastRow();
    setWindowTitle(NewCaption());
    ShoWait(u"Adding a Contact.."_s);
}

bool frmContact::SaveContact()
{
    return Trap(u"frmContact SaveContact Error #"_s, Icon::Critical, [this] {
        if (IsDuplicate()) {
            MsgBox(u"I did not save this contact because a contact with the\r\nsame name already exists in "_s +
                       CurrentSub()->Description + u"."_s,
                   Buttons::Ok, Icon::Information, u"Contact not Saved"_s);
            return false;
        }
        const std::shared_ptr<Contact> before = curContact;
        if (gEditMode == EditMode::NewContact)
            MakeNewContact();
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        for (int row = 1; row <= m_sheet->Rows(); ++row)
            SetRowText(*curContact, row, m_sheet->Value(row));
        // A refused write has been reported: the window stays with what was typed.
        if (gEditMode == EditMode::ModifyContact) {
            if (auto* found = Face<FoundFace>::Get())
                found->RedrawContact(*curContact);
            if (!curContact->UpdateDB(curContact->RecID))
                return false;
        } else if (!InsertContact()) {
            curContact = before;
            return false;
        }
        if (auto* list = Face<ContactListFace>::Get()) {
            list->UpdateContactGridCols();
            list->SetSelectedRowData(curContact->RecID);
        }
        return true;
    });
}

bool frmContact::IsDuplicate() const
{
    // The first New of a run may come without any contact to ask.
    if (!curContact)
        return false;
    // It is the subcategory chosen in the tree that counts, also for a contact of another one, which is meant.
    const Long found = Contact::LocateContact(m_sheet->Value(ContactRow::FirstName), m_sheet->Value(ContactRow::MI),
                                              m_sheet->Value(ContactRow::LastName), CurrentSub()->RecID);
    return found != 0 && (gEditMode != EditMode::ModifyContact || found != curContact->RecID);
}

void frmContact::MakeNewContact() const
{
    auto* tree = Face<TreeFace>::Get();
    // A category is selected: it holds no contact, and the row would be an orphan.
    if (tree == nullptr || tree->SelectedParentKey().isEmpty())
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    const auto made = std::make_shared<Contact>();
    made->subCategoryID = CInt(static_cast<double>(GetKey(tree->SelectedKey())));
    made->CategoryID = GetKey(tree->SelectedParentKey());
    curContact = made;
    auto* list = Face<ContactListFace>::Get();
    if (list == nullptr || list->Rows() > 0)
        return;
    list->AddRow();
    list->UnSelectAll();
    list->SelectLastRow();
}

bool frmContact::InsertContact() const
{
    bool written = false;
    const Long id = curContact->AddToDB(curContact->subCategoryID, &written);
    if (!written)
        return false;
    curContact->RecID = id;
    // Where the read-back gave an older contact's ID, or a second row is left without one, this raises: the row is
    // written, and the person has read why it is not shown.
    gContacts.Add(id, curContact);
    ++CategoryAt(curCategoryID)->ContactCount;
    ++CurrentSub()->ContactCount;
    if (auto* main = Face<MainFace>::Get())
        main->ShowStatus();
    return true;
}
