#pragma once

#include <QStringList>
#include <vector>

// The words of the sample: names, streets and towns that sound like the suburbs of a city in the east.

namespace Words {

[[nodiscard]] const QStringList& WomensNames();
[[nodiscard]] const QStringList& MensNames();
[[nodiscard]] const QStringList& LastNames();
[[nodiscard]] const QStringList& StreetNames();
[[nodiscard]] const QStringList& StreetKinds();
[[nodiscard]] const QStringList& Subdivisions();
[[nodiscard]] const QStringList& CompanyKinds();

struct Town
{
    QString name;
    int state; ///< Index in the list of states.
    QString zip;
    QStringList areaCodes;
};
[[nodiscard]] const std::vector<Town>& Towns();

struct Letter
{
    QString name;
    QString text;
};
/// Form letters. None holds an apostrophe, so that each can be changed and saved.
[[nodiscard]] const std::vector<Letter>& Letters();

} // namespace Words
