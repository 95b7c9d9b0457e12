#include "core/Trap.h"
#include "editors/frmProperty.h"
#include "editors/frmPropertyList.h"
#include "editors/PropertyRecord.h"
#include "editors/SheetEditor.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "model/PropDescribe.h"

using namespace Qt::StringLiterals;

// What a save of the property editor does.

namespace {

void RefuseDuplicate(bool modifying)
{
    const QString text =
        modifying
            ? u"I did not save this property because I found the same address already\r\nassigned to another of "_s +
                  FormatName() + u"'s properties."_s
            : u"I did not save this property because I found\r\nthe same address already assigned to another\r\n"
              "property belonging to "_s +
                  FormatName();
    MsgBox(text, Buttons::Ok, Icon::Information, u"Property not Saved"_s);
}

} // namespace

bool frmProperty::SavePropToMain()
{
    return Trap(u"frmProperty SavePropToMain Error #"_s, Icon::Critical, [this] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        const bool modifying = gEditMode == EditMode::ModifyProperty;
        if (IsDuplicate()) {
            RefuseDuplicate(modifying);
            return false;
        }
        // A number that does not fit is found before anything is written, in the list too. The notes and files of a
        // property that is changed are none of the sheet's, and stay with it.
        PropDetail values = modifying ? *CurProperty() : PropDetail();
        if (!SetPropValues(values, *m_sheet))
            return false;
        if (modifying) {
            if (!ModifyProperty(values))
                return false;
            WriteListRow();
        } else {
            WriteNewListRow();
            if (!AddNewProperty(values))
                return false;
        }
        // A contact's only property is the default one, without any question.
        if (curContact->Properties.Count() == 1) {
            curContact->DefaultProperty = curPropertyID;
            curContact->UpdateDB(curContact->RecID);
            if (auto* list = frmPropertyList::Loaded())
                list->ShowDefaultIcon();
        }
        return true;
    });
}

bool frmProperty::IsDuplicate() const
{
    PropDetail typed;
    for (const PropertyField field : {PropertyField::Addr1, PropertyField::Addr2, PropertyField::City})
        SetPropertyText(typed, field, m_sheet->Value(RowOf(field)));
    const Long found = typed.LocateProperty(curContact->RecID);
    return found != 0 && (gEditMode != EditMode::ModifyProperty || found != curPropertyID);
}

void frmProperty::WriteNewListRow() const
{
    auto* list = frmPropertyList::Loaded();
    if (list == nullptr)
        return;
    // A refused save has taken the new row away; what is saved after all must show.
    if (list->NewRow() == 0)
        list->AddNewRow();
    if (list->Rows() == 1) {
        list->UnSelectAll();
        list->SelectLastRow(u"Address1");
        list->SetDefaultProp(false);
    }
    WriteListRow();
}

void frmProperty::WriteListRow() const
{
    if (auto* list = frmPropertyList::Loaded())
        list->WriteSelectedRow([this](PropertyField field) { return m_sheet->Value(RowOf(field)); });
}

bool frmProperty::AddNewProperty(const PropDetail& values)
{
    return Trap(u"frmProperty AddNewProperty Error #"_s, Icon::Critical, [&] {
        savedPropertyID = curPropertyID;
        const auto property = std::make_shared<PropDetail>(values);
        property->ContactID = curContact->RecID;
        property->RecID = property->SaveToDB();
        if (property->RecID == 0)
            return false;
        // Where the read-back gave an older property's ID this raises: the row is written and joins at the next start,
        // and the older property stays as it is.
        m_joinsLater = curContact->Properties.Exists(property->RecID);
        curContact->Properties.Add(property->RecID, property);
        curPropertyID = property->RecID;
        if (auto* contacts = Face<ContactListFace>::Get())
            contacts->ShowPropertyCount(curContact->RecID, static_cast<int>(curContact->Properties.Count()));
        if (auto* list = frmPropertyList::Loaded()) {
            list->ShowCaption();
            list->SetLastRowData(curPropertyID);
        }
        return true;
    });
}

bool frmProperty::ModifyProperty(const PropDetail& values)
{
    return Trap(u"frmProperty ModifyProperty Error #"_s, Icon::Critical, [&] {
        savedPropertyID = curPropertyID;
        PropDetail property = values;
        property.ContactID = curContact->RecID;
        property.RecID = curPropertyID;
        if (!property.UpdateDB())
            return false;
        *CurProperty() = std::move(property);
        return true;
    });
}
