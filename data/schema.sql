-- The tables of Contacts.mdb. The program holds no data definition: the file is delivered with all of them present.
--
-- The declared type of a column tells the program the column's kind; there is one name for each:
--
--   declared     kind                          stored as (the engine goes by the letters of the name)
--   INTEGER      the auto-numbered key, Long   integer; AUTOINCREMENT, so a number is never used again
--   LONG         Long, 32-bit whole number     numeric
--   INTEGER16    Integer, 16-bit whole number  integer
--   REAL4        Single                        real
--   CURRENCY     Currency, four decimals       numeric
--   TEXT         Text                          text
--   MEMOTEXT     Memo                          text
--   DATETEXT     Date                          text: what was written is what is read
--
-- No text has a width: a word is never cut. Texts compare without regard to case by the engine's own NOCASE, so that any
-- other tool can still open and save the file. Numbers are checked by the table itself. A check sees the value before
-- it is converted, so it is written to let '12' pass (stored as 12) and to refuse '', 'abc' and what does not fit.
--
-- Indexes end in the row's own number, so that of several equal rows the oldest comes first in a look-up without an
-- order. None may start with a column that is looked up alone and go on with another one: that would change the order.

-- The top level of the contact tree.
CREATE TABLE Categories (
    ID          INTEGER PRIMARY KEY AUTOINCREMENT,
    Description TEXT COLLATE NOCASE
);

-- The second level; every contact lies in exactly one.
CREATE TABLE SubCategories (
    ID          INTEGER PRIMARY KEY AUTOINCREMENT,
    Description TEXT COLLATE NOCASE,
    ParentID    LONG CONSTRAINT "ParentID" CHECK (ParentID = cast(ParentID AS INTEGER) AND cast(ParentID AS INTEGER) BETWEEN -2147483648 AND 2147483647)
);

-- One row for each person. MailState is an index of the list of states. SubCategoryID is narrow on purpose: it caps the
-- keys that can be used at 32767.
CREATE TABLE Contacts (
    ID              INTEGER PRIMARY KEY AUTOINCREMENT,
    CategoryID      LONG CONSTRAINT "CategoryID" CHECK (CategoryID = cast(CategoryID AS INTEGER) AND cast(CategoryID AS INTEGER) BETWEEN -2147483648 AND 2147483647),
    SubCategoryID   INTEGER16 CONSTRAINT "SubCategoryID" CHECK (SubCategoryID = cast(SubCategoryID AS INTEGER) AND cast(SubCategoryID AS INTEGER) BETWEEN -32768 AND 32767),
    FirstName       TEXT COLLATE NOCASE,
    LastName        TEXT COLLATE NOCASE,
    MI              TEXT COLLATE NOCASE,
    FormattedName   TEXT COLLATE NOCASE,
    Salutation      TEXT COLLATE NOCASE,
    Spouse          TEXT COLLATE NOCASE,
    Company         TEXT COLLATE NOCASE,
    Email           TEXT COLLATE NOCASE,
    ReferredBy      TEXT COLLATE NOCASE,
    MailAddr1       TEXT COLLATE NOCASE,
    MailAddr2       TEXT COLLATE NOCASE,
    MailCity        TEXT COLLATE NOCASE,
    MailState       REAL4 CONSTRAINT "MailState" CHECK (MailState = MailState + 0.0 AND abs(MailState + 0.0) < 3.403e38),
    MailZip         TEXT COLLATE NOCASE,
    MailZip4        TEXT COLLATE NOCASE,
    WorkPhone       TEXT COLLATE NOCASE,
    Ext             TEXT COLLATE NOCASE,
    HomePhone       TEXT COLLATE NOCASE,
    Cell            TEXT COLLATE NOCASE,
    Fax             TEXT COLLATE NOCASE,
    Notes           MEMOTEXT COLLATE NOCASE,
    DefaultProperty LONG CONSTRAINT "DefaultProperty" CHECK (DefaultProperty = cast(DefaultProperty AS INTEGER) AND cast(DefaultProperty AS INTEGER) BETWEEN -2147483648 AND 2147483647)
);

