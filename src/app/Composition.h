#pragma once

#include "ui/frame/frmMain.h"

class AlertPanels;
class CategoryTree;
class FormLetters;
class Rolodex;

/// The main window with the features plugged in:
///
///   CategoryTree  -> first tab, mnuCategory
///   Rolodex       -> first tab
///   AlertPanels   -> first tab, mnuAlertGrid
///   SearchPage    -> second tab, mnuFoundContacts, mnuFoundProperties and their popups
///   FormLetters   -> third tab
///   frmList, frmContact, frmNotes, frmProperty, frmPropertyList, frmAlerts, ManageAlerts, SetNewAlert_Click  ->
///   openers
///
/// What is not plugged in stands disabled in the menus.
class Composition
{
public:
    Composition();
    ~Composition();

    [[nodiscard]] frmMain& Main() { return m_main; }
    [[nodiscard]] CategoryTree& Tree() { return *m_tree; }

private:
    void PlugOpeners();
    void PlugSelectedMenu();

    frmMain m_main;
    CategoryTree* m_tree;
    Rolodex* m_rolodex;
    AlertPanels* m_alerts;
    FormLetters* m_letters;
};
