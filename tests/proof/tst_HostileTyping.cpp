#include "HostileGround.h"
#include "Injections.h"

#include "app/Composition.h"
#include "app/frmSplash.h"
#include "core/adodb/Connection.h"
#include "core/FieldRules.h"
#include "editors/Editors.h"
#include "editors/SheetEditor.h"
#include "model/Contact.h"
#include "model/ContactFields.h"
#include "model/Main.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "support/Windows.h"
#include "ui/frame/Menus.h"
#include "ui/widgets/UserWindows.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Hears the reports, and asks for text by the real window.
class Person final : public Listener
{
public:
    explicit Person(UserWindows& windows) : m_windows(windows) {}
    QString AskFor(const QString& caption, int maxLength) override { return m_windows.AskFor(caption, maxLength); }

private:
    UserWindows& m_windows;
};

struct Row
{
    const char* Control;
    const char* Column;
};

constexpr Row protectedRows[]{{"txtFirstName", "FirstName"}, {"txtLastName", "LastName"},
                              {"txtAddr1", "MailAddr1"},     {"txtAddr2", "MailAddr2"},
                              {"txtCity", "MailCity"},       {"txtSalutation", "Salutation"},
                              {"txtSpouse", "Spouse"},       {"txtReferredBy", "ReferredBy"},
                              {"txtCompany", "Company"},     {"txtEmail", "Email"}};
constexpr Row otherRows[]{{"txtMI", "MI"},
                          {"txtZip", "MailZip"},
                          {"txtZip4", "MailZip4"},
                          {"txtHomePhone", "HomePhone"},
                          {"txtWorkPhone", "WorkPhone"},
                          {"txtExt", "Ext"},
                          {"txtCell", "Cell"},
                          {"txtFax", "Fax"}};

void Paste(const QWidget& window, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    TypeKey(window, Qt::Key_A, Qt::ControlModifier);
    TypeKey(window, Qt::Key_V, Qt::ControlModifier);
}

bool IsPlain(const QString& text)
{
    return std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
}

} // namespace

/// The same through the windows that a person types into: what a field shows is what is saved, or the report says why
/// not.
class tst_HostileTyping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void ProtectedFieldsAreSavedAsTheyStand_data() { AddInjections(); }
    void ProtectedFieldsAreSavedAsTheyStand();
    void OtherFieldsAreSavedOrRefused_data() { AddInjections(); }
    void OtherFieldsAreSavedOrRefused();
    void NotesAreSavedAsTheyStand_data() { AddInjections(); }
    void NotesAreSavedAsTheyStand();
    void NamesOfCategoriesAreSavedAsTheyStand_data() { AddInjections(); }
    void NamesOfCategoriesAreSavedAsTheyStand();
    void NamesOfSubcategoriesAreSavedOrRefused_data() { AddInjections(); }
    void NamesOfSubcategoriesAreSavedOrRefused();
    void TheTitleIsSavedAsItStands_data() { AddInjections(); }
    void TheTitleIsSavedAsItStands();

private:
    static void AddInjections();
    /// Pastes a text into rows of the second contact's editor and saves. Gives what the rows showed.
    template <size_t Count>
    QStringList SaveContact(const Row (&rows)[Count], const QString& text);
    /// Answers the question for a line of text that a menu entry asks. Gives what the line showed.
    QString Answer(const QString& entry, const QString& text);
    static QString Stored(const QString& column) { return FreshDatabase::Rows(u"Select "_s + column).value(0); }

    std::unique_ptr<FreshDatabase> m_fresh;
    UserWindows m_windows;
    std::unique_ptr<Person> m_person;
    std::unique_ptr<frmSplash> m_splash;
    int m_categories = 0;
};

void tst_HostileTyping::AddInjections()
{
    QTest::addColumn<QString>("text");
    for (const Injection& injection : Injections())
        QTest::newRow(injection.Name) << injection.Text;
}

void tst_HostileTyping::initTestCase()
{
    m_fresh = std::make_unique<FreshDatabase>();
    AddNeighbours();
    gConn.Close();
    m_person = std::make_unique<Person>(m_windows);
    m_splash = std::make_unique<frmSplash>(m_windows);
    m_splash->Show();
    QTRY_VERIFY(m_splash->Program() != nullptr && m_splash->Program()->Main().isVisible());
    CategoryTree& tree = m_splash->Program()->Tree();
    tree.FindInTree(u"S1"_s);
    tree.trvCategories_NodeClick(
        Control<CategoryTreeView>(m_splash->Program()->Main(), u"trvCategories"_s).currentItem());
}

void tst_HostileTyping::cleanupTestCase()
{
    m_splash->Program()->Main().Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_splash.reset();
    m_person.reset();
    m_fresh.reset();
}

template <size_t Count>
QStringList tst_HostileTyping::SaveContact(const Row (&rows)[Count], const QString& text)
{
    QStringList shown;
    gEditMode = EditMode::ModifyContact;
    // A fresh one, as after a start: what was refused before would be refused again.
    curContact = std::make_shared<Contact>();
    for (int field = 0; field < ContactFieldCount; ++field)
        SetContactText(*curContact, ContactField{field}, ContactText(*ContactAt(1), ContactField{field}));
    curContact->CategoryID = ContactAt(1)->CategoryID;
    curContact->subCategoryID = ContactAt(1)->subCategoryID;
    curContact->RecID = 2;
    const WhenFormOpens editor(u"frmContact"_s, [&](Form& form) {
        auto& sheet = *form.findChild<SheetEditor*>();
        for (const Row& row : rows) {
            QVERIFY(sheet.GoTo(sheet.RowOf(QLatin1StringView(row.Control))));
            Paste(form, text);
            shown << Upper(sheet.ControlText(sheet.CurRow()));
        }
        ClickOn(form, u"cmdButton_2"_s);
    });
    ShowContactEditor();
    return shown;
}

