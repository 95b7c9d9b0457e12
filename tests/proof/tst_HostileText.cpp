#include "HostileGround.h"
#include "Injections.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "model/Settings.h"
#include "support/FreshDatabase.h"

#include <QRandomGenerator>
#include <QTest>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct TextField
{
    const char* Name;
    QString Contact::*Member;
    bool ProtectedInInsert;
    bool ProtectedInUpdate;
};

constexpr TextField textFields[]{
    {"FirstName", &Contact::FirstName, true, true},
    {"LastName", &Contact::LastName, true, true},
    {"Salutation", &Contact::Salutation, true, true},
    {"MailAddr1", &Contact::MailAddr1, true, true},
    {"MailAddr2", &Contact::MailAddr2, true, true},
    {"MailCity", &Contact::MailCity, true, true},
    {"Company", &Contact::Company, true, true},
    {"ReferredBy", &Contact::ReferredBy, true, true},
    {"Notes", &Contact::Notes, true, true},
    {"Spouse", &Contact::Spouse, true, true},
    {"Email", &Contact::Email, false, true},
    {"MI", &Contact::MI, false, false},
    {"MailZip", &Contact::MailZip, false, false},
    {"MailZip4", &Contact::MailZip4, false, false},
    {"WorkPhone", &Contact::WorkPhone, false, false},
    {"Ext", &Contact::Ext, false, false},
    {"HomePhone", &Contact::HomePhone, false, false},
    {"Cell", &Contact::Cell, false, false},
    {"Fax", &Contact::Fax, false, false},
};

std::shared_ptr<Contact> NewContact()
{
    auto contact = std::make_shared<Contact>();
    contact->CategoryID = 1;
    contact->subCategoryID = 1;
    contact->FirstName = u"Ann"_s;
    contact->LastName = u"Lee"_s;
    return contact;
}

/// One way by which a text goes into the file.
struct Way
{
    bool Protected;
    bool AddsARow;
    /// The row is written although the read-back behind it is refused.
    bool StaysWhenRefused;
    std::function<void(const QString&)> Write;
    QLatin1StringView Table;
    QLatin1StringView Column;
};

/// The text in the row that a line of the whole file shows.
QString Stored(const Way& way, const QString& line)
{
    const QString id = way.Table == "Settings"_L1 ? QString() : u" Where ID="_s + line.section(u'|', 0, 0);
    return FreshDatabase::Rows(u"Select "_s + way.Column + u" from "_s + way.Table + id).value(0);
}

Way InsertOf(const TextField& field)
{
    return {field.ProtectedInInsert,
            true,
            field.Member == &Contact::MailAddr1,
            [&field](const QString& text) {
                const auto contact = NewContact();
                contact.get()->*field.Member = text;
                (void)contact->AddToDB(1);
            },
            "Contacts"_L1,
            QLatin1StringView(field.Name)};
}

Way UpdateOf(const TextField& field)
{
    return {field.ProtectedInUpdate,
            false,
            false,
            [&field](const QString& text) {
                const auto contact = NewContact();
                contact.get()->*field.Member = text;
                contact->UpdateDB(2);
            },
            "Contacts"_L1,
            QLatin1StringView(field.Name)};
}

std::shared_ptr<Category> NewCategory(const QString& name, Long parent)
{
    auto category = std::make_shared<Category>();
    category->Description = name;
    category->ParentID = parent;
    return category;
}

QMap<QString, Way> OtherWays()
{
    return {
        {u"a new category"_s,
         {true, true, false, [](const QString& text) { (void)NewCategory(text, 0)->CreateACategory(true); },
          "Categories"_L1, "Description"_L1}},
        {u"a category renamed"_s,
         {true, false, false, [](const QString& text) { CategoryAt(2)->UpdateCategory(text); }, "Categories"_L1,
          "Description"_L1}},
        {u"a new subcategory"_s,
         {false, true, false, [](const QString& text) { CreateASubCategory(NewCategory(text, 1), true); },
          "SubCategories"_L1, "Description"_L1}},
        {u"a subcategory renamed"_s,
         {true, false, false, [](const QString& text) { CategoryAt(1)->Sub(2)->UpdateSubCategory(text, 1); },
          "SubCategories"_L1, "Description"_L1}},
        {u"the title"_s, {true, false, false, SetClientName, "Settings"_L1, "ClientName"_L1}},
        {u"a label"_s,
         {false, false, false,
          [](const QString& text) {
              gSettings.LabelNumber = text;
              UpdateSettings();
          },
          "Settings"_L1, "LabelNumber"_L1}},
        {u"the notes of a property"_s,
         {false, false, false,
          [](const QString& text) {
              PropDetail property;
              property.RecID = 2;
              property.Notes = text;
              property.UpdateDBNotes();
          },
          "PropDetail"_L1, "Notes"_L1}},
    };
}

} // namespace

/// Whatever is typed, at most the one row that was meant is touched, and the program lives on.
class tst_HostileText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void TextGoesInAsItIsOrIsRefused_data();
    void TextGoesInAsItIsOrIsRefused();
    void FragmentsOfTheLanguageTouchNoOtherRow_data();
    void FragmentsOfTheLanguageTouchNoOtherRow();

private:
    void LoadAnew();
    void TryText(const Way& way, const Injection& injection);
    void LivesOn();

    std::unique_ptr<FreshDatabase> m_fresh;
    std::unique_ptr<Listener> m_listener;
    int m_saves = 0;
};

