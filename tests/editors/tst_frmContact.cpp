#include "editors/Editors.h"
#include "editors/frmContact.h"
#include "editors/RecordingFaces.h"
#include "editors/SheetWindow.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "support/Columns.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "ui/widgets/Grid.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto NotSaved = "Contact not Saved"_L1;
constexpr auto SameName =
    "I did not save this contact because a contact with the\r\nsame name already exists in First home."_L1;

/// A desk with an agency on it: the subcategory "First home" of "Buyers" chosen in the tree, with two contacts.
class Desk
{
public:
    FreshDatabase Database;
    ScriptedUser User;
    RecordingTree Tree{u"S1"_s, u"C1"_s};

    Desk()
    {
        FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
        FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('First home',1)"_s);
        FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('Upgrade',1)"_s);
        Add(u"1"_s, u"Anna"_s, u"Q"_s, u"Smith"_s);
        Add(u"1"_s, u"Bob"_s, u""_s, u"Jones"_s);
        LoadCategories();
        LoadContacts([](int) {});
        curCategoryID = 1;
        curSubIndex = 1;
        static_cast<void>(Database.TakeStatements());
    }

    static void Add(const QString& sub, const QString& first, const QString& mi, const QString& last)
    {
        FreshDatabase::Execute(
            u"Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName,MI,MailState,HomePhone) Values (1,%1,'%2','%4','%3',10,'2155550101')"_s
                .arg(sub, first, mi, last));
    }
    static QStringList Names(const QString& where = u"ID>0"_s)
    {
        return FreshDatabase::Rows(u"Select ID,FirstName,MI,LastName from Contacts Where "_s + where +
                                   u" order by ID"_s);
    }
};

/// frmContact, open on a contact where one is named.
class Editor : public SheetWindow<frmContact>
{
public:
    explicit Editor(Long editMode, Long contact = 0) : SheetWindow(On(contact, editMode)) {}

    void Name(const QString& first, const QString& mi, const QString& last)
    {
        const QString names[] = {first, mi, last};
        for (int row = 1; row <= 3; ++row) {
            Sheet().GoTo(row);
            Key(Qt::Key_A, Qt::ControlModifier);
            Key(Qt::Key_Delete);
            Type(names[row - 1]);
        }
    }

private:
    static Long On(Long contact, Long editMode)
    {
        if (contact != 0)
            curContact = ContactAt(contact);
        return editMode;
    }
};

} // namespace

