#pragma once

#include "model/PropertyFields.h"
#include "search/CheckCriterion.h"
#include "search/TextFinder.h"

/// How a field of a property is tested.
enum class PropertyTest
{
    Contains,  ///< the value occurs in the field's bare text, whatever criterion a dialog put into the value
    Equals,    ///< the list entry or the flag is exactly the value
    Criterion, ///< CheckCriterion
    IsPast,    ///< "Yes": the date is now or earlier; "No": later, or there is none
    Unknown
};

/// The test of one field of properties against a value, by the field's name in the search.
class FindInProps
{
public:
    /// What is past is measured by the moment of making.
    FindInProps(const QString& value, const QString& fieldName, Qt::CaseSensitivity sensitivity);

    /// Reports what fails, and tells of a field name that it does not know; both give false.
    [[nodiscard]] bool operator()(const PropDetail& property) const;

    /// The text that is looked into; null where the test looks at no text.
    [[nodiscard]] const QString* TextOf(const PropDetail& property) const;

private:
    [[nodiscard]] bool Test(const PropDetail& property) const;
    [[nodiscard]] bool TestText(const QString& text) const;
    [[nodiscard]] bool IsPast(const QString& date) const;

    QString m_value;
    QString m_fieldName;
    PropertyTest m_test = PropertyTest::Unknown;
    PropertyField m_field{};
    TextFinder m_finder;
    Criterion m_criterion;
    Date m_now;
};
