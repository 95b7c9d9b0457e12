#include "model/PropDetail.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/FieldRules.h"
#include "core/Strings.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/faces.h"
#include "model/Main.h"
#include "model/ReadBack.h"
#include "model/SharedText.h"

using namespace Qt::StringLiterals;

namespace {

QString FlagText(const Value& code)
{
    return BitToYesNo(code.LongOrZero()).value_or(QString());
}

/// The code of a flag as the Insert writes it; a text that is no flag gives an empty literal.
QString FlagCode(const QString& flag)
{
    const std::optional<int> code = YesNoToBit(flag);
    return code ? CStr(Long{*code}) : QString();
}

/// The code of a flag as the Update writes it: without quotes, and 0 where the flag is empty.
QString GuardedFlagCode(const QString& flag)
{
    return flag.isEmpty() ? u"0"_s : FlagCode(flag);
}

} // namespace

void PropDetail::LoadFromDB(Recordset& row)
{
    Trap(u"Class PropDetail LoadFromDB Error #"_s, Icon::Information, [&] {
        const auto value = [&row](QLatin1StringView name) { return row.Fields(name).Get(); };
        const auto text = [&value](QLatin1StringView name) { return value(name).Text(); };
        const auto repeated = [&text](QLatin1StringView name) { return SharedText(text(name)); };
        const auto code = [&value](QLatin1StringView name) { return value(name).SingleOrZero(); };
        const auto money = [&value](QLatin1StringView name) { return value(name).CurrencyOrZero(); };
        ContactID = value("ContactID"_L1).ToLong();
        RecID = value("ID"_L1).ToLong();
        MLS = text("MLS"_L1);
        Subdivision = repeated("Subdivision"_L1);
        Addr1 = text("Addr1"_L1);
        Addr2 = repeated("Addr2"_L1);
        City = repeated("City"_L1);
        State = code("State"_L1);
        Zip = repeated("Zip"_L1);
        Zip4 = repeated("Zip4"_L1);
        SqFt = value("SqFt"_L1).ToInteger();
        Rooms = CSng(text("Rooms"_L1));
        Baths = CSng(text("Baths"_L1));
        PropType = code("PropType"_L1);
        Construction = code("Construction"_L1);
        Floor = code("Floor"_L1);
        Roof = code("Roof"_L1);
        Parking = code("Parking"_L1);
        Pool = code("Pool"_L1);
        MaintFee = money("MaintFee"_L1);
        AssocFee = money("AssocFee"_L1);
        Waterfront = FlagText(value("Waterfront"_L1));
        FloodZone = FlagText(value("FloodZone"_L1));
        Rented = FlagText(value("Rented"_L1));
        RentalBasis = code("RentalBasis"_L1);
        RentalAmount = money("RentalAmount"_L1);
        LeaseExpires = repeated("LeaseExpires"_L1);
        Elevator = FlagText(value("Elevator"_L1));
        PetsAllowed = FlagText(value("PetsAllowed"_L1));
        ListingDate = repeated("ListingDate"_L1);
        ExpDate = repeated("ExpDate"_L1);
        AskingPrice = money("AskingPrice"_L1);
        SoldDate = repeated("SoldDate"_L1);
        SoldPrice = money("SoldPrice"_L1);
        ClosingDate = repeated("ClosingDate"_L1);
        Picture = text("Picture"_L1);
        Video = text("Video"_L1);
        Notes = text("Notes"_L1);
    });
}

Long PropDetail::SaveToDB() const
{
    return Trap(u"Class PropDetail SaveToDB Error #"_s, Icon::Information, [&] {
        gConn.Execute(
            u"Insert Into PropDetail (Addr1,Addr2,City,State,Zip,Zip4,ContactID,MLS,Subdivision,PropType,"
            "Construction,SqFt,Roof,Parking,Rooms,Baths,Floor,Pool,MaintFee,AssocFee,Waterfront,Floodzone,Rented,"
            "RentalBasis,RentalAmount,LeaseExpires,Elevator,PetsAllowed,ListingDate,AskingPrice,ExpDate,"
            "ClosingDate,SoldDate,SoldPrice) "_s +
            u"Values ('"_s + Addr1 + u"','"_s + Addr2 + u"','"_s + City + u"',"_s + CStr(State) + u",'"_s + Zip +
            u"','"_s + Zip4 + u"',"_s + CStr(ContactID) + u",'"_s + MLS + u"','"_s + Subdivision + u"',"_s +
            CStr(PropType) + u","_s + CStr(Construction) + u","_s + CStr(SqFt) + u","_s + CStr(Roof) + u","_s +
            CStr(Parking) + u","_s + CStr(Rooms) + u","_s + CStr(Baths) + u","_s + CStr(Floor) + u","_s + CStr(Pool) +
            u","_s + CStr(MaintFee) + u","_s + CStr(AssocFee) + u",'"_s + FlagCode(Waterfront) + u"','"_s +
            FlagCode(FloodZone) + u"','"_s + FlagCode(Rented) + u"',"_s + CStr(RentalBasis) + u","_s +
            CStr(RentalAmount) + u",'"_s + LeaseExpires + u"','"_s + FlagCode(Elevator) + u"','"_s +
            FlagCode(PetsAllowed) + u"','"_s + ListingDate + u"',"_s + CStr(AskingPrice) + u",'"_s + ExpDate +
            u"','"_s + ClosingDate + u"','"_s + SoldDate + u"',"_s + CStr(SoldPrice) + u")"_s);
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        return ReadBackID(u"Select ID from PropDetail Where Addr1='"_s + Addr1 + u"' And Addr2='"_s + Addr2 +
                          u"' And ContactID="_s + CStr(curContact->RecID));
    });
}

