#pragma once

#include <QString>
#include <functional>

class QXmlStreamWriter;

namespace Word {

class Story;

/// A page as a section sets it up; lengths in twips (1/1440 inch). At first US Letter with margins of an inch.
struct PageSetup
{
    int Width = 12240;
    int Height = 15840;
    int Top = 1440;
    int Right = 1440;
    int Bottom = 1440;
    int Left = 1440;
    /// From the page's edge to the header's, and to the footer's.
    int HeaderDistance = 720;
    int PaperSource = 0;
    /// The relations of header and footer, "" where there is none.
    QString HeaderId;
    QString FooterId;
};

/// Writes the w:sectPr of a section that starts on a new page.
void WritePageSetup(QXmlStreamWriter& xml, const PageSetup& page);

/// Writes a text as paragraphs of a style ("" is the common one). `lastProperties` may add to those of the last
/// paragraph.
void WriteStory(QXmlStreamWriter& xml, const Story& story, const QString& style,
                const std::function<void()>& lastProperties = {});

/// The text without what no XML document can hold: control characters go, halves of characters become U+FFFD.
[[nodiscard]] QString CleanText(const QString& text);

} // namespace Word
