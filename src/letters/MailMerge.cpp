#include "letters/MailMerge.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Trap.h"
#include "letters/LetterWalk.h"
#include "letters/MergeSource.h"
#include "letters/word/Application.h"
#include "model/Main.h"

using namespace Qt::StringLiterals;

namespace {

/// Types the letter into a document, with a merge field in the place of each marker.
void TypeLetter(Word::Application& word, Word::Document& document, const LetterWalk& walk)
{
    Word::MailMergeFields& fields = document.MailMerge().Fields();
    Word::Selection& selection = word.Selection();
    for (const LetterPiece& piece : walk.Pieces) {
        if (piece.IsField)
            fields.Add(selection.Range(), piece.Text);
        else
            selection.TypeText(piece.Text);
    }
}

void MarkBold(Word::Document& document)
{
    for (const auto& [start, end] : BoldRanges(document.Content().Text()))
        document.Range(start, end).SetBold(true);
}

void WriteMergeSource(const QString& path, const LetterWalk& walk, const QString& ids)
{
    Recordset rows;
    rows.Open(u"SELECT "_s + walk.Select +
                  u" FROM [PropDetail] RIGHT JOIN [Contacts] ON PropDetail.ContactID = Contacts.ID and "
                  "Contacts.DefaultProperty = PropDetail.ID Where Contacts.ID in ("_s +
                  ids + u") "_s,
              gConn);
    WriteSourceFile(path, MergeSource(walk.Header, rows));
}

} // namespace

void MailMerge(const QString& letter)
{
    Trap(u"frmMain MailMerge Error #"_s, Icon::Critical, [&letter] {
        const QString ids = SelectedIDs();
        Word::Application word;
        Word::Document& document = word.Documents().Add();
        Word::MailMerge& merge = document.MailMerge();
        merge.MainDocumentType = Word::wdFormLetters;
        const QString path = AppFile(u"\\Data\\MailMergeSource.txt"_s);
        const LetterWalk walk = WalkLetter(letter);
        TypeLetter(word, document, walk);
        MarkBold(document);
        WriteMergeSource(path, walk, ids);
        merge.OpenDataSource(path);
        merge.Destination = Word::wdSendToNewDocument;
        merge.Execute(true);
        document.Close(false);
        word.Visible = true;
        word.Release();
    });
}

void CallWord(const QString& letter)
{
    Trap(u"frmMain CallWord Error #"_s, Icon::Critical, [&letter] {
        Word::Application word;
        Word::WordBasic& basic = word.WordBasic();
        basic.FileNewDefault();
        basic.Insert(letter);
        basic.AppShow();
        word.Release();
    });
}
