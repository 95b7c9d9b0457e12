#include "letters/WordProcessor.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"
#include "support/Windows.h"
#include "support/WordReader.h"

#include "app/Composition.h"
#include "core/adodb/Connection.h"
#include "letters/LabelsMerge.h"
#include "letters/MailMerge.h"
#include "model/Categories.h"
#include "model/Contact.h"
#include "model/LoadContacts.h"
#include "model/Main.h"

#include <QProcess>
#include <QTest>
#include <algorithm>

using namespace Qt::StringLiterals;

/// The invented agency at work: forty of its contacts get a letter and a label.
class tst_SampleMerge : public QObject
{
    Q_OBJECT

private:
    static constexpr int many = 40;

    std::unique_ptr<FreshDatabase> m_database;
    std::unique_ptr<ScriptedUser> m_user;
    std::unique_ptr<WordProcessor> m_processor;
    std::unique_ptr<Composition> m_program;

private Q_SLOTS:
    void initTestCase()
    {
        m_database = std::make_unique<FreshDatabase>();
        m_user = std::make_unique<ScriptedUser>();
        gConn.Close();
        QCOMPARE(
            QProcess::execute(QStringLiteral(MAKE_SAMPLE), {u"--contacts"_s, u"500"_s, u"--today"_s, u"2026-11-22"_s,
                                                            u"--database"_s, m_database->DatabaseFile()}),
            0);
        m_database->StartAnew();
        LoadCategories();
        m_program = std::make_unique<Composition>();
        LoadContacts([](int) {});
        const QStringList all = FreshDatabase::Rows(u"Select ID from Contacts Where MailState>=0"_s);
        for (const QString& id : all.mid(all.size() / 2, many)) {
            curContact = ContactAt(id.toInt());
            SelectCurContact();
        }
        QCOMPARE(gSelected.Ids().size(), std::size_t(many));
    }
    void init() { m_processor = std::make_unique<WordProcessor>(); }
    void cleanup() { m_processor.reset(); }
    void cleanupTestCase()
    {
        m_program.reset();
        m_user.reset();
        m_database.reset();
    }

    void FortyLettersNameTheirContactsAndHouses()
    {
        MailMerge(u"!<FormattedName>!\r\n!<MailAddr1>!\r\n\r\nDear !<Salutation>!,\r\n\r\nyour house at [!<Addr1>!] is "
                  "on offer for [!<AskingPrice>!]. <b>Call us</b>."_s);
        QCOMPARE(PackageFaults(m_processor->Opened().value(0)), QStringList());
        const QList<Page> letters = RenderDocuments(m_processor->Opened()).value(0);
        QCOMPARE(letters.size(), many);
        QStringList names;
        QStringList houses;
        for (const Page& letter : letters) {
            names << letter.Lines.value(0);
            houses << letter.Lines.join(u' ').section(u'[', 1).section(u']', 0, 0);
        }
        QStringList ids;
        for (const Long id : gSelected.Ids())
            ids << QString::number(id);
        QStringList stored =
            FreshDatabase::Rows(u"Select FormattedName from Contacts Where ID in (%1)"_s.arg(ids.join(u',')));
        std::ranges::sort(names);
        std::ranges::sort(stored);
        QCOMPARE(names, stored);
        QStringList addresses = FreshDatabase::Rows(
            u"Select Addr1 from PropDetail,Contacts Where PropDetail.ID=DefaultProperty And Contacts.ID in (%1)"_s.arg(
                ids.join(u',')));
        houses.removeAll(QString());
        std::ranges::sort(houses);
        std::ranges::sort(addresses);
        QVERIFY(!addresses.isEmpty());
        QCOMPARE(houses, addresses);
    }

    void FortyLabelsTakeTwoSheets()
    {
        gSettings.LabelProduct = 1;
        gSettings.LabelNumber = u"5160"_s;
        LabelsMerge();
        const QList<Page> sheets = RenderDocuments(m_processor->Opened()).value(0);
        QCOMPARE(sheets.size(), 2);
        constexpr int perSheet = 30, across = 3;
        constexpr double top = 12.7, pitch = 25.4;
        for (int sheet = 0; sheet < 2; ++sheet) {
            const int labels = std::min(perSheet, many - sheet * perSheet);
            const double end = top + (labels + across - 1) / across * pitch;
            double lowest = 0;
            for (const PageWord& word : sheets[sheet].Words)
                lowest = std::max(lowest, word.Place.bottom());
            QVERIFY2(lowest < end && lowest > end - pitch, qPrintable(QString::number(lowest)));
        }
    }
};

QTEST_MAIN(tst_SampleMerge)
#include "tst_SampleMerge.moc"
