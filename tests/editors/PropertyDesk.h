#pragma once

#include "editors/Editors.h"
#include "editors/frmProperty.h"
#include "editors/frmPropertyList.h"
#include "editors/PropertyRecord.h"
#include "editors/SheetEditor.h"
#include "editors/SheetWindow.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QMenu>
#include <QTest>

/// A desk with two contacts on it:
///   1 Ann Lee: property 1 "M100" at 1 Elm Street, Miami, which is the default one; 2 at 2 Oak Lane, closed long ago
///   2 Bob Ray: no property
class PropertyDesk
{
public:
    FreshDatabase Database;
    ScriptedUser User;

    PropertyDesk()
    {
        FreshDatabase::Execute(QStringLiteral("Insert into Categories (Description) Values ('Sellers')"));
        FreshDatabase::Execute(QStringLiteral("Insert into SubCategories (Description,ParentID) Values ('Houses',1)"));
        for (const QString& name : {QStringLiteral("'Ann','Lee',1"), QStringLiteral("'Bob','Ray',0")})
            FreshDatabase::Execute(QStringLiteral("Insert into Contacts (CategoryID,SubCategoryID,FirstName,LastName,"
                                                  "DefaultProperty) Values (1,1,%1)")
                                       .arg(name));
        FreshDatabase::Execute(QStringLiteral(
            "Insert into PropDetail "
            "(ContactID,MLS,Addr1,Addr2,City,State,SqFt,Rooms,Baths,Construction,MaintFee,AssocFee,"
            "RentalAmount,AskingPrice,SoldPrice,Rented,ListingDate,LeaseExpires,Notes,Picture) Values "
            "(1,'M100','1 Elm Street','','Miami',10,1850,6,2.5,2,1250.5,0,900,350000,0,2,'01/05/2026','06/30/2026',"
            "'A fine house','/photos/elm.jpg')"));
        FreshDatabase::Execute(QStringLiteral(
            "Insert into PropDetail (ContactID,Addr1,SqFt,Rooms,Baths,ClosingDate) Values (1,'2 Oak Lane',0,0,0,"
            "'12/31/2019')"));
        LoadCategories();
        LoadContacts([](int) {});
        curCategoryID = 1;
        curSubIndex = 1;
        curContact = ContactAt(1);
        curPropertyID = 1;
        gOpeners.PropertyEditor = [this] {
            ++EditorCalls;
            ShowPropertyEditor();
        };
        gOpeners.Notes = [this] { NotesMode = gEditMode; };
        static_cast<void>(Database.TakeStatements());
        User.Forget();
    }
    ~PropertyDesk() { gOpeners = {}; }

    [[nodiscard]] static QStringList Addresses()
    {
        return FreshDatabase::Rows(QStringLiteral("Select ID,ContactID,Addr1,Addr2,City from PropDetail order by ID"));
    }
    [[nodiscard]] static PropDetail& Property(Long id, Long contact = 1)
    {
        return *ContactAt(contact)->Properties.Item(id);
    }

    int EditorCalls = 0;
    Long NotesMode = 0;
};

/// frmPropertyList, open.
class OpenPropertyList
{
public:
    OpenPropertyList()
    {
        m_form.SetDeleteOnUnload(false);
        m_form.Form_Load();
        m_form.Show();
        static_cast<void>(QTest::qWaitForWindowActive(&m_form));
    }

    [[nodiscard]] frmPropertyList& Form() { return m_form; }
    [[nodiscard]] Grid& Rows() { return Control<Grid>(m_form, QStringLiteral("GridPropList")); }
    [[nodiscard]] QString Text(int row, QStringView key) { return Rows().CellText(row, Rows().ColumnIndex(key)); }
    [[nodiscard]] QString Icon(int row, QStringView key) { return Rows().CellIcon(row, Rows().ColumnIndex(key)); }
    [[nodiscard]] std::vector<Long> Ids()
    {
        std::vector<Long> ids;
        for (int row = 1; row <= Rows().Rows(); ++row)
            ids.push_back(Rows().RowItemData(row));
        return ids;
    }
    /// Clicks a cell as the person does.
    void Click(int row, QStringView key, Qt::KeyboardModifiers modifiers = {})
    {
        Rows().EnsureVisible(row, Rows().ColumnIndex(key));
        QTest::mouseClick(Rows().viewport(), Qt::LeftButton, modifiers, Place(row, key));
    }
    void DoubleClick(int row, QStringView key)
    {
        Click(row, key);
        QTest::mouseDClick(Rows().viewport(), Qt::LeftButton, {}, Place(row, key));
    }
    /// An entry of the menu, brought up to date as it is when the menu opens.
    [[nodiscard]] QAction& Entry(const char* name)
    {
        Q_EMIT Control<QMenu>(m_form, QStringLiteral("mnuProperty")).aboutToShow();
        return Control<QAction>(m_form, QLatin1StringView(name));
    }
    void Choose(const char* name)
    {
        QAction& entry = Entry(name);
        QVERIFY2(entry.isEnabled(), name);
        entry.trigger();
    }

private:
    [[nodiscard]] QPoint Place(int row, QStringView key)
    {
        return Rows().visualRect(Rows().model()->index(row - 1, Rows().ColumnIndex(key) - 1)).center();
    }

    frmPropertyList m_form;
};

/// frmProperty, open beside the rest.
class PropertyEditor : public SheetWindow<frmProperty>
{
public:
    using SheetWindow::SheetWindow;

    [[nodiscard]] QString Value(PropertyField field) { return Sheet().Value(RowOf(field)); }
    /// Goes to a row and types over what stands there.
    void Fill(PropertyField field, const QString& text)
    {
        Sheet().GoTo(RowOf(field));
        Key(Qt::Key_A, Qt::ControlModifier);
        Key(Qt::Key_Delete);
        Type(text);
    }
};
