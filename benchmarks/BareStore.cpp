#include "BareStore.h"

#include <cstdio>
#include <cstdlib>
#include <sqlcipher/sqlite3.h>

namespace {

constexpr char key[] = "kostrevy48";

[[noreturn]] void Fail(sqlite3* database)
{
    std::fprintf(stderr, "bare store: %s\n", sqlite3_errmsg(database));
    std::exit(EXIT_FAILURE);
}

class Statement
{
public:
    Statement(sqlite3* database, const std::string& text) : m_database(database)
    {
        if (sqlite3_prepare_v2(database, text.c_str(), static_cast<int>(text.size()), &m_statement, nullptr) !=
            SQLITE_OK)
            Fail(database);
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    [[nodiscard]] bool Step()
    {
        m_column = 0;
        const int result = sqlite3_step(m_statement);
        if (result != SQLITE_ROW && result != SQLITE_DONE)
            Fail(m_database);
        return result == SQLITE_ROW;
    }

    // The next column of the row.
    void Read(std::string& text)
    {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, m_column));
        if (bytes != nullptr)
            text.assign(bytes, static_cast<size_t>(sqlite3_column_bytes(m_statement, m_column)));
        ++m_column;
    }
    void Read(long long& number) { number = sqlite3_column_int64(m_statement, m_column++); }
    void Read(int& number) { number = sqlite3_column_int(m_statement, m_column++); }
    void Read(float& number) { number = static_cast<float>(sqlite3_column_double(m_statement, m_column++)); }
    void Read(double& number) { number = sqlite3_column_double(m_statement, m_column++); }

    template <typename... Columns>
    void ReadRow(Columns&... columns)
    {
        (Read(columns), ...);
    }

private:
    sqlite3* m_database;
    sqlite3_stmt* m_statement = nullptr;
    int m_column = 0;
};

void ReadContact(Statement& row, BareContact& c)
{
    row.ReadRow(c.id, c.categoryID, c.subCategoryID, c.firstName, c.lastName, c.mi, c.formattedName, c.salutation,
                c.spouse, c.company, c.email, c.referredBy, c.mailAddr1, c.mailAddr2, c.mailCity, c.mailState,
                c.mailZip, c.mailZip4, c.workPhone, c.ext, c.homePhone, c.cell, c.fax, c.notes, c.defaultProperty);
}

void ReadProperty(Statement& row, BareProperty& p)
{
    row.ReadRow(p.id, p.contactID, p.mls, p.subdivision, p.addr1, p.addr2, p.city, p.zip, p.zip4, p.state, p.propType,
                p.construction, p.roof, p.parking, p.floor, p.pool, p.rentalBasis, p.sqFt, p.rooms, p.baths, p.maintFee,
                p.assocFee, p.rentalAmount, p.askingPrice, p.soldPrice, p.waterfront, p.floodzone, p.rented, p.elevator,
                p.petsAllowed, p.leaseExpires, p.listingDate, p.expDate, p.soldDate, p.closingDate, p.picture, p.video,
                p.notes);
}

} // namespace

void BareStore::Close::operator()(sqlite3* database) const
{
    sqlite3_close_v2(database);
}

BareStore::BareStore(const std::string& file)
{
    sqlite3* database = nullptr;
    const int opened = sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    m_database.reset(database);
    if (opened != SQLITE_OK || sqlite3_key(database, key, static_cast<int>(sizeof key) - 1) != SQLITE_OK)
        Fail(database);
    Run("PRAGMA cipher_compatibility = 3");
    Run("PRAGMA synchronous = FULL");
}

void BareStore::Run(const std::string& statement) const
{
    Statement running(m_database.get(), statement);
    while (running.Step()) {
    }
}

BareContents BareStore::Load() const
{
    BareContents contents;
    Statement contacts(m_database.get(), "Select * from Contacts");
    while (contacts.Step()) {
        BareContact& contact = contents.contacts.emplace_back();
        ReadContact(contacts, contact);
        Statement properties(m_database.get(),
                             "Select * from PropDetail Where ContactID=" + std::to_string(contact.id));
        while (properties.Step())
            ReadProperty(properties, contact.properties.emplace_back());
    }
    Statement alerts(m_database.get(), "Select * from Alerts");
    while (alerts.Step()) {
        BareAlert& alert = contents.alerts.emplace_back();
        alerts.ReadRow(alert.id, alert.contactID, alert.alertDate, alert.alertNote);
    }
    return contents;
}

long long BareStore::AddContact(const std::string& firstName, const std::string& lastName) const
{
    Run("Insert into Contacts "
        "(CategoryID,SubCategoryID,FirstName,LastName,MI,FormattedName,Salutation,MailAddr1,MailAddr2,"
        "MailCity,MailState,MailZip,MailZip4,Company,WorkPhone,Ext,HomePhone,Cell,Fax,Email,ReferredBy,Notes,Spouse)  "
        "Values "
        "(1,1,'" +
        firstName + "','" + lastName + "','','" + firstName + " " + lastName +
        "','','12 Benchmark Road','','',0,'','','','','','','','','','','','')");
    Statement readBack(m_database.get(), "Select ID from Contacts Where SubCategoryID=1 and FirstName='" + firstName +
                                             "' and MI='' and LastName='" + lastName +
                                             "' and Mailaddr1='12 Benchmark Road'");
    long long id = 0;
    if (readBack.Step())
        readBack.ReadRow(id);
    return id;
}

long long BareStore::AddProperty(long long contactID, const std::string& address) const
{
    const std::string owner = std::to_string(contactID);
    Run("Insert Into PropDetail (Addr1,Addr2,City,State,Zip,Zip4,ContactID,MLS,Subdivision,PropType,Construction,SqFt,"
        "Roof,Parking,Rooms,Baths,Floor,Pool,MaintFee,AssocFee,Waterfront,Floodzone,Rented,RentalBasis,RentalAmount,"
        "LeaseExpires,Elevator,PetsAllowed,ListingDate,AskingPrice,ExpDate,ClosingDate,SoldDate,SoldPrice) Values ('" +
        address + "','','Miami',0,'',''," + owner +
        ",'','',0,0,0,0,0,0,0,0,0,0,0,'0','0','0',0,0,'','0','0','',0,'','','',0)");
    Statement readBack(m_database.get(),
                       "Select ID from PropDetail Where Addr1='" + address + "' And Addr2='' And ContactID=" + owner);
    long long id = 0;
    if (readBack.Step())
        readBack.ReadRow(id);
    return id;
}

void BareStore::Delete(const std::vector<long long>& contactIDs) const
{
    std::string list;
    for (const long long id : contactIDs)
        list.append(list.empty() ? "" : ",").append(std::to_string(id));
    Run("Delete from Contacts Where ID in (" + list + ")");
    Run("Delete from PropDetail Where ContactID in (" + list + ")");
    Run("Delete from Alerts where ContactID in (" + list + ")");
}
