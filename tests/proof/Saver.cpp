// The whole program without its person: it adds contacts and writes their notes through the real windows, one after the
// other, until it is killed; or makes or restores a backup. After each save that the program called done it says so on
// standard output.

#include "app/Composition.h"
#include "app/frmSplash.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/Openers.h"
#include "organise/CategoryTree.h"
#include "organise/CategoryTreeView.h"
#include "support/Windows.h"
#include "ui/widgets/CommonDialog.h"
#include "ui/widgets/UserWindows.h"

#include "Saved.h"

#include <QApplication>
#include <QDir>
#include <QPlainTextEdit>
#include <QTest>
#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void Say(const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    if (write(STDOUT_FILENO, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        std::_Exit(EXIT_FAILURE);
}

/// Nobody answers here: a box but for the end of a transfer ends the run, and its words say why.
class NoPerson final : public User
{
public:
    Answer MsgBox(const QString& text, Buttons buttons, Icon, const QString& title) override
    {
        if (buttons == Buttons::YesNo)
            return Answer::Yes;
        if (title == "Database Restored"_L1 || title == "Database Backed upDone"_L1) {
            Say(u"transfer done"_s);
            return Answer::Ok;
        }
        Say(u"! "_s + title + u": "_s + text);
        std::_Exit(EXIT_FAILURE);
    }
    QString AskFor(const QString&, int) override { return {}; }
    void ShoWait(const QString& message) override { m_status = message; }
    void ShoWait() override {}
    void HourGlass(bool) override {}

    void SayWhenDone(const QString& status, const QString& line)
    {
        Say(m_status == status ? line : u"! "_s + m_status);
        m_status.clear();
    }

private:
    QString m_status;
};

void AddContact(int number, NoPerson& person)
{
    gEditMode = EditMode::NewContact;
    const WhenFormOpens editor(u"frmContact"_s, [number](Form& form) {
        TypeText(form, Saved::First(number));
        TypeKey(form, Qt::Key_Return);
        TypeKey(form, Qt::Key_Tab);
        TypeText(form, Saved::Last(number));
        TypeKey(form, Qt::Key_Tab);
        TypeText(form, Saved::Address(number));
        ClickOn(form, u"cmdButton_2"_s);
    });
    gOpeners.ContactEditor();
    person.SayWhenDone(u"Saved"_s, u"contact %1"_s.arg(number));
}

void WriteNotes(int number, NoPerson& person)
{
    gEditMode = EditMode::ModifyContact;
    const WhenFormOpens editor(u"frmNotes"_s, [number](Form& form) {
        Control<QPlainTextEdit>(form, u"txtNotes"_s).insertPlainText(Saved::Notes(number));
        ClickOn(form, u"cmdButton_1"_s);
    });
    gOpeners.Notes();
    person.SayWhenDone(u"Notes Have Been Saved"_s, u"notes %1"_s.arg(number));
}

void Transfer(const QString& direction, const QString& file)
{
    CommonDialog::SetSource([&file](const CommonDialog&, bool) { return file; });
    Say(u"transfer begun"_s);
    if (direction == "backup"_L1)
        gOpeners.Backup();
    else
        gOpeners.Restore();
}

} // namespace

/// FOLDER FIRST-NUMBER, or FOLDER backup|restore FILE
int main(int argc, char** argv)
{
    // Without a window manager there is much to warn of, and nobody to read it.
    qputenv("QT_LOGGING_RULES", "*.warning=false");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    gAppPath = arguments.value(1);
    QDir::setCurrent(AppFile(u"\\Data"_s));
    NoPerson person;
    User::Install(&person);
    UserWindows windows;
    frmSplash splash(windows);
    splash.Show();
    if (!QTest::qWaitFor([&] { return splash.Program() != nullptr && splash.Program()->Main().isVisible(); }, 20'000))
        return EXIT_FAILURE;
    if (arguments.size() > 3) {
        Transfer(arguments[2], arguments[3]);
        return EXIT_SUCCESS;
    }
    CategoryTree& tree = splash.Program()->Tree();
    tree.FindInTree(u"S1"_s);
    tree.trvCategories_NodeClick(Control<CategoryTreeView>(splash.Program()->Main(), u"trvCategories"_s).currentItem());
    for (int number = arguments.value(2).toInt();; ++number) {
        AddContact(number, person);
        WriteNotes(number, person);
    }
}
