#include "Agency.h"

#include "Dice.h"
#include "Store.h"
#include "Tree.h"
#include "Words.h"

#include <QSet>
#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// Places in the program's lists that the sample sets on purpose; the others are chosen freely.
constexpr int Condominium = 0;
constexpr int Monthly = 1;
constexpr int PropertyTypes = 5;
constexpr int Constructions = 9;
constexpr int Roofs = 7;
constexpr int Parkings = 6;
constexpr int Floors = 9;

// A flag's codes.
constexpr int Yes = 1;
constexpr int No = 2;

QString DateText(const QDate& date)
{
    return date.toString(u"MM/dd/yyyy"_s);
}

/// A subcategory of the tree with the keys that the store gave it.
struct Branch
{
    const SampleCategory* category;
    qint64 categoryID;
    qint64 subCategoryID;
    QSet<QString> names; ///< Names already given: no two people of a subcategory bear the same.
};

struct Person
{
    QString first, middle, last;
    bool woman;
    const Words::Town* town;
    QString street;
};

/// Invents one agency row by row; every choice comes from the same dice. No expression throws them twice where the
/// order of its parts is left to the compiler, so that a seed means the same agency everywhere.
class Agency
{
public:
    Agency(const Store& store, const SamplePlan& plan)
        : m_plan(plan)
        , m_dice(plan.seed)
        , m_addCategory(store, "INSERT INTO Categories (Description) VALUES (?)")
        , m_addSubCategory(store, "INSERT INTO SubCategories (Description, ParentID) VALUES (?, ?)")
        , m_addContact(
              store,
              "INSERT INTO Contacts (CategoryID, SubCategoryID, FirstName, LastName, MI, FormattedName, Salutation, "
              "Spouse, Company, Email, ReferredBy, MailAddr1, MailAddr2, MailCity, MailState, MailZip, MailZip4, "
              "WorkPhone, Ext, HomePhone, Cell, Fax, Notes) "
              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
        , m_setDefault(store, "UPDATE Contacts SET DefaultProperty = ? WHERE ID = ?")
        , m_addProperty(
              store,
              "INSERT INTO PropDetail (ContactID, MLS, Subdivision, Addr1, Addr2, City, Zip, Zip4, State, PropType, "
              "Construction, Roof, Parking, Floor, Pool, RentalBasis, SqFt, Rooms, Baths, MaintFee, AssocFee, "
              "RentalAmount, AskingPrice, SoldPrice, Waterfront, Floodzone, Rented, Elevator, PetsAllowed, "
              "LeaseExpires, ListingDate, ExpDate, SoldDate, ClosingDate, Notes) "
              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
              "?, ?, ?)")
        , m_addAlert(store, "INSERT INTO Alerts (ContactID, AlertDate, AlertNote) VALUES (?, ?, ?)")
        , m_addLetter(store, "INSERT INTO FormLetters (FormName, FormText) VALUES (?, ?)")
    {}

    void Fill()
    {
        AddTree();
        for (int i = 0; i < m_plan.contacts; ++i)
            AddContact();
        for (const Words::Letter& letter : Words::Letters())
            m_addLetter.Run({letter.name, letter.text});
    }

private:
    void AddTree();
    Branch& PickBranch();
    Person PickPerson(Branch& branch);
    void AddContact();
    qint64 AddProperty(qint64 contactID, const Branch& branch, const Person& owner, bool livesThere);
    void AddAlerts(qint64 contactID, const Branch& branch, const QString& firstName);

    QString Street();
    QString PhoneOf(const Words::Town& town, int percent);
    QString Maybe(int percent, const QString& text) { return m_dice.Chance(percent) ? text : QString(); }
    QString EmailOf(const Person& person);
    QString NoteFor(const Branch& branch, int percent);
    QDate Near(int earliest, int latest) { return m_plan.today.addDays(m_dice.Between(earliest, latest)); }

    SamplePlan m_plan;
    Dice m_dice;
    std::vector<Branch> m_branches;
    std::vector<int> m_branchWeights;
    Store::Statement m_addCategory, m_addSubCategory, m_addContact, m_setDefault, m_addProperty, m_addAlert,
        m_addLetter;
};

void Agency::AddTree()
{
    for (const SampleCategory& category : SampleTree()) {
        const qint64 categoryID = m_addCategory.Run({category.name});
        for (const QString& name : category.subCategories) {
            m_branches.push_back({&category, categoryID, m_addSubCategory.Run({name, categoryID}), {}});
            m_branchWeights.push_back(int(category.share * m_dice.Between(60, 140) / category.subCategories.size()));
        }
    }
}

Branch& Agency::PickBranch()
{
    return m_branches[std::size_t(m_dice.Weighted(m_branchWeights))];
}

Person Agency::PickPerson(Branch& branch)
{
    for (;;) {
        Person person;
        person.woman = m_dice.Chance(52);
        person.first = m_dice.Pick(person.woman ? Words::WomensNames() : Words::MensNames());
        person.last = m_dice.Pick(Words::LastNames());
        person.middle = Maybe(45, QString(QChar(u'A' + m_dice.Between(0, 25))));
        const QString key = person.first + u'|' + person.middle + u'|' + person.last;
        if (branch.names.contains(key))
            continue;
        branch.names.insert(key);
        person.town = &Words::Towns()[std::size_t(m_dice.Between(0, int(Words::Towns().size()) - 1))];
        person.street = Street();
        return person;
    }
}

QString Agency::Street()
{
    const int number = m_dice.Chance(70) ? m_dice.Between(1, 899) : m_dice.Between(900, 4999);
    const QString& name = m_dice.Pick(Words::StreetNames());
    const QString& kind = m_dice.Pick(Words::StreetKinds());
    return QString::number(number) + u' ' + name + u' ' + kind;
}

/// A number out of the hundred that belong to nobody.
QString Agency::PhoneOf(const Words::Town& town, int percent)
{
    if (!m_dice.Chance(percent))
        return {};
    return u"(%1) 555-01%2"_s.arg(m_dice.Pick(town.areaCodes)).arg(m_dice.Between(0, 99), 2, 10, QChar(u'0'));
}

QString Agency::EmailOf(const Person& person)
{
    static const QStringList hosts{u"example.com"_s, u"example.com"_s, u"example.org"_s, u"example.net"_s};
    QString last = person.last.toLower();
    last.remove(u'\'');
    const QString first = person.first.toLower();
    const int number = m_dice.Between(1, 99);
    const QString name = m_dice.Chance(60) ? first + u'.' + last : first.left(1) + last + QString::number(number);
    return name + u'@' + m_dice.Pick(hosts);
}

QString Agency::NoteFor(const Branch& branch, int percent)
{
    if (!m_dice.Chance(percent))
        return {};
    QString note = m_dice.Pick(branch.category->notes);
    const Words::Town& town = Words::Towns()[std::size_t(m_dice.Between(0, int(Words::Towns().size()) - 1))];
    note.replace(u"%1"_s, town.name).replace(u"%2"_s, QString::number(m_dice.Between(18, 90) * 10));
    return note;
}

void Agency::AddContact()
{
    Branch& branch = PickBranch();
    const Person person = PickPerson(branch);
    const Words::Town& town = *person.town;
    const QString formatted = person.middle.isEmpty() ? person.first + u' ' + person.last
                                                      : person.first + u' ' + person.middle + u' ' + person.last;
    const QString salutation = m_dice.Chance(40) ? person.first : (person.woman ? u"Ms. "_s : u"Mr. "_s) + person.last;
    const QString spouse = Maybe(branch.category->business ? 5 : 38,
                                 m_dice.Pick(person.woman ? Words::MensNames() : Words::WomensNames()));
    const QString company =
        Maybe(branch.category->business ? 85 : 18, person.last + u' ' + m_dice.Pick(Words::CompanyKinds()));
    const QString& referrersName = m_dice.Pick(Words::WomensNames());
    const QString referrer = referrersName + u' ' + m_dice.Pick(Words::LastNames());
    const QString second = Maybe(14, u"Apt. "_s + QString::number(m_dice.Between(1, 48)));
    const QString zip4 = Maybe(35, QString::number(m_dice.Between(1000, 9899)));
    const QString work = PhoneOf(town, company.isEmpty() ? 40 : 95);
    const QString extension = work.isEmpty() ? QString() : Maybe(40, QString::number(m_dice.Between(100, 899)));

    const qint64 id = m_addContact.Run({branch.categoryID,
                                        branch.subCategoryID,
                                        person.first,
                                        person.last,
                                        person.middle,
                                        formatted,
                                        salutation,
                                        spouse,
                                        company,
                                        Maybe(80, EmailOf(person)),
                                        Maybe(28, referrer),
                                        person.street,
                                        second,
                                        town.name,
                                        qint64(town.state),
                                        town.zip,
                                        zip4,
                                        work,
                                        extension,
                                        PhoneOf(town, 75),
                                        PhoneOf(town, 85),
                                        PhoneOf(town, 12),
                                        NoteFor(branch, 55)});

    const int properties = m_dice.Weighted(branch.category->properties);
    qint64 first = 0;
    for (int i = 0; i < properties; ++i) {
        const qint64 property = AddProperty(id, branch, person, i == 0 && !branch.category->lets);
        first = first == 0 ? property : first;
    }
    if (first != 0 && m_dice.Chance(90))
        m_setDefault.Run({first, id});
    AddAlerts(id, branch, person.first);
}

qint64 Agency::AddProperty(qint64 contactID, const Branch& branch, const Person& owner, bool livesThere)
{
    const Words::Town& town =
        livesThere ? *owner.town : Words::Towns()[std::size_t(m_dice.Between(0, int(Words::Towns().size()) - 1))];
    const int type = m_dice.Weighted(std::vector{18, 14, 4, 46, 18});
    static_assert(PropertyTypes == 5, "one weight for each type");
    const bool condominium = type == Condominium;
    const int area = condominium ? m_dice.Between(55, 180) * 10 : m_dice.Between(90, 520) * 10;
    const double rooms = std::clamp(std::round(area / 280.0) + m_dice.Between(0, 2), 2.0, 14.0);
    const double baths = std::clamp(std::floor(area / 600.0 + m_dice.Between(0, 2)) / 2 + 1, 1.0, 5.5);
    const qint64 price = qint64(area) * m_dice.Between(120, 260) / 1000 * 1000;
    const bool let = m_dice.Chance(branch.category->lets ? 70 : 6);
    const bool sold = !let && m_dice.Chance(25);
    const bool listed = sold || (!let && m_dice.Chance(80));
    const QDate listing = sold ? Near(-700, -120) : Near(-150, -1);
    const QDate agreed = listing.addDays(m_dice.Between(12, 80));
    const qint64 soldPrice = price * m_dice.Between(92, 104) / 100 / 500 * 500;
    const auto flag = [this](int percent) { return qint64(m_dice.Chance(percent) ? Yes : No); };
    const int door = m_dice.Between(1, 24);
    const QChar wing(u'A' + m_dice.Between(0, 5));
    const QString unit = condominium ? u"Unit "_s + QString::number(door) + wing : QString();

    return m_addProperty.Run({contactID,
                              listed ? QString::number(m_dice.Between(5000000, 7999999)) : QString(),
                              Maybe(55, m_dice.Pick(Words::Subdivisions())),
                              livesThere ? owner.street : Street(),
                              unit,
                              town.name,
                              town.zip,
                              Maybe(25, QString::number(m_dice.Between(1000, 9899))),
                              qint64(town.state),
                              qint64(type),
                              qint64(m_dice.Between(0, Constructions - 1)),
                              qint64(m_dice.Between(0, Roofs - 1)),
                              qint64(m_dice.Between(0, Parkings - 1)),
                              qint64(m_dice.Between(0, Floors - 1)),
                              qint64(m_dice.Between(0, 1)),
                              qint64(let ? Monthly : 0),
                              qint64(area),
                              rooms,
                              baths,
                              qint64(condominium ? m_dice.Between(12, 48) * 10 : 0),
                              qint64(m_dice.Chance(30) ? m_dice.Between(4, 30) * 10 : 0),
                              qint64(let ? area * m_dice.Between(12, 20) / 10 / 25 * 25 : 0),
                              listed ? price : qint64(0),
                              sold ? soldPrice : qint64(0),
                              flag(6),
                              flag(9),
                              let ? qint64(Yes) : qint64(No),
                              flag(condominium ? 60 : 2),
                              flag(55),
                              let ? DateText(Near(-20, 360)) : QString(),
                              listed ? DateText(listing) : QString(),
                              listed ? DateText(listing.addDays(180)) : QString(),
                              sold ? DateText(agreed) : QString(),
                              sold ? DateText(agreed.addDays(m_dice.Between(30, 60))) : QString(),
                              Maybe(20, u"Shown by appointment. Key in the lockbox at the side door."_s)});
}

/// About one alert for every two people: few for today, some past, most to come. No two of a person on one day.
void Agency::AddAlerts(qint64 contactID, const Branch& branch, const QString& firstName)
{
    const int count = m_dice.Weighted(std::vector{58, 35, 6, 1});
    QSet<QDate> taken;
    for (int i = 0; i < count; ++i) {
        const int when = m_dice.Weighted(std::vector{1, 14, 85});
        const QDate date = when == 0 ? m_plan.today : when == 1 ? Near(-45, -1) : Near(1, 150);
        if (taken.contains(date))
            continue;
        taken.insert(date);
        QString note = m_dice.Pick(branch.category->alerts);
        m_addAlert.Run({contactID, date.toString(u"M/d/yyyy"_s), note.replace(u"%1"_s, firstName)});
    }
}

} // namespace

void FillAgency(const Store& store, const SamplePlan& plan)
{
    if (Store::Statement(store, "SELECT (SELECT count(*) FROM Categories) + (SELECT count(*) FROM Contacts)")
            .Number({}) != 0)
        throw std::runtime_error("the database is in use already and is left alone");
    store.Execute("BEGIN");
    Agency(store, plan).Fill();
    store.Execute("COMMIT");
}
