#include "core/adodb/Dialect.h"

#include "ErrorOf.h"
#include "support/Columns.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Dialect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StatementsMeanWhatTheySay_data();
    void StatementsMeanWhatTheySay();
    void FaultyStatementsAreRefused();
    void ListsAndLongStatementsStandAsTheyAre();
    void OnlyAWholeTableCanBeChangedThroughItsRows();
};

void tst_Dialect::StatementsMeanWhatTheySay_data()
{
    AddColumns<QString, QString, QStringList>({"statement", "text", "literals"});

    QTest::newRow("literals are lifted") << u"Select ID from Contacts Where SubCategoryID=7 and FirstName='Ann'"_s
                                         << u"Select ID from Contacts Where SubCategoryID = ? and FirstName = ?"_s
                                         << QStringList{u"7"_s, u"Ann"_s};
    QTest::newRow("two apostrophes are one")
        << u"Update Categories set Description='O''Hara''s' Where ID=1"_s
        << u"Update Categories set Description = ? Where ID = ?"_s << QStringList{u"O'Hara's"_s, u"1"_s};
    QTest::newRow("quotes delimit text") << u"Select ID from T Where A=\"it's\""_s << u"Select ID from T Where A = ?"_s
                                         << QStringList{u"it's"_s};
    QTest::newRow("signs inside a literal are text")
        << u"Insert into T (A) Values ('-- /* ; [x] in ()')"_s << u"Insert into T ( A ) Values ( ? )"_s
        << QStringList{u"-- /* ; [x] in ()"_s};
    QTest::newRow("delete with a star") << u"Delete * from Alerts"_s << u"Delete from Alerts"_s << QStringList{};
    QTest::newRow("right join") << u"SELECT City FROM [PropDetail] RIGHT JOIN [Contacts] ON PropDetail.ContactID = "
                                   "Contacts.ID Where Contacts.ID in (1,2) "_s
                                << u"SELECT City FROM [Contacts] LEFT JOIN [PropDetail] ON PropDetail . ContactID = "
                                   "Contacts . ID Where Contacts . ID in ( 1 , 2 )"_s
                                << QStringList{};
    QTest::newRow("numbers of every form")
        << u"Update T set A=-1.5,B=1E+07,C=.5"_s << u"Update T set A = - ? , B = ? , C = ?"_s
        << QStringList{u"1.5"_s, u"10000000"_s, u"0.5"_s};
    QTest::newRow("nothing") << u"Insert into T (A,B) Values (Null,1)"_s
                             << u"Insert into T ( A , B ) Values ( Null , ? )"_s << QStringList{u"1"_s};
}

void tst_Dialect::StatementsMeanWhatTheySay()
{
    QFETCH(QString, statement);
    QFETCH(QStringList, literals);
    const TranslatedStatement translated = Translate(statement);
    QTEST(translated.Text, "text");
    QStringList lifted;
    for (const QVariant& literal : translated.Literals)
        lifted << (literal.typeId() == QMetaType::Double ? QString::number(literal.toDouble(), 'g', 15)
                                                         : literal.toString());
    QCOMPARE(lifted, literals);
}

void tst_Dialect::FaultyStatementsAreRefused()
{
    for (const QString& statement : {
             u"Update Contacts set MI=''--' Where ID=5"_s,                 // a comment would hide the Where
             u"Update Contacts set MI='' /* Where ID=5"_s,                 // a block comment
             u"Delete from Alerts; Delete from Contacts"_s,                // a second statement
             u"Delete from Alerts;"_s,                                     // an end mark
             u"Update Contacts set MI='' Where ID=5 and FirstName='x"_s,   // an open literal
             u"Select * from [Contacts"_s,                                 // an open bracket
             u"Delete from Contacts Where ID in ()"_s,                     // an empty list
             u"Insert into T (A,B) Values (1,'a'),(2,'b')"_s,              // a second row
             u"Update T set A=12abc"_s,                                    // a name that begins with a digit
             u"Update T set A=?"_s,                                        // a placeholder of the engine
             u"Update T set A='rock 'and' roll' Where ID=1"_s,             // a text worked out
             u"Update T set A='a'='a' Where ID=1"_s,                       // a text compared
             u"Update T set A='x', B='y', a='z'"_s,                        // a column set twice
             u"Update T set A=B Where ID=1"_s,                             // a column for a value
             u"Insert into T (A) Values ('1' + '2')"_s,                    // a sum in a row
             u"Insert into T (A,B) Values (,1)"_s,                         // no value
             u"Select ID from T Where A='x' or 'a'='a'"_s,                 // a condition that always holds
             u"Select ID from T Where A='x' or B='y'"_s,                   // an alternative
             u"Select ID from T Where A='x' union select 1"_s,             // a second selection
             QString(u"Delete from T"_s + QChar(u'\0') + u"Where ID=1"_s), // a NUL outside of a literal
         })
        QVERIFY2(ErrorOf([&] { (void)Translate(statement); }) == ErrorNumber::EngineSyntax, qPrintable(statement));
}

void tst_Dialect::ListsAndLongStatementsStandAsTheyAre()
{
    const TranslatedStatement list = Translate(u"Delete from Contacts Where ID in (1,2) and MI='x'"_s);
    QCOMPARE(list.Text, u"Delete from Contacts Where ID in ( 1 , 2 ) and MI = ?"_s);
    QVERIFY(!list.Reusable);

    QStringList values;
    for (int i = 0; i < 65; ++i)
        values << u"'it''s'"_s;
    const TranslatedStatement longOne = Translate(u"Insert into T Values ("_s + values.join(u',') + u")"_s);
    QVERIFY(longOne.Literals.empty());
    QVERIFY(!longOne.Reusable);
    QVERIFY(longOne.Text.contains(u"'it''s' , 'it''s'"_s));
}

void tst_Dialect::OnlyAWholeTableCanBeChangedThroughItsRows()
{
    QCOMPARE(Translate(u"Select * from Settings"_s).UpdatableTable, u"Settings"_s);
    QCOMPARE(Translate(u"Select * from [PropDetail] where ID=3"_s).UpdatableTable, u"PropDetail"_s);
    QCOMPARE(Translate(u"Select ID from Contacts"_s).UpdatableTable, QString());
    QCOMPARE(Translate(u"Select * from A, B"_s).UpdatableTable, QString());
}

QTEST_APPLESS_MAIN(tst_Dialect)
#include "tst_Dialect.moc"
