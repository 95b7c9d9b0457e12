#include "editors/Editors.h"

#include "editors/frmContact.h"
#include "editors/frmNotes.h"
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
