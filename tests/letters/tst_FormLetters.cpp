#include "letters/Study.h"

#include "letters/LetterFields.h"

using namespace Qt::StringLiterals;

class tst_FormLetters : public QObject
{
    Q_OBJECT

private:
    static constexpr auto startText = "Start a new form by pressing the New button below"_L1;
    static constexpr auto pleaseConfirm = "Please Confirm Before I Proceed"_L1;

private Q_SLOTS:
    void TheFirstLetterIsShownToLookAt()
    {
        Study study;
        QCOMPARE(study.Names(), (QStringList{u"Hello"_s, u"News"_s, u"Plain"_s}));
        QCOMPARE(study.Forms().currentRow(), 0);
        QCOMPARE(study.Letter().toPlainText(), u"Dear !<FirstName>! ,\nyour house in !<City>! is <b>sold</b>."_s);
        QVERIFY(!study.Letter().isEnabled());
        QCOMPARE(study.Enabled(), u"1256"_s);
        QCOMPARE(study.Picture(1).BackColor(), QColor(255, 192, 128));
        QCOMPARE(study.Picture(3).BackColor(), QColor(255, 255, 255));
        study.Forms().setFocus();
        TypeKey(study.Main(), Qt::Key_Down);
        QCOMPARE(study.Letter().toPlainText(), u"To !<FormattedName>! at !<MailAddr1>! "_s);
    }

    void AnEmptyLibraryOffersOnlyNew()
    {
        Study study(false);
        QCOMPARE(study.Letter().toPlainText(), QString(startText));
        QCOMPARE(study.Enabled(), u"1"_s);
        study.Press(1);
        study.Press(4);
        QCOMPARE(study.Letter().toPlainText(), QString(startText));
        QCOMPARE(study.Enabled(), u"1"_s);
        study.Page().FormStart(FormLetters::Action::Rename); // there is nothing that could be renamed
        study.Person.Expect(u"Nothing Deleted"_s,
                            u"I did not delete anything because\r\nthere is nothing to delete."_s);
        study.Page().FormStart(FormLetters::Action::Delete);
    }

    void ANewLetterIsSavedUnderItsName()
    {
        Study study;
        study.Press(1);
        QCOMPARE(study.Letter().textCursor().selectedText(), u"Type form content here"_s);
        QVERIFY(study.Letter().hasFocus());
        QVERIFY(!study.Forms().isEnabled());
        QCOMPARE(study.Enabled(), u"34"_s);
        TypeText(study.Main(), u"Dear "_s);
        ClickOn(study.Main(), u"picInsertContactInfo"_s);
        TypeKey(study.Main(), Qt::Key_Return);
        TypeKey(study.Main(), Qt::Key_Return, Qt::ShiftModifier);
        TypeText(study.Main(), u"Bye"_s);
        study.Person.ExpectAskFor(u"Save as: "_s, u"News"_s); // the name is there already, and nobody minds
        study.Press(3);
        QCOMPARE(study.Database.TakeStatements().first(),
                 u"Insert into FormLetters (FormName,FormText) values ('News','Dear !<Cell>! \r\n\r\nBye')"_s);
        QCOMPARE(study.Names(), (QStringList{u"Hello"_s, u"News"_s, u"Plain"_s, u"News"_s}));
        QCOMPARE(study.Forms().currentRow(), 3);
        QCOMPARE(study.Enabled(), u"1256"_s);
        QVERIFY(study.Forms().hasFocus());
        QVERIFY(!Control<QWidget>(study.Main(), u"picInsertPropInfo"_s).isEnabled());
        study.Forms().setCurrentRow(1);
        study.Forms().setCurrentRow(3);
        QCOMPARE(study.Letter().toPlainText(), u"Dear !<Cell>! \n\nBye"_s);
    }

