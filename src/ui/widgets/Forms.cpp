#include "ui/widgets/Forms.h"

#include "ui/widgets/Form.h"

#include <QApplication>
#include <QPointer>
#include <vector>

namespace {

QList<Form*> loaded;
/// The shown windows; the last one is the active one, the one before it lies beneath.
QList<Form*> shown;

/// Whether a modal window of ours stands over this one.
bool IsBlocked(const Form* form)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != form;
}

} // namespace

QStringList Forms::Loaded()
{
    QStringList names;
    for (const Form* form : std::as_const(loaded))
        names.append(form->Name());
    return names;
}

Form* Forms::Find(const QString& name)
{
    for (Form* form : std::as_const(loaded))
        if (form->Name() == name)
            return form;
    return nullptr;
}

Form* Forms::Active()
{
    return shown.isEmpty() ? nullptr : shown.last();
}

void Forms::Add(Form* form)
{
    loaded.append(form);
}

void Forms::Remove(Form* form)
{
    loaded.removeOne(form);
}

void Forms::Enter(Form* form)
{
    const bool first = !shown.contains(form);
    if (Active() == form || (!first && IsBlocked(form)))
        return;
    shown.removeOne(form);
    // A window that is first shown while a modal one is open waits beneath it.
    shown.insert(IsBlocked(form) && !shown.isEmpty() ? shown.size() - 1 : shown.size(), form);
    form->QueueActivate();
}

void Forms::Leave(Form* form)
{
    const bool wasActive = Active() == form;
    shown.removeOne(form);
    Form* beneath = Active();
    if (!wasActive || beneath == nullptr)
        return;
    // Without a window manager nobody else hands the focus back.
    beneath->activateWindow();
    beneath->QueueActivate();
}

std::vector<QPointer<Form>> Forms::OwnedBy(const QWidget* owner)
{
    std::vector<QPointer<Form>> owned;
    for (Form* form : std::as_const(loaded))
        if (form->m_owner == owner)
            owned.emplace_back(form);
    return owned;
}

bool IsLoaded(const QString& formName)
{
    return Forms::Find(formName) != nullptr;
}

void UnloadAllForms(const QString& exceptName)
{
    // Collected first: unloading one shifts the rest, and may take others along.
    std::vector<QPointer<Form>> open;
    for (Form* form : std::as_const(loaded))
        open.emplace_back(form);
    for (const QPointer<Form>& form : open)
        if (!form.isNull() && !form->IsUnloaded() && form->Name() != exceptName)
            form->Unload();
}
