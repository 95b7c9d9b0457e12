#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/RunTimeError.h"
#include "support/Columns.h"
#include "support/FreshDatabase.h"

#include <QBuffer>
#include <QTest>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto spaces =
    "xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882' "
    "xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'";

/// A rowset with the columns ID (int), N (of a type) and T (a text), and this in its data.
QByteArray Rowset(const QByteArray& data, const QByteArray& type = "i2")
{
    return QByteArray("<xml ") + spaces +
           "><s:Schema id='RowsetSchema'><s:ElementType name='row' content='eltOnly'>"
           "<s:AttributeType name='ID' rs:number='1'><s:datatype dt:type='int'/></s:AttributeType>"
           "<s:AttributeType name='N' rs:number='2'><s:datatype dt:type='" +
           type +
           "'/></s:AttributeType>"
           "<s:AttributeType name='T' rs:number='3'><s:datatype dt:type='string' dt:maxLength='5'/></s:AttributeType>"
           "<s:extends type='rs:rowbase'/></s:ElementType></s:Schema><rs:data>" +
           data + "</rs:data></xml>";
}

/// The rows as "ID|N|T", Null as "-"; or the number and the words of the error.
QStringList Read(QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    Recordset rows;
    QStringList lines;
    try {
        for (rows.Open(buffer); !rows.Eof(); rows.MoveNext()) {
            QStringList values;
            for (int i = 0; i < rows.FieldCount(); ++i) {
                const Value value = rows.Fields(i).Get();
                values << (value.IsNull() ? u"-"_s : value.Text());
            }
            lines << values.join(u'|');
        }
    } catch (const RunTimeError& error) {
        lines << QString::number(error.Number()) << error.Description();
    }
    return lines;
}

/// What is saved of a table.
QByteArray Saved(const FreshDatabase& database, const QString& table)
{
    Recordset rows;
    rows.LockType = LockType::Pessimistic;
    rows.Open(u"Select * from "_s + table, gConn);
    QFile file(database.Folder() + u'/' + table + u".xml"_s);
    rows.Save(file.fileName());
    if (!file.open(QIODevice::ReadOnly))
        qFatal("nothing was saved");
    return file.readAll();
}

} // namespace

/// The published XML form of a rowset.
class tst_Rowset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "America/Sao_Paulo"); }
    void WhatOtherWritersDoIsTaken_data();
    void WhatOtherWritersDoIsTaken();
    void WhatIsNoRowsetIsRefused_data();
    void WhatIsNoRowsetIsRefused();
    void ValuesAreHeldAgainstTheirType_data();
    void ValuesAreHeldAgainstTheirType();
    void EveryTextComesBack_data();
    void EveryTextComesBack();
    void NumbersAreWrittenAsPublished();
    void TheGreatestNumbersComeBack();
    void AFileIsNeverWrittenOver();
    void AWideTextWidensItsColumn();
};