    void WithoutANameOrATextTheLetterStaysOpen()
    {
        Study study;
        study.Press(1);
        study.Person.ExpectAskFor(u"Save as: "_s, QString());
        study.Press(3);
        QCOMPARE(study.Letter().toPlainText(), u"Type form content here"_s);
        QCOMPARE(study.Enabled(), u"34"_s);
        QVERIFY(study.Letter().hasFocus());
        study.Write(u"  "_s);
        study.Person.Expect(u"Nothing was Saved"_s,
                            u"I did not save anything because\r\nthere is no letter to save."_s);
        study.Press(3);
        QCOMPARE(study.Enabled(), u"34"_s);
        QCOMPARE(study.Database.TakeStatements(), QStringList());
        study.Press(4);
        QVERIFY(study.Letter().toPlainText().startsWith("Dear "_L1));
    }

    void AModifiedLetterIsWrittenAndOneThatWasCancelledComesBack()
    {
        Study study;
        study.Forms().setCurrentRow(1);
        study.Press(2);
        QVERIFY(study.Letter().textCursor().selectedText().isEmpty());
        study.Write(u"Other words"_s);
        study.Press(4);
        QCOMPARE(study.Letter().toPlainText(), u"To !<FormattedName>! at !<MailAddr1>! "_s);
        static_cast<void>(study.Database.TakeStatements());
        study.Press(2);
        study.Write(u"Better\nwords"_s);
        study.Press(3);
        QCOMPARE(study.Database.TakeStatements().first(),
                 u"Update FormLetters set FormText='Better\r\nwords' Where ID=2"_s);
        study.Forms().setCurrentRow(0);
        study.Forms().setCurrentRow(1);
        QCOMPARE(study.Letter().toPlainText(), u"Better\nwords"_s);
    }

    void AnApostropheIsRefusedAndNothingIsLost()
    {
        // In the text of a new letter, in its name, and in the text of an old one.
        for (const auto& [action, text, reply] :
             {std::tuple(1, u"It's sold"_s, u"Sold"_s), std::tuple(1, u"Sold"_s, u"Ann's"_s),
              std::tuple(2, u"It's sold"_s, QString())}) {
            Study study;
            const QStringList before = FreshDatabase::WholeFile();
            study.Press(action);
            study.Write(text);
            if (!reply.isNull())
                study.Person.ExpectAskFor(u"Save as: "_s, reply);
            study.Person.ExpectReport(u"frmMain SaveForm Error #-2147217900"_s);
            study.Press(3);
            QCOMPARE(study.Letter().toPlainText(), text);
            QCOMPARE(study.Enabled(), u"34"_s);
            QVERIFY(study.Letter().hasFocus());
            QCOMPARE(FreshDatabase::WholeFile(), before);
            QCOMPARE(study.Names().size(), 3);
        }
    }

    void RenameWritesTheNameAsItIsTyped()
    {
        Study study;
        study.Forms().setCurrentRow(1);
        static_cast<void>(study.Database.TakeStatements());
        study.Person.ExpectAskFor(u"Rename News to: "_s, QString());
        study.Press(6);
        study.Person.ExpectAskFor(u"Rename News to: "_s, u"Hello"_s);
        study.Press(6);
        QCOMPARE(study.Database.TakeStatements().first(), u"Update FormLetters set FormName= 'Hello' Where ID= 2"_s);
        study.Person.ExpectAskFor(u"Rename Hello to: "_s, u"Ann's"_s);
        study.Person.ExpectReport(u"frmMain RenameForm Error #-2147217900"_s);
        study.Press(6);
        QCOMPARE(study.Names(), (QStringList{u"Hello"_s, u"Hello"_s, u"Plain"_s}));
        QCOMPARE(FreshDatabase::Rows(u"Select FormName from FormLetters Where ID=2"_s), QStringList{u"Hello"_s});
    }

