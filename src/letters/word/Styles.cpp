#include "letters/word/Styles.h"

#include "letters/word/LabelLook.h"

namespace Word {

namespace {

constexpr auto stylesStart = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<w:styles xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main">
<w:docDefaults><w:rPrDefault><w:rPr>
<w:rFonts w:ascii="Times New Roman" w:eastAsia="Times New Roman" w:hAnsi="Times New Roman" w:cs="Times New Roman"/>
<w:sz w:val="24"/><w:szCs w:val="24"/><w:lang w:val="en-US" w:eastAsia="en-US" w:bidi="ar-SA"/>
</w:rPr></w:rPrDefault><w:pPrDefault/></w:docDefaults>
<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/><w:qFormat/></w:style>
<w:style w:type="character" w:default="1" w:styleId="DefaultParagraphFont"><w:name w:val="Default Paragraph Font"/>
<w:uiPriority w:val="1"/><w:semiHidden/><w:unhideWhenUsed/></w:style>
<w:style w:type="table" w:default="1" w:styleId="TableNormal"><w:name w:val="Normal Table"/><w:uiPriority w:val="99"/>
<w:semiHidden/><w:unhideWhenUsed/><w:tblPr><w:tblInd w:w="0" w:type="dxa"/><w:tblCellMar>
<w:top w:w="0" w:type="dxa"/><w:left w:w="108" w:type="dxa"/><w:bottom w:w="0" w:type="dxa"/>
<w:right w:w="108" w:type="dxa"/></w:tblCellMar></w:tblPr></w:style>
<w:style w:type="numbering" w:default="1" w:styleId="NoList"><w:name w:val="No List"/><w:uiPriority w:val="99"/>
<w:semiHidden/><w:unhideWhenUsed/></w:style>
<w:style w:type="paragraph" w:styleId="Header"><w:name w:val="header"/><w:basedOn w:val="Normal"/>
<w:pPr><w:tabs><w:tab w:val="center" w:pos="4680"/><w:tab w:val="right" w:pos="9360"/></w:tabs></w:pPr></w:style>
<w:style w:type="paragraph" w:styleId="Footer"><w:name w:val="footer"/><w:basedOn w:val="Normal"/>
<w:pPr><w:tabs><w:tab w:val="center" w:pos="4680"/><w:tab w:val="right" w:pos="9360"/></w:tabs></w:pPr></w:style>
)";

/// %1 is the indent in twips, %2 the size of the text in half points, %3 the height of its lines in twips.
constexpr auto labelStyles = R"(<w:style w:type="paragraph" w:customStyle="1" w:styleId="Label"><w:name w:val="Label"/>
<w:basedOn w:val="Normal"/><w:pPr><w:spacing w:before="0" w:after="0" w:line="%3" w:lineRule="exact"/>
<w:ind w:left="%1" w:right="%1"/></w:pPr><w:rPr><w:sz w:val="%2"/><w:szCs w:val="%2"/></w:rPr></w:style>
<w:style w:type="paragraph" w:customStyle="1" w:styleId="LabelEnd"><w:name w:val="Label End"/>
<w:basedOn w:val="Normal"/><w:pPr><w:spacing w:before="0" w:after="0" w:line="20" w:lineRule="exact"/></w:pPr>
<w:rPr><w:sz w:val="2"/><w:szCs w:val="2"/></w:rPr></w:style>
)";

/// For a label with a long line; %1 is the style's name, %2 and %3 as %2 and %3 above.
constexpr auto smallerLabelStyle = R"(<w:style w:type="paragraph" w:customStyle="1" w:styleId="%1"><w:name w:val="%1"/>
<w:basedOn w:val="Label"/><w:semiHidden/><w:pPr><w:spacing w:line="%3" w:lineRule="exact"/></w:pPr>
<w:rPr><w:sz w:val="%2"/><w:szCs w:val="%2"/></w:rPr></w:style>
)";

constexpr auto settings = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<w:settings xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main">
<w:zoom w:percent="100"/><w:defaultTabStop w:val="720"/><w:characterSpacingControl w:val="doNotCompress"/>
<w:compat><w:compatSetting w:name="compatibilityMode" w:uri="http://schemas.microsoft.com/office/word" w:val="15"/></w:compat>
<w:decimalSymbol w:val="."/><w:listSeparator w:val=","/></w:settings>
)";

} // namespace

QByteArray StylesPart(const std::optional<LabelSheet>& labels)
{
    QByteArray part(stylesStart);
    if (labels) {
        const LabelLook look = LookOf(*labels);
        const int line = LineHeight(look.HalfPoints);
        part += QString::fromLatin1(labelStyles).arg(look.Indent).arg(look.HalfPoints).arg(line).toUtf8();
        for (int size = smallestOnLabel; size < look.HalfPoints; ++size) {
            const QString style = LabelStyle(size, look);
            part += QString::fromLatin1(smallerLabelStyle).arg(style).arg(size).arg(LineHeight(size)).toUtf8();
        }
    }
    return part + "</w:styles>\n";
}

QByteArray SettingsPart()
{
    return QByteArray(settings);
}

} // namespace Word
