#pragma once

#include "core/Types.h"
#include "model/Category.h"

#include <memory>
#include <optional>

// The procedures that know all categories.

/// Reads both levels of the tree into gCategories, in the order of the tables.
void LoadCategories();

/// The category under this key. A missing key raises 424, and stays behind in gCategories as an empty entry.
[[nodiscard]] const std::shared_ptr<Category>& CategoryAt(Long id);

/// The subcategory that is current in the tree: curSubIndex under curCategoryID.
[[nodiscard]] const std::shared_ptr<Category>& CurrentSub();

/// The position from 1 of a subcategory under `categoryID`; without one, in the first category that has it, which the
/// result does not tell. 0 where there is none.
[[nodiscard]] qsizetype LocateSub(Long id, std::optional<Long> categoryID = {});

/// The position of a subcategory of this name, without regard to case and outer blanks, under a category (the current
/// one unless given); 0 where there is none.
[[nodiscard]] qsizetype ExistSub(const QString& name, std::optional<Long> categoryID = {});

/// The ID in the key of a tree node ("C12", "S7"). Raises 13 where there is none.
[[nodiscard]] Long GetKey(const QString& nodeKey);

/// Writes a new subcategory (Description and ParentID set) and shows it in the tree. It joins its parent in memory
/// before the table is touched, which is meant: where the statement fails it stays there without an ID until the next
/// start.
void CreateASubCategory(const std::shared_ptr<Category>& category, bool showMessage);
