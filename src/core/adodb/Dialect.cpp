#include "core/adodb/Dialect.h"

#include "core/RunTimeError.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostLiftedLiterals = 64;

enum class TokenKind
{
    Word,
    Name, ///< in brackets, kept with them
    Number,
    Text, ///< a literal's content, its quotes taken off
    Sign  ///< one or two characters of punctuation
};

struct Token
{
    TokenKind Kind;
    QString Content;

    [[nodiscard]] bool IsWord(QLatin1StringView word) const
    {
        return Kind == TokenKind::Word && Content.compare(word, Qt::CaseInsensitive) == 0;
    }
    [[nodiscard]] bool IsSign(QLatin1StringView sign) const { return Kind == TokenKind::Sign && Content == sign; }
};

using Tokens = std::vector<Token>;

[[noreturn]] void RaiseSyntax(const QString& message)
{
    throw RunTimeError(ErrorNumber::EngineSyntax, DriverMessage(message));
}

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

/// "Delete * from T" means "Delete from T".
void DropDeleteStar(Tokens& tokens)
{
    if (tokens.size() > 1 && tokens[0].IsWord("delete"_L1) && tokens[1].IsSign("*"_L1))
        tokens.erase(tokens.begin() + 1);
}

/// "A RIGHT JOIN B" means "B LEFT JOIN A" with the same condition behind it; the engine knows only the latter.
void TurnRightJoins(Tokens& tokens)
{
    for (size_t i = 1; i + 2 < tokens.size(); ++i) {
        if (tokens[i].IsWord("right"_L1) && tokens[i + 1].IsWord("join"_L1)) {
            tokens[i].Content = u"LEFT"_s;
            std::swap(tokens[i - 1], tokens[i + 2]);
        }
    }
}

void RefuseEmptyLists(const Tokens& tokens)
{
    for (size_t i = 0; i + 2 < tokens.size(); ++i) {
        if (tokens[i].IsWord("in"_L1) && tokens[i + 1].IsSign("("_L1) && tokens[i + 2].IsSign(")"_L1))
            RaiseSyntax(u"Syntax error (missing operator) in query expression 'in ()'."_s);
    }
}

/// The position behind the bracket that closes the one at `open`; the end where it is never closed.
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

void RefuseSecondRow(const Tokens& tokens)
{
    for (size_t i = 0; i + 1 < tokens.size(); ++i) {
        if (!tokens[i].IsWord("values"_L1) || !tokens[i + 1].IsSign("("_L1))
            continue;
        if (BehindClosing(tokens, i + 1) < tokens.size())
            RaiseSyntax(u"Missing semicolon (;) at end of SQL statement."_s);
    }
}

/// Which tokens are literals to lift: all but those of "in (...)" lists; none where they are too many.
std::vector<bool> LiteralsToLift(const Tokens& tokens, bool& hasList)
{
    std::vector<bool> lifted(tokens.size(), false);
    qsizetype count = 0;
    hasList = false;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].IsWord("in"_L1) && i + 1 < tokens.size() && tokens[i + 1].IsSign("("_L1)) {
            hasList = true;
            i = BehindClosing(tokens, i + 1) - 1;
            continue;
        }
        if (tokens[i].Kind == TokenKind::Text || tokens[i].Kind == TokenKind::Number) {
            lifted[i] = true;
            ++count;
        }
    }
    if (count > mostLiftedLiterals)
        lifted.assign(tokens.size(), false);
    return lifted;
}

QVariant LiteralValue(const Token& token)
{
    if (token.Kind == TokenKind::Text)
        return token.Content;
    bool whole = false;
    const qint64 number = token.Content.toLongLong(&whole);
    return whole ? QVariant(number) : QVariant(token.Content.toDouble());
}

void AppendToken(QString& text, const Token& token)
{
    if (token.Kind != TokenKind::Text) {
        text += token.Content;
        return;
    }
    // An engine text ends at its first NUL, which would cut the statement: such a literal has to be a bound value.
    if (token.Content.contains(QChar(u'\0')))
        RaiseSyntax(u"Syntax error in string in query expression."_s);
    text += u'\'' + QString(token.Content).replace(u'\'', "''"_L1) + u'\'';
}

/// "Select * from T" without a join: rows that can be changed through a recordset.
QString UpdatableTable(const Tokens& tokens)
{
    const bool plain = tokens.size() >= 4 && tokens[0].IsWord("select"_L1) && tokens[1].IsSign("*"_L1) &&
                       tokens[2].IsWord("from"_L1) && (tokens.size() == 4 || tokens[4].IsWord("where"_L1));
    if (!plain)
        return {};
    QString table = tokens[3].Content;
    if (tokens[3].Kind == TokenKind::Name)
        table = table.mid(1, table.size() - 2);
    return table;
}

} // namespace

QString DriverMessage(const QString& message)
{
    return u"[Microsoft][ODBC Microsoft Access Driver] "_s + message;
}

TranslatedStatement Translate(const QString& statement)
{
    Tokens tokens = Lexer(statement).Read();
    DropDeleteStar(tokens);
    TurnRightJoins(tokens);
    RefuseEmptyLists(tokens);
    RefuseSecondRow(tokens);

    bool hasList = false;
    const std::vector<bool> lifted = LiteralsToLift(tokens, hasList);
    TranslatedStatement translated;
    translated.Text.reserve(statement.size() + 16);
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (i > 0)
            translated.Text += u' ';
        if (lifted[i]) {
            translated.Text += u'?';
            translated.Literals.push_back(LiteralValue(tokens[i]));
        } else {
            AppendToken(translated.Text, tokens[i]);
        }
    }
    const bool anyLifted = std::ranges::find(lifted, true) != lifted.end();
    const bool anyLiteral = std::ranges::any_of(
        tokens, [](const Token& t) { return t.Kind == TokenKind::Text || t.Kind == TokenKind::Number; });
    translated.Reusable = !hasList && (anyLifted || !anyLiteral);
    translated.UpdatableTable = UpdatableTable(tokens);
    return translated;
}
