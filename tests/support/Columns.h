#pragma once

#include <QTest>

/// Adds the columns of a test with data rows, in their order: AddColumns<QString, int>({"text", "row"}).
template <typename... Types>
void AddColumns(const char* const (&names)[sizeof...(Types)])
{
    const char* const* name = names;
    (QTest::addColumn<Types>(*name++), ...);
}
