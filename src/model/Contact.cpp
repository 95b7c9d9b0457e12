#include "model/Contact.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Strings.h"
#include "core/Trap.h"
#include "model/Categories.h"
#include "model/faces.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "model/ReadBack.h"
#include "model/SharedText.h"

using namespace Qt::StringLiterals;

namespace {

/// The ID of the tree's selected node.
Long SelectedSub()
{
    const auto* tree = Face<TreeFace>::Get();
    if (tree == nullptr || tree->SelectedKey().isEmpty())
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    return GetKey(tree->SelectedKey());
}

} // namespace

void Contact::LoadFromDB(Recordset& row)
{
    Trap(u"Class Contact LoadFromDB Error #"_s, Icon::Information, [&] {
        const auto text = [&row](QLatin1StringView name) { return row.Fields(name).Get().Text(); };
        RecID = row.Fields("ID"_L1).Get().ToLong();
        CategoryID = CLng(text("CategoryID"_L1));
        subCategoryID = CInt(text("subCategoryID"_L1));
        FirstName = SharedText(text("FirstName"_L1));
        LastName = SharedText(text("LastName"_L1));
        MI = SharedText(text("MI"_L1));
        Salutation = text("Salutation"_L1);
        Spouse = SharedText(text("Spouse"_L1));
        Company = text("Company"_L1);
        Email = text("Email"_L1);
        ReferredBy = text("ReferredBy"_L1);
        MailAddr1 = text("MailAddr1"_L1);
        MailAddr2 = SharedText(text("MailAddr2"_L1));
        MailCity = SharedText(text("MailCity"_L1));
        MailState = row.Fields("MailState"_L1).Get().SingleOrZero();
        MailZip = SharedText(text("MailZip"_L1));
        MailZip4 = SharedText(text("MailZip4"_L1));
        WorkPhone = text("WorkPhone"_L1);
        Ext = SharedText(text("Ext"_L1));
        HomePhone = text("HomePhone"_L1);
        Cell = text("Cell"_L1);
        Fax = text("Fax"_L1);
        Notes = text("Notes"_L1);
        DefaultProperty = row.Fields("DefaultProperty"_L1).Get().LongOrZero();
        FilledProperties = false;
    });
}

void Contact::LoadProperties()
{
    Trap(u"Class Contact LoadProperties Error #"_s, Icon::Information, [&] {
        Properties.RemoveAll();
        FilledProperties = true;
        Recordset rows;
        rows.CursorLocation = CursorLocation::UseClient;
        rows.LockType = LockType::Pessimistic;
        rows.Open(u"Select * from PropDetail Where ContactID="_s + CStr(RecID), gConn);
        for (; !rows.Eof(); rows.MoveNext()) {
            auto property = std::make_shared<PropDetail>();
            property->LoadFromDB(rows);
            Properties.Add(property->RecID, property);
        }
    });
}

Long Contact::AddToDB(std::optional<Long> subCategory, bool* written) const
{
    return Trap(u"Class Contact AddToDB Error #"_s, Icon::Information, [&] {
        const Long sub = subCategory ? *subCategory : SelectedSub();
        const QStringList names{FixQuotes(FirstName),         FixQuotes(LastName),   MI,
                                FixQuotes(FormatName(*this)), FixQuotes(Salutation), FixQuotes(MailAddr1),
                                FixQuotes(MailAddr2),         FixQuotes(MailCity)};
        const QStringList rest{MailZip,
                               MailZip4,
                               FixQuotes(Company),
                               WorkPhone,
                               Ext,
                               HomePhone,
                               Cell,
                               Fax,
                               Email,
                               FixQuotes(ReferredBy),
                               FixQuotes(Notes),
                               FixQuotes(Spouse)};
        const QString between = u"','"_s;
        gConn.Execute(
            u"Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName,MI,FormattedName,Salutation,"
            "MailAddr1,MailAddr2,MailCity,MailState,MailZip,MailZip4,Company,WorkPhone,Ext,HomePhone,Cell,Fax,"
            "Email,ReferredBy,Notes,Spouse)  Values ("_s +
            CStr(CategoryID) + u","_s + CStr(sub) + u",'"_s + names.join(between) + u"',"_s + CStr(MailState) +
            u",'"_s + rest.join(between) + u"')"_s);
        if (written != nullptr)
            *written = true;
        // MI and MailAddr1 go in as they are, unlike in the statement above: an apostrophe in the address leaves the
        // row written and its ID unknown, which is meant.
        return ReadBackID(u"Select ID from Contacts Where SubCategoryID="_s + CStr(sub) + u" and FirstName='"_s +
                          FixQuotes(FirstName) + u"' and MI='"_s + MI + u"' and LastName='"_s + FixQuotes(LastName) +
                          u"' and Mailaddr1='"_s + MailAddr1 + u"'"_s);
    });
}

