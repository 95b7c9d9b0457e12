#pragma once

#include "core/Types.h"

#include <QString>
#include <memory>
#include <optional>
#include <vector>

/// One node of the contact tree: a category (ParentID 0), or a subcategory under one. Contacts lie in subcategories
/// only.
class Category
{
public:
    using List = std::vector<std::shared_ptr<Category>>;

    Long RecID = 0;
    Long ParentID = 0;
    QString Description;
    /// Contacts in this node, in memory only; for a category, of all its subcategories.
    Long ContactCount = 0;
    /// The subcategories in load order; nothing until a list was given.
    std::optional<List> Subs;

    /// The subcategory at a position from 1. Raises 91 without a list, 9 outside of it.
    [[nodiscard]] const std::shared_ptr<Category>& Sub(qsizetype position) const;

    /// Writes this category as a new row and gives its ID. Gives 0 where a category of the same name exists, and says
    /// so when `showMessage` is set.
    [[nodiscard]] Long CreateACategory(bool showMessage) const;

    /// Renames, in memory and in the table, where the name differs.
    void UpdateCategory(const QString& newName);
    /// Renames and hangs under another category, where either differs.
    void UpdateSubCategory(const QString& newName, Long newParentID);

    /// The key of the first category with this name, without regard to case and outer blanks; 0 where there is none.
    [[nodiscard]] static Long Locate(const QString& name);

private:
    void UpdateCatDbRecord(Long id) const;
    void UpdatesubCatDbRecord(Long id) const;
};
