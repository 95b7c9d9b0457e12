#pragma once

#include <QString>

/// What the contact of a number holds when it was saved whole.
namespace Saved {

inline QString First(int number)
{
    return QStringLiteral("F%1").arg(number);
}
inline QString Last(int number)
{
    return QStringLiteral("L%1").arg(number);
}
inline QString Address(int number)
{
    return QStringLiteral("%1 Elm St").arg(number);
}
/// Over a hundred pages of the file, so that a save can be cut in two.
inline QString Notes(int number)
{
    return (QStringLiteral("%1 ").arg(number).repeated(250) + QStringLiteral("\r\n")).repeated(150);
}

} // namespace Saved
