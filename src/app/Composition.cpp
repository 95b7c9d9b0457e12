#include "app/Composition.h"

#include "alerts/AlertPanels.h"
#include "alerts/ManageAlerts.h"
#include "app/frmCallHome.h"
#include "editors/Editors.h"
#include "letters/FormLetters.h"
#include "letters/reports/Reports.h"
#include "model/DeleteContacts.h"
#include "model/Openers.h"
#include "model/SelectedSet.h"
#include "organise/CategoryTree.h"
#include "organise/frmList.h"
#include "organise/Rolodex.h"
#include "search/SearchPage.h"
#include "transfer/ExportData.h"
#include "transfer/ImportData.h"
#include "ui/frame/Menus.h"

using namespace Qt::StringLiterals;

Composition::Composition()
    : m_tree(new CategoryTree(m_main))
    , m_rolodex(new Rolodex)
    , m_alerts(new AlertPanels(m_main))
    , m_letters(new FormLetters)
{
    // The main window is the last to go, and everything hangs on it: it outlives its own unloading.
    m_main.SetDeleteOnUnload(false);
    m_main.AddContactsPanel(m_tree, 1);
    m_main.AddContactsPanel(m_rolodex, 1);
    m_main.AddContactsPanel(m_alerts, 1);
    m_main.SetPage(frmMain::Tab::Search, new SearchPage(m_main));
    m_main.SetPage(frmMain::Tab::Letters, m_letters);
    PlugOpeners();
    PlugSelectedMenu();
}

Composition::~Composition()
{
    gOpeners = {};
}

void Composition::PlugOpeners()
{
    gOpeners.ContactEditor = [] { ShowContactEditor(); };
    gOpeners.Notes = [] { ShowNotes(); };
    gOpeners.PropertyEditor = [] { ShowPropertyEditor(); };
    gOpeners.PropertyList = [] { ShowPropertyList(); };
    gOpeners.ContactList = [this] { ShowContactList(&m_main); };
    gOpeners.SelectedToRolodex = [this] { m_rolodex->mnuSelectedToRolodex_Click(); };
    gOpeners.Alerts = [] { ShowAlerts(); };
    PlugReports();
    gOpeners.ManageAlerts = [] { ManageAlerts(); };
    gOpeners.SetNewAlert = [] {
        if (SetNewAlert_Click())
            ShowAlerts();
    };
    gOpeners.Backup = [] { ExportData(u"All"_s); };
    gOpeners.ExportSelected = [] { ExportData(u"Selected"_s); };
    gOpeners.Import = [] { ImportData(false); };
    gOpeners.Restore = [] { ImportData(true); };
    gOpeners.Feedback = [] { ShowCallHome(); };
}

void Composition::PlugSelectedMenu()
{
    Menus& menus = m_main.MainMenus();
    menus.Plug(u"mnuUnselectAll"_s, &m_main, [] { UnselectAll(); });
    menus.Plug(u"mnuDeleteSelectedContacts"_s, &m_main, [] { DeleteContacts(DeleteMode::Selected); });
    // It stands there and does nothing.
    menus.Plug(u"mnuMailandLabels"_s, &m_main, [] {});
    menus.PlugOpener(u"mnuManageAlerts"_s, &m_main, gOpeners.ManageAlerts);
    menus.PlugOpener(u"mnuSetNewAlert"_s, &m_main, gOpeners.SetNewAlert);
    menus.PlugOpener(u"mnuSelectedToRolodex"_s, &m_main, gOpeners.SelectedToRolodex);
    menus.PlugOpener(u"mnuCreateWord"_s, &m_main, gOpeners.WordFileOfSelected);
    menus.PlugOpener(u"mnuSendFoundContactToWord"_s, &m_main, gOpeners.WordFileOfFoundContacts);
    menus.PlugOpener(u"mnuHilitedContactsWord"_s, &m_main, gOpeners.WordFileOfHilitedContacts);
    menus.PlugOpener(u"mnuCreatePropWordFile"_s, &m_main, gOpeners.WordFileOfFoundProperties);
    menus.PlugOpener(u"mnuHilitedPropertiesWord"_s, &m_main, gOpeners.WordFileOfHilitedProperties);
    menus.PlugOpener(u"mnuExportSelectedContacts"_s, &m_main, gOpeners.ExportSelected);
    menus.PlugOpener(u"mnuMaintenanceImport"_s, &m_main, gOpeners.Import);
    menus.PlugOpener(u"mnuBackup"_s, &m_main, gOpeners.Backup);
    menus.PlugOpener(u"mnuRestore"_s, &m_main, gOpeners.Restore);
    menus.PlugOpener(u"mnuContact"_s, &m_main, gOpeners.Feedback);
}
