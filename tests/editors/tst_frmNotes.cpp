#include "core/Clock.h"
#include "core/RunTimeError.h"
#include "editors/Editors.h"
#include "editors/frmNotes.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "support/Columns.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"

#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// One contact with one property, on November 22, 2026.
class Desk
{
public:
    FreshDatabase Database;
    ScriptedUser User;

    explicit Desk(const QString& notes = {})
    {
        Clock::SetSource([] { return QDateTime({2026, 11, 22}, {9, 0}); });
        FreshDatabase::Execute(
            u"Insert into Contacts (FirstName,LastName,MI,MailState) Values ('Anna','Smith','',0)"_s);
        FreshDatabase::Execute(u"Insert into PropDetail (ContactID,MLS,Addr1) Values (1,'','5 Elm St')"_s);
        curContact = std::make_shared<Contact>();
        curContact->RecID = 1;
        curContact->FirstName = u"Anna"_s;
        curContact->LastName = u"Smith"_s;
        curContact->Notes = notes;
        curContact->LoadProperties();
        curPropertyID = 1;
        gEditMode = EditMode::Neutral;
        static_cast<void>(Database.TakeStatements());
    }
    ~Desk() { Clock::SetSource({}); }

    [[nodiscard]] static QString StoredNotes()
    {
        return FreshDatabase::Rows(u"Select Notes from Contacts Where ID=1"_s).value(0);
    }
};

/// frmNotes, open.
class Notes
{
public:
    Notes()
    {
        m_form.SetDeleteOnUnload(false);
        m_form.Show();
        static_cast<void>(QTest::qWaitForWindowActive(&m_form));
    }

    [[nodiscard]] frmNotes& Form() { return m_form; }
    [[nodiscard]] QPlainTextEdit& Text() { return Control<QPlainTextEdit>(m_form, u"txtNotes"_s); }
    void Stamp() { ClickOn(m_form, u"picStamp"_s); }
    void Save() { ClickOn(m_form, u"cmdButton_1"_s); }
    void Exit() { ClickOn(m_form, u"cmdButton_2"_s); }
    void Type(const QString& text) { TypeText(m_form, text); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { TypeKey(m_form, key, modifiers); }

private:
    frmNotes m_form;
};

constexpr auto AskTitle = "You Have Made some Modifications"_L1;
constexpr auto Question = "Do you want me to save the changes you have made?"_L1;
const QString Stamped = u"11/22/2026: "_s;

} // namespace