void tst_HostileText::init()
{
    m_fresh = std::make_unique<FreshDatabase>();
    m_listener = std::make_unique<Listener>();
    LoadSettings();
    AddNeighbours();
    LoadAnew();
}

void tst_HostileText::cleanup()
{
    m_listener.reset();
    m_fresh.reset();
}

void tst_HostileText::LoadAnew()
{
    ResetGlobals();
    LoadSettings();
    LoadCategories();
    LoadContacts([](int) {});
    curCategoryID = 1;
    curContact = ContactAt(2);
    QCOMPARE(m_listener->Take(), QStringList());
}

/// The next save, of a text that harms nobody, goes well.
void tst_HostileText::LivesOn()
{
    const auto contact = NewContact();
    contact->Notes = u"save "_s + QString::number(++m_saves);
    contact->UpdateDB(3);
    QCOMPARE(m_listener->Take(), QStringList());
    QCOMPARE(FreshDatabase::Rows(u"Select Notes from Contacts Where ID=3"_s), QStringList{contact->Notes});
}

void tst_HostileText::TryText(const Way& way, const Injection& injection)
{
    const QStringList before = FreshDatabase::WholeFile();
    way.Write(injection.Text);
    const QStringList reports = m_listener->Take();
    const Difference difference(before, FreshDatabase::WholeFile());
    const bool written = reports.isEmpty() || way.StaysWhenRefused;

    QCOMPARE(difference.Gone.size(), written && !way.AddsARow ? 1 : 0);
    QCOMPARE(difference.New.size(), written ? 1 : 0);
    if (way.Protected && !way.StaysWhenRefused)
        QCOMPARE(reports, QStringList());
    // Unprotected, a pair of apostrophes side by side is one; any other has to be refused, never worked out.
    QString inside = injection.Text;
    if (!way.Protected)
        inside.remove(u"''"_s);
    if (way.Protected || !inside.contains(u'\''))
        QCOMPARE(Stored(way, difference.New.value(0)),
                 way.Protected ? injection.Text : QString(injection.Text).replace(u"''"_s, u"'"_s));
    else
        QVERIFY2(!reports.isEmpty(), "an apostrophe has to be refused");
    LivesOn();
}

void tst_HostileText::TextGoesInAsItIsOrIsRefused_data()
{
    QTest::addColumn<Way>("way");
    for (const TextField& field : textFields) {
        QTest::addRow("%s of a new contact", field.Name) << InsertOf(field);
        QTest::addRow("%s of a contact", field.Name) << UpdateOf(field);
    }
    const QMap<QString, Way> others = OtherWays();
    for (auto way = others.begin(); way != others.end(); ++way)
        QTest::newRow(qPrintable(way.key())) << way.value();
}

void tst_HostileText::TextGoesInAsItIsOrIsRefused()
{
    QFETCH(Way, way);
    for (const Injection& injection : Injections()) {
        TryText(way, injection);
        if (QTest::currentTestFailed()) {
            qWarning("It was %s", injection.Name);
            return;
        }
    }
    LoadAnew();
}

void tst_HostileText::FragmentsOfTheLanguageTouchNoOtherRow_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// All fields at once: an open literal in one may be closed in another, so that what lies between is language.
void tst_HostileText::FragmentsOfTheLanguageTouchNoOtherRow()
{
    QFETCH(quint32, seed);
    static const QStringList fragments{u"'"_s,
                                       u"'"_s,
                                       u"','"_s,
                                       u"',"_s,
                                       u",'"_s,
                                       u" or "_s,
                                       u"'a'='a'"_s,
                                       u"("_s,
                                       u")"_s,
                                       u" Where "_s,
                                       u"1=1"_s,
                                       u" Values ("_s,
                                       u"),("_s,
                                       u"5"_s,
                                       u",MI="_s,
                                       u" union "_s,
                                       u" in ("_s,
                                       u"\""_s,
                                       u"["_s,
                                       u"]"_s,
                                       u"Select Notes "_s,
                                       u" from Contacts"_s,
                                       u"--"_s,
                                       u";"_s};
    QRandomGenerator random(seed);
    const auto text = [&random] {
        QString made;
        for (int i = random.bounded(4); i > 0; --i)
            made += fragments[random.bounded(fragments.size())];
        return made;
    };
    int accepted = 0;
    for (int round = 0; round < 150; ++round) {
        const auto contact = NewContact();
        // Few fields at a time, else hardly any statement is one.
        for (const TextField& field : textFields) {
            if (random.bounded(6) == 0)
                contact.get()->*field.Member = text();
        }
        const bool adds = round % 2 == 0;
        const QStringList before = FreshDatabase::WholeFile();
        if (adds)
            (void)contact->AddToDB(1);
        else
            contact->UpdateDB(2);
        const Difference difference(before, FreshDatabase::WholeFile());
        accepted += m_listener->Take().isEmpty() ? 1 : 0;
        QVERIFY(difference.New.size() <= 1);
        QVERIFY(difference.Gone.size() <= (adds ? 0 : 1));
        LivesOn();
    }
    QVERIFY2(accepted > 10 && accepted < 140, "the fragments are worth nothing when all or none pass");
}

QTEST_APPLESS_MAIN(tst_HostileText)
#include "tst_HostileText.moc"
