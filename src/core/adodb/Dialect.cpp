#include "core/adodb/Dialect.h"

#include "core/adodb/StatementRules.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostLiftedLiterals = 64;

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
    Tokens tokens = ReadTokens(statement);
    DropDeleteStar(tokens);
    TurnRightJoins(tokens);
    CheckStatement(tokens);

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
