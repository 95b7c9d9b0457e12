#pragma once

#include "model/faces.h"
#include "ui/widgets/Form.h"

#include <memory>
#include <optional>

class ClockPanel;
class Menus;
class QSplitter;
class QTabWidget;
class StatusPanels;

/// The main window: a frame that owns the tabs, the menu bar and the status bar, and lends each feature its place.
///
///   menus in their order
///   SSTab1  0 Contacts and Categories: Tree | Rolodex | Alert panels
///           1 Search
///           2 Letters and Labels
///   StatusBar1
class frmMain : public Form, public MainFace
{
    Q_OBJECT

public:
    /// The tabs of SSTab1.
    enum class Tab
    {
        Contacts,
        Search,
        Letters
    };

    frmMain();
    ~frmMain() override;

    [[nodiscard]] Menus& MainMenus() const { return *m_menus; }
    [[nodiscard]] StatusPanels& StatusBar1() const { return *m_panels; }

    /// Puts a feature's panel beside those that stand on the first tab already; `stretch` is its share of the width.
    void AddContactsPanel(QWidget* panel, int stretch);
    /// Puts a feature's page on its tab; a tab without a page is disabled.
    void SetPage(Tab tab, QWidget* page);

    /// The counts of the status bar, and the message in panel 1 where there is one.
    void ShoWait(const std::optional<QString>& message);

    // MainFace
    void SetCaption(const QString& caption) override;
    void SetPanel(int panel, const QString& text) override;
    void ShowSelectedMenu(bool shown) override;
    void ShowStatus() override;
    void ShowTab(int tab) override;

protected:
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, UnloadMode mode) override;
    void Form_Unload(bool& cancel) override;

private:
    void Form_Load();
    void SSTab1_Click(int previousTab);

    Face<MainFace>::Registration m_face{*this};
    std::unique_ptr<Menus> m_menus;
    StatusPanels* m_panels;
    QTabWidget* m_tabs;
    QSplitter* m_contactsPage;
    ClockPanel* m_clock = nullptr;
    int m_currentTab = 0;
};