    void DeleteSelectsTheLetterBefore()
    {
        for (const auto& [row, next] : {std::pair(0, 0), std::pair(1, 0), std::pair(2, 1)}) {
            Study study;
            study.Forms().setCurrentRow(row);
            QStringList names = study.Names();
            const QString question = u"Do you want me to delete "_s + names[row] + u"?"_s;
            study.Person.Expect(QString(pleaseConfirm), question, Answer::No);
            study.Press(5);
            QCOMPARE(study.Names(), names);
            study.Person.Expect(QString(pleaseConfirm), question, Answer::Yes);
            study.Press(5);
            QCOMPARE(study.Person.LastBox().Picture, Icon::Question);
            names.removeAt(row);
            QCOMPARE(study.Names(), names);
            QCOMPARE(FreshDatabase::Rows(u"Select FormName from FormLetters"_s), names);
            QCOMPARE(study.Forms().currentRow(), next);
            const QString text = study.Letter().toPlainText().replace(u'\n', u"\r\n"_s);
            QCOMPARE(FreshDatabase::Rows(u"Select FormText from FormLetters Where FormName='"_s + names[next] + u"'"_s),
                     QStringList{text});
            QCOMPARE(study.Enabled(), u"1256"_s);
        }
    }

    void AMarkerGoesInAtTheCaret()
    {
        Study study;
        study.Press(1);
        study.Write(u"one\ntwo three"_s);
        QTextCursor caret = study.Letter().textCursor();
        caret.setPosition(8);
        caret.setPosition(13, QTextCursor::KeepAnchor); // "three"
        study.Letter().setTextCursor(caret);
        auto& fields = Control<QListWidget>(study.Main(), u"lstPropFields"_s);
        fields.setCurrentItem(fields.findItems(u"Asking Price"_s, Qt::MatchExactly).first());
        ClickOn(study.Main(), u"picInsertPropInfo"_s);
        QCOMPARE(study.Letter().toPlainText(), u"one\ntwo !<AskingPrice>! three"_s);
        QCOMPARE(study.Letter().textCursor().position(), 8 + int("AskingPrice"_L1.size()) + 5);
        QVERIFY(!study.Letter().textCursor().hasSelection());
        QVERIFY(study.Letter().hasFocus());
    }

    void EveryFieldOfThePickersCanBeMerged()
    {
        Study study;
        for (const auto fields : {ContactLetterFields(), PropertyLetterFields()}) {
            for (const LetterField& field : fields)
                QCOMPARE(FreshDatabase::Rows("Select "_L1 + field.Column +
                                             " FROM [PropDetail] RIGHT JOIN [Contacts] ON PropDetail.ContactID = "
                                             "Contacts.ID Where Contacts.ID in (1)"_L1)
                             .size(),
                         1);
        }
        QCOMPARE(Control<QListWidget>(study.Main(), u"lstContactFields"_s).count(), 19);
        QCOMPARE(Control<QListWidget>(study.Main(), u"lstPropFields"_s).count(), 23);
    }

    void TheLabelsSayWhatAPictureDoes()
    {
        Study study;
        const auto pointAt = [&study](const QString& name) {
            QTest::mouseMove(&Control<QWidget>(study.Main(), name), {3, 3});
            QTest::mouseMove(&Control<QWidget>(study.Main(), name), {4, 4});
        };
        pointAt(u"picForms_2"_s);
        QCOMPARE(study.Caption(u"lblForms"_s), u"Modify"_s);
        pointAt(u"picForms_6"_s);
        QCOMPARE(study.Caption(u"lblForms"_s), u"Rename"_s);
        pointAt(u"lblForms"_s);
        QCOMPARE(study.Caption(u"lblForms"_s), u"Forms"_s);
        study.Press(1);
        Control<QListWidget>(study.Main(), u"lstContactFields"_s).setCurrentRow(6);
        pointAt(u"picInsertContactInfo"_s);
        QCOMPARE(study.Caption(u"lblContactFields"_s), u"Insert Formatted Name"_s);
        QTest::mousePress(&study.Picture(4), Qt::LeftButton);
        QVERIFY(study.Picture(4).HasBorder());
        QCOMPARE(study.Enabled(), u"34"_s); // the release acts, not the press
        QTest::mouseRelease(&study.Picture(4), Qt::LeftButton);
        QVERIFY(!study.Picture(4).HasBorder());
        QCOMPARE(study.Enabled(), u"1256"_s);
    }

