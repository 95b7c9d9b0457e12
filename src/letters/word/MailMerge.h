#pragma once

#include "letters/word/DataSource.h"

#include <QString>
#include <optional>

namespace Word {

class Application;
class Document;
class Range;
class Story;

inline constexpr int wdFormLetters = 0;
inline constexpr int wdMailingLabels = 1;
inline constexpr int wdSendToNewDocument = 0;

/// The merge fields of a document.
class MailMergeFields
{
public:
    explicit MailMergeFields(Document& document) : m_document(&document) {}

    /// Puts a field in at the start of a range of the document. At the insertion point, typing goes on behind it, and
    /// the field takes the look of the typing.
    void Add(const Range& range, const QString& name);

private:
    Document* m_document;
};

/// The merge of a document with a file of records.
class MailMerge
{
public:
    MailMerge(Application& application, Document& document)
        : m_application(&application), m_document(&document), m_fields(document)
    {}

    /// wdFormLetters or wdMailingLabels.
    int MainDocumentType = wdFormLetters;
    /// Only new documents are made.
    int Destination = wdSendToNewDocument;

    [[nodiscard]] MailMergeFields& Fields() { return m_fields; }
    /// Reads the records of a tab-separated file, see DataSource. Raises 53 where there is none, 75 where it cannot be
    /// read.
    void OpenDataSource(const QString& path);
    /// Makes a new document of all records, in their order, which becomes the application's last one.
    /// - Letters: each record's copy of the text starts on a new page. A paragraph that holds merge fields alone, all
    /// of
    ///   them empty, is left out of the copy.
    /// - Labels (after MailingLabel::CreateNewDocument): one label for each record; every line of the layout stays.
    /// A field without a column says so in its place, so that it is seen. `pause` is about problems shown while
    /// merging; there are none to show. Raises 5631 without a record, 4605 without a data source or without a label
    /// sheet.
    void Execute(bool pause = false);

private:
    void MergeLetters(Document& merged) const;
    void MergeLabels(Document& merged) const;

    Application* m_application;
    Document* m_document;
    MailMergeFields m_fields;
    std::optional<DataSource> m_source;
};

} // namespace Word
