#include "app/Composition.h"
#include "app/frmSplash.h"
#include "core/adodb/Connection.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "ui/frame/frmMain.h"
#include "ui/widgets/CommonDialog.h"
#include "ui/widgets/Forms.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/OpenFile.h"
#include "ui/widgets/UserWindows.h"

#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

/// A day's work with properties and the Selected contacts, by keys alone.
class tst_KeyboardRoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APersonWorksWithoutAMouse();

private:
    static void Fill();
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, int times = 1);
    static void Choose(const QString& caption);
    static void OpenMenu(Qt::Key letter);
    static void TypeContact();
    static void TypeProperties();
    void WorkPropertyList();
    void WorkPhoto();
    static void SelectInSubcategory(int contacts);

    static Form& List() { return *Forms::Find(u"frmList"_s); }
    static Grid& Contacts() { return Control<Grid>(List(), u"GridList"_s); }
    static QString PropCell() { return Contacts().CellText(4, Contacts().ColumnIndex(u"Prop")); }

    FreshDatabase m_database;
    ScriptedUser m_person;
    QString m_photo;
    QStringList m_opened;
};

void tst_KeyboardRoad::Fill()
{
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('Buyers')"_s);
    for (int sub = 1; sub <= 4; ++sub) {
        FreshDatabase::Execute(u"Insert into SubCategories (Description,ParentID) Values ('Street %1',1)"_s.arg(sub));
        for (int contact = 1; contact <= 3; ++contact)
            FreshDatabase::Execute(
                u"Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName) Values (1,%1,'Ann','Lee %1%2')"_s
                    .arg(sub)
                    .arg(contact));
    }
}

/// Keys go to the window or the menu that is in front, as the person's do.
void tst_KeyboardRoad::Press(Qt::Key key, Qt::KeyboardModifiers modifiers, int times)
{
    for (int i = 0; i < times; ++i) {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            QTest::keyClick(popup, key, modifiers);
            continue;
        }
        QTRY_VERIFY(QApplication::activeWindow() != nullptr);
        TypeKey(*QApplication::activeWindow(), key, modifiers);
    }
}

void tst_KeyboardRoad::OpenMenu(Qt::Key letter)
{
    Press(letter, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
}

/// Walks down the open menu to an entry, and takes it.
void tst_KeyboardRoad::Choose(const QString& caption)
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    const auto stands = [&] { return menu->activeAction() != nullptr && menu->activeAction()->text() == caption; };
    for (qsizetype i = 0; i <= menu->actions().size() && !stands(); ++i)
        Press(Qt::Key_Down);
    QVERIFY2(stands(), qUtf8Printable(caption));
    QVERIFY2(menu->activeAction()->isEnabled(), qUtf8Printable(caption));
    if (menu->activeAction()->menu() == nullptr) {
        Press(Qt::Key_Return);
        return;
    }
    Press(Qt::Key_Right);
    QTRY_COMPARE(QApplication::activePopupWidget(), menu->activeAction()->menu());
}

