#pragma once

#include "model/faces.h"
#include "model/PropertyFields.h"
#include "ui/widgets/CommonDialog.h"
#include "ui/widgets/Form.h"

#include <functional>
#include <optional>

struct PropertyFile;
class Grid;
class PhotoPreview;
class PropertyMenu;

/// The properties of curContact, one a row: which of them is the default one, their photos and videos.
class frmPropertyList : public Form, public PropertyListFace
{
    Q_OBJECT

public:
    frmPropertyList();
    ~frmPropertyList() override;

    /// The loaded property list, or null.
    [[nodiscard]] static frmPropertyList* Loaded();

    /// Fills the list; for a contact without properties the editor comes up at once.
    void Form_Load();
    void UnSelectAll();
    /// Makes the selected row's property the default one, after a question where `ask`.
    void SetDefaultProp(bool ask);

    // PropertyListFace
    [[nodiscard]] std::vector<Long> Highlighted() const override;

    // What the editor does with its row.
    [[nodiscard]] int Rows() const;
    /// The header of the column that was worked last, "" for none.
    [[nodiscard]] QString SelectedHeader() const;
    /// Adds an empty row at the end for a property that is made, and selects it alone. There is one at most.
    void AddNewRow();
    /// The row of a property that is being made, 0 where there is none.
    [[nodiscard]] int NewRow() const { return m_newRow; }
    /// A refused save: the row of the property that was to be made goes, and no other one.
    void RemoveNewRow();
    /// Cancel: so does it here; the column stays.
    void CancelEdit();
    void SelectLastRow(QStringView key);
    void SetLastRowData(Long propertyID);
    /// Writes the selected row from the texts of the sheet.
    void WriteSelectedRow(const std::function<QString(PropertyField field)>& typed);
    /// The title with the count of rows.
    void ShowCaption();
    /// Gives the default property's row its icon, and takes it off all others.
    void ShowDefaultIcon();

protected:
    void Form_Unload(bool& cancel) override;
    void EscapePressed() override;

private:
    // frmPropertyList.cpp: the window and its rows
    void FillPropList();
    void AddProperty(const PropDetail& property);
    void AssignDefault(const PropDetail& property);
    void SelectCurProperty();
    void ShowClosed(int row, const QString& closingDate);
    void ShowIcon(int row, int column, bool shown);
    [[nodiscard]] bool HasProperty(int row) const;

    // frmPropertyListEvents.cpp: keys, mouse and what the menu does
    void PlugMenu();
    void ConnectGrid();
    void GridPropList_ColumnClick(int column);
    void GridPropList_SelectionChange();
    void GridPropList_MouseUp(Qt::MouseButton button, QPoint position);
    void GridPropList_DblClick(int row, int column);
    void mnuProperty_Click();
    [[nodiscard]] QString DescribeRow(int row) const;
    void mnuModify_Click();
    void mnuNew_Click();
    void mnuNotes_Click();

    // frmPropertyListDelete.cpp
    void mnuDelete_Click();
    [[nodiscard]] std::vector<int> RowsToDelete() const;
    void DeleteRows(const std::vector<int>& rows);
    void TakeOverDefault();

    // frmPropertyListFiles.cpp: photo and video
    void SelectFile(const PropertyFile& file);
    void ViewFile(const PropertyFile& file);
    void ClearFile(const PropertyFile& file);
    void ShowPhoto();

    /// Until it is unloaded: what is closed is not there for the others, although it may be deleted only later.
    std::optional<Face<PropertyListFace>::Registration> m_face{*this};
    Grid* m_grid;
    PhotoPreview* m_photo;
    int m_newRow = 0;
    PropertyMenu* m_menu;
    CommonDialog m_dialog;
};
