#include "core/Clock.h"
#include "core/RunTimeError.h"
#include "editors/PhotoPreview.h"
#include "editors/PropertyDesk.h"
#include "editors/RecordingFaces.h"
#include "support/Columns.h"
#include "ui/widgets/CommonDialog.h"
#include "ui/widgets/OpenFile.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Confirm = "Please Confirm Before I Proceed"_L1;

/// The file that the person chooses, and the files that were opened.
class Files
{
public:
    Files()
    {
        CommonDialog::SetSource([this](const CommonDialog& dialog, bool) {
            Proposed = dialog.FileName;
            return Chosen;
        });
        SetFileOpener([this](const QString& path) {
            Opened << path;
            return Opens;
        });
    }
    ~Files()
    {
        CommonDialog::SetSource({});
        SetFileOpener({});
    }

    /// A file with something in it, in a folder that has an apostrophe in its name.
    [[nodiscard]] QString Make(const QString& name)
    {
        const QDir folder(Folder.path());
        folder.mkpath(u"Ann's"_s);
        QFile file(folder.filePath(u"Ann's/"_s + name));
        if (!file.open(QIODevice::WriteOnly) || file.write("not a picture") < 0)
            qFatal("the file cannot be made");
        return file.fileName();
    }

    QTemporaryDir Folder;
    QString Chosen;
    QString Proposed = u"nothing yet"_s;
    QStringList Opened;
    bool Opens = true;
};

} // namespace

