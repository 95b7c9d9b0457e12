#pragma once

#include <QString>
#include <memory>

class PropDetail;

/// The property curPropertyID of curContact. Raises 91 without a contact; a missing key raises 424, and stays behind in
/// its Properties as an empty entry.
[[nodiscard]] const std::shared_ptr<PropDetail>& CurProperty();

/// A property in words: its MLS number, else where it is located.
[[nodiscard]] QString PropDescribe(const PropDetail& property);
/// The current one.
[[nodiscard]] QString PropDescribe();