bool PropDetail::UpdateDB() const
{
    return Trap(u"Class PropDetail UpdateDB Error #"_s, Icon::Information, [&] {
        gConn.Execute(u"Update PropDetail set Addr1='"_s + Addr1 + u"',Addr2='"_s + Addr2 + u"', City='"_s + City +
                      u"',State='"_s + CStr(State) + u"',Zip='"_s + Zip + u"', zip4='"_s + Zip4 + u"',contactid="_s +
                      CStr(ContactID) + u",MLS='"_s + MLS + u"', Subdivision='"_s + Subdivision + u"',PropType="_s +
                      CStr(PropType) + u",Construction="_s + CStr(Construction) + u", SqFt='"_s + CStr(SqFt) +
                      u"',Roof="_s + CStr(Roof) + u", Parking="_s + CStr(Parking) + u", Rooms='"_s + CStr(Rooms) +
                      u"',Baths='"_s + CStr(Baths) + u"',Floor="_s + CStr(Floor) + u", Pool="_s + CStr(Pool) +
                      u",MaintFee="_s + CStr(MaintFee) + u",AssocFee="_s + CStr(AssocFee) + u", Waterfront="_s +
                      GuardedFlagCode(Waterfront) + u",Floodzone="_s + GuardedFlagCode(FloodZone) + u",Rented="_s +
                      GuardedFlagCode(Rented) + u",RentalBasis="_s + CStr(RentalBasis) + u",RentalAmount="_s +
                      CStr(RentalAmount) + u",LeaseExpires='"_s + LeaseExpires + u"'"_s + u",Elevator="_s +
                      GuardedFlagCode(Elevator) + u", PetsAllowed="_s + GuardedFlagCode(PetsAllowed) +
                      u",ListingDate='"_s + ListingDate + u"',AskingPrice="_s + CStr(AskingPrice) + u", ExpDate='"_s +
                      ExpDate + u"',ClosingDate='"_s + ClosingDate + u"',SoldDate='"_s + SoldDate + u"', SoldPrice="_s +
                      CStr(SoldPrice) + u" Where ID="_s + CStr(RecID));
        return true;
    });
}

bool PropDetail::UpdateDBNotes() const
{
    return Trap(u"Class PropDetail UpdateDBNotes Error #"_s, Icon::Information, [&] {
        if (!Trim(Notes).isEmpty())
            gConn.Execute(u"Update PropDetail set Notes='"_s + Notes + u"' Where ID="_s + CStr(RecID));
        return true;
    });
}

void PropDetail::RemoveContactProperties() const
{
    Trap(u"Class PropDetail RemoveContactProperties Error #"_s, Icon::Information,
         [&] { gConn.Execute(u"Delete from PropDetail Where ContactID="_s + CStr(ContactID)); });
}

void PropDetail::DeleteCurProperty() const
{
    Trap(u"Class PropDetail DeleteCurProperty Error #"_s, Icon::Information, [&] {
        gConn.Execute(u"Delete from PropDetail Where ID="_s + CStr(RecID));
        if (auto* list = Face<ContactListFace>::Get())
            list->ShowPropertyCount(ContactID, static_cast<int>(ContactAt(ContactID)->Properties.Count()));
    });
}

Long PropDetail::LocateProperty(Long contactID) const
{
    return Trap(u"Class PropDetail LocateProperty Error #"_s, Icon::Information, [&] {
        Long found = 0;
        ContactAt(contactID)->Properties.ForEach([&](Long, const std::shared_ptr<PropDetail>& other) {
            if (!other)
                throw RunTimeError(ErrorNumber::ObjectRequired);
            const bool same = other->Addr1 == Addr1 && other->Addr2 == Addr2 && other->City == City;
            if (same)
                found = other->RecID;
            return !same;
        });
        return found;
    });
}

std::shared_ptr<Contact> LocatePropertyOwner(Long propertyID)
{
    std::shared_ptr<Contact> owner;
    gContacts.ForEach([&](Long, const std::shared_ptr<Contact>& contact) {
        const auto* property = contact ? contact->Properties.Find(propertyID) : nullptr;
        if (property != nullptr && *property)
            owner = contact;
        return owner == nullptr;
    });
    return owner;
}
