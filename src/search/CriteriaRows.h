#pragma once

#include <QString>
#include <vector>

/// What is searched.
enum class SearchMode
{
    Contacts,
    Properties
};

/// The window that asks for a criterion.
enum class CriterionDialog
{
    SetValue,
    Currency,
    Date
};

/// The input of frmSetValue that a row takes.
enum class ValueInput
{
    txtLongString,
    txtInitial,
    txtShortInt,
    txtPhone,
    cboState,
    cboPropType,
    cboConstruction,
    cboFloor,
    cboRoof,
    cboParking,
    cboPool,
    cboYesNo,
    cboRentalBasis
};

/// One row of the criteria grid.
struct CriterionRow
{
    QLatin1StringView Label;
    QLatin1StringView Caption;
    CriterionDialog Dialog;
    ValueInput Input;
};

/// The rows of a mode; code knows a row by its number, from 1.
[[nodiscard]] const std::vector<CriterionRow>& CriteriaRows(SearchMode mode);

/// A row that a search reads, and the name under which the field is tested.
struct SearchedRow
{
    int Row;
    QLatin1StringView FieldName;
};

/// The rows that a search reads, in the order of its tests. "City:" of contacts and "Rental Amount:" of properties are
/// not among them, which is meant: what stands there neither narrows a search nor counts as a criterion.
[[nodiscard]] const std::vector<SearchedRow>& SearchedRows(SearchMode mode);
