#pragma once

#include "core/adodb/Lexer.h"

/// Refuses what no statement of the program is, but what a text with apostrophes in it can make of one. A value is
/// never worked out: in `Set Notes='rock 'and' roll'` the engine would find a sum, and store its result in the place of
/// the text.
/// - a value behind Set or in Values is one literal, one number with its sign, or Null, and no column is set twice;
/// - a text in a condition is the right side of a comparison, and conditions are joined by And alone;
/// - "in ()" and a second row behind Values are errors.
/// Raises ErrorNumber::EngineSyntax.
void CheckStatement(const Tokens& tokens);