void tst_KeyboardRoad::TypeContact()
{
    const WhenFormOpens editor(u"frmContact"_s, [](Form& form) {
        TypeText(form, u"bob"_s);
        TypeKey(form, Qt::Key_Return);
        TypeKey(form, Qt::Key_Return);
        TypeText(form, u"ray"_s);
        TypeKey(form, Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(form.IsUnloaded());
    });
    OpenMenu(Qt::Key_C);
    Choose(u"New Contact"_s);
}

void tst_KeyboardRoad::TypeProperties()
{
    // The cell of the properties stands before the first name.
    Press(Qt::Key_Left);
    const WhenFormOpens editor(u"frmProperty"_s, [](Form& form) {
        for (const QString& mls : {u"M1"_s, u"M2"_s}) {
            TypeText(form, mls);
            TypeKey(form, Qt::Key_Return);
            TypeKey(form, Qt::Key_Return);
            TypeText(form, u"elm street "_s + mls);
            TypeKey(form, mls == "M1"_L1 ? Qt::Key_A : Qt::Key_S, Qt::AltModifier);
        }
        QTRY_VERIFY(form.IsUnloaded());
    });
    Press(Qt::Key_Return);
    QCOMPARE(curContact->LastName, u"Ray"_s);
    QCOMPARE(PropCell(), u"2"_s);
}

void tst_KeyboardRoad::WorkPhoto()
{
    const auto photo = [](const QString& entry) {
        OpenMenu(Qt::Key_P);
        Choose(u"Accessories"_s);
        Choose(u"Photo"_s);
        Choose(entry);
    };
    photo(u"Select Photo"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select Picture from PropDetail order by ID"_s).last(), m_photo);
    photo(u"View Photo"_s);
    QCOMPARE(m_opened, QStringList{m_photo});
    m_person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to clear the photo selection for M2?"_s,
                    Answer::Yes);
    m_person.Expect(u"Video Selection has been Cleared"_s,
                    u"The photo selection has been cleared. Do you want to delete the photo file:\r\n"_s + m_photo +
                        u"\r\nfrom the hard disk?"_s,
                    Answer::No);
    photo(u"Clear Photo"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select Picture from PropDetail order by ID"_s).last(), QString());
}

void tst_KeyboardRoad::WorkPropertyList()
{
    const WhenFormOpens list(u"frmPropertyList"_s, [this](Form& form) {
        const auto& rows = Control<Grid>(form, u"GridPropList"_s);
        QCOMPARE(rows.Rows(), 2);
        Press(Qt::Key_Home, Qt::ControlModifier);
        Press(Qt::Key_Down);
        QCOMPARE(rows.SelectedRow(), 2);
        WorkPhoto();
        m_person.Expect(u"Please Confirm Before I Proceed"_s,
                        u"Do you want me to set M2\r\nas the new default property for Bob Ray?"_s, Answer::Yes);
        OpenMenu(Qt::Key_P);
        Choose(u"Set as Default Property"_s);
        QCOMPARE(FreshDatabase::Rows(u"Select DefaultProperty from Contacts Where FirstName='Bob'"_s),
                 QStringList{u"2"_s});
        m_person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to permanently delete this property?"_s,
                        Answer::Yes);
        m_person.Expect(u"New Default Property"_s, u"Bob Ray's new default property is now M1"_s);
        OpenMenu(Qt::Key_P);
        Choose(u"Delete M2"_s);
        Press(Qt::Key_Escape);
        QTRY_VERIFY(form.IsUnloaded());
    });
    Press(Qt::Key_Return);
    QCOMPARE(PropCell(), u"1"_s);
    QCOMPARE(FreshDatabase::Rows(u"Select ID,DefaultProperty from Contacts Where FirstName='Bob'"_s),
             QStringList{u"13|1"_s});
}

void tst_KeyboardRoad::SelectInSubcategory(int contacts)
{
    Press(Qt::Key_Home, Qt::ControlModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier, contacts - 1);
    OpenMenu(Qt::Key_C);
    Choose(u"Select the %1 Highlighted Contacts"_s.arg(contacts));
    Press(Qt::Key_Escape);
    QTRY_VERIFY(!IsLoaded(u"frmList"_s));
}

void tst_KeyboardRoad::APersonWorksWithoutAMouse()
{
    Fill();
    m_photo = m_database.Folder() + u"/house.png"_s;
    QImage photo(40, 30, QImage::Format_RGB32);
    photo.fill(Qt::red);
    QVERIFY(photo.save(m_photo));
    CommonDialog::SetSource([this](const CommonDialog&, bool) { return m_photo; });
    SetFileOpener([this](const QString& path) {
        m_opened << path;
        return true;
    });
    UserWindows windows;
    frmSplash splash(windows);
    gConn.Close();
    splash.Show();
    QTRY_VERIFY(splash.Program() != nullptr && splash.Program()->Main().isActiveWindow());
    frmMain& main = splash.Program()->Main();

    // The tree has the focus: the category, open, and its first subcategory.
    Press(Qt::Key_Down);
    Press(Qt::Key_Right, {}, 2);
    for (const int contacts : {3, 3, 2, 2}) {
        Press(Qt::Key_Return);
        QTRY_VERIFY(IsLoaded(u"frmList"_s) && List().isActiveWindow());
        if (gSelected.IsEmpty()) {
            TypeContact();
            TypeProperties();
            WorkPropertyList();
        }
        SelectInSubcategory(contacts);
        QTRY_VERIFY(main.isActiveWindow());
        Press(Qt::Key_Down);
    }
    QCOMPARE(gSelected.Ids(), (std::vector<Long>{1, 2, 3, 4, 5, 6, 7, 8, 10, 11}));
    OpenMenu(Qt::Key_L);
    Choose(u"Show in Rolodex"_s);
    auto& cards = Control<Grid>(main, u"GridRolodex"_s);
    QCOMPARE(cards.Rows(), 10);
    QCOMPARE(cards.CellText(10, 2), u"Ann Lee 42"_s);

    main.Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    CommonDialog::SetSource({});
    SetFileOpener({});
}

QTEST_MAIN(tst_KeyboardRoad)
#include "tst_KeyboardRoad.moc"
