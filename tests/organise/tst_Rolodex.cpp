#include "model/DeleteContacts.h"
#include "organise/Desk.h"
#include "organise/Rolodex.h"
#include "ui/widgets/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QListWidget>

using namespace Qt::StringLiterals;

class tst_Rolodex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ALetterShowsItsContactsUnsorted();
    void SelectionShowsInEitherView();
    void ManyAreSelectedAndUnselectedTogether();
    void UnselectingAllEmptiesTheSelectedView();
    void TheMenuOffersTheOtherState();
    void KeysDoWhatTheMouseDoes();
    void AReleaseOnAnotherLetterShowsTheCurrentOne();
    void ADoubleClickShowsTheContactInItsList();
    void ADeletedContactLeavesTheRolodex();

private:
    /// A desk whose first tab has the Rolodex too.
    struct RolodexDesk : Desk
    {
        RolodexDesk()
        {
            ContactAt(1)->LastName = u"day"_s;
            ContactAt(2)->HomePhone = u"(215) 555-0101"_s;
            Main->AddContactsPanel(Browser, 1);
            QTest::qWait(0);
        }
        void ClickLetter(QChar letter)
        {
            auto& letters = Control<QListWidget>(*Browser, u"lstRolodex"_s);
            QListWidgetItem* item = letters.item(letter.unicode() - u'A');
            letters.scrollToItem(item);
            QTest::mouseClick(letters.viewport(), Qt::LeftButton, {}, letters.visualItemRect(item).center());
        }
        [[nodiscard]] Grid& Cards() const { return Control<Grid>(*Browser, u"GridRolodex"_s); }
        [[nodiscard]] QStringList Texts(int column = 1) const
        {
            QStringList texts;
            for (int row = 1; row <= Cards().Rows(); ++row)
                texts << Cards().CellText(row, column);
            return texts;
        }

        Rolodex* Browser = new Rolodex;
    };
};

void tst_Rolodex::ALetterShowsItsContactsUnsorted()
{
    RolodexDesk desk;
    QCOMPARE(Control<QListWidget>(*desk.Browser, u"lstRolodex"_s).item(25)->text(), u"Z "_s);
    desk.ClickLetter(u'D');
    QCOMPARE(desk.Texts(), (QStringList{u" Ann day"_s, u" Cy Day"_s}));
    desk.ClickLetter(u'R');
    QCOMPARE(desk.Texts(), QStringList{u"(215) 555-0101 Bob M Ray"_s});
    QCOMPARE(desk.Cards().RowItemData(1), 2);
    // The same letter once more shows what has changed since.
    ContactAt(4)->LastName = u"Rose"_s;
    desk.ClickLetter(u'R');
    QCOMPARE(desk.Texts().size(), 2);
    desk.ClickLetter(u'X');
    QCOMPARE(desk.Cards().Rows(), 0);
}

void tst_Rolodex::SelectionShowsInEitherView()
{
    RolodexDesk desk;
    desk.ClickLetter(u'R');
    curContact = ContactAt(2);
    SelectCurContact();
    QCOMPARE(desk.Cards().CellColor(1, 1), Theme::Green);
    QVERIFY(desk.Cards().CellFont(1, 1).bold() && desk.Cards().CellFont(1, 1).italic());
    UnSelectCurContact();
    QVERIFY(desk.Cards().CellColor(1, 1) != Theme::Green);
    QVERIFY(!desk.Cards().CellFont(1, 1).bold());

    SelectCurContact();
    desk.Browser->mnuSelectedToRolodex_Click();
    QCOMPARE(desk.Cards().Columns(), 2);
    QCOMPARE(desk.Texts(2), QStringList{u"Bob M Ray"_s});
    QCOMPARE(desk.Cards().CellIcon(1, 1), u"checked"_s);
    curContact = ContactAt(4);
    SelectCurContact();
    QCOMPARE(desk.Texts(2), (QStringList{u"Bob M Ray"_s, u"Dee Fox"_s}));
    curContact = ContactAt(2);
    UnSelectCurContact();
    QCOMPARE(desk.Texts(2), QStringList{u"Dee Fox"_s});
    desk.ClickLetter(u'F');
    QCOMPARE(desk.Cards().Columns(), 1);
    QCOMPARE(desk.Cards().Column(1).Width, 298);
    QCOMPARE(desk.Cards().CellColor(1, 1), Theme::Green);
}

void tst_Rolodex::ManyAreSelectedAndUnselectedTogether()
{
    RolodexDesk desk;
    desk.ClickLetter(u'D');
    SelectContacts({1, 3, 4}, true);
    QCOMPARE(desk.Cards().CellColor(2, 1), Theme::Green);
    SelectContacts({3, 2}, false);
    QCOMPARE(gSelected.Ids(), (std::vector<Long>{1, 4}));
    QCOMPARE(desk.Cards().CellColor(1, 1), Theme::Green);
    QVERIFY(desk.Cards().CellColor(2, 1) != Theme::Green);
    desk.Browser->mnuSelectedToRolodex_Click();
    // What is done before a contact that is gone stays done, here too.
    QVERIFY_THROWS_EXCEPTION(RunTimeError, SelectContacts({1, 99, 4}, false));
    QCOMPARE(desk.Texts(2), QStringList{u"Dee Fox"_s});
}

