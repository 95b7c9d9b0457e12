#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/// The house stands only while an include points down: from a feature to the floors below, never to another feature,
/// and never in a circle.
class tst_Includes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void NoIncludePointsUpOrSideways();
    void CoreAndModelKnowNoWindows();
    void TheWidgetsKnowNoContacts();
    void NoTwoFilesIncludeEachOther();

private:
    /// Every file below src with what it includes, by the paths from src.
    QHash<QString, QStringList> m_includes;
};

namespace {

QString Folder(const QString& path)
{
    return path.section(u'/', 0, 0);
}

/// The floor of a folder, from the ground; the features share one.
int Floor(const QString& folder)
{
    static const QHash<QString, int> floors{{u"core"_s, 0},     {u"model"_s, 1},  {u"ui"_s, 2},     {u"organise"_s, 3},
                                            {u"editors"_s, 3},  {u"alerts"_s, 3}, {u"search"_s, 3}, {u"letters"_s, 3},
                                            {u"transfer"_s, 3}, {u"app"_s, 4}};
    return floors.value(folder, -1);
}

} // namespace

void tst_Includes::initTestCase()
{
    static const QRegularExpression include(uR"(^\s*#\s*include\s*[<"]([^>"]+)[>"])"_s,
                                            QRegularExpression::MultilineOption);
    const QDir source(QStringLiteral(ORVANTINE_SOURCE_DIR "/src"));
    QDirIterator files(source.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList& includes = m_includes[source.relativeFilePath(file.fileName())];
        auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            includes << matches.next().captured(1);
    }
    QVERIFY(m_includes.size() > 100);
}

void tst_Includes::NoIncludePointsUpOrSideways()
{
    QStringList wrong;
    for (auto file = m_includes.cbegin(); file != m_includes.cend(); ++file) {
        const QString from = Folder(file.key());
        QVERIFY2(Floor(from) >= 0, qPrintable(file.key()));
        for (const QString& included : file.value()) {
            const QString to = Folder(included);
            const int floor = Floor(to);
            if (floor >= 0 && from != to && floor >= Floor(from))
                wrong << file.key() + u" -> "_s + included;
        }
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
}

void tst_Includes::CoreAndModelKnowNoWindows()
{
    static const QSet<QString> windowed{u"QWidget"_s, u"QApplication"_s, u"QMessageBox"_s, u"QDialog"_s, u"QColor"_s,
                                        u"QFont"_s,   u"QPixmap"_s,      u"QtWidgets"_s,   u"QtGui"_s};
    for (auto file = m_includes.cbegin(); file != m_includes.cend(); ++file) {
        if (Floor(Folder(file.key())) > 1)
            continue;
        for (const QString& included : file.value())
            QVERIFY2(!windowed.contains(Folder(included)), qPrintable(file.key() + u" -> "_s + included));
    }
}

void tst_Includes::TheWidgetsKnowNoContacts()
{
    for (auto file = m_includes.cbegin(); file != m_includes.cend(); ++file) {
        if (!file.key().startsWith("ui/widgets/"_L1))
            continue;
        for (const QString& included : file.value())
            QVERIFY2(!included.startsWith("model/"_L1) && !included.startsWith("ui/frame/"_L1),
                     qPrintable(file.key() + u" -> "_s + included));
    }
}

void tst_Includes::NoTwoFilesIncludeEachOther()
{
    // Peel off every file whose includes are all peeled off already; what stays is a circle.
    QHash<QString, QStringList> left = m_includes;
    for (bool peeled = true; peeled;) {
        peeled = false;
        for (auto file = left.begin(); file != left.end();) {
            const bool free = std::none_of(file->cbegin(), file->cend(),
                                           [&](const QString& included) { return left.contains(included); });
            if (free) {
                file = left.erase(file);
                peeled = true;
            } else {
                ++file;
            }
        }
    }
    QVERIFY2(left.isEmpty(), qPrintable(left.keys().join(u'\n')));
}

QTEST_APPLESS_MAIN(tst_Includes)
#include "tst_Includes.moc"
