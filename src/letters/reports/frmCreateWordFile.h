#pragma once

#include "ui/widgets/Form.h"

#include <memory>
#include <vector>

class HoverButtonArray;
namespace Ui {
class frmCreateWordFile;
}

/// Writes ticked fields of a set of contacts or properties into a new document, as a plain list. Ok leaves the window
/// open, so that another document can follow. `Mode` tells the set:
///   Selected          the Selected contacts, in their order
///   Found             the found contacts                     HilitedContact   those of them that are highlighted
///   Listed            the highlighted rows of the contact list
///   Contact           shows the rows of a contact; no report exists for it, which is meant
///   FoundProperties   the found properties                   HilitedProperty  those of them that are highlighted
///   Property          the highlighted rows of the property list
class frmCreateWordFile : public Form
{
    Q_OBJECT

public:
    frmCreateWordFile();
    ~frmCreateWordFile() override;

    QString Mode;

    /// `kind` is "Found", "Hilited", "Listed" or "Selected".
    void CreateWordFile(const QString& kind);
    /// `kind` is "Found", "Hilited" or "Properties".
    void CreatePropWordFile(const QString& kind);

protected:
    void Form_Activate() override;
    void EscapePressed() override { cmdButton_Click(1); }

private:
    void LoadBitMaps();
    void LoadGrid();
    void Grid1_MouseUp();
    void AskForCaption(class CaptionLabel& label, const QString& prompt);
    void cmdButton_Click(int index);
    /// The positions of the rows of Grid1 that are ticked, from 0.
    [[nodiscard]] std::vector<std::size_t> TickedRows() const;
    template <typename Records, typename Write>
    void CreateFile(const Records& gather, const Write& write);

    std::unique_ptr<Ui::frmCreateWordFile> m_ui;
    HoverButtonArray* m_buttons = nullptr;
};