class tst_frmContact : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opening_tells_what_is_done()
    {
        Desk desk;
        {
            Editor editor(EditMode::NewContact);
            QCOMPARE(editor.Form().windowTitle(), u"New Contact Under First home"_s);
            QCOMPARE(desk.User.LastStatus(), u"Adding a Contact.."_s);
            QCOMPARE(editor.Sheet().Rows(), 19);
        }
        Editor editor(EditMode::ModifyContact, 1);
        QCOMPARE(editor.Form().windowTitle(), u"Anna Q Smith"_s);
        QCOMPARE(desk.User.LastStatus(), u"Anna Q Smith"_s);
        QCOMPARE(editor.Sheet().Value(1), u"Anna"_s);
        QCOMPARE(editor.Sheet().Value(7), u"FL"_s);
        QCOMPARE(editor.Focus(), u"txtFirstName"_s);
        QVERIFY(!Control<Grid>(editor.Form(), u"Grid2"_s).verticalScrollBar()->isVisible());
    }

    void Enter_walks_down_the_sheet_and_all_is_saved()
    {
        Desk desk;
        Editor editor(EditMode::NewContact);
        const QStringList typed{u"carol"_s,      u"x"_s,        u"o'neil"_s,     u"1 main st"_s, u"apt 2"_s,
                                u"new haven"_s,  u"ct"_s,       u"06510"_s,      u"1234"_s,      u"ms."_s,
                                u"dan"_s,        u"a friend"_s, u"acme"_s,       u"c@d.org"_s,   u"2035550101"_s,
                                u"2035550102"_s, u"17"_s,       u"2035550103"_s, u"0123456789"_s};
        for (const QString& text : typed) {
            editor.Type(text);
            editor.Key(Qt::Key_Return);
        }
        QCOMPARE(editor.Focus(), u"txtFax"_s);
        editor.Click(2);
        QVERIFY(editor.Form().IsUnloaded());
        QCOMPARE(desk.User.LastStatus(), u"Saved"_s);
        QCOMPARE(FreshDatabase::Rows(
                     u"Select CategoryID,SubCategoryID,FirstName,MI,LastName,MailAddr1,MailAddr2,MailCity,MailState,"
                     "MailZip,MailZip4,Salutation,Spouse,ReferredBy,Company,Email,HomePhone,WorkPhone,Ext,Cell,Fax "
                     "from Contacts Where ID=3"_s),
                 QStringList{u"1|1|Carol|X|O'neil|1 main st|Apt 2|New haven|7|06510|1234|Ms.|Dan|A friend|Acme|C@d.org|"
                             "(203) 555-0101|(203) 555-0102|17|(203) 555-0103|(012) 345-6789"_s});
        QCOMPARE(ContactAt(3), curContact);
        QCOMPARE(CurrentSub()->ContactCount, CategoryAt(1)->ContactCount);
        QCOMPARE(CurrentSub()->ContactCount, 3);
        QCOMPARE(desk.Tree.CountsShown, 1);
    }

    void keys_make_the_text_of_a_row_data()
    {
        AddColumns<QString, QString, QString, QString>({"tag", "typed", "shown", "kept"});
        QTest::newRow("capital") << u"City"_s << u"new town"_s << u"new town"_s << u"New town"_s;
        QTest::newRow("mask while typing") << u"Work Phone"_s << u"555"_s << u"(555) "_s << u"(555) "_s;
        QTest::newRow("letters never show") << u"Cell Phone"_s << u"5a-5 (5)1"_s << u"(555) 1"_s << u"(555) 1"_s;
        QTest::newRow("an eleventh digit undoes the mask")
            << u"Fax"_s << u"12155550101"_s << u"12155550101"_s << u"12155550101"_s;
        QTest::newRow("the extension has no mask") << u"Ext"_s << u"x123 4"_s << u"1234"_s << u"1234"_s;
    }

    void keys_make_the_text_of_a_row()
    {
        QFETCH(QString, tag);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QString, kept);
        Desk desk;
        gFocusField = tag;
        Editor editor(EditMode::ModifyContact, 1);
        const int row = editor.Sheet().CurRow();
        editor.Sheet().SetField(row, {});
        editor.Type(typed);
        QCOMPARE(editor.Sheet().ControlText(row), shown);
        QVERIFY(editor.Sheet().Leave());
        QCOMPARE(editor.Sheet().Value(row), kept);
    }

    void the_key_that_brings_the_focus_to_a_phone_masks_it()
    {
        Desk desk;
        gFocusField = u"Email"_s;
        Editor editor(EditMode::ModifyContact, 1);
        QCOMPARE(editor.Sheet().Value(15), u"2155550101"_s);
        editor.Key(Qt::Key_Return);
        QCOMPARE(editor.Focus(), u"txtHomePhone"_s);
        QCOMPARE(editor.Sheet().ControlText(15), u"(215) 555-0101"_s);
        editor.Key(Qt::Key_Backspace);
        QCOMPARE(editor.Sheet().ControlText(15), u"(215) 555-010"_s);
    }

    void the_editor_starts_where_the_list_was_clicked()
    {
        Desk desk;
        for (const auto& [column, mode, focus] :
             {std::tuple(u"Home Phone"_s, EditMode::ModifyContact, u"txtHomePhone"_s),
              std::tuple(u"State"_s, EditMode::ModifyContact, u"cboState"_s),
              std::tuple(u"MLS#"_s, EditMode::ModifyContact, u"txtFirstName"_s), // no row of this sheet
              std::tuple(u"Home Phone"_s, EditMode::NewContact, u"txtFirstName"_s)}) {
            gFocusField = column;
            Editor editor(mode, 1);
            QCOMPARE(editor.Focus(), focus);
            if (focus == u"cboState")
                QCOMPARE(editor.Sheet().ControlText(7), u"FL"_s);
        }
    }

    void a_name_is_wanted()
    {
        Desk desk;
        Editor editor(EditMode::NewContact);
        editor.Name(u" "_s, u"M"_s, QString());
        desk.User.Expect(NotSaved, u"I did not save this contact because\r\n you did not enter a contact name."_s);
        editor.Click(2);
        QCOMPARE(desk.User.LastBox().Picture, Icon::Information);
        QVERIFY(!editor.Form().IsUnloaded());
        QCOMPARE(editor.Sheet().Value(2), u"M"_s);
        QCOMPARE(desk.Database.TakeStatements(), QStringList());
    }

    void a_duplicate_is_refused_data()
    {
        AddColumns<int, Long, QStringList, bool>({"mode", "sub", "name", "refused"});
        const auto row = [](const char* what, int mode, Long sub, const QStringList& name, bool refused) {
            QTest::newRow(what) << mode << sub << name << refused;
        };
        row("New, other case and blanks", EditMode::NewContact, 1, {u" aNNA "_s, u"q"_s, u"SMITH "_s}, true);
        row("Modify, unchanged", EditMode::ModifyContact, 1, {u"Anna"_s, u"Q"_s, u"Smith"_s}, false);
        row("Modify, another's name", EditMode::ModifyContact, 1, {u"Bob"_s, QString(), u"jones"_s}, true);
        row("Modify, the tree on another subcategory", EditMode::ModifyContact, 2, {u"Bob"_s, QString(), u"Jones"_s},
            false);
    }

    void a_duplicate_is_refused()
    {
        QFETCH(int, mode);
        QFETCH(Long, sub);
        QFETCH(QStringList, name);
        QFETCH(bool, refused);
        Desk desk;
        curSubIndex = sub;
        desk.Tree.Key = u"S%1"_s.arg(sub);
        Editor editor(mode, 1);
        const QStringList before = FreshDatabase::WholeFile();
        editor.Name(name[0], name[1], name[2]);
        if (refused)
            desk.User.Expect(NotSaved, SameName);
        editor.Click(2);
        QCOMPARE(editor.Form().IsUnloaded(), !refused);
        if (refused) {
            QCOMPARE(FreshDatabase::WholeFile(), before);
            QCOMPARE(ContactAt(1)->FirstName, u"Anna"_s);
            QCOMPARE(editor.Sheet().Value(1), Upper(name[0]));
        } else {
            QCOMPARE(curContact->FirstName, name[0]);
        }
    }

    void a_refused_New_takes_the_lists_new_row_away()
    {
        Desk desk;
        RecordingList list;
        list.Data = {1, 2, 0};
        list.Selected = 3;
        Editor editor(EditMode::NewContact, 1);
        editor.Name(u"Anna"_s, u"Q"_s, u"Smith"_s);
        desk.User.Expect(NotSaved, SameName);
        editor.Click(2);
        QCOMPARE(list.Data, (std::vector<Long>{1, 2}));
        // The save that follows writes into whatever row is selected then.
        list.Selected = 2;
        list.Log.clear();
        editor.Name(u"Carl"_s, QString(), u"Smith"_s);
        editor.Click(2);
        QCOMPARE(list.Log, QStringList{u"UpdateContactGridCols"_s});
        QCOMPARE(list.Data, (std::vector<Long>{1, 3}));
    }

    void an_empty_list_gets_its_row_when_the_contact_is_made()
    {
        Desk desk;
        RecordingList list;
        Editor editor(EditMode::NewContact, 1);
        editor.Type(u"Carl"_s);
        editor.Click(2);
        QCOMPARE(list.Log,
                 (QStringList{u"AddRow"_s, u"UnSelectAll"_s, u"SelectLastRow"_s, u"UpdateContactGridCols"_s}));
        QCOMPARE(list.Data, std::vector<Long>{3});
    }

    void save_and_add_goes_on_with_a_new_contact_data()
    {
        AddColumns<bool, QString, QString>({"withList", "caption", "status"});
        QTest::newRow("list open") << true << u"New Contact Under First home"_s << u"Adding a Contact.."_s;
        QTest::newRow("no list: the old caption stays") << false << u"Anna Q Smith"_s << u"Anna Q Smith"_s;
    }

    void save_and_add_goes_on_with_a_new_contact()
    {
        QFETCH(bool, withList);
        QFETCH(QString, caption);
        QFETCH(QString, status);
        Desk desk;
        std::optional<RecordingList> list;
        if (withList)
            list.emplace().Data = {1, 2};
        gFocusField = u"City"_s;
        Editor editor(EditMode::ModifyContact, 1);
        editor.Type(u"paris"_s);
        editor.Click(3);
        QCOMPARE(FreshDatabase::Rows(u"Select MailCity from Contacts Where ID=1"_s), QStringList{u"Paris"_s});
        QCOMPARE(gEditMode, EditMode::NewContact);
        QCOMPARE(editor.Form().windowTitle(), caption);
        QCOMPARE(desk.User.LastStatus(), status);
        QCOMPARE(editor.Focus(), u"txtFirstName"_s);
        for (int row = 1; row <= 19; ++row)
            QCOMPARE(editor.Sheet().Value(row), QString());
        if (withList)
            QCOMPARE(list->Log,
                     (QStringList{u"UpdateContactGridCols"_s, u"UnSelectAll"_s, u"AddRow"_s, u"SelectLastRow"_s}));

        editor.Type(u"zoe"_s);
        editor.Click(2);
        QCOMPARE(Desk::Names(u"ID>2"_s), QStringList{u"3|Zoe||"_s});
    }

    void leaving_without_saving()
    {
        const std::function<void(Editor&)> ways[]{
            [](Editor& editor) { editor.Click(1); },
            [](Editor& editor) { editor.Key(Qt::Key_Escape); },
            [](Editor& editor) {
                editor.Sheet().GoTo(7); // Esc in a list
                editor.Key(Qt::Key_Escape);
            },
            [](Editor& editor) { editor.Key(Qt::Key_C, Qt::AltModifier); },
            [](Editor& editor) { editor.Form().close(); },
        };
        for (const Long mode : {EditMode::NewContact, EditMode::ModifyContact}) {
            for (const auto& leave : ways) {
                Desk desk;
                RecordingList list;
                list.Data = {1, 2, 0};
                const QStringList before = FreshDatabase::WholeFile();
                Editor editor(mode, 1);
                editor.Type(u"something"_s);
                leave(editor);
                QVERIFY(editor.Form().IsUnloaded());
                QCOMPARE(desk.User.LastStatus(), u"Cancelled"_s);
                QCOMPARE(list.Log, mode == EditMode::NewContact ? QStringList{u"TakeNewRowAway"_s} : QStringList());
                QCOMPARE(FreshDatabase::WholeFile(), before);
                QCOMPARE(gEditMode, EditMode::Neutral);
                QCOMPARE(desk.Tree.CountsShown, 1);
            }
        }
    }

    void the_last_release_closes_an_empty_list()
    {
        Desk desk;
        RecordingList list;
        list.Data = {0};
        Editor editor(EditMode::NewContact);
        editor.Click(1);
        QVERIFY(!list.Unloaded);
        editor.Gone();
        QVERIFY(list.Unloaded);
    }

    void a_change_writes_one_statement_and_redraws_the_found_list()
    {
        Desk desk;
        RecordingFound found;
        gFocusField = u"Email"_s;
        Editor editor(EditMode::ModifyContact, 2);
        editor.Type(u"o'b@c"_s);
        editor.Key(Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(editor.Form().IsUnloaded());
        QCOMPARE(
            desk.Database.TakeStatements(),
            QStringList{
                u"Update Contacts set CategoryID=1,SubCategoryID=1,FirstName='Bob',LastName='Jones',MI='',"
                "FormattedName='Bob Jones',Salutation='',MailAddr1='',MailAddr2='',MailCity='',MailState=10,MailZip='',"
                "MailZip4='',Company='',WorkPhone='',Ext='',HomePhone='2155550101',Cell='',Fax='',Email='O''b@c',"
                "ReferredBy='',Notes='',Spouse='', DefaultProperty=0 Where ID=2"_s});
        QCOMPARE(found.Redrawn, std::vector<Long>{2});
    }

    void a_refused_write_keeps_the_window_and_says_nothing_of_saved_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("tag");
        QTest::newRow("change") << int(EditMode::ModifyContact) << u"UpdtateDB"_s;
        QTest::newRow("new") << int(EditMode::NewContact) << u"AddToDB"_s;
    }

    void a_refused_write_keeps_the_window_and_says_nothing_of_saved()
    {
        QFETCH(int, mode);
        QFETCH(QString, tag);
        Desk desk;
        const QStringList before = FreshDatabase::WholeFile();
        Editor editor(mode, 1);
        const std::shared_ptr<Contact> current = curContact;
        editor.Name(u"Carl"_s, u"'"_s, u"Smith"_s);
        desk.User.ExpectReport(u"Class Contact "_s + tag + u" Error #-2147217900"_s);
        editor.Click(2);
        desk.User.Done();
        QVERIFY(!editor.Form().IsUnloaded());
        QVERIFY(!desk.User.Statuses().contains(u"Saved"_s));
        QCOMPARE(FreshDatabase::WholeFile(), before);
        QCOMPARE(gContacts.Count(), 2);
        QCOMPARE(curContact, current);
        // What was typed is still there: without the apostrophe it is saved.
        editor.Name(u"Carl"_s, u"T"_s, u"Smith"_s);
        editor.Click(2);
        QVERIFY(editor.Form().IsUnloaded());
        QCOMPARE(desk.User.LastStatus(), u"Saved"_s);
    }

    void an_apostrophe_in_the_address_leaves_the_row_written_and_its_ID_unknown()
    {
        Desk desk;
        RecordingList list;
        list.Data = {1, 2, 0};
        list.Selected = 3;
        Editor editor(EditMode::NewContact);
        const auto save = [&editor](const QString& name) {
            editor.Type(name);
            editor.Sheet().GoTo(4);
            editor.Type(u"4 king's road"_s);
            editor.Click(3);
        };
        const QString report = u"Class Contact AddToDB Error #-2147217900"_s;
        const QString words =
            u"[Microsoft][ODBC Microsoft Access Driver] Syntax error in string in query expression '''."_s;
        desk.User.Expect(report, words);
        save(u"carl"_s);
        QCOMPARE(Desk::Names(u"ID>2"_s), QStringList{u"3|Carl||"_s});
        QCOMPARE(ContactAt(0)->FirstName, u"Carl"_s);
        QCOMPARE(list.Data, (std::vector<Long>{1, 2, 0, 0}));

        // The second one finds the place without an ID taken, and is refused with its row written too.
        desk.User.Expect(report, words);
        desk.User.Expect(u"frmContact SaveContact Error #457"_s, RunTimeError::StandardDescription(457));
        save(u"dora"_s);
        QCOMPARE(Desk::Names(u"ID>2"_s), (QStringList{u"3|Carl||"_s, u"4|Dora||"_s}));
        QCOMPARE(list.Data, (std::vector<Long>{1, 2, 0}));
        QCOMPARE(CurrentSub()->ContactCount, 3);
        QVERIFY(!editor.Form().IsUnloaded());
        editor.Key(Qt::Key_Escape);
    }
};

QTEST_MAIN(tst_frmContact)
#include "tst_frmContact.moc"
