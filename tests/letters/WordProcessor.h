#pragma once

#include "letters/word/Application.h"
#include "letters/word/OpenDocument.h"

#include <QStandardPaths>
#include <QStringList>

/// Stands where the person's word processor would: writes down what it is given to open, in a cache of the tests' own.
class WordProcessor
{
public:
    explicit WordProcessor(bool opens = true)
    {
        QStandardPaths::setTestModeEnabled(true);
        Word::SetDocumentOpener([this, opens](const QString& path) {
            m_opened << path;
            return opens;
        });
    }
    ~WordProcessor() { Word::SetDocumentOpener({}); }
    WordProcessor(const WordProcessor&) = delete;
    WordProcessor& operator=(const WordProcessor&) = delete;

    /// The files, in the order in which they came.
    [[nodiscard]] const QStringList& Opened() const { return m_opened; }

private:
    QStringList m_opened;
};
