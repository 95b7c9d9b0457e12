#include "core/adodb/Connection.h"
#include "core/adodb/Dialect.h"

#include "Fuzz.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whatever stands inside a literal is text: it changes neither the statement around it nor how many literals there
/// are.
void StandsInALiteral(const QString& text)
{
    const auto around = [](const QString& literal) {
        return Translate(u"Select ID from Contacts Where FirstName='"_s + FixQuotes(literal) + u"' and ID=5"_s);
    };
    static const TranslatedStatement plain = around(u"Ann"_s);
    const TranslatedStatement translated = around(text);
    Demand(translated.Text == plain.Text, "a literal leaves the statement around it alone");
    Demand(translated.Literals.size() == 2 && translated.Literals[0].toString() == text &&
               translated.Literals[1].toLongLong() == 5,
           "a literal comes out as it went in");
}

/// Outside of quotes and brackets nothing is left that the engine reads as a comment or as the end of a statement, and
/// there is one place for each lifted literal.
void CannotBeTwoStatements(const TranslatedStatement& translated)
{
    QChar closing;
    QString outside;
    for (const QChar c : translated.Text) {
        if (!closing.isNull())
            closing = c == closing ? QChar() : closing;
        else if (c == u'\'' || c == u'[')
            closing = c == u'[' ? u']' : u'\'';
        else
            outside += c;
    }
    Demand(closing.isNull(), "every quote and bracket is closed");
    for (const auto sign : {"--"_L1, "/*"_L1, ";"_L1, "\""_L1, "`"_L1})
        Demand(!outside.contains(sign), "no comment, no second statement and no other quotes come through");
    Demand(!outside.contains(QChar(u'\0')), "nothing cuts the statement short");
    Demand(outside.count(u'?') == std::ssize(translated.Literals), "each lifted literal has its place");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = TextOf(data, size);
    StandsInALiteral(text);
    if (const auto translated = Attempt([&] { return Translate(text); }, ErrorNumber::EngineSyntax))
        CannotBeTwoStatements(*translated);
    return 0;
}
