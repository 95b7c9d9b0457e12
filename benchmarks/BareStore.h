#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;

/// The rows of the three tables as plain structs: what a program keeps that does nothing else.
struct BareProperty
{
    long long id = 0;
    long long contactID = 0;
    std::string mls, subdivision, addr1, addr2, city, zip, zip4;
    float state = 0, propType = 0, construction = 0, roof = 0, parking = 0, floor = 0, pool = 0, rentalBasis = 0;
    int sqFt = 0;
    float rooms = 0, baths = 0;
    double maintFee = 0, assocFee = 0, rentalAmount = 0, askingPrice = 0, soldPrice = 0;
    int waterfront = 0, floodzone = 0, rented = 0, elevator = 0, petsAllowed = 0;
    std::string leaseExpires, listingDate, expDate, soldDate, closingDate, picture, video, notes;
};

struct BareContact
{
    long long id = 0;
    long long categoryID = 0;
    int subCategoryID = 0;
    std::string firstName, lastName, mi, formattedName, salutation, spouse, company, email, referredBy, mailAddr1,
        mailAddr2, mailCity;
    float mailState = 0;
    std::string mailZip, mailZip4, workPhone, ext, homePhone, cell, fax, notes;
    long long defaultProperty = 0;
    std::vector<BareProperty> properties;
};

struct BareAlert
{
    long long id = 0;
    long long contactID = 0;
    std::string alertDate, alertNote;
};

struct BareContents
{
    std::deque<BareContact> contacts;
    std::deque<BareAlert> alerts;
};

/// The yardstick: the same file with the same key and settings through the engine's own interface, each statement
/// prepared anew with its values in its text. Ends the process with the engine's words where anything fails.
class BareStore
{
public:
    explicit BareStore(const std::string& file);

    /// All contacts, for each of them one selection of its properties, then all alerts.
    [[nodiscard]] BareContents Load() const;
    /// Inserts a contact, and reads its number back by its names.
    long long AddContact(const std::string& firstName, const std::string& lastName) const;
    /// Inserts a property, and reads its number back by its address.
    long long AddProperty(long long contactID, const std::string& address) const;
    /// Deletes contacts with their properties and alerts.
    void Delete(const std::vector<long long>& contactIDs) const;

protected:
    void Run(const std::string& statement) const;
    [[nodiscard]] sqlite3* Handle() const { return m_database.get(); }

private:
    struct Close
    {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Close> m_database;
};