class tst_frmNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_stamp_goes_on_top_and_the_person_types_behind_it()
    {
        Desk desk;
        Notes notes;
        notes.Stamp();
        QCOMPARE(notes.Text().toPlainText(), Stamped);
        QVERIFY(notes.Text().hasFocus());
        notes.Type(u"called"_s);
        notes.Key(Qt::Key_D, Qt::AltModifier);
        QCOMPARE(notes.Text().textCursor().position(), 12);
        notes.Type(u"met"_s);
        notes.Save();
        QCOMPARE(Desk::StoredNotes(), Stamped + u"met\r\n"_s + Stamped + u"called"_s);
    }

    void a_text_comes_and_goes_as_it_is_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::newRow("lines") << u"one\r\ntwo\r\n\r\n"_s;
        QTest::newRow("breaks of other hands") << u"one\ntwo\rthree\r\n"_s;
        QTest::newRow("odd characters") << QString(u"hard\u00A0blank\ttab \u2028 "_s + QChar(0xD800) + QChar(0xFDD0) +
                                                   QChar(0xFFFC) + u"'quoted'"_s);
        QTest::newRow("long") << u"A long line of words. "_s.repeated(2000);
    }

    void a_text_comes_and_goes_as_it_is()
    {
        QFETCH(QString, stored);
        Desk desk(stored);
        Notes notes;
        notes.Save();
        QCOMPARE(Desk::StoredNotes(), stored);
        // Typed and taken back: the same words, the same bytes.
        notes.Type(u"a"_s);
        notes.Key(Qt::Key_Backspace);
        notes.Save();
        QCOMPARE(Desk::StoredNotes(), stored);
    }

    void a_hard_blank_outlives_a_change_and_every_break_is_a_line()
    {
        Desk desk(u"a\u00A0b"_s);
        Notes notes;
        notes.Key(Qt::Key_Return, Qt::ShiftModifier);
        notes.Save();
        QCOMPARE(Desk::StoredNotes(), u"\r\na\u00A0b"_s);
    }

    void leaving_asks_about_changes_data()
    {
        AddColumns<QString, QString, int, QString, bool, QString>(
            {"change", "way", "answer", "status", "gone", "stored"});
        const auto row = [](const char* what, const QString& change, const QString& way, int answer,
                            const QString& status, bool gone, const QString& stored) {
            QTest::newRow(what) << change << way << answer << status << gone << stored;
        };
        const QString saved = u"Notes Have Been Saved"_s;
        const QString dropped = u"Notes Not Saved"_s;
        const int none = -1;
        row("untouched", QString(), u"exit"_s, none, QString(), true, u"NULL"_s);
        row("typed, yes", u"x"_s, u"exit"_s, int(Answer::Yes), saved, true, u"xold"_s);
        row("typed, no", u"x"_s, u"exit"_s, int(Answer::No), dropped, true, u"NULL"_s);
        row("typed, cancel", u"x"_s, u"exit"_s, int(Answer::Cancel), QString(), false, u"NULL"_s);
        row("typed and taken back", u"x\b"_s, u"exit"_s, int(Answer::No), dropped, true, u"NULL"_s);
        row("stamped", u"stamp"_s, u"exit"_s, int(Answer::No), dropped, true, u"NULL"_s);
        row("pasted with the mouse", u"mouse"_s, u"exit"_s, int(Answer::No), dropped, true, u"NULL"_s);
        row("Esc", u"x"_s, u"Esc"_s, int(Answer::Yes), saved, true, u"xold"_s);
        row("close box, cancel", u"x"_s, u"close box"_s, int(Answer::Cancel), QString(), false, u"NULL"_s);
        row("close box, yes", u"x"_s, u"close box"_s, int(Answer::Yes), saved, true, u"xold"_s);
        row("the program ends", u"x"_s, u"code"_s, none, QString(), true, u"NULL"_s);
        row("saved before", u"saved"_s, u"exit"_s, none, saved, true, u"yold"_s);
    }

    void leaving_asks_about_changes()
    {
        QFETCH(QString, change);
        QFETCH(QString, way);
        QFETCH(int, answer);
        QFETCH(QString, status);
        QFETCH(bool, gone);
        QFETCH(QString, stored);
        Desk desk(u"old"_s);
        Notes notes;
        if (change == u"stamp") {
            notes.Stamp();
        } else if (change == u"mouse") {
            notes.Text().textCursor().insertText(u"words"_s);
        } else if (change == u"saved") {
            notes.Type(u"y"_s);
            notes.Save();
        } else if (!change.isEmpty()) {
            notes.Type(change.left(1));
            if (change.size() > 1)
                notes.Key(Qt::Key_Backspace);
        }
        if (answer >= 0)
            desk.User.Expect(AskTitle, Question, static_cast<Answer>(answer));
        if (way == u"exit")
            notes.Exit();
        else if (way == u"Esc")
            notes.Key(Qt::Key_Escape);
        else if (way == u"close box")
            notes.Form().close();
        else
            notes.Form().Unload();
        if (answer >= 0) {
            QCOMPARE(desk.User.LastBox().Picture, Icon::Question);
            QCOMPARE(desk.User.LastBox().Shown, Buttons::YesNoCancel);
        }
        QCOMPARE(desk.User.LastStatus(), status);
        QCOMPARE(notes.Form().IsUnloaded(), gone);
        QCOMPARE(Desk::StoredNotes(), stored);
        QCOMPARE(gEditMode, EditMode::Neutral);
    }

    void the_mode_says_whose_notes_they_are()
    {
        Desk desk;
        const QString property = u"Notes for the property located at 5 Elm St"_s;
        for (const auto& [mode, caption] :
             {std::pair(0, u"Anna Smith's Notes"_s), std::pair(1, u"Anna Smith's Notes"_s),
              std::pair(3, u"Anna Smith's Notes"_s), std::pair(2, property), std::pair(7, property)}) {
            gEditMode = mode;
            QString shown;
            const WhenFormOpens opens(u"frmNotes"_s, [&shown](Form& form) {
                shown = form.windowTitle();
                TypeKey(form, Qt::Key_X, Qt::AltModifier);
            });
            ShowNotes();
            QCOMPARE(shown, caption);
            QCOMPARE(gEditMode, mode);
        }
    }

    void the_notes_of_a_property_write_that_one_column()
    {
        Desk desk;
        gEditMode = EditMode::ModifyProperty;
        curContact->Properties.Item(1)->MLS = u"A-17"_s;
        Notes notes;
        QCOMPARE(notes.Form().windowTitle(), u"Notes for A-17"_s);
        notes.Type(u"roof"_s);
        notes.Save();
        QCOMPARE(desk.Database.TakeStatements(), QStringList{u"Update PropDetail set Notes='roof' Where ID=1"_s});
        QCOMPARE(curContact->Properties.Item(1)->Notes, u"roof"_s);
    }

    void a_refused_write_keeps_the_window_and_the_question()
    {
        Desk desk;
        gEditMode = EditMode::ModifyProperty;
        Notes notes;
        notes.Type(u"o'clock"_s);
        const QString report = u"Class PropDetail UpdateDBNotes Error #-2147217900"_s;
        desk.User.ExpectReport(report);
        notes.Save();
        desk.User.Expect(AskTitle, Question, Answer::Yes);
        desk.User.ExpectReport(report);
        notes.Exit();
        QVERIFY(!notes.Form().IsUnloaded());
        QCOMPARE(desk.User.LastStatus(), QString());
        desk.User.Expect(AskTitle, Question, Answer::No);
        notes.Exit();
        QVERIFY(notes.Form().IsUnloaded());
    }

    void without_a_contact_the_report_comes_and_nothing_breaks()
    {
        Desk desk;
        curContact.reset();
        const QString words = RunTimeError::StandardDescription(ErrorNumber::ObjectNotSet);
        desk.User.Expect(u"FormatName  Error #91"_s, words);
        desk.User.Expect(u"frmNotes Form_Load Error #91"_s, words);
        Notes notes;
        desk.User.Expect(u"frmNotes cmdButton_Click Error #91"_s, words);
        notes.Save();
        notes.Exit();
        QVERIFY(notes.Form().IsUnloaded());
    }
};

QTEST_MAIN(tst_frmNotes)
#include "tst_frmNotes.moc"
