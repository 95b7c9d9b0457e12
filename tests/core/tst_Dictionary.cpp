#include "core/Dictionary.h"

#include "ErrorOf.h"

#include <QString>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_Dictionary : public QObject
{
    Q_OBJECT

private slots:
    void KeysComeInTheOrderOfInsertion()
    {
        Dictionary<int, QString> names;
        for (const int key : {30, 10, 20})
            names.Add(key, QString::number(key));
        names.Item(10) = u"changed"_s;
        QCOMPARE(names.Keys(), (std::vector{30, 10, 20}));
        QCOMPARE(names.Items(), (std::vector{u"30"_s, u"changed"_s, u"20"_s}));
        names.Remove(30);
        names.Add(30, u"again"_s);
        QCOMPARE(names.Keys(), (std::vector{10, 20, 30}));
    }

    void ManyKeysKeepTheirOrderAndTheirPlaces()
    {
        Dictionary<int, QString> names;
        names.Add(1, u"1"_s);
        const QString* first = names.Find(1);
        for (int key = 2; key <= 1000; ++key)
            names.Add(key, QString::number(key));
        for (int key = 2; key <= 1000; key += 2)
            names.Remove(key);
        names.Add(2, u"again"_s);
        QCOMPARE(names.Find(1), first);
        QCOMPARE(names.Count(), 501);
        std::vector<int> odd;
        for (int key = 1; key <= 1000; key += 2)
            odd.push_back(key);
        odd.push_back(2);
        QCOMPARE(names.Keys(), odd);
        for (const int key : odd)
            names.Remove(key);
        QVERIFY(names.Keys().empty());
        names.Add(5, u"5"_s);
        QCOMPARE(names.Items(), std::vector{u"5"_s});
    }

    void ReadingAMissingKeyAddsIt()
    {
        Dictionary<int, QString> names;
        names.Add(7, u"x"_s);
        QVERIFY(!names.Exists(9));
        QCOMPARE(names.Find(9), nullptr);
        QCOMPARE(names.Count(), 1);
        QCOMPARE(names.Item(9), QString());
        QCOMPARE(names.Count(), 2);
        QVERIFY(names.Exists(9));
        QCOMPARE(ErrorOf([&] { return names.Add(9, u"y"_s), 0; }), ErrorNumber::KeyAlreadyThere);
    }

    void DuplicateAndMissingKeysAreRefused()
    {
        Dictionary<int, QString> names;
        names.Add(7, u"x"_s);
        QCOMPARE(ErrorOf([&] { return names.Add(7, u"y"_s), 0; }), 457);
        QCOMPARE(names.Item(7), u"x"_s);
        QCOMPARE(ErrorOf([&] { return names.Remove(8), 0; }), 32811);
        QCOMPARE(names.Count(), 1);
        names.RemoveAll();
        names.RemoveAll();
        QVERIFY(names.IsEmpty());
        names.Add(7, u"z"_s);
        QCOMPARE(names.Item(7), u"z"_s);
    }

    void TextKeysDistinguishLetterCase()
    {
        Dictionary<QString, int> codes;
        codes.Add(u"Buyers"_s, 1);
        codes.Add(u"BUYERS"_s, 2);
        codes.Add(QString(), 3);
        QCOMPARE(codes.Item(u"Buyers"_s), 1);
        QCOMPARE(codes.Item(u""_s), 3);
    }

    void KeysAreSafeToWalkWhileItChanges()
    {
        Dictionary<int, int> numbers;
        for (int key = 0; key < 100; ++key)
            numbers.Add(key, key);
        for (const int key : numbers.Keys()) {
            if (key % 2 == 0)
                numbers.Remove(key);
            else
                numbers.Add(key + 1000, key);
        }
        QCOMPARE(numbers.Count(), 100);
        QCOMPARE(numbers.Keys().front(), 1);
    }

    void AWalkEndsWhenTheVisitSaysSo()
    {
        Dictionary<int, int> numbers;
        for (int key = 0; key < 10; ++key)
            numbers.Add(key, key);
        int seen = 0;
        numbers.ForEach([&](int, int item) { return ++seen, item < 4; });
        QCOMPARE(seen, 5);
    }

    void AMovedDictionaryStaysWhole()
    {
        Dictionary<int, QString> names;
        names.Add(1, u"one"_s);
        names.Add(2, u"two"_s);
        Dictionary<int, QString> moved = std::move(names);
        moved.Remove(1);
        QCOMPARE(moved.Keys(), std::vector{2});
        QCOMPARE(*moved.Find(2), u"two"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Dictionary)
#include "tst_Dictionary.moc"
