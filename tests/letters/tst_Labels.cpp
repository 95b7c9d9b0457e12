#include "letters/Study.h"
#include "letters/WordProcessor.h"
#include "support/WordReader.h"

#include "letters/LabelsMerge.h"

#include <QFile>
#include <QPushButton>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

class tst_Labels : public QObject
{
    Q_OBJECT

private:
    static QByteArray Source()
    {
        QFile file(AppFile(u"\\Data\\MailLabelSource.txt"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    static QString LabelCaption(const Study& study)
    {
        return Control<QPushButton>(study.Main(), u"lblLabelType"_s).text();
    }
    /// Chooses a label in the open window, as far as it is named.
    static void Choose(Form& form, const QString& brand, const QString& number)
    {
        for (const auto& [list, text] : {std::pair(u"lstProducts"_s, brand), std::pair(u"lstNumbers"_s, number)}) {
            auto& lines = Control<QListWidget>(form, list);
            const QList<QListWidgetItem*> found = lines.findItems(text, Qt::MatchExactly);
            if (!text.isEmpty() && !found.isEmpty())
                lines.setCurrentItem(found.first());
        }
        ClickOn(form, u"cmdbutton_2"_s);
    }

    std::unique_ptr<WordProcessor> m_word;

private Q_SLOTS:
    void init() { m_word = std::make_unique<WordProcessor>(); }
    void cleanup() { m_word.reset(); }

    void TheChosenLabelIsKept()
    {
        Study study;
        {
            const WhenFormOpens window(u"frmLabelType"_s, [](Form& form) {
                QCOMPARE(form.windowTitle(), u"Label Selection"_s);
                auto& products = Control<QListWidget>(form, u"lstProducts"_s);
                QStringList brands;
                for (int row = 0; row < products.count(); ++row)
                    brands << products.item(row)->text();
                QCOMPARE(brands, FreshDatabase::Rows(u"Select BrandName from LabelProducts"_s));
                QCOMPARE(products.selectedItems().size(), 0);
                QCOMPARE(Control<QListWidget>(form, u"lstNumbers"_s).count(), 0);
                QVERIFY(!Control<QWidget>(form, u"cmdbutton_2"_s).isEnabled());
                Choose(form, u"Avery Letter Size"_s, u"5162"_s);
            });
            ClickOn(study.Main(), u"lblLabelType"_s);
        }
        QCOMPARE(study.Database.TakeStatements().last(),
                 u"Update Settings set LabelProduct=1, LabelNumber='5162', Clock=0"_s);
        QCOMPARE(LabelCaption(study), u"5162"_s);
        study.StartAnew();
        QCOMPARE(LabelCaption(study), u"5162"_s);
        const WhenFormOpens window(u"frmLabelType"_s, [](Form& form) {
            QCOMPARE(Control<QListWidget>(form, u"lstProducts"_s).currentItem()->text(), u"Avery Letter Size"_s);
            QCOMPARE(Control<QListWidget>(form, u"lstNumbers"_s).currentItem()->text(), u"5162"_s);
            TypeKey(form, Qt::Key_Escape);
        });
        ClickOn(study.Main(), u"lblLabelType"_s);
    }

    void OkWaitsForANumber()
    {
        Study study;
        const WhenFormOpens window(u"frmLabelType"_s, [](Form& form) {
            auto& products = Control<QListWidget>(form, u"lstProducts"_s);
            const auto& ok = Control<QWidget>(form, u"cmdbutton_2"_s);
            products.setCurrentRow(0);
            QVERIFY(!ok.isEnabled());
            products.setFocus();
            TypeKey(form, Qt::Key_Return);
            QVERIFY(form.isVisible());
            Control<QListWidget>(form, u"lstNumbers"_s).setCurrentRow(0);
            QVERIFY(ok.isEnabled());
            products.setCurrentRow(1); // takes the numbers of the other product away
            QVERIFY(!ok.isEnabled());
            TypeKey(form, Qt::Key_Escape);
        });
        ClickOn(study.Main(), u"lblLabelType"_s);
        QCOMPARE(gSettings.LabelProduct, 0);
        QCOMPARE(LabelCaption(study), u"Choose"_s);
    }

    void AProductWithoutANumberLeavesAButtonToChooseOne()
    {
        Study study;
        FreshDatabase::Execute(u"Update Settings set LabelProduct=1, LabelNumber=''"_s);
        study.StartAnew();
        QCOMPARE(LabelCaption(study), u"Choose"_s);
    }

    void TheButtonAsksForALabelFirst()
    {
        for (const bool cancelled : {false, true}) { // once by key, once by the mouse
            Study study;
            study.Person.Expect(u"Label Creation Cancelled"_s,
                                u"You need to have some contacts selected to create labels."_s);
            const WhenFormOpens window(u"frmLabelType"_s, [cancelled](Form& form) {
                if (cancelled)
                    ClickOn(form, u"cmdbutton_1"_s);
                else
                    Choose(form, u"Avery Letter Size"_s, u"5160"_s);
            });
            if (cancelled) {
                Control<QWidget>(study.Main(), u"cmdbutton_8"_s).setFocus();
                TypeKey(study.Main(), Qt::Key_Space);
            } else {
                ClickOn(study.Main(), u"cmdbutton_8"_s);
            }
            QCOMPARE(study.Person.LastBox().Picture, Icon::Information);
            QVERIFY(!Control<QAbstractButton>(study.Main(), u"cmdbutton_8"_s).isDown());
            QCOMPARE(gSettings.LabelProduct == 0, cancelled);
            QCOMPARE(m_word->Opened(), QStringList());
        }
    }

    void TheSourceHoldsTheAddresses()
    {
        Study study;
        Study::Select({2, 1});
        static_cast<void>(study.Database.TakeStatements());
        const QString path = AppFile(u"\\Data\\MailLabelSource.txt"_s);
        QCOMPARE(CreateLabelSourceFile(path), path);
        QCOMPARE(study.Database.TakeStatements().first(), u"SELECT FirstName, LastName, MI, MailAddr1, MailAddr2, "
                                                          u"MailCity, MailState, MailZip, MailZip4  FROM Contacts "
                                                          "Where Contacts.ID in (2,1) "_s);
        QCOMPARE(Source(), QByteArray("Name\tAddress1\tAddress2\tCity\tState\tZip\tZip4\r\n"
                                      "Ann Lee\t100 Oak St\tApt 2\tReno\t, NV\t89501\t-1234\r\n"
                                      "Bob M Ray\t7 Pine Rd\t\tReno\t \t89502\t\r\n"));
    }

    void TheLabelsLieOnTheirSheet()
    {
        Study study;
        Study::Select({1, 2});
        const WhenFormOpens window(u"frmLabelType"_s,
                                   [&](Form& form) { Choose(form, u"Avery Letter Size"_s, u"5162"_s); });
        ClickOn(study.Main(), u"cmdbutton_8"_s);
        QCOMPARE(m_word->Opened().size(), 1);
        QCOMPARE(PackageFaults(m_word->Opened()[0]), QStringList());
        const QList<QList<Page>> documents = RenderDocuments(m_word->Opened());
        QCOMPARE(documents.value(0).size(), 1);
        const Page& page = documents[0][0];
        QVERIFY(std::abs(page.Size.width() - 215.9) < 0.5 && std::abs(page.Size.height() - 279.4) < 0.5);
        const auto place = [&page](const QString& text) {
            const auto word = std::ranges::find(page.Words, text, &PageWord::Text);
            return word != page.Words.end() ? word->Place : QRectF();
        };
        const QRectF ann = place(u"Ann"_s);
        const QRectF bob = place(u"Bob"_s);
        QVERIFY(ann.left() > 3.96 && ann.top() > 21.17);
        QVERIFY(std::abs(bob.left() - ann.left() - 106.36) < 0.5);
        // The third line of Bob's label is empty, and stays.
        QVERIFY(place(u"89502"_s).top() - bob.top() > 2 * (place(u"Pine"_s).top() - bob.top()) + 1);
        QVERIFY(page.Lines.join(u' ').simplified().contains("NV 89501-1234"_L1));
    }

    void ALongAddressKeepsItsFourLines()
    {
        // On 30 and on 80 labels a sheet.
        for (const auto& [number, top, height] :
             {std::tuple(u"5160"_s, 12.7, 25.4), std::tuple(u"5167"_s, 12.7, 12.7)}) {
            Study study;
            FreshDatabase::Execute(
                u"Update Contacts set FirstName='Wilhelmina', LastName='Featherstonehaugh-Wolfeschlegel', "
                "MailCity='Winchester-on-the-Severn Heights', MailZip='92688' Where ID=1"_s);
            Study::Select({1});
            gSettings.LabelProduct = 1;
            gSettings.LabelNumber = number;
            LabelsMerge();
            const QList<QList<Page>> documents = RenderDocuments(m_word->Opened().last(1));
            QCOMPARE(documents.value(0).size(), 1);
            const QStringList lines = documents[0][0].Lines;
            QCOMPARE(lines.size(), 4);
            QVERIFY2(lines[3].endsWith("92688-1234"_L1), qPrintable(lines[3]));
            for (const PageWord& word : documents[0][0].Words)
                QVERIFY2(word.Place.top() > top && word.Place.bottom() < top + height, qPrintable(word.Text));
        }
    }

    void AStateThatIsNullEndsTheRun()
    {
        Study study;
        Study::Select({1, 3});
        study.Person.Expect(u"frmMain CreateLabelSourceFile Error #94"_s, u"Invalid use of Null"_s);
        LabelsMerge();
        QCOMPARE(m_word->Opened(), QStringList());
    }

    void ALabelThatNobodyKnowsIsRefused()
    {
        Study study;
        Study::Select({1});
        // No number, a number that nobody has, a product that nobody has, and another maker's number.
        for (const auto& [product, number] :
             {std::pair(1, QString()), std::pair(1, u"0815"_s), std::pair(999, u"5160"_s), std::pair(2, u"5160"_s)}) {
            gSettings.LabelProduct = static_cast<Integer>(product);
            gSettings.LabelNumber = number;
            study.Person.ExpectReport(u"Label Generation Error 5843"_s);
            ClickOn(study.Main(), u"cmdbutton_8"_s);
            study.Person.Done();
            QCOMPARE(m_word->Opened(), QStringList());
            QVERIFY(!study.Person.HourGlassIsOn());
        }
    }
};

QTEST_MAIN(tst_Labels)
#include "tst_Labels.moc"