void tst_Rolodex::UnselectingAllEmptiesTheSelectedView()
{
    RolodexDesk desk;
    for (const Long id : {2, 3, 4}) {
        curContact = ContactAt(id);
        SelectCurContact();
    }
    desk.ClickLetter(u'R');
    for (const bool letter : {true, false}) {
        if (!letter) {
            for (const Long id : {2, 4}) {
                curContact = ContactAt(id);
                SelectCurContact();
            }
            desk.Browser->mnuSelectedToRolodex_Click();
        }
        desk.Person.Expect(u"Please Confirm Before I Proceed"_s,
                           u"Do you want me to unselect All %1 contacts?"_s.arg(letter ? 3 : 2), Answer::Yes);
        UnselectAll();
        QCOMPARE(desk.Cards().Rows(), letter ? 1 : 0);
        QCOMPARE(curContact->RecID, 2);
        QVERIFY(!ContactAt(4)->Selected);
        if (letter)
            QVERIFY(desk.Cards().CellColor(1, 1) != Theme::Green);
    }
    // The view goes on with who is selected next.
    SelectCurContact();
    QCOMPARE(desk.Texts(2), QStringList{u"Bob M Ray"_s});
}

void tst_Rolodex::KeysDoWhatTheMouseDoes()
{
    RolodexDesk desk;
    desk.ClickLetter(u'R');
    desk.Cards().SelectCell(1, 1);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&desk.Cards(), &menuKey);
    auto& menu = Control<QMenu>(*desk.Browser, u"mnuRolodex"_s);
    QTRY_VERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    QCOMPARE(gSelected.Ids(), std::vector<Long>{2});
    // Enter on the letter that is current brings the letters back.
    desk.Browser->mnuSelectedToRolodex_Click();
    QCOMPARE(desk.Cards().Columns(), 2);
    QTest::keyClick(&Control<QListWidget>(*desk.Browser, u"lstRolodex"_s), Qt::Key_Return);
    QCOMPARE(desk.Cards().Columns(), 1);
    QCOMPARE(desk.Texts(), QStringList{u"(215) 555-0101 Bob M Ray"_s});
}

void tst_Rolodex::AReleaseOnAnotherLetterShowsTheCurrentOne()
{
    RolodexDesk desk;
    auto& letters = Control<QListWidget>(*desk.Browser, u"lstRolodex"_s);
    const auto place = [&letters](char16_t letter) {
        return letters.visualItemRect(letters.item(letter - u'A')).center();
    };
    QTest::mousePress(letters.viewport(), Qt::LeftButton, {}, place(u'D'));
    QTest::mouseRelease(letters.viewport(), Qt::LeftButton, {}, place(u'R'));
    QCOMPARE(letters.currentItem()->text(), u"D "_s);
    QCOMPARE(desk.Texts().size(), 2);
}

void tst_Rolodex::TheMenuOffersTheOtherState()
{
    RolodexDesk desk;
    auto& menu = Control<QMenu>(*desk.Browser, u"mnuRolodex"_s);
    auto& select = Control<QAction>(*desk.Browser, u"mnuRolodexSelect"_s);
    auto& unselect = Control<QAction>(*desk.Browser, u"mnuRolodexUnselect"_s);
    const auto rightClick = [&] {
        const QRect cell = desk.Cards().visualRect(desk.Cards().model()->index(0, 0));
        QTest::mouseClick(desk.Cards().viewport(), Qt::RightButton, {}, cell.center());
        QTRY_VERIFY(menu.isVisible());
        menu.close();
    };
    desk.ClickLetter(u'R');
    rightClick();
    QVERIFY(select.isVisible() && !unselect.isVisible());
    select.trigger();
    QCOMPARE(gSelected.Ids(), std::vector<Long>{2});
    rightClick();
    QVERIFY(!select.isVisible() && unselect.isVisible());
    desk.Browser->mnuSelectedToRolodex_Click();
    rightClick();
    QVERIFY(unselect.isVisible());
    unselect.trigger();
    QVERIFY(gSelected.IsEmpty());
    QCOMPARE(desk.Cards().Rows(), 0);
}

void tst_Rolodex::ADoubleClickShowsTheContactInItsList()
{
    RolodexDesk desk;
    desk.ClickLetter(u'D');
    const QRect cell = desk.Cards().visualRect(desk.Cards().model()->index(1, 0));
    QTest::mouseClick(desk.Cards().viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(desk.Cards().viewport(), Qt::LeftButton, {}, cell.center());
    QCOMPARE(desk.Tree->SelectedKey(), u"S1"_s);
    QVERIFY(Face<ContactListFace>::Get() != nullptr);
    QCOMPARE(curContact->RecID, 3);
    QCOMPARE(Face<ContactListFace>::Get()->Highlighted(), std::vector<Long>{3});
}

void tst_Rolodex::ADeletedContactLeavesTheRolodex()
{
    RolodexDesk desk;
    desk.ClickLetter(u'D');
    curContact = ContactAt(1);
    desk.Person.Expect(u"Please Confirm Before I Proceed"_s, u"Do you want me to permanently delete Ann day?"_s,
                       Answer::Yes);
    DeleteContacts(DeleteMode::Current);
    QCOMPARE(desk.Texts(), QStringList{u" Cy Day"_s});
}

QTEST_MAIN(tst_Rolodex)
#include "tst_Rolodex.moc"
