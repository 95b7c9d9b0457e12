#pragma once

#include <QPointer>
#include <QStringList>
#include <vector>

class Form;
class QWidget;

/// The loaded windows in their order of loading, and which of them was worked last.
class Forms
{
public:
    [[nodiscard]] static QStringList Loaded();
    /// The loaded window of this exact name; null where there is none.
    [[nodiscard]] static Form* Find(const QString& name);
    /// The window that the person works in, or worked in before another program or a message box came; null when none
    /// is shown.
    [[nodiscard]] static Form* Active();

private:
    friend class Form;
    static void Add(Form* form);
    static void Remove(Form* form);
    /// The focus came to a window.
    static void Enter(Form* form);
    /// A window is no longer shown; the one beneath it becomes the active one.
    static void Leave(Form* form);
    [[nodiscard]] static std::vector<QPointer<Form>> OwnedBy(const QWidget* owner);
};

/// Whether a window of this exact name is loaded.
[[nodiscard]] bool IsLoaded(const QString& formName);

/// Unloads each open window, in the order of loading, unless its name equals `exceptName` exactly; "" unloads all.
void UnloadAllForms(const QString& exceptName);