void tst_Rowset::WhatOtherWritersDoIsTaken_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("rows");

    const auto row = [](const char* name, const QByteArray& document, const QStringList& rows) {
        QTest::newRow(name) << document << rows;
    };
    const QByteArray plain = Rowset("<z:row ID='1' N='2' T='x'/>");
    const QStringList x{u"1|2|x"_s};
    row("plain", plain, x);
    row("no rows", Rowset("\r\n"), {});
    row("another order, undeclared and absent attributes", Rowset("<z:row Q='7' T='x' ID='1'/>"), {u"1|-|x"_s});
    row("an empty text is no Null", Rowset("<z:row ID='1' T=''/>"), {u"1|-|"_s});
    row("raw breaks and tab in a value", Rowset("<z:row ID='1' T='a\r\nb\nc\td\re'/>"), {u"1|-|a\r\nb\nc\td\re"_s});
    row("references and entities",
        Rowset("<z:row ID='1' T='&#x41;&#x3C;&#65;&lt;&gt;&quot;&apos;&amp;&#xd;&#xa;&#x1F600;'/>"),
        {u"1|-|A<A<>\"'&\r\n\U0001F600"_s});
    row("a mark in front", "\xEF\xBB\xBF" + plain, x);
    row("blank lines and a declaration in front",
        "\r\n \r\n<?xml version='1.0' encoding='UTF-8'?>\r\n" + plain + "\r\n\r\n", x);
    row("other prefixes", QByteArray(plain).replace("xmlns:z=", "xmlns:rows=").replace("<z:row", "<rows:row"), x);
    row("unknown schema attributes",
        QByteArray(plain).replace("rs:number='2'", "rs:number='2' rs:basecatalog='C:\\x' rs:hidden='true'"), x);
    row("columns by number", QByteArray(plain).replace("rs:number='1'", "rs:number='4'"), {u"2|x|1"_s});
    row("another name",
        QByteArray(plain)
            .replace("name='N' rs:number", "name='c2' rs:name='The N' rs:number")
            .replace(" N='2'", " c2='2'"),
        x);
    row("the type on the column",
        QByteArray(plain).replace("rs:number='2'><s:datatype dt:type='i2'/></s:AttributeType>",
                                  "rs:number='2' dt:type='i2'/>"),
        x);
    row("new rows that wait",
        Rowset("<z:row ID='1' N='2' T='x'/><rs:insert><z:row ID='2'/><z:row ID='3'/></rs:insert>"),
        {u"1|2|x"_s, u"2|-|-"_s, u"3|-|-"_s});
    row("deleted rows that wait", Rowset("<rs:delete><z:row ID='9'/></rs:delete><z:row ID='1' N='2' T='x'/>"), x);
    row("changed rows that wait",
        Rowset("<rs:update><rs:original><z:row ID='1' N='2' T='old'/></rs:original><z:row T='x'/></rs:update>"), x);
    row("forced to Null",
        Rowset(
            "<rs:update><rs:original><z:row ID='1' N='2' T='x'/></rs:original><z:row rs:forcenull='N T'/></rs:update>"),
        {u"1|-|-"_s});
}

void tst_Rowset::WhatOtherWritersDoIsTaken()
{
    QFETCH(QByteArray, document);
    QTEST(Read(document), "rows");
}

