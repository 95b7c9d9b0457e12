#include "model/Lists.h"

#include "core/Convert.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QStringList Entries(QLatin1StringView joined)
{
    return QString(joined).split(u'|');
}

} // namespace

const QStringList& ListEntries(int field)
{
    static const QStringList none;
    static const QStringList states =
        Entries("AL|AK|AS|AR|AZ|CA|CO|CT|DE|DC|FL|FM|GA|GU|HI|ID|IL|IN|IA|KS|KY|LA|ME|MH|MD|MA|MI|MN|MS|MO|MT|NE|NV|NH|"
                "NJ|NM|NY|NC|ND|MP|OH|OK|OR|PW|PA|PR|RI|SC|SD|TN|TX|UT|VT|VA|WA|WV|WI|WY"_L1);
    static const QStringList yesNo = Entries("Yes|No"_L1);
    static const std::array<std::pair<int, QStringList>, 7> others{{
        {ListField::PropType, Entries("Condominium|Multi Family|PUD|Single Family|Townhome"_L1)},
        {ListField::Construction, Entries("Asbestos|Block|Brick|Frame|Mobile|On Piling|Siding|Stone|Stucco"_L1)},
        {ListField::Floor, Entries("Brick/Stone|Ceramic Tile|Parquet|Quarry Tile|Slate|Terazzo|Vinyl|"
                                   "Wall to Wall Carpet|Wood"_L1)},
        {ListField::Roof, Entries("Built Up|Metal|Other|Shake|Shingle|Slate|Tile"_L1)},
        {ListField::Parking, Entries("1 Car Carport|1 Car Garage|2+ Car Carport|2+ Car Garage|Assigned Parking|"
                                     "Covered Parking"_L1)},
        {ListField::Pool, Entries("Above Ground|In Ground"_L1)},
        {ListField::RentalBasis, Entries("Daily|Monthly|Weekly"_L1)},
    }};
    if (field == ListField::State)
        return states;
    if (field >= ListField::FirstYesNo && field <= ListField::LastYesNo)
        return yesNo;
    for (const auto& [number, entries] : others) {
        if (number == field)
            return entries;
    }
    return none;
}

Integer GetIndex(const QString& text, int field)
{
    const qsizetype index = ListEntries(field).indexOf(text);
    return index < 0 ? Integer{0} : static_cast<Integer>(index);
}

QString ListEntry(Single index, int field)
{
    const Long position = CLng(static_cast<double>(index));
    return ListEntries(field).value(position);
}
