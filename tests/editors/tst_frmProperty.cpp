#include "core/Clock.h"
#include "core/RunTimeError.h"
#include "editors/PropertyDesk.h"
#include "editors/PropertyRows.h"
#include "editors/RecordingFaces.h"
#include "support/Columns.h"

#include <QCalendarWidget>
#include <QClipboard>
#include <QGuiApplication>
#include <QToolButton>

using namespace Qt::StringLiterals;
using enum PropertyField;

Q_DECLARE_METATYPE(PropertyField)

namespace {

constexpr auto NotSaved = "Property not Saved"_L1;

struct StillClock
{
    StillClock()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 5, 12), QTime(9, 41)); });
    }
    ~StillClock() { Clock::SetSource({}); }
};

} // namespace

class tst_frmProperty : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opening_tells_what_is_done()
    {
        PropertyDesk desk;
        {
            PropertyEditor editor(EditMode::NewProperty);
            QCOMPARE(editor.Form().windowTitle(), u"New Property for Ann Lee"_s);
            QCOMPARE(desk.User.LastStatus(), u"Adding a Property.."_s);
            QCOMPARE(editor.Sheet().Rows(), 33);
            QCOMPARE(editor.Focus(), u"txtMLS"_s);
        }
        PropertyEditor editor(EditMode::ModifyProperty);
        QCOMPARE(editor.Form().windowTitle(), u"Property Modification"_s);
        QCOMPARE(desk.User.LastStatus(), u"M100"_s);
        QCOMPARE(editor.Value(State), u"FL"_s);
        QCOMPARE(editor.Value(MaintFee), u"$1,250.50"_s);
        QCOMPARE(editor.Value(AskingPrice), u"$350,000"_s);
        QCOMPARE(editor.Value(SoldPrice), QString());
        QCOMPARE(editor.Value(Rented), u"No"_s);
        curPropertyID = 2;
        PropertyEditor other(EditMode::ModifyProperty);
        QCOMPARE(desk.User.LastStatus(), u"the property located at 2 Oak Lane"_s);
    }

    void Enter_walks_down_the_sheet_and_all_is_saved()
    {
        PropertyDesk desk;
        curContact = ContactAt(2);
        PropertyEditor editor(EditMode::NewProperty);
        const QStringList typed{u"m7"_s,       u"bay view"_s, u"first avenue"_s,
                                u"apt 2"_s,    u"miami"_s,    u"f"_s,
                                u"33101"_s,    u"1234"_s,     u"1500.5"_s,
                                u"6"_s,        u"2.5"_s,      u"s"_s,
                                u"b"_s,        u"v"_s,        u"t"_s,
                                u"2"_s,        u"i"_s,        u"1250.5"_s,
                                u"75"_s,       u"y"_s,        u"n"_s,
                                u"y"_s,        u"n"_s,        u"y"_s,
                                u"m"_s,        u"900"_s,      u"6/30/2027"_s,
                                u"1/5/2026"_s, u"7/5/2026"_s, u"350000"_s,
                                u"2/1/2026"_s, u"3/1/2026"_s, u"340000"_s};
        for (const QString& text : typed) {
            editor.Type(text);
            editor.Key(Qt::Key_Return);
        }
        QCOMPARE(editor.Focus(), u"txtSoldPrice"_s);
        QCOMPARE(editor.Value(SoldPrice), u"$340,000"_s);
        QCOMPARE(editor.Value(RentalAmount), u"900"_s);
        editor.Click(2);
        QVERIFY(editor.Form().IsUnloaded());
        QCOMPARE(desk.User.LastStatus(), u"Saved"_s);
        QCOMPARE(FreshDatabase::Rows(
                     u"Select ContactID,MLS,Subdivision,Addr1,Addr2,City,State,Zip,Zip4,SqFt,Rooms,Baths,PropType,"
                     "Construction,Floor,Roof,Parking,Pool,MaintFee,AssocFee,Waterfront,FloodZone,Elevator,"
                     "PetsAllowed,Rented,RentalBasis,RentalAmount,LeaseExpires,ListingDate,ExpDate,AskingPrice,"
                     "SoldDate,ClosingDate,SoldPrice from PropDetail Where ID=3"_s),
                 QStringList{u"2|m7|bay view|First avenue|Apt 2|Miami|10|33101|1234|1500|6|2.5|3|1|6|6|2|1|1250.5|75|1|"
                             "2|1|2|1|1|900|06/30/2027|01/05/2026|07/05/2026|350000|02/01/2026|03/01/2026|340000"_s});
        QCOMPARE(PropertyDesk::Property(3, 2).Addr1, u"First avenue"_s);
        QCOMPARE(curPropertyID, 3);
        // The first property becomes the default one without a question.
        QCOMPARE(FreshDatabase::Rows(u"Select DefaultProperty from Contacts Where ID=2"_s), QStringList{u"3"_s});
    }

    void keys_make_the_text_of_a_row_data()
    {
        AddColumns<PropertyField, QString, QString, QString, QString>({"field", "typed", "shown", "byEnter", "byTab"});
        const auto row = [](const char* what, PropertyField field, const QString& typed, const QString& shown,
                            const QString& byEnter, const QString& byTab) {
            QTest::newRow(what) << field << typed << shown << byEnter << byTab;
        };
        row("as typed by Enter alone", MLS, u"m7"_s, u"m7"_s, u"m7"_s, u"M7"_s);
        row("points in a count", Rooms, u"1.2.3"_s, u"1.2.3"_s, u"1.2.3"_s, u"1.2.3"_s);
        row("a fee with cents", MaintFee, u"1,250.5"_s, u"1250.5"_s, u"$1,250.50"_s, u"$1,250.50"_s);
        row("a rent", RentalAmount, u"900.5"_s, u"9005"_s, u"9005"_s, u"$9,005.00"_s);
        row("a price without cents", AskingPrice, u"$350,000"_s, u"350000"_s, u"$350,000"_s, u"$350,000"_s);
        row("twenty digits", AskingPrice, u"99999999999999999999"_s, u"99999999999999999999"_s,
            u"$99,999,999,999,999,999,999"_s, u"$99,999,999,999,999,999,999"_s);
        row("a date takes its zeros", ListingDate, u"1/5/2026"_s, u"01/05/2026"_s, u"01/05/2026"_s, u"01/05/2026"_s);
        row("the end of a lease stays as typed", LeaseExpires, u"1/5/26"_s, u"01/05/26"_s, u"01/05/26"_s,
            u"01/05/26"_s);
    }

    void keys_make_the_text_of_a_row()
    {
        QFETCH(const PropertyField, field);
        QFETCH(const QString, typed);
        const StillClock clock;
        const PropertyDesk desk;
        for (const bool byEnter : {true, false}) {
            PropertyEditor editor(EditMode::ModifyProperty);
            editor.Fill(field, typed);
            QTEST(editor.Sheet().ControlText(RowOf(field)), "shown");
            editor.Key(byEnter ? Qt::Key_Return : Qt::Key_Tab);
            if (byEnter)
                QTEST(editor.Value(field), "byEnter");
            else
                QTEST(editor.Value(field), "byTab");
        }
    }

    void a_date_without_a_year_is_one_by_Tab_alone()
    {
        const StillClock clock;
        PropertyDesk desk;
        PropertyEditor editor(EditMode::NewProperty);
        for (const auto& [field, title, byTab] : {std::tuple(ExpDate, u"Expiration Date"_s, u"01/05/2026"_s),
                                                  std::tuple(LeaseExpires, u"Lease Expiration Date"_s, u"01/05"_s)}) {
            editor.Fill(field, u"0105"_s);
            editor.Key(Qt::Key_Tab);
            QCOMPARE(editor.Value(field), byTab);
            // Enter lays the mask first, and what it makes is no date yet.
            editor.Fill(field, u"0105"_s);
            desk.User.Expect(u"Invalid "_s + title, u"Please check the "_s + title + u'.');
            editor.Key(Qt::Key_Return);
            QCOMPARE(editor.Sheet().CurRow(), RowOf(field));
            QCOMPARE(editor.Sheet().ControlText(RowOf(field)), u"01/05/"_s);
            editor.Type(u"2027"_s);
            editor.Key(Qt::Key_Return);
            QCOMPARE(editor.Value(field), u"01/05/2027"_s);
        }
    }

    void what_is_typed_over_a_date_replaces_it()
    {
        const PropertyDesk desk;
        PropertyEditor editor(EditMode::ModifyProperty);
        editor.Sheet().GoTo(RowOf(ListingDate));
        for (const QString& typed : {u"02062027"_s, u"2/6/2027"_s}) {
            for (const auto& [key, modifier] :
                 {std::pair(Qt::Key_A, Qt::ControlModifier), std::pair(Qt::Key_Home, Qt::ShiftModifier)}) {
                editor.Key(key, modifier);
                editor.Type(typed);
                QCOMPARE(editor.Sheet().ControlText(RowOf(ListingDate)), u"02/06/2027"_s);
            }
        }
        // A selection behind a month that has no slash yet.
        editor.Fill(ListingDate, u"12/05/2026"_s);
        for (int i = 0; i < 8; ++i)
            editor.Key(Qt::Key_Left, Qt::ShiftModifier);
        editor.Type(u"31"_s);
        QCOMPARE(editor.Sheet().ControlText(RowOf(ListingDate)), u"12/31"_s);
    }

    void a_paste_keeps_what_the_row_takes_data()
    {
        AddColumns<PropertyField, QString, QString, QString>({"field", "over", "pasted", "after"});
        const auto row = [](const char* what, PropertyField field, const QString& over, const QString& pasted,
                            const QString& after) { QTest::newRow(what) << field << over << pasted << after; };
        const QString date = u"01/05/2026"_s;
        row("digits only", Zip, QString(), u"zip: 33101\n"_s, u"33101"_s);
        row("a date without zeros over another", SoldDate, date, u"1/6/2026"_s, u"01/06/2026"_s);
        row("a date over half of one", SoldDate, u"12"_s, u"1/6/2026"_s, u"01/06/2026"_s);
        row("a price without its cents", AskingPrice, QString(), u"$350,000.00"_s, u"350000"_s);
        row("a fee with its cents", MaintFee, QString(), u"$1,250.50"_s, u"1250.50"_s);
    }

    void a_paste_keeps_what_the_row_takes()
    {
        QFETCH(const PropertyField, field);
        QFETCH(const QString, over);
        QFETCH(const QString, pasted);
        const PropertyDesk desk;
        PropertyEditor editor(EditMode::NewProperty);
        editor.Fill(field, over);
        editor.Key(Qt::Key_A, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(pasted);
        editor.Key(Qt::Key_V, Qt::ControlModifier);
        QTEST(editor.Sheet().ControlText(RowOf(field)), "after");
    }

    void a_bad_date_is_not_left()
    {
        PropertyDesk desk;
        const QStringList before = FreshDatabase::WholeFile();
        for (const auto& [field, name] :
             {std::pair(LeaseExpires, u"Lease Expiration Date"_s), std::pair(ListingDate, u"Listing Date"_s),
              std::pair(ExpDate, u"Expiration Date"_s), std::pair(SoldDate, u"Sold Date"_s),
              std::pair(ClosingDate, u"Closing Date"_s)}) {
            PropertyEditor editor(EditMode::ModifyProperty);
            const QString value = editor.Value(field);
            editor.Fill(field, u"2/30/2026"_s);
            const QString typed = editor.Sheet().ControlText(RowOf(field));
            const std::function<void()> ways[]{[&] { editor.Key(Qt::Key_Return); }, [&] { editor.Key(Qt::Key_Tab); },
                                               [&] { editor.Key(Qt::Key_Backtab); }, [&] { editor.Sheet().GoTo(1); },
                                               [&] { editor.Click(2); }};
            for (const auto& leave : ways) {
                desk.User.Expect(u"Invalid "_s + name, u"Please check the "_s + name + u'.');
                leave();
                desk.User.Done();
                QCOMPARE(editor.Sheet().CurRow(), RowOf(field));
                QCOMPARE(editor.Sheet().ControlText(RowOf(field)), typed);
                QCOMPARE(editor.Value(field), value);
            }
            editor.Key(Qt::Key_Escape);
            QVERIFY(editor.Form().IsUnloaded());
        }
        QCOMPARE(FreshDatabase::WholeFile(), before);
    }

    void some_rows_test_the_date_left_behind_once_more()
    {
        for (const auto& [entered, left, spokenOf] : {
                 std::tuple(LeaseExpires, ListingDate, u"Lease Expiration Date"_s),
                 std::tuple(ExpDate, ListingDate, u"Expiration Date"_s),
                 std::tuple(ClosingDate, SoldDate, u"Closing Date"_s),
                 std::tuple(SoldPrice, ClosingDate, u"Closing Date"_s),
                 std::tuple(PetsAllowed, ListingDate, u"Listing Date"_s),
                 std::tuple(AskingPrice, SoldDate, u"Sold Date"_s),
                 std::tuple(SoldPrice, ListingDate, QString()), // not these two
             }) {
            PropertyDesk desk;
            PropertyEditor editor(EditMode::NewProperty);
            editor.Fill(left, u"2/30/2026"_s);
            if (!spokenOf.isEmpty())
                desk.User.Expect(u"Invalid "_s + spokenOf, u"Please check the "_s + spokenOf + u'.');
            const SheetRow rule = PropertyRows().at(static_cast<size_t>(entered));
            QCOMPARE(rule.GotFocus(editor.Sheet(), RowOf(entered)), spokenOf.isEmpty());
        }
    }

    void the_editor_starts_where_the_list_was_clicked_data()
    {
        AddColumns<QString, QString, QString, bool>({"key", "focus", "text", "calendar"});
        const auto row = [](const QString& key, const QString& focus, const QString& text, bool calendar = false) {
            QTest::newRow(qUtf8Printable(key)) << key << focus << text << calendar;
        };
        row(u"Construction"_s, u"cboConstruction"_s, u"Brick"_s);
        row(u"Rented"_s, u"cboRented"_s, u"No"_s);
        // Some lists stand on no entry.
        row(u"Type"_s, u"cboPropertyType"_s, QString());
        row(u"RentalBasis"_s, u"cboRentalBasis"_s, QString());
        row(u"RentalAmount"_s, u"txtRentalAmount"_s, u"$900.00"_s);
        row(u"ListingDate"_s, u"txtListingDate"_s, u"01/05/2026"_s, true);
        row(u"LeaseExpires"_s, u"txtLeaseExpires"_s, u"06/30/2026"_s, false);
        row(u"Closed"_s, u"txtMLS"_s, u"M100"_s);
    }

    void the_editor_starts_where_the_list_was_clicked()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, focus);
        QFETCH(const bool, calendar);
        const PropertyDesk desk;
        OpenPropertyList list;
        const WhenFormOpens editor(u"frmProperty"_s, [&](Form& form) {
            QCOMPARE(form.focusWidget()->objectName(), focus);
            auto& sheet = *form.findChild<SheetEditor*>();
            QTEST(sheet.ControlText(sheet.CurRow()), "text");
            QCOMPARE(Control<QToolButton>(form, u"picCalendar"_s).isVisible(), calendar);
        });
        list.DoubleClick(1, key);
    }

    void with_another_column_in_the_list_it_starts_at_the_top()
    {
        const PropertyDesk desk;
        OpenPropertyList list;
        list.Click(1, u"Zip");
        gFocusField = u"City"_s;
        PropertyEditor editor(EditMode::ModifyProperty);
        QCOMPARE(editor.Focus(), u"txtMLS"_s);
    }

    void an_empty_list_row_takes_its_first_entry_when_passed_over()
    {
        const PropertyDesk desk;
        PropertyEditor editor(EditMode::NewProperty);
        editor.Sheet().GoTo(RowOf(PetsAllowed));
        editor.Sheet().GoTo(RowOf(State));
        editor.Sheet().GoTo(RowOf(MLS));
        QCOMPARE(editor.Value(PetsAllowed), u"Yes"_s);
        QCOMPARE(editor.Value(State), u"AL"_s);
    }

    void the_calendar_gives_a_date_row_its_day()
    {
        const StillClock clock;
        const PropertyDesk desk;
        PropertyEditor editor(EditMode::ModifyProperty);
        auto& button = Control<QToolButton>(editor.Form(), u"picCalendar"_s);
        QVERIFY(!button.isVisible());
        for (const auto& [field, day] :
             {std::pair(ListingDate, QDate(2026, 1, 5)), std::pair(SoldDate, QDate(2026, 5, 12))}) {
            editor.Sheet().GoTo(RowOf(field));
            QVERIFY(button.isVisible());
            const WhenFormOpens calendar(u"frmCalendar"_s, [day = day](Form& form) {
                auto& days = Control<QCalendarWidget>(form, u"Calendar1"_s);
                QCOMPARE(days.selectedDate(), day);
                days.setSelectedDate(QDate(2026, 2, 3));
                ClickOn(form, u"cmdButton_2"_s);
            });
            ClickOn(editor.Form(), u"picCalendar"_s);
            QCOMPARE(editor.Sheet().ControlText(RowOf(field)), u"02/03/2026"_s);
        }
        // What is no date begins on today.
        editor.Fill(ExpDate, u"2/30/2026"_s);
        {
            const WhenFormOpens calendar(u"frmCalendar"_s, [](Form& form) {
                QCOMPARE(Control<QCalendarWidget>(form, u"Calendar1"_s).selectedDate(), QDate(2026, 5, 12));
                ClickOn(form, u"cmdButton_2"_s);
            });
            ClickOn(editor.Form(), u"picCalendar"_s);
        }
        editor.Sheet().GoTo(RowOf(SoldDate));
        QCOMPARE(editor.Value(ExpDate), u"05/12/2026"_s);
        const WhenFormOpens cancelled(u"frmCalendar"_s, [](Form& form) { TypeKey(form, Qt::Key_Escape); });
        editor.Key(Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(cancelled.HasRun());
        editor.Key(Qt::Key_Return);
        QCOMPARE(editor.Value(SoldDate), u"02/03/2026"_s);
        editor.Sheet().GoTo(RowOf(AskingPrice));
        QVERIFY(!button.isVisible());
    }

    void what_cannot_be_saved_is_said_and_changes_nothing_data()
    {
        AddColumns<Long, PropertyField, QString, QString, QString>({"mode", "field", "typed", "title", "text"});
        const Long modify = EditMode::ModifyProperty;
        const QString number = u"SetPropValues Error #"_s;
        QTest::newRow("no address")
            << modify << Addr1 << u"  "_s << u"Property Save Cancelled"_s
            << u"I did not save this property because\r\nit does not have a property address."_s;
        QTest::newRow("an area beyond 16 bits")
            << modify << SqFt << u"40000"_s << number + u'6' << RunTimeError::StandardDescription(6);
        QTest::newRow("money with two points")
            << modify << MaintFee << u"1.2.3"_s << number + u"13"_s << RunTimeError::StandardDescription(13);
        QTest::newRow("another's address")
            << modify << Addr1 << u"2 Oak Lane"_s << QString(NotSaved)
            << u"I did not save this property because I found the same address already\r\nassigned to another of Ann "
               "Lee's properties."_s;
        QTest::newRow("a new one at a known address")
            << EditMode::NewProperty << Addr1 << u"2 Oak Lane"_s << QString(NotSaved)
            << u"I did not save this property because I found\r\nthe same address already assigned to another\r\n"
               "property belonging to Ann Lee"_s;
    }

    void what_cannot_be_saved_is_said_and_changes_nothing()
    {
        QFETCH(const Long, mode);
        QFETCH(const PropertyField, field);
        QFETCH(const QString, typed);
        QFETCH(const QString, title);
        QFETCH(const QString, text);
        PropertyDesk desk;
        OpenPropertyList list;
        PropertyEditor editor(mode);
        if (field == Addr1)
            editor.Fill(City, QString());
        const QStringList before = FreshDatabase::WholeFile();
        const QString row = list.Text(1, u"SoldPrice");
        editor.Fill(field, typed);
        desk.User.Expect(title, text);
        editor.Click(2);
        QVERIFY(!editor.Form().IsUnloaded());
        QCOMPARE(FreshDatabase::WholeFile(), before);
        QCOMPARE(PropertyDesk::Property(1).Addr1, u"1 Elm Street"_s);
        QCOMPARE(PropertyDesk::Property(1).City, u"Miami"_s);
        QCOMPARE(list.Text(1, u"SoldPrice"), row);
        QVERIFY(editor.Value(field).remove(u'$').remove(u',') == typed);
        if (title != "Property Save Cancelled"_L1)
            QCOMPARE(desk.User.LastStatus(), u"Error Saving"_s);
        QVERIFY(!desk.User.HourGlassIsOn());
    }

    void an_address_is_another_one_by_a_blank_or_its_owner()
    {
        const PropertyDesk desk;
        for (const auto& [contact, address] : {std::pair(1, u"1 Elm Street "_s), std::pair(2, u"1 Elm Street"_s)}) {
            curContact = ContactAt(contact);
            const qsizetype before = curContact->Properties.Count();
            PropertyEditor editor(EditMode::NewProperty);
            editor.Fill(Addr1, address);
            editor.Fill(City, u"Miami"_s);
            editor.Click(2);
            QVERIFY(editor.Form().IsUnloaded());
            QCOMPARE(curContact->Properties.Count(), before + 1);
        }
    }

    void an_older_row_that_the_read_back_finds_keeps_its_property()
    {
        // In another city, and in another case: another address here, and the same to the table.
        for (const auto& [address, city] :
             {std::pair(u"1 Elm Street"_s, u"Tampa"_s), std::pair(u"1 elm street"_s, u"Miami"_s)}) {
            PropertyDesk desk;
            OpenPropertyList list;
            const WhenFormOpens script(u"frmProperty"_s, [&, address = address, city = city](Form& form) {
                auto& sheet = *form.findChild<SheetEditor*>();
                sheet.GoTo(RowOf(Addr1));
                TypeText(form, address);
                sheet.GoTo(RowOf(City));
                TypeText(form, city);
                desk.User.Expect(u"frmProperty AddNewProperty Error #457"_s, RunTimeError::StandardDescription(457));
                TypeKey(form, Qt::Key_S, Qt::AltModifier);
                QTRY_VERIFY(form.IsUnloaded());
            });
            list.Choose("mnuNew");
            // The window is gone: another save would write another row.
            QCOMPARE(desk.User.LastStatus(), u"Error Saving"_s);
            QCOMPARE(list.Ids(), (std::vector<Long>{1, 2}));
            QCOMPARE(curPropertyID, 2);
            QCOMPARE(PropertyDesk::Addresses().size(), 3);
            QCOMPARE(PropertyDesk::Addresses().last(), u"3|1|"_s + address + u"||"_s + city);
            QCOMPARE(PropertyDesk::Property(1).City, u"Miami"_s);
            QCOMPARE(PropertyDesk::Property(1).Addr1, u"1 Elm Street"_s);
            QCOMPARE(curContact->Properties.Count(), 2);
        }
    }

    void a_change_writes_one_statement_and_keeps_notes_and_photo()
    {
        PropertyDesk desk;
        OpenPropertyList list;
        PropertyEditor editor(EditMode::ModifyProperty);
        editor.Fill(AskingPrice, u"360000"_s);
        editor.Fill(ClosingDate, u"01012099"_s);
        editor.Key(Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(editor.Form().IsUnloaded());
        const QStringList statements = desk.Database.TakeStatements();
        QCOMPARE(statements.size(), 1);
        QVERIFY(statements.first().startsWith(u"Update PropDetail set Addr1='1 Elm Street'"_s));
        QCOMPARE(PropertyDesk::Property(1).Notes, u"A fine house"_s);
        QCOMPARE(PropertyDesk::Property(1).Picture, u"/photos/elm.jpg"_s);
        QCOMPARE(list.Text(1, u"AskingPrice"), u"$360,000"_s);
        QCOMPARE(list.Text(1, u"MaintFee"), u"$1,250.50"_s);
        QCOMPARE(list.Text(1, u"Closed"), u"No"_s);
        QCOMPARE(list.Text(2, u"Closed"), u"Yes"_s);
    }

    void what_the_store_refuses_changes_nothing_data()
    {
        AddColumns<Long, Long, QString>({"contact", "mode", "title"});
        QTest::newRow("a new one") << 1 << EditMode::NewProperty << u"SaveToDB"_s;
        QTest::newRow("the first one") << 2 << EditMode::NewProperty << u"SaveToDB"_s;
        QTest::newRow("a change") << 1 << EditMode::ModifyProperty << u"UpdateDB"_s;
    }

    void what_the_store_refuses_changes_nothing()
    {
        QFETCH(const Long, contact);
        QFETCH(const Long, mode);
        QFETCH(const QString, title);
        PropertyDesk desk;
        std::optional<OpenPropertyList> list;
        if (contact == 1)
            list.emplace();
        curContact = ContactAt(contact);
        const QStringList before = FreshDatabase::WholeFile();
        const qsizetype count = curContact->Properties.Count();
        PropertyEditor editor(mode);
        editor.Fill(Addr1, u"4 king's road"_s);
        editor.Sheet().GoTo(RowOf(City));
        // A second save is refused like the first.
        for (int times = 0; times < 2; ++times) {
            desk.User.ExpectReport(u"Class PropDetail "_s + title + u" Error #-2147217900"_s);
            editor.Click(2);
            QCOMPARE(desk.User.LastStatus(), u"Error Saving"_s);
        }
        QVERIFY(!editor.Form().IsUnloaded());
        QCOMPARE(editor.Value(Addr1), u"4 king's road"_s);
        QCOMPARE(FreshDatabase::WholeFile(), before);
        QCOMPARE(curContact->Properties.Count(), count);
        QCOMPARE(curContact->DefaultProperty, contact == 1 ? 1 : 0);
        QCOMPARE(PropertyDesk::Property(1).Addr1, u"1 Elm Street"_s);
        if (list) {
            QCOMPARE(list->Ids(), (std::vector<Long>{1, 2}));
            QCOMPARE(list->Text(1, u"Address1"), u"1 Elm Street"_s);
        }
        editor.Fill(Addr1, u"4 kings road"_s);
        editor.Click(2);
        QVERIFY(editor.Form().IsUnloaded());
        QCOMPARE(desk.User.LastStatus(), u"Saved"_s);
    }

    void a_refused_New_takes_only_its_own_row_away_data()
    {
        QTest::addColumn<Long>("properties");
        QTest::addColumn<bool>("saves");
        for (const Long properties : {1, 2})
            for (const bool saves : {true, false})
                QTest::addRow("%d, then %s", properties, saves ? "saved" : "cancelled") << properties << saves;
    }

    void a_refused_New_takes_only_its_own_row_away()
    {
        QFETCH(const Long, properties);
        QFETCH(const bool, saves);
        PropertyDesk desk;
        if (properties == 1)
            curContact->Properties.Remove(2);
        OpenPropertyList list;
        std::vector<Long> ids = list.Ids();
        const WhenFormOpens script(u"frmProperty"_s, [&](Form& form) {
            auto& sheet = *form.findChild<SheetEditor*>();
            sheet.GoTo(RowOf(Addr1));
            TypeText(form, u"3 Fir Way"_s);
            sheet.GoTo(RowOf(SqFt));
            TypeText(form, u"40000"_s);
            for (int times = 0; times < 2; ++times) {
                desk.User.Expect(u"SetPropValues Error #6"_s, RunTimeError::StandardDescription(6));
                ClickOn(form, u"cmdButton_2"_s);
                desk.User.Done();
                QCOMPARE(list.Ids(), ids);
            }
            TypeKey(form, Qt::Key_Backspace);
            ClickOn(form, saves ? u"cmdButton_2"_s : u"cmdButton_1"_s);
            QTRY_VERIFY(form.IsUnloaded());
        });
        list.Choose("mnuNew");
        if (saves)
            ids.push_back(3);
        QCOMPARE(list.Ids(), ids);
        QCOMPARE(list.Text(1, u"Address1"), u"1 Elm Street"_s);
        QCOMPARE(list.Icon(1, u"Default"), u"default"_s);
        if (saves) {
            QCOMPARE(list.Text(static_cast<int>(ids.size()), u"Address1"), u"3 Fir Way"_s);
            QCOMPARE(list.Icon(static_cast<int>(ids.size()), u"Default"), QString());
        }
    }

    void a_list_row_begun_without_its_entry_loses_it_by_a_save()
    {
        for (const auto& [key, column, field, then] :
             {std::tuple(u"State"_s, u"State"_s, State, u"AL"_s),
              std::tuple(u"Type"_s, u"PropType"_s, PropType, u"Condominium"_s),
              std::tuple(u"FloodZone"_s, u"FloodZone"_s, FloodZone, QString())}) {
            const PropertyDesk desk;
            PropDetail& property = PropertyDesk::Property(1);
            property.PropType = 3;
            property.FloodZone = u"Yes"_s;
            property.UpdateDB();
            OpenPropertyList list;
            const WhenFormOpens script(u"frmProperty"_s, [](Form& form) {
                TypeKey(form, Qt::Key_S, Qt::AltModifier);
                QTRY_VERIFY(form.IsUnloaded());
            });
            list.DoubleClick(1, key);
            QCOMPARE(FreshDatabase::Rows(u"Select "_s + column + u" from PropDetail Where ID=1"_s),
                     QStringList{u"0"_s});
            QCOMPARE(PropertyText(*curContact->Properties.Item(1), field), then);
        }
    }

    void save_and_add_goes_on_with_a_new_property_data()
    {
        QTest::addColumn<bool>("withList");
        QTest::newRow("the list open") << true;
        QTest::newRow("the list comes up unseen") << false;
    }

    void save_and_add_goes_on_with_a_new_property()
    {
        QFETCH(const bool, withList);
        PropertyDesk desk;
        std::optional<OpenPropertyList> visible;
        if (withList)
            visible.emplace();
        PropertyEditor editor(EditMode::ModifyProperty);
        editor.Fill(City, u"tampa"_s);
        editor.Click(3);
        QCOMPARE(PropertyDesk::Property(1).City, u"Tampa"_s);
        QCOMPARE(gEditMode, EditMode::NewProperty);
        QCOMPARE(editor.Form().windowTitle(), u"New Property for Ann Lee"_s);
        QCOMPARE(desk.User.LastStatus(), u"Adding a Property.."_s);
        QCOMPARE(editor.Focus(), u"txtMLS"_s);
        for (int row = 1; row <= 33; ++row)
            QCOMPARE(editor.Sheet().Value(row), QString());
        frmPropertyList* list = frmPropertyList::Loaded();
        QVERIFY(list != nullptr);
        QCOMPARE(list->isVisible(), withList);
        QCOMPARE(list->Rows(), 3);
        QCOMPARE(list->SelectedHeader(), u"MLS#"_s);

        editor.Fill(Addr1, u"5 Ash Court"_s);
        editor.Click(2);
        QCOMPARE(PropertyDesk::Addresses().last(), u"3|1|5 Ash Court||"_s);
        editor.Gone();
        QCOMPARE(frmPropertyList::Loaded() != nullptr, withList);
    }

    void save_and_add_twice_and_cancel_leaves_what_was_saved()
    {
        const PropertyDesk desk;
        OpenPropertyList list;
        const WhenFormOpens script(u"frmProperty"_s, [](Form& form) {
            for (const QString& address : {u"3 Fir Way"_s, u"5 Ash Court"_s}) {
                form.findChild<SheetEditor*>()->GoTo(RowOf(Addr1));
                TypeText(form, address);
                TypeKey(form, Qt::Key_A, Qt::AltModifier);
            }
            TypeKey(form, Qt::Key_Escape);
            QTRY_VERIFY(form.IsUnloaded());
        });
        list.Choose("mnuNew");
        QCOMPARE(list.Ids(), (std::vector<Long>{1, 2, 3, 4}));
        QCOMPARE(list.Text(3, u"Address1"), u"3 Fir Way"_s);
        QCOMPARE(list.Text(4, u"Address1"), u"5 Ash Court"_s);
        QCOMPARE(list.Rows().SelectedRow(), 4);
        QCOMPARE(curPropertyID, 4);
    }

    void the_unseen_list_gives_a_default_with_its_box()
    {
        PropertyDesk desk;
        ContactAt(1)->DefaultProperty = 0;
        PropertyEditor editor(EditMode::ModifyProperty);
        desk.User.Expect(u"New Default Property for Ann Lee"_s,
                         u"This contact was not assigned a Default Property or the\r\ndefault property was deleted. A "
                         "new default property will\r\nbe automatically assigned for this contact"_s);
        editor.Click(3);
        QCOMPARE(ContactAt(1)->DefaultProperty, 1);
        QVERIFY(!frmPropertyList::Loaded()->isVisible());
    }

    void cancelling_keeps_the_list_and_the_file()
    {
        PropertyDesk desk;
        OpenPropertyList list;
        for (const bool isNew : {true, false}) {
            list.Click(2, u"City");
            const QStringList before = FreshDatabase::WholeFile();
            const WhenFormOpens script(u"frmProperty"_s, [isNew](Form& form) {
                TypeText(form, u"something"_s);
                if (isNew)
                    ClickOn(form, u"cmdButton_1"_s);
                else
                    form.close();
                QTRY_VERIFY(form.IsUnloaded());
            });
            list.Choose(isNew ? "mnuNew" : "mnuModify");
            QCOMPARE(desk.User.LastStatus(), u"Cancelled"_s);
            QCOMPARE(FreshDatabase::WholeFile(), before);
            QCOMPARE(list.Ids(), (std::vector<Long>{1, 2}));
            QCOMPARE(list.Rows().SelectedRow(), 2);
            QCOMPARE(list.Form().SelectedHeader(), isNew ? u"MLS#"_s : u"City"_s);
            QCOMPARE(curPropertyID, 2);
        }
    }
};

QTEST_MAIN(tst_frmProperty)
#include "tst_frmProperty.moc"