void tst_HostileTyping::ProtectedFieldsAreSavedAsTheyStand()
{
    QFETCH(QString, text);
    const QStringList before = FreshDatabase::WholeFile();
    const QStringList shown = SaveContact(protectedRows, text);
    QCOMPARE(m_person->Take(), QStringList());
    const Difference difference(before, FreshDatabase::WholeFile());
    QCOMPARE(difference.Gone.size(), 1);
    QCOMPARE(difference.New.size(), 1);
    for (size_t i = 0; i < std::size(protectedRows); ++i) {
        const QString stored = Stored(QLatin1StringView(protectedRows[i].Column) + u" from Contacts Where ID=2"_s);
        QCOMPARE(stored, shown.value(static_cast<qsizetype>(i)));
        if (IsPlain(text))
            QCOMPARE(stored, Upper(text));
    }
}

void tst_HostileTyping::OtherFieldsAreSavedOrRefused()
{
    QFETCH(QString, text);
    const QStringList before = FreshDatabase::WholeFile();
    const QStringList shown = SaveContact(otherRows, text);
    const QStringList reports = m_person->Take();
    const Difference difference(before, FreshDatabase::WholeFile());
    QVERIFY(reports.isEmpty() || difference.New.isEmpty());
    QCOMPARE(difference.Gone.size(), difference.New.size());
    QVERIFY(difference.New.size() <= 1);
    if (!text.contains(u'\'')) {
        QCOMPARE(reports, QStringList());
        for (size_t i = 0; i < std::size(otherRows); ++i)
            QCOMPARE(Stored(QLatin1StringView(otherRows[i].Column) + u" from Contacts Where ID=2"_s),
                     shown.value(static_cast<qsizetype>(i)));
    } else if (text.count(u'\'') % 2 == 1) {
        QCOMPARE(reports.size(), 1);
    }
}

void tst_HostileTyping::NotesAreSavedAsTheyStand()
{
    QFETCH(QString, text);
    curContact = ContactAt(3);
    gEditMode = EditMode::ModifyContact;
    const WhenFormOpens notes(u"frmNotes"_s, [&](Form& form) {
        Paste(form, text);
        ClickOn(form, u"cmdButton_1"_s);
    });
    ShowNotes();
    QCOMPARE(m_person->Take(), QStringList());
    QString expected = text;
    expected.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u"\n"_s, u"\r\n"_s);
    QCOMPARE(Stored(u"Notes from Contacts Where ID=3"_s), expected);
}

QString tst_HostileTyping::Answer(const QString& entry, const QString& text)
{
    QString shown;
    const WhenFormOpens dialog(u"frmDialog"_s, [&](Form& form) {
        Paste(form, text);
        shown = Control<QLineEdit>(form, u"txtInput"_s).text();
        TypeKey(form, Qt::Key_Return);
    });
    m_splash->Program()->Main().MainMenus().Entry(entry).trigger();
    return shown;
}

void tst_HostileTyping::NamesOfCategoriesAreSavedAsTheyStand()
{
    QFETCH(QString, text);
    const QStringList before = FreshDatabase::WholeFile();
    const QString shown = Answer(u"mnuCatCreate"_s, text);
    QCOMPARE(m_person->Take(), QStringList());
    const Difference difference(before, FreshDatabase::WholeFile());
    QCOMPARE(difference.Gone, QStringList());
    QCOMPARE(difference.New, QStringList{QString::number(3 + ++m_categories) + u'|' + shown});
    QVERIFY(!IsPlain(text) || shown == text);
}

void tst_HostileTyping::NamesOfSubcategoriesAreSavedOrRefused()
{
    QFETCH(QString, text);
    const QStringList before = FreshDatabase::WholeFile();
    const QString shown = Answer(u"mnuSubCreate"_s, text);
    const QStringList reports = m_person->Take();
    const Difference difference(before, FreshDatabase::WholeFile());
    QCOMPARE(difference.Gone, QStringList());
    // A name that is an "or" is written, reads the number of an older row back, and the tree reports that it has that
    // one.
    QVERIFY(difference.New.size() <= 1);
    QVERIFY(difference.New.size() == 1 || !reports.isEmpty());
    if (!text.contains(u'\''))
        QCOMPARE(difference.New.value(0).section(u'|', 1, -2), shown);
    else
        QVERIFY(text.count(u'\'') % 2 == 0 || !reports.isEmpty());
}

void tst_HostileTyping::TheTitleIsSavedAsItStands()
{
    QFETCH(QString, text);
    const QString shown = Answer(u"mnuTitleOther"_s, text);
    QCOMPARE(m_person->Take(), QStringList());
    QCOMPARE(Stored(u"ClientName from Settings"_s), shown.endsWith(u' ') ? shown : shown + u' ');
}

QTEST_MAIN(tst_HostileTyping)
#include "tst_HostileTyping.moc"
