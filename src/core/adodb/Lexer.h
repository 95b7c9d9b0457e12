#pragma once

#include <QString>
#include <vector>

/// What a piece of a statement is.
enum class TokenKind
{
    Word,
    Name, ///< in brackets, kept with them
    Number,
    Text, ///< a literal's content, its quotes taken off
    Sign  ///< one or two characters of punctuation
};

/// A piece of a statement.
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

/// The pieces of a statement: words, names, numbers, literals and signs. Raises ErrorNumber::EngineSyntax where it
/// finds anything else, a comment, an end mark, or a literal or bracket that is never closed.
[[nodiscard]] Tokens ReadTokens(const QString& statement);

/// The position behind the bracket that closes the one at `open`; the end where it is never closed.
[[nodiscard]] size_t BehindClosing(const Tokens& tokens, size_t open);

/// Raises ErrorNumber::EngineSyntax with the driver's words in front.
[[noreturn]] void RaiseSyntax(const QString& message);
