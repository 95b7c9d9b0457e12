#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

int Install(const QString& folder)
{
    return QProcess::execute(QStringLiteral(CMAKE),
                             {u"--install"_s, QStringLiteral(ORVANTINE_BINARY_DIR), u"--prefix"_s, folder});
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// What comes with the program: the installed folder, the pictures and the menu entry.
class DeliveryTest : public QObject
{
    Q_OBJECT

private slots:
    void AnInstallBringsTheDatabaseOnceAndNeverAgain();
    void APictureIsLightEnoughToReadOn_data();
    void APictureIsLightEnoughToReadOn();
    void EveryIconIsThereAndPaintsSomething_data();
    void EveryIconIsThereAndPaintsSomething();
    void TheMenuEntryIsValid();
};

void DeliveryTest::AnInstallBringsTheDatabaseOnceAndNeverAgain()
{
    QTemporaryDir home;
    const QString folder = home.filePath(u"An Agent's Folder"_s);
    const QString data = folder + u"/Data/Contacts.mdb"_s;
    QCOMPARE(Install(folder), 0);
    QVERIFY(!Read(data).isEmpty());
    QCOMPARE(QFileInfo(data).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QCOMPARE(QDir(folder + u"/Resource/Images"_s).entryList({u"*.jpg"_s}).size(), 6);
    QVERIFY(Read(folder + u"/share/applications/orvantine.desktop"_s)
                .contains("Exec=\"" + folder.toUtf8() + "/orvantine\""));

    QFile file(data);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("a life's work");
    file.close();
    QCOMPARE(Install(folder), 0);
    QCOMPARE(Read(data), "a life's work");
    QCOMPARE(QDir(folder + u"/Data"_s).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"Contacts.mdb"_s});
}

void DeliveryTest::APictureIsLightEnoughToReadOn_data()
{
    QTest::addColumn<QString>("file");
    for (const char* name : {"Impressionist1", "Impressionist2", "HazeBlue", "HazeRed", "HazeYellow", "HazeGreen"})
        QTest::newRow(name) << QLatin1StringView(name) + ".jpg"_L1;
}

void DeliveryTest::APictureIsLightEnoughToReadOn()
{
    QFETCH(QString, file);
    const QImage picture(QDir(QStringLiteral(IMAGES)).filePath(file));
    QCOMPARE(picture.size(), QSize(1280, 800));
    int darkest = 255;
    for (int y = 0; y < picture.height(); y += 2) {
        for (int x = 0; x < picture.width(); x += 2)
            darkest = std::min(darkest, qGray(picture.pixel(x, y)));
    }
    QVERIFY2(darkest >= 205, qPrintable(QString::number(darkest)));
}

void DeliveryTest::EveryIconIsThereAndPaintsSomething_data()
{
    QTest::addColumn<QString>("resource");
    for (const char* name :
         {"Cancel",      "Clear",         "ClearAll",    "Delete",     "Exit",        "Labels",      "Merge",
          "Modify",      "New",           "Ok",          "Save",       "SaveAndExit", "SaveNAdd",    "Search",
          "Arrow",       "ArrowBright",   "Bell",        "BellBright", "House",       "HouseBright", "Stamp",
          "StampBright", "DirectionDown", "DirectionUp", "GreenLight", "PinkLight",   "RedLight",    "YellowLight",
          "red",         "yellow",        "white",       "checked",    "house",       "calendar",    "camera",
          "photo",       "video",         "default",     "orvantine"})
        QTest::newRow(name) << u":/icons/%1.svg"_s.arg(QLatin1StringView(name));
}

void DeliveryTest::EveryIconIsThereAndPaintsSomething()
{
    QFETCH(QString, resource);
    QSvgRenderer icon(resource);
    QVERIFY(icon.isValid());
    QImage picture(24, 24, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    icon.render(&painter);
    painter.end();
    int painted = 0;
    for (int i = 0; i < 24 * 24; ++i)
        painted += qAlpha(picture.pixel(i % 24, i / 24)) > 127 ? 1 : 0;
    QVERIFY(painted > 30);
}

void DeliveryTest::TheMenuEntryIsValid()
{
    const QString packaging = QStringLiteral(ORVANTINE_SOURCE_DIR "/packaging/");
    QCOMPARE(QProcess::execute(u"desktop-file-validate"_s, {packaging + u"orvantine.desktop"_s}), 0);
    QCOMPARE(QProcess::execute(u"appstreamcli"_s,
                               {u"validate"_s, u"--no-net"_s, packaging + u"org.orvantine.Orvantine.metainfo.xml"_s}),
             0);
}

QTEST_MAIN(DeliveryTest)
#include "DeliveryTest.moc"
