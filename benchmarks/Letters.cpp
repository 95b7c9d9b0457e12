#include "Letters.h"

#include "letters/word/Application.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString WriteSource(const QString& folder, int records)
{
    const QString path = folder + u"/letters.txt"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qUtf8Printable(path));
    file.write("Name\tAddress\tCity\t\r\n");
    for (int i = 0; i < records; ++i) {
        const QByteArray number = QByteArray::number(i);
        file.write("Pat Lee " + number + '\t' + number + " Elm Street\tTroy, NY 12180\t\r\n");
    }
    return path;
}

/// Most of a page.
void TypeLetter(Word::Application& word, Word::Document& document)
{
    Word::Selection& selection = word.Selection();
    for (const auto field : {"Name"_L1, "Address"_L1, "City"_L1}) {
        document.MailMerge().Fields().Add(selection.Range(), QString(field));
        selection.TypeParagraph();
    }
    for (int paragraph = 0; paragraph < 8; ++paragraph) {
        selection.TypeText(
            u"We have looked at your house again and think that it can be sold this spring. "_s.repeated(4));
        selection.TypeParagraph();
    }
    selection.TypeText(u"Yours, and with regards to "_s);
    document.MailMerge().Fields().Add(selection.Range(), u"Name"_s);
}

} // namespace

QString MakeLetters(const QString& folder, int records)
{
    Word::Application word;
    Word::Document& document = word.Documents().Add();
    TypeLetter(word, document);
    document.MailMerge().OpenDataSource(WriteSource(folder, records));
    document.MailMerge().Execute();
    const QString path = folder + u"/letters.docx"_s;
    QFile::remove(path);
    word.Documents().Active().SaveAs(path);
    return path;
}
