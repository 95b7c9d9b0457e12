#include "SqliteShell.h"

#include "BareStore.h"

#include <QFile>
#include <QProcess>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 120'000; // milliseconds
constexpr int runs = 9;

class Script
{
public:
    void Table(const char* name, const char* columns)
    {
        m_text += QByteArray("create table ") + name + " (" + columns + ");\n";
    }
    template <typename... Values>
    void Row(const char* table, const Values&... values)
    {
        m_text += QByteArray("insert into ") + table + " values (";
        (Add(values), ...);
        m_text.back() = ')';
        m_text += ";\n";
    }
    [[nodiscard]] QByteArray Text() const { return "begin;\n" + m_text + "commit;\n"; }

private:
    void Add(const std::string& text) { m_text += '\'' + QByteArray::fromStdString(text).replace('\'', "''") + "',"; }
    template <typename Number>
    void Add(Number number)
    {
        m_text += QByteArray::number(number) + ',';
    }

    QByteArray m_text;
};

} // namespace

SqliteShell::SqliteShell(const QString& file, const BareContents& contents) : m_file(file)
{
    QFile::remove(file);
    Script script;
    script.Table("Contacts",
                 "ID integer primary key, FirstName, LastName, MI, Salutation, Spouse, Company, Email, "
                 "ReferredBy, MailAddr1, MailAddr2, MailCity, MailState, MailZip, MailZip4, WorkPhone, Ext, "
                 "HomePhone, Cell, Fax, Notes");
    script.Table("PropDetail",
                 "ID integer primary key, ContactID, MLS, Subdivision, Addr1, Addr2, City, State, Zip, "
                 "Zip4, PropType, Construction, SqFt, Roof, Parking, Rooms, Baths, Floor, Pool, MaintFee, "
                 "AssocFee, Waterfront, Floodzone, Rented, RentalBasis, RentalAmount, LeaseExpires, "
                 "Elevator, PetsAllowed, ListingDate, AskingPrice, ExpDate, ClosingDate, SoldDate, "
                 "SoldPrice, Notes");
    for (const BareContact& c : contents.contacts) {
        script.Row("Contacts", c.id, c.firstName, c.lastName, c.mi, c.salutation, c.spouse, c.company, c.email,
                   c.referredBy, c.mailAddr1, c.mailAddr2, c.mailCity, c.mailState, c.mailZip, c.mailZip4, c.workPhone,
                   c.ext, c.homePhone, c.cell, c.fax, c.notes);
        for (const BareProperty& p : c.properties)
            script.Row("PropDetail", p.id, p.contactID, p.mls, p.subdivision, p.addr1, p.addr2, p.city, p.state, p.zip,
                       p.zip4, p.propType, p.construction, p.sqFt, p.roof, p.parking, p.rooms, p.baths, p.floor, p.pool,
                       p.maintFee, p.assocFee, p.waterfront, p.floodzone, p.rented, p.rentalBasis, p.rentalAmount,
                       p.leaseExpires, p.elevator, p.petsAllowed, p.listingDate, p.askingPrice, p.expDate,
                       p.closingDate, p.soldDate, p.soldPrice, p.notes);
    }
    static_cast<void>(Run(script.Text()));
}

SqliteShell::Answer SqliteShell::Count(const QString& table, const QString& condition) const
{
    const QByteArray question = "select count(*) from " + table.toUtf8() + " where " + condition.toUtf8() + ";\n";
    Answer answer;
    answer.Seconds = 1e9;
    for (const QByteArray& line : Run(".timer on\n" + question.repeated(runs)).split('\n')) {
        // "Run Time: real 0.030 user 0.027812 sys 0.000000"
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() == 8)
            answer.Seconds = std::min(answer.Seconds, words[5].toDouble() + words[7].toDouble());
        else if (!words[0].isEmpty())
            answer.Count = words[0].toLongLong();
    }
    return answer;
}

QByteArray SqliteShell::Run(const QByteArray& script) const
{
    QProcess shell;
    shell.start(u"sqlite3"_s, {u"-batch"_s, u"-bail"_s, m_file});
    shell.write(script);
    shell.closeWriteChannel();
    shell.waitForFinished(patience);
    if (shell.exitStatus() != QProcess::NormalExit || shell.exitCode() != 0)
        qFatal("sqlite3 gave no answer: %s", shell.readAllStandardError().constData());
    return shell.readAllStandardOutput();
}