-- One row for each property. State to RentalBasis are indexes of their lists; the five flags are 0 unset, 1 Yes, 2 No.
-- SqFt is read as it stands, so it can never be null.
CREATE TABLE PropDetail (
    ID           INTEGER PRIMARY KEY AUTOINCREMENT,
    ContactID    LONG CONSTRAINT "ContactID" CHECK (ContactID = cast(ContactID AS INTEGER) AND cast(ContactID AS INTEGER) BETWEEN -2147483648 AND 2147483647),
    MLS          TEXT COLLATE NOCASE,
    Subdivision  TEXT COLLATE NOCASE,
    Addr1        TEXT COLLATE NOCASE,
    Addr2        TEXT COLLATE NOCASE,
    City         TEXT COLLATE NOCASE,
    Zip          TEXT COLLATE NOCASE,
    Zip4         TEXT COLLATE NOCASE,
    State        REAL4 CONSTRAINT "State" CHECK (State = State + 0.0 AND abs(State + 0.0) < 3.403e38),
    PropType     REAL4 CONSTRAINT "PropType" CHECK (PropType = PropType + 0.0 AND abs(PropType + 0.0) < 3.403e38),
    Construction REAL4 CONSTRAINT "Construction" CHECK (Construction = Construction + 0.0 AND abs(Construction + 0.0) < 3.403e38),
    Roof         REAL4 CONSTRAINT "Roof" CHECK (Roof = Roof + 0.0 AND abs(Roof + 0.0) < 3.403e38),
    Parking      REAL4 CONSTRAINT "Parking" CHECK (Parking = Parking + 0.0 AND abs(Parking + 0.0) < 3.403e38),
    Floor        REAL4 CONSTRAINT "Floor" CHECK (Floor = Floor + 0.0 AND abs(Floor + 0.0) < 3.403e38),
    Pool         REAL4 CONSTRAINT "Pool" CHECK (Pool = Pool + 0.0 AND abs(Pool + 0.0) < 3.403e38),
    RentalBasis  REAL4 CONSTRAINT "RentalBasis" CHECK (RentalBasis = RentalBasis + 0.0 AND abs(RentalBasis + 0.0) < 3.403e38),
    SqFt         INTEGER16 NOT NULL DEFAULT 0 CONSTRAINT "SqFt" CHECK (SqFt = cast(SqFt AS INTEGER) AND cast(SqFt AS INTEGER) BETWEEN -32768 AND 32767),
    Rooms        REAL4 DEFAULT 0 CONSTRAINT "Rooms" CHECK (Rooms = Rooms + 0.0 AND abs(Rooms + 0.0) < 3.403e38),
    Baths        REAL4 DEFAULT 0 CONSTRAINT "Baths" CHECK (Baths = Baths + 0.0 AND abs(Baths + 0.0) < 3.403e38),
    MaintFee     CURRENCY CONSTRAINT "MaintFee" CHECK (MaintFee = MaintFee + 0.0 AND abs(MaintFee + 0.0) < 922337203685477.6),
    AssocFee     CURRENCY CONSTRAINT "AssocFee" CHECK (AssocFee = AssocFee + 0.0 AND abs(AssocFee + 0.0) < 922337203685477.6),
    RentalAmount CURRENCY CONSTRAINT "RentalAmount" CHECK (RentalAmount = RentalAmount + 0.0 AND abs(RentalAmount + 0.0) < 922337203685477.6),
    AskingPrice  CURRENCY CONSTRAINT "AskingPrice" CHECK (AskingPrice = AskingPrice + 0.0 AND abs(AskingPrice + 0.0) < 922337203685477.6),
    SoldPrice    CURRENCY CONSTRAINT "SoldPrice" CHECK (SoldPrice = SoldPrice + 0.0 AND abs(SoldPrice + 0.0) < 922337203685477.6),
    Waterfront   INTEGER16 CONSTRAINT "Waterfront" CHECK (Waterfront = cast(Waterfront AS INTEGER) AND cast(Waterfront AS INTEGER) BETWEEN -32768 AND 32767),
    Floodzone    INTEGER16 CONSTRAINT "Floodzone" CHECK (Floodzone = cast(Floodzone AS INTEGER) AND cast(Floodzone AS INTEGER) BETWEEN -32768 AND 32767),
    Rented       INTEGER16 CONSTRAINT "Rented" CHECK (Rented = cast(Rented AS INTEGER) AND cast(Rented AS INTEGER) BETWEEN -32768 AND 32767),
    Elevator     INTEGER16 CONSTRAINT "Elevator" CHECK (Elevator = cast(Elevator AS INTEGER) AND cast(Elevator AS INTEGER) BETWEEN -32768 AND 32767),
    PetsAllowed  INTEGER16 CONSTRAINT "PetsAllowed" CHECK (PetsAllowed = cast(PetsAllowed AS INTEGER) AND cast(PetsAllowed AS INTEGER) BETWEEN -32768 AND 32767),
    LeaseExpires DATETEXT COLLATE NOCASE,
    ListingDate  DATETEXT COLLATE NOCASE,
    ExpDate      DATETEXT COLLATE NOCASE,
    SoldDate     DATETEXT COLLATE NOCASE,
    ClosingDate  DATETEXT COLLATE NOCASE,
    Picture      TEXT COLLATE NOCASE,
    Video        TEXT COLLATE NOCASE,
    Notes        MEMOTEXT COLLATE NOCASE
);

