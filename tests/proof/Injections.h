#pragma once

#include <QList>
#include <QString>

struct Injection
{
    const char* Name;
    QString Text;
};

/// Texts that would do harm where text is taken for language, for the end of text, or for less than it is.
inline QList<Injection> Injections()
{
    using namespace Qt::StringLiterals;
    return {
        {"an apostrophe", u"O'Hara"_s},
        {"an apostrophe alone", u"'"_s},
        {"two apostrophes", u"it''s"_s},
        {"a quote", u"say \"no\""_s},
        {"a comment", u"x--"_s},
        {"a comment behind an apostrophe", u"x'--"_s},
        {"a block comment", u"x'/* "_s},
        {"the end of a statement", u"x; Delete * from Contacts"_s},
        {"a second statement", u"x'; Delete * from Contacts; Update Contacts set MI='"_s},
        {"another Where", u"x' Where '1'='1"_s},
        {"an or", u"x' or 'a'='a"_s},
        {"a sum of two texts", u"rock 'and' roll"_s},
        {"another column", u"x', Notes='y"_s},
        {"a second row", u"a',1),('b"_s},
        {"a second row by union", u"a',1) union all values ('b"_s},
        {"a row of another table", u"x',(Select Notes from Contacts Where ID=1),'"_s},
        {"brackets and places", u"[x] ? ?1 :a @a $a"_s},
        {"wildcards", u"100% _ * # x"_s},
        {"a separator of lists", u"a|b,c"_s},
        {"line breaks and tabs", u"one\r\ntwo\nthree\rfour\tfive"_s},
        {"blanks around", u"  x  "_s},
        {"a NUL", u"a"_s + QChar(u'\0') + u"b"_s},
        {"a NUL behind an apostrophe", u"a'"_s + QChar(u'\0') + u"'b"_s},
        {"an unpaired surrogate", u"a"_s + QChar(0xD83D) + u"b"_s},
        {"an unpaired surrogate at the end", u"a"_s + QChar(0xDE00)},
        {"emoji", u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s},
        {"right to left", u"\u202Eשלום' עולם'\u202C"_s},
        {"a byte order mark", u"\uFEFFx"_s},
        {"a number", u"007"_s},
        {"a date", u"1/5/2026"_s},
        {"10,000 letters", QString(10'000, u'ä')},
        {"10,000 apostrophes", QString(10'000, u'\'')},
    };
}
