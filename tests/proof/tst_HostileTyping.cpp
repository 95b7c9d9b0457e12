#include "HostileGround.h"

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

const QList<Row> protectedRows{{"txtFirstName", "FirstName"}, {"txtLastName", "LastName"}, {"txtAddr1", "MailAddr1"},
                               {"txtSpouse", "Spouse"},       {"txtCompany", "Company"},   {"txtEmail", "Email"}};
const QList<Row> otherRows{{"txtMI", "MI"}, {"txtZip", "MailZip"}, {"txtHomePhone", "HomePhone"}, {"txtExt", "Ext"}};

void Paste(const QWidget& window, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    TypeKey(window, Qt::Key_A, Qt::ControlModifier);
    TypeKey(window, Qt::Key_V, Qt::ControlModifier);
}

} // namespace

/// Three of the hostile texts through the windows that a person types into: what a field shows is what is saved, or the
/// report says why not.
class tst_HostileTyping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void WhatIsShownIsSavedOrRefused_data();
    void WhatIsShownIsSavedOrRefused();

private:
    /// Pastes a text into rows of the second contact's editor and saves. Gives what the rows showed.
    QStringList SaveContact(const QList<Row>& rows, const QString& text);
    /// Answers the question for a line of text that a menu entry asks. Gives what the line showed.
    QString Answer(const QString& entry, const QString& text);
    static QString Stored(const QString& column) { return FreshDatabase::Rows(u"Select "_s + column).value(0); }
    static QStringList StoredRows(const QList<Row>& rows)
    {
        QStringList stored;
        for (const Row& row : rows)
            stored << Stored(QLatin1StringView(row.Column) + u" from Contacts Where ID=2"_s);
        return stored;
    }

    std::unique_ptr<FreshDatabase> m_fresh;
    UserWindows m_windows;
    std::unique_ptr<Person> m_person;
    std::unique_ptr<frmSplash> m_splash;
};

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

QStringList tst_HostileTyping::SaveContact(const QList<Row>& rows, const QString& text)
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

void tst_HostileTyping::WhatIsShownIsSavedOrRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("refused"); // where apostrophes are not protected
    QTest::newRow("an apostrophe") << u"O'Hara"_s << true;
    QTest::newRow("a second statement") << u"x'; Delete * from Contacts; Update Contacts set MI='"_s << true;
    QTest::newRow("odd characters") << u"a\r\nb\tc"_s + QChar(u'\0') + u"d\u202Eשלום"_s + QChar(0xD83D) + u'e' << false;
}

void tst_HostileTyping::WhatIsShownIsSavedOrRefused()
{
    QFETCH(QString, text);
    QFETCH(bool, refused);
    QStringList before = FreshDatabase::WholeFile();
    const QStringList shown = SaveContact(protectedRows, text);
    QCOMPARE(StoredRows(protectedRows), shown);
    QVERIFY(!refused || shown.first() == Upper(text));

    const QStringList others = SaveContact(otherRows, text);
    const QStringList reports = m_person->Take();
    QCOMPARE(!reports.isEmpty(), refused);
    if (!refused)
        QCOMPARE(StoredRows(otherRows), others);
    // One contact has changed and nothing else.
    const Difference contact(before, FreshDatabase::WholeFile());
    QCOMPARE(contact.Gone.size(), 1);
    QCOMPARE(contact.New.size(), 1);

    curContact = ContactAt(3);
    gEditMode = EditMode::ModifyContact;
    const WhenFormOpens notes(u"frmNotes"_s, [&](Form& form) {
        Paste(form, text);
        ClickOn(form, u"cmdButton_1"_s);
    });
    ShowNotes();
    QCOMPARE(Stored(u"Notes from Contacts Where ID=3"_s), text);

    before = FreshDatabase::WholeFile();
    const QString category = Answer(u"mnuCatCreate"_s, text);
    QCOMPARE(Difference(before, FreshDatabase::WholeFile()).New.value(0).section(u'|', 1), category);
    const QString title = Answer(u"mnuTitleOther"_s, text);
    QCOMPARE(Stored(u"ClientName from Settings"_s), title + u' ');
    QCOMPARE(m_person->Take(), QStringList());

    before = FreshDatabase::WholeFile();
    const QString subcategory = Answer(u"mnuSubCreate"_s, text);
    const Difference added(before, FreshDatabase::WholeFile());
    QCOMPARE(added.Gone, QStringList());
    QCOMPARE(!m_person->Take().isEmpty(), refused);
    if (!refused)
        QCOMPARE(added.New.value(0).section(u'|', 1, -2), subcategory);
}

QTEST_MAIN(tst_HostileTyping)
#include "tst_HostileTyping.moc"