    void ALetterThatIsBeingWrittenSurvivesAReload()
    {
        Study study;
        study.Press(2);
        study.Write(u"My words"_s);
        FreshDatabase::Execute(u"Delete from FormLetters Where ID=1"_s);
        study.Page().LoadFormLetters();
        QCOMPARE(study.Names(), (QStringList{u"News"_s, u"Plain"_s}));
        QCOMPARE(study.Letter().toPlainText(), u"My words"_s);
        QCOMPARE(study.Enabled(), u"34"_s);
        study.Person.ExpectAskFor(u"Save as: "_s, u"Mine"_s); // the letter that it was made from is not there any more
        study.Press(3);
        QCOMPARE(FreshDatabase::Rows(u"Select FormName, FormText from FormLetters"_s).last(), u"Mine|My words"_s);
    }

    void AReloadGoesOnWithTheLetterThatIsModified()
    {
        Study study;
        study.Forms().setCurrentRow(1);
        study.Press(2);
        study.Write(u"My words"_s);
        FreshDatabase::Execute(u"Delete from FormLetters Where ID=1"_s);
        study.Page().LoadFormLetters();
        QCOMPARE(study.Forms().currentItem()->text(), u"News"_s);
        study.Press(3);
        QCOMPARE(FreshDatabase::Rows(u"Select ID, FormName, FormText from FormLetters Where ID=2"_s),
                 QStringList{u"2|News|My words"_s});
        QCOMPARE(study.Names(), (QStringList{u"News"_s, u"Plain"_s}));
    }

    void AReloadShowsWhatTheFileHolds()
    {
        Study study;
        FreshDatabase::Execute(u"Update FormLetters set FormText=Null Where ID=1"_s);
        study.Page().LoadFormLetters();
        QCOMPARE(study.Letter().toPlainText(), QString());
        FreshDatabase::Execute(u"Delete from FormLetters"_s);
        study.Page().LoadFormLetters();
        QCOMPARE(study.Names(), QStringList());
        QCOMPARE(study.Letter().toPlainText(), QString(startText));
        QCOMPARE(study.Enabled(), u"1"_s);
    }

    void TheSelectedLetterCannotBeDeselected()
    {
        Study study;
        QListWidget& forms = study.Forms();
        forms.setCurrentRow(1);
        forms.setFocus();
        QTest::keyClick(&forms, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(forms.selectedItems().size(), 1);
        QTest::mouseClick(forms.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          forms.visualItemRect(forms.item(1)).center());
        QCOMPARE(forms.selectedItems().size(), 1);
        QCOMPARE(study.Letter().toPlainText(), u"To !<FormattedName>! at !<MailAddr1>! "_s);
        study.Press(2);
        study.Write(u"Better words"_s);
        study.Press(3);
        QCOMPARE(FreshDatabase::Rows(u"Select FormText from FormLetters Where ID=2"_s), QStringList{u"Better words"_s});
    }

    void TheHeadingsFollowThePointerAlone()
    {
        Study study;
        const QString fields = study.Caption(u"lblContactFields"_s);
        study.Forms().setFocus();
        study.Press(2);
        QVERIFY2(study.Caption(u"lblForms"_s) != "New"_L1, qPrintable(study.Caption(u"lblForms"_s)));
        study.Press(4);
        QCOMPARE(study.Caption(u"lblContactFields"_s), fields);
        FreshDatabase::Execute(u"Delete from FormLetters Where ID<>1"_s);
        study.Page().LoadFormLetters();
        study.Picture(5).setFocus();
        study.Person.Expect(QString(pleaseConfirm), u"Do you want me to delete Hello?"_s, Answer::Yes);
        TypeKey(study.Main(), Qt::Key_Space);
        QVERIFY(study.Picture(1).hasFocus());
        QVERIFY(study.Caption(u"lblForms"_s) != "Rename"_L1);
    }
};

QTEST_MAIN(tst_FormLetters)
#include "tst_FormLetters.moc"