void tst_Rowset::WhatIsNoRowsetIsRefused_data()
{
    QTest::addColumn<QByteArray>("document");

    const QByteArray plain = Rowset("<z:row ID='1' N='2' T='x'/>");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("Dear Ann,");
    QTest::newRow("other XML") << QByteArray("<html/>");
    QTest::newRow("no columns") << QByteArray("<xml ") + spaces + "><s:Schema/><rs:data/></xml>";
    QTest::newRow("an attribute twice") << Rowset("<z:row ID='1' ID='2'/>");
    QTest::newRow("a control") << Rowset("<z:row T='a\x01'/>");
    QTest::newRow("a reference to a control") << Rowset("<z:row T='&#x1;'/>");
    QTest::newRow("a reference to half a character") << Rowset("<z:row T='&#xD800;'/>");
    QTest::newRow("half a character") << Rowset("<z:row T='a\xED\xA0\x80'/>");
    QTest::newRow("U+FFFF") << Rowset("<z:row T='a\xEF\xBF\xBF'/>");
    QTest::newRow("a document type") << "<!DOCTYPE xml [<!ENTITY a 'b'>]>" + plain;
    QByteArray laughs = "<!DOCTYPE xml [<!ENTITY l0 'lol'>";
    for (int i = 1; i < 30; ++i)
        laughs += "<!ENTITY l" + QByteArray::number(i) + " '" +
                  QByteArray("&l" + QByteArray::number(i - 1) + ';').repeated(10) + "'>";
    QTest::newRow("a billion laughs") << laughs + "]>" + QByteArray(plain).replace("T='x'", "T='&l29;'");
    QTest::newRow("nested without end") << Rowset(QByteArray("<a>").repeated(100'000));
    QByteArray values;
    for (int i = 0; i < 200'000; ++i)
        values += " a" + QByteArray::number(i) + "=''";
    QTest::newRow("values without end") << Rowset("<z:row" + values + "/>");
    for (qsizetype length = 0; length < plain.size(); length += 97)
        QTest::addRow("cut off at %d", static_cast<int>(length)) << plain.first(length);
}

void tst_Rowset::WhatIsNoRowsetIsRefused()
{
    QFETCH(QByteArray, document);
    const QStringList read = Read(document);
    QCOMPARE(read.value(0), QString::number(ErrorNumber::EngineFailure));
    QVERIFY(read.value(1).startsWith(
        "Recordset cannot be created from the specified source. The source file or stream must contain Recordset data"_L1));
}

void tst_Rowset::ValuesAreHeldAgainstTheirType_data()
{
    AddColumns<QByteArray, QByteArray, QString>({"type", "value", "read"});

    const auto row = [](const char* type, const char* value, const QString& read) {
        QTest::addRow("%s of %s", value, type) << QByteArray(type) << QByteArray(value) << read;
    };
    row("i2", "-32768", u"-32768"_s);
    row("int", "2147483647", u"2147483647"_s);
    row("ui8", "18446744073709551615", u"18446744073709551615"_s);
    row("r4", "3.4028231E+38", u"3.4028231E+38"_s);
    row("float", "3.1415899999999999", u"3.1415899999999999"_s);
    row("number", "-7.89", u"-7.89"_s);
    row("boolean", "True", u"True"_s);
    row("dateTime", "2026-01-05T13:04:05.250", u"1/5/2026 1:04:05 PM"_s);
    row("dateTime", "2026-01-05", u"1/5/2026"_s);
    row("dateTime", "2026-01-05T13:04:05+05:30", u"1/5/2026 1:04:05 PM"_s);
    // The clocks of Sao Paulo, which this runs by, had no such hour.
    row("dateTime", "2018-11-04T00:00:00", u"11/4/2018"_s);
    row("time", "14:30:00", u"2:30:00 PM"_s);
    row("uuid", "whatever", u"whatever"_s);
    for (const auto& [type, refused] : std::initializer_list<std::pair<const char*, QList<const char*>>>{
             {"i2", {"40000", "", "Yes", "1.5"}},
             {"int", {"2147483648"}},
             {"ui1", {"-1"}},
             {"r4", {"1e39", "nan"}},
             {"float", {"inf"}},
             {"number", {"$5", "1,000"}},
             {"boolean", {"maybe"}},
             {"dateTime", {"2026-02-30T00:00:00", "yesterday", "2026-01-05T13:04:05 soon"}}})
        for (const char* value : refused)
            row(type, value, {});
}

void tst_Rowset::ValuesAreHeldAgainstTheirType()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, value);
    QFETCH(QString, read);
    const QStringList rows = Read(Rowset("<z:row ID='1' N='" + value + "'/>", type));
    if (!read.isNull()) {
        QCOMPARE(rows, QStringList{u"1|"_s + read + u"|-"_s});
        return;
    }
    QCOMPARE(rows.value(0), QString::number(ErrorNumber::EngineFailure));
    QVERIFY(rows.value(1).startsWith("Data provider or other service returned an E_FAIL status."_L1));
}

void tst_Rowset::EveryTextComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("back");

    const auto row = [](const char* name, const QString& text, const QString& back) {
        QTest::newRow(name) << text << back;
    };
    const auto same = [&row](const char* name, const QString& text) { row(name, text, text); };
    same("the signs of XML", u"Joe's \"Tern\" & Co <b>]]></xml>"_s);
    same("breaks", u"one\r\ntwo\nthree\rfour\t"_s);
    same("blanks", u"  a  "_s);
    same("letters", u"Ä ñ 漢 \U0001F600 \u0085 \u2028 \uFEFF"_s);
    same("empty", u""_s);
    row("controls", u"a\x01\x08\x1F\x7F z"_s, u"a\uFFFD\uFFFD\uFFFD\x7F z"_s);
    row("NUL", u"a"_s + QChar(u'\0') + u'b', u"a\uFFFDb"_s);
    row("lone surrogates", QString(QChar(0xD83D)) + u'a' + QChar(0xDE00), u"\uFFFDa\uFFFD"_s);
    row("what is no character", QString(QChar(0xFFFE)) + QChar(0xFFFF), u"\uFFFD\uFFFD"_s);
}

