#include "letters/LabelsMerge.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Trap.h"
#include "letters/MergeSource.h"
#include "letters/word/Application.h"
#include "model/LabelType.h"
#include "model/Main.h"

using namespace Qt::StringLiterals;

namespace {

const QString layoutName = u"MyLabelLayout"_s;

/// Three lines of fields: the name, two of the address, and the city with all that follows it.
void TypeLayout(Word::Application& word, Word::Document& document)
{
    Word::Selection& selection = word.Selection();
    const auto field = [&](const QString& name) { document.MailMerge().Fields().Add(selection.Range(), name); };
    for (const QString& line : {u"Name"_s, u"Address1"_s, u"Address2"_s}) {
        field(line);
        selection.TypeParagraph();
    }
    field(u"City"_s);
    field(u"State"_s);
    selection.TypeText(u"  "_s);
    field(u"Zip"_s);
    field(u"Zip4"_s);
}

} // namespace

void LabelsMerge()
{
    Trap(u"Label Generation Error "_s, Icon::Critical, [] {
        Word::Application word;
        Word::Document& document = word.Documents().Add();
        Word::MailMerge& merge = document.MailMerge();
        TypeLayout(word, document);
        Word::AutoTextEntry& layout = word.NormalTemplate().AutoTextEntries().Add(layoutName, document.Content());
        document.Content().Delete();
        merge.MainDocumentType = Word::wdMailingLabels;
        const QString path = CreateLabelSourceFile(AppFile(u"\\Data\\MailLabelSource.txt"_s));
        if (path.isEmpty())
            return;
        merge.OpenDataSource(path);
        word.MailingLabel().CreateNewDocument({.Brand = LabelBrand(gSettings.LabelProduct),
                                               .Name = gSettings.LabelNumber,
                                               .Address = QString(),
                                               .AutoText = layoutName,
                                               .LaserTray = 4});
        merge.Destination = Word::wdSendToNewDocument;
        merge.Execute();
        layout.Delete();
        document.Close();
        word.Visible = true;
        word.NormalTemplate().Saved = true;
        word.Release();
    });
}

QString CreateLabelSourceFile(const QString& path)
{
    return Trap(u"frmMain CreateLabelSourceFile Error #"_s, Icon::Critical, [&path] {
        Recordset rows;
        rows.Open(u"SELECT FirstName, LastName, MI, MailAddr1, MailAddr2, MailCity, MailState, MailZip, MailZip4  FROM "
                  u"Contacts "
                  "Where Contacts.ID in ("_s +
                      SelectedIDs() + u") "_s,
                  gConn);
        WriteSourceFile(path, LabelSource(rows));
        return path;
    });
}
