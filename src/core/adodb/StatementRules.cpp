#include "core/adodb/StatementRules.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void RaiseMissingOperator(const QString& expression)
{
    RaiseSyntax(u"Syntax error (missing operator) in query expression '%1'."_s.arg(expression));
}

void RefuseEmptyLists(const Tokens& tokens)
{
    for (size_t i = 0; i + 2 < tokens.size(); ++i) {
        if (tokens[i].IsWord("in"_L1) && tokens[i + 1].IsSign("("_L1) && tokens[i + 2].IsSign(")"_L1))
            RaiseMissingOperator(u"in ()"_s);
    }
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

bool IsLiteral(const Token& token)
{
    return token.Kind == TokenKind::Text || token.Kind == TokenKind::Number || token.IsWord("null"_L1) ||
           token.IsWord("true"_L1) || token.IsWord("false"_L1);
}

/// The position behind the value at `at`; `at` itself where none stands there.
size_t BehindValue(const Tokens& tokens, size_t at)
{
    const bool hasSign = at + 1 < tokens.size() && (tokens[at].IsSign("-"_L1) || tokens[at].IsSign("+"_L1)) &&
                         tokens[at + 1].Kind == TokenKind::Number;
    const size_t value = hasSign ? at + 1 : at;
    return value < tokens.size() && IsLiteral(tokens[value]) ? value + 1 : at;
}

size_t PositionOf(const Tokens& tokens, QLatin1StringView word)
{
    const auto found = std::ranges::find_if(tokens, [word](const Token& token) { return token.IsWord(word); });
    return static_cast<size_t>(found - tokens.begin());
}

/// What stands behind Set: "Name=value,Name=value", to the end or to Where.
bool AreAssignments(const Tokens& tokens, size_t at)
{
    QSet<QString> columns;
    for (;; ++at) {
        if (at + 2 >= tokens.size() || !tokens[at + 1].IsSign("="_L1))
            return false;
        const QString column = tokens[at].Content.toLower();
        if (columns.contains(column))
            return false;
        columns.insert(column);
        const size_t behind = BehindValue(tokens, at + 2);
        if (behind == at + 2)
            return false;
        at = behind;
        if (at == tokens.size() || tokens[at].IsWord("where"_L1))
            return true;
        if (!tokens[at].IsSign(","_L1))
            return false;
    }
}

/// What stands behind Values: "(value,value)".
bool IsRow(const Tokens& tokens, size_t at)
{
    if (at >= tokens.size() || !tokens[at].IsSign("("_L1))
        return false;
    for (;;) {
        const size_t behind = BehindValue(tokens, ++at);
        if (behind == at || behind == tokens.size())
            return false;
        at = behind;
        if (tokens[at].IsSign(")"_L1))
            return true;
        if (!tokens[at].IsSign(","_L1))
            return false;
    }
}

void RefuseComputedValues(const Tokens& tokens)
{
    if (tokens.empty())
        return;
    if (tokens[0].IsWord("update"_L1) && !AreAssignments(tokens, PositionOf(tokens, "set"_L1) + 1))
        RaiseSyntax(u"Syntax error in UPDATE statement."_s);
    if (tokens[0].IsWord("insert"_L1) && !IsRow(tokens, PositionOf(tokens, "values"_L1) + 1))
        RaiseSyntax(u"Syntax error in INSERT INTO statement."_s);
}

bool IsComparedOn(const Token& token)
{
    static constexpr QLatin1StringView signs[]{"="_L1, "<>"_L1, "<"_L1, ">"_L1, "<="_L1, ">="_L1, "("_L1, ","_L1};
    return token.IsWord("like"_L1) ||
           (token.Kind == TokenKind::Sign && std::ranges::find(signs, token.Content) != std::end(signs));
}

bool EndsComparison(const Token& token)
{
    return token.IsSign(")"_L1) || token.IsSign(","_L1) || token.IsWord("and"_L1) || token.IsWord("order"_L1);
}

void RefuseComputedConditions(const Tokens& tokens)
{
    for (size_t i = PositionOf(tokens, "where"_L1) + 1; i < tokens.size(); ++i) {
        const bool joinsByOr = tokens[i].IsWord("or"_L1);
        const bool standsAlone =
            tokens[i].Kind != TokenKind::Text ||
            (IsComparedOn(tokens[i - 1]) && (i + 1 == tokens.size() || EndsComparison(tokens[i + 1])));
        if (joinsByOr || !standsAlone)
            RaiseMissingOperator(tokens[i].Content.left(80));
    }
}

} // namespace

void CheckStatement(const Tokens& tokens)
{
    RefuseEmptyLists(tokens);
    RefuseSecondRow(tokens);
    RefuseComputedValues(tokens);
    RefuseComputedConditions(tokens);
}
