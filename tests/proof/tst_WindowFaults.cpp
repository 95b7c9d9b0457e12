#include "core/adodb/Connection.h"
#include "editors/Editors.h"
#include "organise/Desk.h"
#include "proof/Faults.h"

#include <QLineEdit>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

/// A save that the store refuses, through the windows: the person reads why, keeps what was typed in sight, and saves
/// it once the trouble is over.
class tst_WindowFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingTypedIsLost_data() { AddFaults(); }
    void NothingTypedIsLost();

private:
    static void SaveContact(const QString& firstName);
    static void SaveNotes(const QString& notes);
    static void ClickRow(Grid& list, int row);
};

void tst_WindowFaults::ClickRow(Grid& list, int row)
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row - 1, 3)).center());
}

void tst_WindowFaults::SaveContact(const QString& firstName)
{
    const WhenFormOpens editor(u"frmContact"_s, [&](Form& form) {
        if (!firstName.isEmpty()) {
            TypeKey(form, Qt::Key_A, Qt::ControlModifier);
            TypeText(form, firstName);
        }
        ClickOn(form, u"cmdButton_2"_s);
    });
    Control<QAction>(*Forms::Find(u"frmList"_s), u"mnuModify"_s).trigger();
}

/// Types nothing where `notes` are empty: they are saved again as they show.
void tst_WindowFaults::SaveNotes(const QString& notes)
{
    const WhenFormOpens editor(u"frmNotes"_s, [&](Form& form) {
        if (!notes.isEmpty())
            Control<QPlainTextEdit>(form, u"txtNotes"_s).insertPlainText(notes);
        ClickOn(form, u"cmdButton_1"_s);
        if (form.isVisible())
            form.Unload();
    });
    Control<QAction>(*Forms::Find(u"frmList"_s), u"mnuNotes"_s).trigger();
}

void tst_WindowFaults::NothingTypedIsLost()
{
    QFETCH(const Fault, fault);
    const QString notes = (QString(100, u'n') + u"\r\n"_s).repeated(3000); // longer than what is free in the file
    Desk desk;
    gOpeners.ContactEditor = [] { ShowContactEditor(); };
    gOpeners.Notes = [] { ShowNotes(); };
    Grid& list = desk.OpenList(u"S1"_s);
    const QStringList before = FreshDatabase::WholeFile();
    {
        // The program that runs opens its file anew, so that the fault is there from the start where it must be.
        if (fault.FromTheStart)
            gConn.Close();
        const QList<Undo> undo = fault.Begin(desk.Database);
        if (fault.FromTheStart)
            desk.Database.Open();
        ClickRow(list, 1);
        desk.Person.ExpectReport(u"Class Contact UpdtateDB Error #-2147467259"_s);
        SaveNotes(notes);
        desk.Person.Done();
        QCOMPARE(FreshDatabase::WholeFile(), before);
        desk.Person.ExpectReport(u"Class Contact UpdtateDB Error #-2147467259"_s);
        SaveContact(u"annabel"_s);
        desk.Person.Done();
        QCOMPARE(list.CellText(1, list.ColumnIndex(u"FirstName")), u"Annabel"_s);
        // The next row can be looked at as if nothing had been.
        ClickRow(list, 2);
        QCOMPARE(FormatName(), u"Bob M Ray"_s);
        if (fault.FromTheStart)
            gConn.Close();
    }
    if (fault.FromTheStart)
        desk.Database.Open();
    ClickRow(list, 1);
    SaveContact({});
    SaveNotes({});
    QCOMPARE(FreshDatabase::Rows(u"Select FirstName,Notes from Contacts Where ID=1"_s),
             QStringList{u"Annabel|"_s + notes});
}

QTEST_MAIN(tst_WindowFaults)
#include "tst_WindowFaults.moc"
