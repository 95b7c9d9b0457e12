#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QRectF>
#include <QString>
#include <QStringList>

// Reading what the program wrote as a person's word processor does: LibreOffice lays the documents out, and the pages
// that it renders are read.

/// A word on a rendered page; lengths in millimeters from the page's upper left corner.
struct PageWord
{
    QString Text;
    QRectF Place;
};

/// A page as it was rendered.
struct Page
{
    QSizeF Size; ///< millimeters
    QList<PageWord> Words;
    /// Line by line, in reading order.
    QStringList Lines;
    /// The stretches that are bold, in reading order.
    QStringList Bold;
};

/// Has LibreOffice render documents, all in one start because a start is slow, and gives the pages of each. Fails the
/// test and gives nothing where it does not.
[[nodiscard]] QList<QList<Page>> RenderDocuments(const QStringList& documents);

/// The parts of a .docx by their names; nothing where it is no package.
[[nodiscard]] QMap<QString, QByteArray> PackageParts(const QString& document);

/// What is wrong with a .docx by the published structure of Office Open XML: a part that is not well-formed, that has
/// no content type or that nobody refers to, a relation without its part, an ID twice, elements in an order that their
/// type does not have.
[[nodiscard]] QStringList PackageFaults(const QString& document);
