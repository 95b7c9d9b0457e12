#pragma once

#include <QString>
#include <QVariant>
#include <vector>

/// A statement of the program, translated to the engine's language.
struct TranslatedStatement
{
    QString Text;                   ///< with a "?" in the place of each literal that was lifted
    std::vector<QVariant> Literals; ///< the lifted literals in their order: QString, qint64 or double
    bool Reusable = false;          ///< the text is the same for each use, so its prepared form is worth keeping
    QString UpdatableTable;         ///< the table of a plain "Select * from T ...", otherwise empty
};

/// Gives a statement its meaning on this engine. The statement is read by a lexer (Lexer.h) that knows literals,
/// bracketed names and numbers, never by text replacement, and held against what the program's statements are
/// (StatementRules.h), so that no text in a field can change what a statement does:
/// - exactly one statement; "--", "/*", ";" and an open literal are syntax errors (the language that these texts are
///   written in has no comments);
/// - "Delete * from" is "Delete from"; "A RIGHT JOIN B ON c" is "B LEFT JOIN A ON c";
/// - double quotes delimit text, brackets names.
///
/// Text and number literals are lifted into bound values, but for those of an "in (...)" list and for statements with
/// more than 64 of them, which are prepared as they stand. Raises ErrorNumber::EngineSyntax.
[[nodiscard]] TranslatedStatement Translate(const QString& statement);

/// The words in front of every message of the engine.
[[nodiscard]] QString DriverMessage(const QString& message);
