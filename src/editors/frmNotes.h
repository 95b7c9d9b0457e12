#pragma once

#include "ui/widgets/Form.h"
#include "ui/widgets/PlainText.h"

#include <memory>
#include <optional>

class HoverButtonArray;
class ResizeScaler;
namespace Ui {
class frmNotes;
}

/// The free notes of a contact or of a property in one large text box. Alt+D stamps the date, Alt+S saves, Alt+X and
/// Esc exit; the close box asks like Exit.
class frmNotes : public Form
{
    Q_OBJECT

public:
    /// Takes its text from curContact, or from its property curPropertyID, by gEditMode.
    frmNotes();
    ~frmNotes() override;

protected:
    void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
    void EscapePressed() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Form_Load();
    void LoadBitMaps();
    void AddKeys();
    /// Makes the window large enough for the captions of its buttons, which scale with it.
    void FitCaptions();
    void picStamp_Click();
    void DateStamp();
    void cmdButton_Click(int index);
    /// False after a refused write.
    bool Save();
    /// Asks about changes that are not saved; false where the person wants to stay.
    [[nodiscard]] bool MayLeave();

    /// What the box holds, as the store keeps it.

    std::unique_ptr<Ui::frmNotes> m_ui;
    std::unique_ptr<ResizeScaler> m_scaler;
    HoverButtonArray* m_buttons = nullptr;
    bool m_ofProperty;
    bool m_dirty = false;
    /// The stored text, and the same as the box gave it back unchanged.
    std::optional<StoredText> m_text;
};
