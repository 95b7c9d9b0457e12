#include "editors/Editors.h"

#include "editors/frmContact.h"
#include "editors/frmNotes.h"
#include "editors/frmProperty.h"
#include "editors/frmPropertyList.h"
#include "ui/widgets/Forms.h"

void ShowContactEditor()
{
    frmContact form;
    form.ShowModal(Forms::Active());
}

void ShowNotes()
{
    frmNotes form;
    form.ShowModal(Forms::Active());
}

void ShowPropertyEditor()
{
    frmProperty form;
    form.ShowModal(Forms::Active());
}

void ShowPropertyList()
{
    frmPropertyList form;
    form.Form_Load();
    form.ShowModal(Forms::Active());
}
