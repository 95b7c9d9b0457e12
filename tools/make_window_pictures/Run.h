#pragma once

#include "app/frmSplash.h"
#include "make_window_pictures/Album.h"
#include "make_window_pictures/Stage.h"
#include "ui/widgets/UserWindows.h"

class CategoryTreeView;
class frmMain;
class Grid;
class QMenu;

/// The program in one of its runs, and how a person works it.
class Run
{
public:
    /// On the program folder `folder`; the pictures go into `album`.
    Run(Album& album, const QString& folder);
    ~Run();
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    /// Starts the program and waits for its main window.
    void Start();

    [[nodiscard]] frmMain& Main() const;
    [[nodiscard]] CategoryTreeView& Tree() const;
    /// The contact list, which must be open, and its grid.
    [[nodiscard]] static QWidget& ListWindow();
    [[nodiscard]] static Grid& List();
    /// Opens the contact list of the subcategory that is selected in the tree.
    void OpenList() const;

    /// Clicks a node of the tree.
    void Click(const QString& key) const;
    /// Clicks a cell as the person does: only that makes the row's record the current one.
    static void ClickCell(Grid& grid, int row, int column);
    /// Chooses an entry of a window's menus.
    static void Trigger(QWidget& window, const QString& entry);

    /// Takes a picture of the window alone.
    void Take(QWidget& window, const QString& name) { m_album.Take(window, name); }
    /// Takes a picture of the main window with this menu open.
    void TakeMenu(const QString& menu, const QString& name);
    /// Clicks a cell with the right button and takes the window with the menu that comes up.
    void TakeCellMenu(QWidget& window, Grid& grid, int row, int column, const QString& name);
    /// Opens a modal window, takes its picture, and closes it.
    void TakeModal(const std::function<void()>& open, const QString& name);
    [[nodiscard]] Album& Pictures() { return m_album; }
    /// The splash window is taken in the first run only.
    void SkipSplash() { m_splashTaken = true; }

private:
    Album& m_album;
    UserWindows m_user;
    frmSplash m_splash;
    bool m_splashTaken = false;
};

// What each feature has drawn. All run in one program, in this order, and leave it at rest.
void TakeDesk(Run& run);
void TakeAlerts(Run& run);
void TakeFeedback(Run& run);
void TakeProperties(Run& run);
void TakeLetters(Run& run);
void TakeReports(Run& run);
void TakeSearch(Run& run);
