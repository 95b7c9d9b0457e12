#pragma once

#include <QString>

// The two ways of a form letter to the word processor. Each traps its own errors.

/// Merges a letter with markers over the Selected contacts, each with its default property: one letter for each, in a
/// new document that the person sees. What the letter asks for is left behind in \Data\MailMergeSource.txt.
void MailMerge(const QString& letter);

/// Opens a letter without markers as a new document, as it stands.
void CallWord(const QString& letter);
