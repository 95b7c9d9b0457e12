#include "letters/LetterLibrary.h"

#include "core/adodb/Connection.h"
#include "core/Convert.h"

#include <utility>

using namespace Qt::StringLiterals;

std::vector<LetterLibrary::Entry> LetterLibrary::Load()
{
    if (std::exchange(m_open, false))
        m_rows.Close();
    m_rows.LockType = LockType::Pessimistic;
    m_rows.CursorLocation = CursorLocation::UseClient;
    m_rows.CursorType = CursorType::Dynamic;
    m_rows.Open(u"Select * from FormLetters"_s, gConn);
    m_open = true;
    std::vector<Entry> letters;
    for (; !m_rows.Eof(); m_rows.MoveNext())
        letters.push_back({m_rows.Fields("ID"_L1).Get().ToLong(), m_rows.Fields("FormName"_L1).Get().Text()});
    return letters;
}

void LetterLibrary::GoTo(Long id)
{
    m_rows.MoveFirst();
    m_rows.Find(u"ID="_s + CStr(id));
}

QString LetterLibrary::Text(Long id)
{
    GoTo(id);
    return m_rows.Fields("FormText"_L1).Get().Text();
}

void LetterLibrary::SetText(Long id, const QString& text)
{
    gConn.Execute(u"Update FormLetters set FormText='"_s + text + u"' Where ID="_s + CStr(id));
    m_rows.Resync();
}

Long LetterLibrary::Add(const QString& name, const QString& text)
{
    gConn.Execute(u"Insert into FormLetters (FormName,FormText) values ('"_s + name + u"','"_s + text + u"')"_s);
    m_rows.Requery();
    m_rows.MoveLast();
    return m_rows.Fields(0).Get().ToLong();
}

void LetterLibrary::Rename(Long id, const QString& name)
{
    gConn.Execute(u"Update FormLetters set FormName= '"_s + name + u"' Where ID= "_s + CStr(id));
    m_rows.Requery();
}

void LetterLibrary::Delete(Long id)
{
    GoTo(id);
    m_rows.Delete();
}
