#pragma once

#include "app/frmSplash.h"
#include "support/FreshDatabase.h"
#include "support/Windows.h"
#include "ui/widgets/UserWindows.h"

class CategoryTreeView;
class frmMain;
class Grid;
class Office;

using Look = std::function<void(QWidget& window)>;

/// A window of the program, for all that holds for every window.
struct OfficeWindow
{
    QString Name;
    /// The control that has the focus when the window comes up.
    QString Focus;
    /// Opens the window as a person does, has `look` work it, and takes it away.
    std::function<void(Office& office, const Look& look)> Open;
    /// A sheet keeps Tab to its rows.
    bool KeepsTab = false;
};

// Each feature tells its windows.
[[nodiscard]] QList<OfficeWindow> DeskWindows();
[[nodiscard]] QList<OfficeWindow> AlertWindows();
[[nodiscard]] QList<OfficeWindow> FeedbackWindows();
[[nodiscard]] QList<OfficeWindow> PropertyWindows();
[[nodiscard]] QList<OfficeWindow> LettersWindows();
[[nodiscard]] QList<OfficeWindow> ReportWindows();
[[nodiscard]] QList<OfficeWindow> SearchWindows();

/// The running program with real windows and real boxes, on a file with this in it:
///   1 Buyers   1 First home: 1 Ann Lee with a property and an alert of today, 2 Bob M Ray, 3 Cy Day
///   2 Sellers  2 Houses: empty
/// or on an empty file.
class Office
{
public:
    enum class File
    {
        Empty,
        Small
    };

    explicit Office(File file = File::Small);
    ~Office();
    Office(const Office&) = delete;
    Office& operator=(const Office&) = delete;

    /// All windows.
    [[nodiscard]] static const QList<OfficeWindow>& Windows();
    /// Opens the window of this name, has `look` work it, and takes it away.
    void Open(const QString& window, const Look& look);

    /// Clicks a node of the tree.
    void Click(const QString& key);
    /// Opens the contact list of First home.
    Grid& OpenList();
    /// Chooses an entry of a window's menus, which must be enabled.
    static void Trigger(const QWidget& window, const QString& entry);
    /// Runs `open`, which shows a modal form, and has `look` see that form.
    static void InForm(const QString& name, const std::function<void()>& open, const Look& look);
    /// Starts with the file gone, and has `look` see the box that says so, or the splash window behind it.
    void StartInVain(bool box, const Look& look);

    [[nodiscard]] frmMain& Main();
    [[nodiscard]] CategoryTreeView& Tree();
    [[nodiscard]] static Form& List();

private:
    void Start();

    FreshDatabase m_database;
    UserWindows m_user;
    frmSplash m_splash;
};
