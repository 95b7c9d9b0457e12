#pragma once

#include "editors/SheetEditor.h"
#include "model/Main.h"
#include "support/Windows.h"

#include <QTest>
#include <optional>

/// A window with a sheet, open in an edit mode.
template <typename Window>
class SheetWindow
{
public:
    explicit SheetWindow(Long editMode)
    {
        gEditMode = editMode;
        m_form.emplace();
        m_form->SetDeleteOnUnload(false);
        m_form->Show();
        static_cast<void>(QTest::qWaitForWindowActive(&*m_form));
    }

    [[nodiscard]] Window& Form() { return *m_form; }
    [[nodiscard]] SheetEditor& Sheet() { return *m_form->template findChild<SheetEditor*>(); }
    [[nodiscard]] QString Focus() const { return m_form->focusWidget()->objectName(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { TypeKey(*m_form, key, modifiers); }
    void Type(const QString& text) { TypeText(*m_form, text); }
    void Click(int button) { ClickOn(*m_form, QStringLiteral("cmdButton_%1").arg(button)); }
    void Gone() { m_form.reset(); }

private:
    std::optional<Window> m_form;
};