class tst_frmPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void each_property_has_a_row()
    {
        PropertyDesk desk;
        PropertyDesk::Property(2).ClosingDate = u"12/31/2099"_s;
        PropertyDesk::Property(2).Video = u"/videos/oak.mp4"_s;
        curPropertyID = 2;
        OpenPropertyList list;
        QCOMPARE(list.Rows().Columns(), 37);
        QCOMPARE(list.Form().windowTitle(), u"Ann Lee Properties"_s);
        QCOMPARE(desk.User.LastStatus(), u"Ann Lee properties"_s);
        QCOMPARE(list.Ids(), (std::vector<Long>{1, 2}));
        // It begins on the property that the person came for.
        QCOMPARE(list.Rows().SelectedRow(), 2);
        QCOMPARE(list.Form().SelectedHeader(), u"Address1"_s);

        const std::pair<QStringView, QString> texts[]{
            {u"MLS#", u"M100"_s},          {u"State", u"FL"_s},
            {u"SqFt", u"1850"_s},          {u"Baths", u"2.5"_s},
            {u"MaintFee", u"$1,250.50"_s}, {u"AskingPrice", u"$350,000.00"_s},
            {u"Rented", u"No"_s},          {u"ListingDate", u"01/05/2026"_s},
            {u"SoldPrice", u"$.00"_s},     {u"Closed", QString()},
        };
        for (const auto& [key, text] : texts)
            QCOMPARE(list.Text(1, key), text);
        QCOMPARE(list.Text(2, u"Closed"), u"No"_s);
        QCOMPARE(list.Icon(1, u"Default"), u"default"_s);
        QCOMPARE(list.Icon(1, u"Camera"), u"camera"_s);
        QCOMPARE(list.Icon(1, u"Video"), QString());
        QCOMPARE(list.Icon(2, u"Default"), QString());
        QCOMPARE(list.Icon(2, u"Video"), u"video"_s);
    }

    void a_date_is_closed_from_the_next_day_on()
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 5, 12), QTime(9, 41)); });
        for (const auto& [date, closed] : {std::pair(u"12/31/2025"_s, u"Yes"_s), std::pair(u"05/11/2026"_s, u"Yes"_s),
                                           std::pair(u"05/12/2026"_s, u"No"_s), std::pair(u"01/01/2027"_s, u"No"_s),
                                           std::pair(u"soon"_s, QString())}) {
            const PropertyDesk desk;
            PropertyDesk::Property(1).ClosingDate = date;
            OpenPropertyList list;
            QCOMPARE(list.Text(1, u"Closed"), closed);
        }
        Clock::SetSource({});
    }

    void without_properties_the_editor_comes_up_once_data()
    {
        QTest::addColumn<Long>("mode");
        QTest::addColumn<bool>("saves");
        for (const Long mode : {EditMode::NewProperty, EditMode::ModifyProperty})
            for (const bool saves : {true, false})
                QTest::addRow("%d, %s", mode, saves ? "saved" : "cancelled") << mode << saves;
    }

    void without_properties_the_editor_comes_up_once()
    {
        QFETCH(const Long, mode);
        QFETCH(const bool, saves);
        PropertyDesk desk;
        curContact = ContactAt(2);
        gEditMode = mode;
        const WhenFormOpens script(u"frmProperty"_s, [saves](Form& form) {
            QCOMPARE(frmPropertyList::Loaded()->Rows(), 1);
            form.findChild<SheetEditor*>()->GoTo(RowOf(PropertyField::Addr1));
            TypeText(form, u"9 Bay Road"_s);
            TypeKey(form, saves ? Qt::Key_S : Qt::Key_C, Qt::AltModifier);
            QTRY_VERIFY(form.IsUnloaded());
        });
        OpenPropertyList list;
        QCOMPARE(desk.EditorCalls, 1);
        QCOMPARE(list.Ids(), saves ? std::vector<Long>{3} : std::vector<Long>{});
        if (!saves) {
            QVERIFY(list.Form().windowTitle().endsWith(u"0 properties for Bob Ray"_s));
            return;
        }
        QCOMPARE(list.Form().windowTitle(), u"Bob Ray Properties"_s);
        QCOMPARE(desk.User.LastStatus(), u"Bob Ray properties"_s);
        QCOMPARE(list.Icon(1, u"Default"), u"default"_s);
    }

    void the_default_is_changed_after_a_question()
    {
        PropertyDesk desk;
        OpenPropertyList list;
        const QString question =
            u"Do you want me to set the property located at 2 Oak Lane\r\nas the new default property for Ann Lee?"_s;
        desk.User.Expect(Confirm, question, Answer::No);
        list.DoubleClick(2, u"Default");
        QCOMPARE(ContactAt(1)->DefaultProperty, 1);
        desk.User.Expect(Confirm, question, Answer::Yes);
        list.Choose("mnuDefault");
        QCOMPARE(FreshDatabase::Rows(u"Select DefaultProperty from Contacts Where ID=1"_s), QStringList{u"2"_s});
        QCOMPARE(list.Icon(1, u"Default"), QString());
        QCOMPARE(list.Icon(2, u"Default"), u"default"_s);
        desk.User.Expect(u"the property located at 2 Oak Lane is the Default Property"_s,
                         u"This property is already Ann Lee's Default Property."_s);
        list.Choose("mnuDefault");
    }

    void deleting_data()
    {
        QTest::addColumn<std::vector<int>>("rows");
        QTest::addColumn<Long>("standing"); // the default property before
        AddColumns<QString, Long, QString>({"left", "then", "takesOver"});
        using Rows = std::vector<int>;
        QTest::newRow("another one") << Rows{2} << 1 << u"1,3"_s << 1 << QString();
        QTest::newRow("the default one") << Rows{1} << 1 << u"2,3"_s << 2 << u"the property located at 2 Oak Lane"_s;
        QTest::newRow("the default one at the end")
            << Rows{3} << 3 << u"1,2"_s << 2 << u"the property located at 2 Oak Lane"_s;
        QTest::newRow("two with the default one") << Rows{1, 2} << 1 << u"3"_s << 3 << u"M300"_s;
        QTest::newRow("all") << Rows{1, 2, 3} << 1 << QString() << 0 << QString();
    }

    void deleting()
    {
        QFETCH(const std::vector<int>, rows);
        QFETCH(const Long, standing);
        QFETCH(const QString, left);
        QFETCH(const QString, takesOver);
        PropertyDesk desk;
        FreshDatabase::Execute(u"Insert into PropDetail (ContactID,MLS,SqFt,Rooms,Baths) Values (1,'M300',0,0,0)"_s);
        ContactAt(1)->LoadProperties();
        ContactAt(1)->DefaultProperty = standing;
        RecordingList contacts;
        RecordingFound found;
        OpenPropertyList list;
        list.Click(rows.front(), u"City");
        list.Click(rows.back(), u"City", Qt::ShiftModifier);
        const QString question = rows.size() == 1
                                     ? u"Do you want me to permanently delete this property?"_s
                                     : u"Do you want me to permanently delete all the highlighted properties?"_s;
        const QStringList before = FreshDatabase::WholeFile();
        desk.User.Expect(Confirm, question, Answer::No);
        list.Choose("mnuDelete");
        QCOMPARE(desk.User.LastStatus(), u"Delete cancelled"_s);
        QCOMPARE(FreshDatabase::WholeFile(), before);

        desk.User.Expect(Confirm, question, Answer::Yes);
        if (!takesOver.isEmpty())
            desk.User.Expect(u"New Default Property"_s, u"Ann Lee's new default property is now "_s + takesOver);
        list.Choose("mnuDelete");
        QCOMPARE(FreshDatabase::Rows(u"Select ID from PropDetail order by ID"_s).join(u','), left);
        QCOMPARE(static_cast<qsizetype>(list.Ids().size()), curContact->Properties.Count());
        QTEST(ContactAt(1)->DefaultProperty, "then");
        if (!takesOver.isEmpty())
            QCOMPARE(list.Icon(list.Rows().SelectedRow(), u"Default"), u"default"_s);
        QCOMPARE(contacts.Log.last(), u"ShowPropertyCount 1 %1"_s.arg(curContact->Properties.Count()));
        QCOMPARE(found.Removed.size(), rows.size());
        QCOMPARE(found.Counted, 1);
        if (!list.Ids().empty())
            QCOMPARE(curPropertyID, list.Rows().RowItemData(list.Rows().SelectedRow()));
    }

    void the_highlighted_row_is_deleted_where_another_one_is_selected()
    {
        PropertyDesk desk;
        OpenPropertyList list;
        list.Click(1, u"City");
        list.Click(2, u"City", Qt::ControlModifier);
        list.Click(2, u"City", Qt::ControlModifier);
        QCOMPARE(list.Form().Highlighted(), std::vector<Long>{1});
        QCOMPARE(list.Entry("mnuDelete").text(), u"Delete M100"_s);
        desk.User.Expect(Confirm, u"Do you want me to permanently delete this property?"_s, Answer::Yes);
        desk.User.Expect(u"New Default Property"_s,
                         u"Ann Lee's new default property is now the property located at 2 Oak Lane"_s);
        list.Choose("mnuDelete");
        QCOMPARE(list.Ids(), std::vector<Long>{2});
        QCOMPARE(FreshDatabase::Rows(u"Select ID from PropDetail"_s), QStringList{u"2"_s});
    }

    void a_click_on_a_header_makes_the_first_row_the_one_that_is_changed()
    {
        const PropertyDesk desk;
        OpenPropertyList list;
        list.Click(1, u"City");
        Q_EMIT list.Rows().ColumnClick(list.Rows().ColumnIndex(u"Address1"));
        QCOMPARE(list.Ids(), (std::vector<Long>{2, 1}));
        QCOMPARE(curPropertyID, 2);
        const WhenFormOpens editor(u"frmProperty"_s, [](Form& form) {
            const auto& sheet = *form.findChild<SheetEditor*>();
            QCOMPARE(sheet.Value(RowOf(PropertyField::Addr1)), u"2 Oak Lane"_s);
        });
        list.Choose("mnuModify");
    }

    void the_menu_follows_the_rows_and_the_files()
    {
        PropertyDesk desk;
        OpenPropertyList list;
        const auto enabled = [&list](std::initializer_list<const char*> names) {
            QStringList on;
            for (const char* name : names)
                if (list.Entry(name).isEnabled())
                    on << QString::fromLatin1(name);
            return on;
        };
        const std::initializer_list<const char*> files{"mnuPhotoSelect", "mnuPhotoView", "mnuPhotoClear",
                                                       "mnuVideoSelect", "mnuVideoPlay", "mnuVideoClear"};
        QCOMPARE(enabled(files), (QStringList{u"mnuPhotoView"_s, u"mnuPhotoClear"_s, u"mnuVideoSelect"_s}));
        QCOMPARE(list.Entry("mnuDelete").text(), u"Delete M100"_s);
        list.Click(2, u"City");
        QCOMPARE(enabled(files), (QStringList{u"mnuPhotoSelect"_s, u"mnuVideoSelect"_s}));
        QCOMPARE(list.Entry("mnuDelete").text(), u"Delete the property located at 2 Oak Lane"_s);

        const std::initializer_list<const char*> one{"mnuDefault", "mnuModify", "mnuNew", "mnuNotes"};
        QCOMPARE(enabled(one).size(), 4);
        list.Click(1, u"City", Qt::ShiftModifier);
        QCOMPARE(enabled(one), QStringList());
        QCOMPARE(list.Entry("mnuDelete").text(), u"Delete the 2 Highlighted Properties"_s);
        QVERIFY(!list.Entry("mnuWord").isEnabled());

        desk.User.Expect(Confirm, u"Do you want me to permanently delete all the highlighted properties?"_s,
                         Answer::Yes);
        list.Choose("mnuDelete");
        QCOMPARE(list.Entry("mnuDelete").text(), u"Delete this Property"_s);
        QVERIFY(!list.Entry("mnuDelete").isEnabled());
    }

    void a_right_click_opens_the_menu_on_its_row()
    {
        const PropertyDesk desk;
        OpenPropertyList list;
        auto& menu = Control<QMenu>(list.Form(), u"mnuProperty"_s);
        const QModelIndex cell = list.Rows().model()->index(1, list.Rows().ColumnIndex(u"City") - 1);
        QTest::mouseClick(list.Rows().viewport(), Qt::RightButton, {}, list.Rows().visualRect(cell).center());
        QTRY_VERIFY(menu.isVisible());
        QCOMPARE(gFocusField, u"City"_s);
        QCOMPARE(curPropertyID, 2);
        menu.close();
        TypeKey(list.Form(), Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(menu.isVisible());
        menu.close();
    }

    void notes_are_those_of_the_property()
    {
        const PropertyDesk desk;
        OpenPropertyList list;
        gEditMode = EditMode::NewProperty;
        list.Choose("mnuNotes");
        QCOMPARE(desk.NotesMode, EditMode::ModifyProperty);
    }

    void a_file_is_chosen_opened_and_cleared_data()
    {
        AddColumns<QString, QString, QString, bool>({"key", "word", "column", "deletes"});
        QTest::newRow("photo") << u"Camera"_s << u"photo"_s << u"Picture"_s << true;
        QTest::newRow("video") << u"Video"_s << u"video"_s << u"Video"_s << true;
        QTest::newRow("a file that stays") << u"Camera"_s << u"photo"_s << u"Picture"_s << false;
    }

    void a_file_is_chosen_opened_and_cleared()
    {
        QFETCH(const QString, key);
        QFETCH(const QString, word);
        QFETCH(const QString, column);
        QFETCH(const bool, deletes);
        PropertyDesk desk;
        Files files;
        OpenPropertyList list;
        const QString selection = u"Select "_s + column + u" from PropDetail Where ID=2"_s;
        const bool photo = word == "photo"_L1;

        // Nothing was chosen.
        list.DoubleClick(2, key);
        QCOMPARE(files.Proposed, QString());
        QCOMPARE(list.Icon(2, key), QString());

        files.Chosen = files.Make(u"oak.file"_s);
        list.DoubleClick(2, key);
        QCOMPARE(list.Icon(2, key), key.toLower());
        QCOMPARE(FreshDatabase::Rows(selection), QStringList{files.Chosen});
        list.DoubleClick(2, key);
        QCOMPARE(files.Opened, QStringList{files.Chosen});

        const char* clear = photo ? "mnuPhotoClear" : "mnuVideoClear";
        const QString question =
            u"Do you want me to clear the "_s + word + u" selection for the property located at 2 Oak Lane?"_s;
        desk.User.Expect(Confirm, question, Answer::No);
        list.Choose(clear);
        QCOMPARE(list.Icon(2, key), key.toLower());
        desk.User.Expect(Confirm, question, Answer::Yes);
        desk.User.Expect(u"Video Selection has been Cleared"_s,
                         u"The "_s + word + u" selection has been cleared. Do you want to delete the "_s + word +
                             u" file:\r\n"_s + files.Chosen + u"\r\nfrom the hard disk?"_s,
                         deletes ? Answer::Yes : Answer::No);
        if (deletes)
            desk.User.Expect(u"Delete Successful"_s, u"The "_s + word + u" file has been deleted from your disk"_s);
        list.Choose(clear);
        QCOMPARE(list.Icon(2, key), QString());
        QCOMPARE(FreshDatabase::Rows(selection), QStringList{QString()});
        QCOMPARE(QFile::exists(files.Chosen), !deletes);
    }

    void a_file_that_is_gone_is_said()
    {
        PropertyDesk desk;
        Files files;
        OpenPropertyList list;
        desk.User.Expect(u"Photo File is Missing"_s, u"I could not find the photo file:\r\n/photos/elm.jpg"_s);
        list.DoubleClick(1, u"Camera");
        QCOMPARE(files.Opened, QStringList());

        PropertyDesk::Property(1).Picture = files.Make(u"elm.xyz"_s);
        files.Opens = false;
        desk.User.Expect(u"Photo could not be Opened"_s,
                         u"I found no program that opens the photo file:\r\n"_s + PropertyDesk::Property(1).Picture);
        list.DoubleClick(1, u"Camera");

        QVERIFY(QFile::remove(PropertyDesk::Property(1).Picture));
        desk.User.Expect(Confirm, u"Do you want me to clear the photo selection for M100?"_s, Answer::Yes);
        desk.User.Expect(u"Video Selection has been Cleared"_s,
                         u"The photo selection has been cleared. Do you want to delete the photo file:\r\n"_s +
                             PropertyDesk::Property(1).Picture + u"\r\nfrom the hard disk?"_s,
                         Answer::Yes);
        desk.User.Expect(u"frmPropertyList mnuPhotoClear_Click Error #53"_s, RunTimeError::StandardDescription(53));
        list.Choose("mnuPhotoClear");
        QCOMPARE(PropertyDesk::Property(1).Picture, QString());
    }

    void the_photo_shows_where_it_can_be_read_data()
    {
        AddColumns<QString, QSize, bool>({"name", "size", "shows"});
        QTest::newRow("a camera's") << u"a.jpg"_s << QSize(5000, 4000) << true;
        QTest::newRow("60 megapixels") << u"b.jpg"_s << QSize(10000, 6000) << false;
        QTest::newRow("not scaled, too large") << u"d.bmp"_s << QSize(4000, 3000) << false;
        QTest::newRow("another ending") << u"e.jpg"_s << QSize() << true;
        QTest::newRow("cut in the middle") << u"g.jpg"_s << QSize() << false;
        QTest::newRow("missing") << QString() << QSize() << false;
    }

    void the_photo_shows_where_it_can_be_read()
    {
        QFETCH(const QString, name);
        QFETCH(const QSize, size);
        QFETCH(const bool, shows);
        const PropertyDesk desk;
        Files files;
        QString path = u"/nowhere/at/all.jpg"_s;
        if (!size.isEmpty()) {
            path = files.Folder.filePath(name);
            QImage photo(size, QImage::Format_Grayscale8);
            photo.fill(Qt::gray);
            QVERIFY(photo.save(path));
        } else if (name == "e.jpg"_L1) {
            path = files.Folder.filePath(name);
            QImage photo(300, 600, QImage::Format_RGB32);
            photo.fill(Qt::red);
            QVERIFY(photo.save(path, "PNG"));
        } else if (name == "g.jpg"_L1) {
            path = files.Make(name);
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000ffdb0043"));
        } else if (!name.isEmpty()) {
            path = files.Make(name);
        }
        PropertyDesk::Property(1).Picture = path;
        OpenPropertyList list;
        const auto& preview = Control<PhotoPreview>(list.Form(), u"Photo"_s);
        if (shows) {
            QTRY_VERIFY(!preview.Photo().isNull());
            QVERIFY(preview.Photo().width() <= preview.width() && preview.Photo().height() <= preview.height());
        } else {
            QTRY_COMPARE(preview.accessibleDescription(), u"The photo cannot be shown here."_s);
            QVERIFY(preview.Photo().isNull());
        }
        // The property beneath has no photo.
        list.Click(2, u"City");
        QVERIFY(preview.Photo().isNull());
    }

    void the_photo_goes_with_the_row_that_the_editor_leaves_selected()
    {
        const PropertyDesk desk;
        const Files files;
        const QString path = files.Folder.filePath(u"elm.png"_s);
        QImage photo(40, 30, QImage::Format_RGB32);
        photo.fill(Qt::red);
        QVERIFY(photo.save(path));
        PropertyDesk::Property(1).Picture = path;
        OpenPropertyList list;
        const auto& preview = Control<PhotoPreview>(list.Form(), u"Photo"_s);
        QTRY_VERIFY(!preview.Photo().isNull());
        const WhenFormOpens editor(u"frmProperty"_s, [](Form& form) {
            TypeKey(form, Qt::Key_A, Qt::AltModifier);
            form.findChild<SheetEditor*>()->GoTo(RowOf(PropertyField::Addr1));
            TypeText(form, u"3 Fir Way"_s);
            TypeKey(form, Qt::Key_S, Qt::AltModifier);
            QTRY_VERIFY(form.IsUnloaded());
        });
        list.DoubleClick(1, u"City");
        QCOMPARE(list.Rows().SelectedRow(), 3);
        QTRY_VERIFY(preview.Photo().isNull());
    }
};

QTEST_MAIN(tst_frmPropertyList)
#include "tst_frmPropertyList.moc"