-- A dated note on a contact.
CREATE TABLE Alerts (
    ID        INTEGER PRIMARY KEY AUTOINCREMENT,
    ContactID LONG CONSTRAINT "ContactID" CHECK (ContactID = cast(ContactID AS INTEGER) AND cast(ContactID AS INTEGER) BETWEEN -2147483648 AND 2147483647),
    AlertDate DATETEXT COLLATE NOCASE,
    AlertNote MEMOTEXT COLLATE NOCASE
);

-- The library of letters for the mail merge.
CREATE TABLE FormLetters (
    ID       INTEGER PRIMARY KEY AUTOINCREMENT,
    FormName TEXT COLLATE NOCASE,
    FormText MEMOTEXT COLLATE NOCASE
);

-- One row, which the program inserts at its first start. LabelProduct is a LabelProducts.ID, 0 for none.
CREATE TABLE Settings (
    LabelProduct       INTEGER16 CONSTRAINT "LabelProduct" CHECK (LabelProduct = cast(LabelProduct AS INTEGER) AND cast(LabelProduct AS INTEGER) BETWEEN -32768 AND 32767),
    LabelNumber        TEXT COLLATE NOCASE,
    DefaultPicture     TEXT COLLATE NOCASE,
    DefaultPropPicture TEXT COLLATE NOCASE,
    ClientName         TEXT COLLATE NOCASE,
    Clock              LONG CONSTRAINT "Clock" CHECK (Clock = cast(Clock AS INTEGER) AND cast(Clock AS INTEGER) BETWEEN -2147483648 AND 2147483647)
);

-- The makers of labels and, below, the numbers of their sheets: filled when the file is made, read only.
CREATE TABLE LabelProducts (
    ID        INTEGER PRIMARY KEY AUTOINCREMENT,
    BrandName TEXT COLLATE NOCASE
);

CREATE TABLE LabelNumbers (
    LabelProductID LONG CONSTRAINT "LabelProductID" CHECK (LabelProductID = cast(LabelProductID AS INTEGER) AND cast(LabelProductID AS INTEGER) BETWEEN -2147483648 AND 2147483647),
    LabelNumber    TEXT COLLATE NOCASE
);

-- One index for each look-up that is made once per record.
CREATE INDEX CategoriesByDescription ON Categories (Description);
CREATE INDEX SubCategoriesByParent ON SubCategories (ParentID);
CREATE INDEX ContactsByName ON Contacts (SubCategoryID, LastName, FirstName);
CREATE INDEX PropDetailByContact ON PropDetail (ContactID);
CREATE INDEX AlertsByContact ON Alerts (ContactID);
CREATE UNIQUE INDEX SettingsHasOneRow ON Settings ((1));