bool Contact::UpdateDB(Long id) const
{
    return Trap(u"Class Contact UpdtateDB Error #"_s, Icon::Information, [&] {
        gConn.Execute(u"Update Contacts set CategoryID="_s + CStr(CategoryID) + u",SubCategoryID="_s +
                      CStr(subCategoryID) + u",FirstName='"_s + FixQuotes(FirstName) + u"',LastName='"_s +
                      FixQuotes(LastName) + u"',MI='"_s + MI + u"',FormattedName='"_s + FixQuotes(FormatName(*this)) +
                      u"',Salutation='"_s + FixQuotes(Salutation) + u"',MailAddr1='"_s + FixQuotes(MailAddr1) +
                      u"',MailAddr2='"_s + FixQuotes(MailAddr2) + u"',MailCity='"_s + FixQuotes(MailCity) +
                      u"',MailState="_s + FixQuotes(CStr(MailState)) + u",MailZip='"_s + MailZip + u"',MailZip4='"_s +
                      MailZip4 + u"',Company='"_s + FixQuotes(Company) + u"',WorkPhone='"_s + WorkPhone + u"',Ext='"_s +
                      Ext + u"',HomePhone='"_s + HomePhone + u"',Cell='"_s + Cell + u"',Fax='"_s + Fax +
                      u"',Email='"_s + FixQuotes(Email) + u"',ReferredBy='"_s + FixQuotes(ReferredBy) + u"',Notes='"_s +
                      FixQuotes(Notes) + u"',Spouse='"_s + FixQuotes(Spouse) + u"', DefaultProperty="_s +
                      CStr(DefaultProperty) + u" Where ID="_s + CStr(id));
        return true;
    });
}

Long Contact::LocateContact(const QString& firstName, const QString& mi, const QString& lastName, Long subCategory)
{
    return Trap(u"Class Contact LocateContact Error #"_s, Icon::Information, [&] {
        const QString first = NameKey(firstName);
        const QString middle = NameKey(mi);
        const QString last = NameKey(lastName);
        Long key = 0;
        gContacts.ForEach([&](Long id, const std::shared_ptr<Contact>& contact) {
            const bool same = contact && contact->subCategoryID == subCategory && NameKey(contact->LastName) == last &&
                              NameKey(contact->FirstName) == first && NameKey(contact->MI) == middle;
            if (same)
                key = id;
            return !same;
        });
        return key;
    });
}

QString FormatName(const Contact& contact)
{
    return contact.FirstName + u" "_s + (contact.MI.isEmpty() ? QString() : contact.MI + u" "_s) + contact.LastName;
}

QString FormatName()
{
    return Trap(u"FormatName  Error #"_s, Icon::Information, [] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        return FormatName(*curContact);
    });
}

const std::shared_ptr<Contact>& ContactAt(Long id)
{
    const std::shared_ptr<Contact>& contact = gContacts.Item(id);
    if (!contact)
        throw RunTimeError(ErrorNumber::ObjectRequired);
    return contact;
}
