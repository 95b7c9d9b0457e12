#pragma once

#include "core/Types.h"

#include <QString>
#include <memory>

class Contact;
class Recordset;

/// One real-estate property of a contact. Codes are positions in the fixed lists; flags are "Yes", "No" or ""; dates
/// stay the texts that were typed.
class PropDetail
{
public:
    Long RecID = 0;
    Long ContactID = 0;

    QString MLS;
    QString Subdivision;
    QString Addr1;
    QString Addr2;
    QString City;
    QString Zip;
    QString Zip4;
    Single State = 0;
    Single PropType = 0;
    Single Construction = 0;
    Single Floor = 0;
    Single Roof = 0;
    Single Parking = 0;
    Single Pool = 0;
    Single RentalBasis = 0;
    Single Rooms = 0;
    Single Baths = 0;
    Integer SqFt = 0;
    Currency MaintFee;
    Currency AssocFee;
    Currency RentalAmount;
    Currency AskingPrice;
    Currency SoldPrice;
    QString Waterfront;
    QString FloodZone;
    QString Rented;
    QString Elevator;
    QString PetsAllowed;
    QString LeaseExpires;
    QString ListingDate;
    QString ExpDate;
    QString SoldDate;
    QString ClosingDate;
    QString Picture;
    QString Video;
    QString Notes;

    /// Takes every field from the current row.
    void LoadFromDB(Recordset& row);

    /// Writes this property as a new row and gives its ID, read back under curContact, who must be the owner. Gives 0
    /// after a report.
    [[nodiscard]] Long SaveToDB() const;
    /// False after a report.
    bool UpdateDB() const;
    /// Writes the notes where they hold more than blanks; emptied notes stay in the table, which is meant.
    /// False after a report.
    bool UpdateDBNotes() const;
    /// Deletes all properties of the owner from the table.
    void RemoveContactProperties() const;
    /// Deletes this property from the table, and has the contact list show the owner's count.
    void DeleteCurProperty() const;

    /// The ID of the first property of a contact with exactly this address and city; 0 where there is none.
    [[nodiscard]] Long LocateProperty(Long contactID) const;
};

/// The first contact that has a property of this ID, or null.
[[nodiscard]] std::shared_ptr<Contact> LocatePropertyOwner(Long propertyID);
