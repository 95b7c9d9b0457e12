#include "core/adodb/Lexer.h"

#include "core/adodb/Dialect.h"
#include "core/RunTimeError.h"

using namespace Qt::StringLiterals;

namespace {

bool IsWordStart(QChar c)
{
    return c.isLetter() || c == u'_' || c.isSurrogate();
}

bool IsWordPart(QChar c)
{
    return IsWordStart(c) || c.isDigit() || c == u'$' || c.isMark();
}

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

class Lexer
{
public:
    explicit Lexer(const QString& text) : m_text(text) {}

    Tokens Read()
    {
        Tokens tokens;
        tokens.reserve(static_cast<size_t>(m_text.size() / 4));
        while (SkipBlanks())
            tokens.push_back(Next());
        return tokens;
    }

private:
    [[nodiscard]] QChar At(qsizetype offset) const
    {
        const qsizetype position = m_position + offset;
        return position < m_text.size() ? m_text.at(position) : QChar();
    }

    bool SkipBlanks()
    {
        const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; };
        while (m_position < m_text.size() && isBlank(m_text.at(m_position)))
            ++m_position;
        return m_position < m_text.size();
    }

    Token Next()
    {
        const QChar c = At(0);
        if (c == u'\'' || c == u'"')
            return ReadText(c);
        if (c == u'[')
            return ReadName();
        if (IsDigit(c) || (c == u'.' && IsDigit(At(1))))
            return ReadNumber();
        if (IsWordStart(c))
            return ReadWord();
        return ReadSign();
    }

    /// A literal ends at its quote; two quotes in a row are one.
    Token ReadText(QChar quote)
    {
        QString content;
        const qsizetype start = m_position;
        qsizetype from = ++m_position;
        for (;;) {
            const qsizetype end = m_text.indexOf(quote, m_position);
            if (end < 0)
                RaiseSyntax(u"Syntax error in string in query expression '%1'."_s.arg(m_text.mid(start, 80)));
            if (end + 1 < m_text.size() && m_text.at(end + 1) == quote) {
                content += QStringView(m_text).mid(from, end + 1 - from);
                m_position = from = end + 2;
                continue;
            }
            content += QStringView(m_text).mid(from, end - from);
            m_position = end + 1;
            return {TokenKind::Text, content};
        }
    }

    Token ReadName()
    {
        const qsizetype end = m_text.indexOf(u']', m_position);
        if (end < 0)
            RaiseSyntax(u"Invalid bracketing of name '%1'."_s.arg(m_text.mid(m_position, 80)));
        Token name{TokenKind::Name, m_text.mid(m_position, end + 1 - m_position)};
        m_position = end + 1;
        return name;
    }

    Token ReadNumber()
    {
        const qsizetype start = m_position;
        const auto skipDigits = [this] {
            while (IsDigit(At(0)))
                ++m_position;
        };
        skipDigits();
        if (At(0) == u'.') {
            ++m_position;
            skipDigits();
        }
        if (At(0).toLower() == u'e') {
            const qsizetype sign = At(1) == u'+' || At(1) == u'-' ? 1 : 0;
            if (IsDigit(At(1 + sign))) {
                m_position += 1 + sign;
                skipDigits();
            }
        }
        if (IsWordPart(At(0)))
            RaiseSyntax(u"Syntax error (missing operator) in query expression '%1'."_s.arg(m_text.mid(start, 80)));
        return {TokenKind::Number, m_text.mid(start, m_position - start)};
    }

    Token ReadWord()
    {
        const qsizetype start = m_position;
        while (m_position < m_text.size() && IsWordPart(m_text.at(m_position)))
            ++m_position;
        return {TokenKind::Word, m_text.mid(start, m_position - start)};
    }

    Token ReadSign()
    {
        const QChar first = At(0);
        const QChar second = At(1);
        const bool comment = (first == u'-' && second == u'-') || (first == u'/' && second == u'*');
        if (comment)
            RaiseSyntax(u"Syntax error (missing operator) in query expression '%1'."_s.arg(m_text.mid(m_position, 80)));
        if (first == u';')
            RaiseSyntax(u"Characters found after end of SQL statement."_s);
        if (!u"()*,.=<>+-/"_s.contains(first))
            RaiseSyntax(u"Syntax error (missing operator) in query expression '%1'."_s.arg(m_text.mid(m_position, 80)));
        const bool pair = (first == u'<' && (second == u'>' || second == u'=')) || (first == u'>' && second == u'=');
        Token sign{TokenKind::Sign, m_text.mid(m_position, pair ? 2 : 1)};
        m_position += pair ? 2 : 1;
        return sign;
    }

    const QString& m_text;
    qsizetype m_position = 0;
};

} // namespace

Tokens ReadTokens(const QString& statement)
{
    return Lexer(statement).Read();
}

size_t BehindClosing(const Tokens& tokens, size_t open)
{
    int depth = 0;
    for (size_t i = open; i < tokens.size(); ++i) {
        if (tokens[i].IsSign("("_L1))
            ++depth;
        else if (tokens[i].IsSign(")"_L1) && --depth == 0)
            return i + 1;
    }
    return tokens.size();
}

void RaiseSyntax(const QString& message)
{
    throw RunTimeError(ErrorNumber::EngineSyntax, DriverMessage(message));
}
