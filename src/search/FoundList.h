#pragma once

#include "model/faces.h"
#include "search/FoundRows.h"

#include <QWidget>
#include <functional>
#include <memory>

class CriteriaPanel;
class frmMain;
class Grid;
class PropDetail;
class QLabel;
enum class SearchMode;

/// The list that a search fills, with its count and the menus of what can be done with what was found. It holds copies:
/// a record that changes elsewhere does not change its row. A hidden spacer row stands behind what was found; it keeps
/// the columns wide, and is no row of any count.
///
///   lblFound  "12 contacts found"                Clear
///   GridFound                                    mnuFound..., mnuHilited...
class FoundList : public QWidget, public FoundFace
{
    Q_OBJECT

public:
    /// `criteria` tells the mode, and outlives this.
    FoundList(frmMain& window, const CriteriaPanel& criteria);

    /// A search begins: its columns, no rows, and no count.
    void Begin();
    void Take(const Contact& contact);
    void Take(const PropDetail& property);
    /// The search has ended: the spacer row, and the count.
    void End();
    /// Empties the list and forgets the count.
    void Clear();
    /// The heading as it is while there is no count to show.
    void ShowAtRest();

    // FoundFace
    [[nodiscard]] std::vector<Long> FoundContacts() const override;
    [[nodiscard]] std::vector<Long> HighlightedContacts() const override;
    void MarkSelected(Long contactID, bool selected) override;
    void RedrawContact(const Contact& contact) override;
    void RemoveContacts(const std::vector<Long>& contactIDs) override;
    [[nodiscard]] std::vector<Long> FoundProperties() const override;
    [[nodiscard]] std::vector<Long> HighlightedProperties() const override;
    void RemoveProperties(const std::vector<Long>& propertyIDs) override;
    /// Changes nothing of what is current: whoever calls may have a record in hand.
    void ShowHowManyFound() override;

private:
    // FoundList.cpp: the layout, the search and the count
    void BuildLayout();
    [[nodiscard]] bool ShowsProperties() const;
    /// The rows found, without the spacer.
    [[nodiscard]] int Count() const;
    [[nodiscard]] int FirstVisibleRow() const;
    /// The count after a search or a deletion of this list's own, which makes the first property that is left current.
    void ShowCountAndTakeFirst();
    void ShowFoundMenu(bool shown);
    void HideFoundMenus();
    void ShowHeading(const QString& text, const QColor& color);

    // FoundListFace.cpp: the rows, as others see them
    /// The records of the rows that `wanted(row)` holds for, without the spacer.
    [[nodiscard]] std::vector<Long> Records(SearchMode mode, const std::function<bool(int row)>& wanted) const;
    void RemoveRowsOf(SearchMode mode, const std::vector<Long>& ids);

    // FoundMenus.cpp: the mouse, the keys and the menus
    void ConnectGrid();
    void PlugMenus();
    void GridFound_KeyDown(int code);
    void GridFound_MouseUp(Qt::MouseButton button, QPoint position);
    void PopUpMenu(QPoint position);
    void ShowPropertyCaptions();
    void ShowContactCaptions();
    void SetCaption(const char* entry, const QString& caption);
    void mnuHilitedContacts_Click();
    void SelectHilited(bool select);
    void ClearHilited();
    void ViewFoundItem();
    void ViewFoundContact(int row);
    void ViewFoundProperty(int row);
    /// The contact of a row: its record, or the owner of its property. Raises 424 where it is gone.
    [[nodiscard]] const std::shared_ptr<Contact>& ContactOfRow(int row) const;
    /// Makes the property of a row current, and its contact. Raises 424 where the contact is gone.
    void TakeProperty(int row);

    // FoundDeletes.cpp
    void mnuDeleteHilitedContacts_Click();
    void mnuDeleteFoundProp_Click();
    void mnuDeleteHilitedProperties_Click();
    void DeletePropFromFoundList(int row);
    void DeleteProps(const QString& question, const std::function<bool(int row)>& wanted);

    Face<FoundFace>::Registration m_face{*this};
    frmMain& m_window;
    const CriteriaPanel& m_criteria;
    QLabel* m_lblFound;
    Grid* m_grid;
    FoundRows m_rows;
};