void tst_Rowset::EveryTextComesBack()
{
    QFETCH(QString, text);
    QFETCH(QString, back);
    const FreshDatabase database;
    FreshDatabase::Execute(u"Insert into FormLetters (FormName,FormText) values ('"_s + FixQuotes(text) +
                           u"','end')"_s);
    const QByteArray xml = Saved(database, u"FormLetters"_s);
    QVERIFY(xml.endsWith("</rs:data>\r\n</xml>"));
    QCOMPARE(Read(xml), QStringList{u"1|"_s + back + u"|end"_s});
    // A line of the file never ends inside a value.
    QVERIFY(xml.contains(" FormText='end'/>\r\n"));
    QCOMPARE(xml.count('\n'), xml.count("\r\n"));
    QCOMPARE(xml.count("\r\n"), 21);
}

void tst_Rowset::NumbersAreWrittenAsPublished()
{
    const FreshDatabase database;
    FreshDatabase::Execute(
        u"Insert into PropDetail (State,Rooms,Baths,MaintFee,AssocFee,RentalAmount,AskingPrice,SoldPrice,"
        "SqFt) Values (9,1.25,1.5E+10,-7.89,0,1234.5600,0.0001,99999999.99,-32768)"_s);
    const QByteArray xml = Saved(database, u"PropDetail"_s);
    for (const char* value :
         {" ID='1'", " State='9'", " Rooms='1.25'", " Baths='1.5E+10'", " MaintFee='-7.89'", " AssocFee='0'",
          " RentalAmount='1234.56'", " AskingPrice='0.0001'", " SoldPrice='99999999.99'", " SqFt='-32768'"})
        QVERIFY2(xml.contains(value), value);
    QVERIFY(!xml.contains(" MLS='")); // Null
}

void tst_Rowset::TheGreatestNumbersComeBack()
{
    const FreshDatabase database;
    FreshDatabase::Execute(u"Insert into PropDetail (SqFt,Rooms,Baths,AskingPrice,SoldPrice) Values "
                           "(1,3.4028234663852886E+38,-3.4029E+38,922337203685477.5807,-922337203685477.5808)"_s);
    QByteArray xml = Saved(database, u"PropDetail"_s);
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    Recordset rows;
    rows.Open(buffer);
    QCOMPARE(rows.Fields("Rooms"_L1).Get().SingleOrZero(), std::numeric_limits<Single>::max());
    QCOMPARE(rows.Fields("Baths"_L1).Get().SingleOrZero(), -std::numeric_limits<Single>::max());
    QCOMPARE(rows.Fields("AskingPrice"_L1).Get().Text(), u"922337203685477.5807"_s);
    QCOMPARE(rows.Fields("SoldPrice"_L1).Get().Text(), u"-922337203685477.5808"_s);
}

void tst_Rowset::AFileIsNeverWrittenOver()
{
    const FreshDatabase database;
    Recordset rows;
    rows.LockType = LockType::Pessimistic;
    rows.Open(u"Select * from Categories"_s, gConn);
    const auto errorOfSave = [&](const QString& file) {
        try {
            rows.Save(file);
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    };
    const QString file = database.Folder() + u"/once.xml"_s;
    QCOMPARE(errorOfSave(file), 0);
    QCOMPARE(errorOfSave(file), ErrorNumber::FileAlreadyExists);
    QCOMPARE(errorOfSave(database.Folder() + u"/none/once.xml"_s), ErrorNumber::PathNotFound);
    QCOMPARE(errorOfSave(u"/dev/full"_s), ErrorNumber::FileAlreadyExists);
    QCOMPARE(errorOfSave(database.Folder()), ErrorNumber::PathFileAccess);
    const QString link = database.Folder() + u"/link.xml"_s;
    QVERIFY(QFile::link(database.Folder() + u"/gone.xml"_s, link));
    QCOMPARE(errorOfSave(link), ErrorNumber::FileAlreadyExists);
}

void tst_Rowset::AWideTextWidensItsColumn()
{
    const FreshDatabase database;
    FreshDatabase::Execute(u"Insert into Categories (Description) Values ('"_s + QString(300, u'x') + u"')"_s);
    FreshDatabase::Execute(u"Insert into SubCategories (Description) Values ('"_s + QString(200, u'Ж') + u"')"_s);
    QVERIFY(Saved(database, u"Categories"_s).contains("dt:type='string' dt:maxLength='300'"));
    QVERIFY(Saved(database, u"SubCategories"_s).contains("dt:type='string' dt:maxLength='255'"));
}

QTEST_APPLESS_MAIN(tst_Rowset)
#include "tst_Rowset.moc"
