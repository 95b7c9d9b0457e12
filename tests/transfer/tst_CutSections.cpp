#include "support/Columns.h"
#include "transfer/CutSections.h"

#include <QBuffer>
#include <QTest>
#include <list>

using namespace Qt::StringLiterals;

/// The cutting of a transfer file into its sections.
class tst_CutSections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void IsCutBehindClosingTags_data();
    void IsCutBehindClosingTags();
};

void tst_CutSections::IsCutBehindClosingTags_data()
{
    AddColumns<QByteArray, int, bool, QList<QByteArray>>({"file", "sections", "lastTakesRest", "cut"});

    const auto row = [](const char* name, const char* file, int sections, bool rest, const QList<QByteArray>& cut) {
        QTest::newRow(name) << QByteArray(file) << sections << rest << cut;
    };
    row("no tag", "<a>\n<b>", 2, false, {"<a>\r\n<b>\r\n"});
    row("two on one line", "<a></xml><b>\r\n</xml>", 2, false, {"<a></xml>\r\n", "<b>\r\n</xml>\r\n"});
    row("only the first of a line", "1</xml>2</xml>3", 3, false, {"1</xml>\r\n", "2</xml>3\r\n"});
    row("nothing behind the tag", "1</xml>\r\n2</xml>\r\n", 2, true, {"1</xml>\r\n", "\r\n2</xml>\r\n"});
    row("the last of an import ends", "1</xml>2\n</xml>3\n4", 2, false, {"1</xml>\r\n", "2\r\n</xml>\r\n"});
    row("the last of a restore goes on", "1</xml>2\n</xml>3\n4", 2, true, {"1</xml>\r\n", "2\r\n</xml>3\r\n4\r\n"});
    row("another case is no tag", "1</XML>\n2", 2, false, {"1</XML>\r\n2\r\n"});
    row("lone CR is data", "\rx\ry\n\r", 1, true, {"\rx\ry\r\n\r\r\n"});
    row("empty lines stay", "\n\r\n", 1, true, {"\r\n\r\n"});
}

void tst_CutSections::IsCutBehindClosingTags()
{
    QFETCH(QByteArray, file);
    QFETCH(int, sections);
    QFETCH(bool, lastTakesRest);
    QBuffer source(&file);
    source.open(QIODevice::ReadOnly);
    std::list<QBuffer> written;
    CutSections(source, {sections, lastTakesRest}, [&written](int section) -> QIODevice& {
        if (section != std::ssize(written))
            qFatal("sections come in their order");
        written.emplace_back().open(QIODevice::WriteOnly);
        return written.back();
    });
    QList<QByteArray> got;
    for (QBuffer& section : written)
        got << section.buffer();
    QTEST(got, "cut");
}

QTEST_APPLESS_MAIN(tst_CutSections)
#include "tst_CutSections.moc"
