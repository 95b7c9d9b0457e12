#pragma once

#include "app/frmSplash.h"
#include "support/FreshDatabase.h"
#include "support/Windows.h"
#include "ui/widgets/UserWindows.h"

class CategoryTreeView;
class frmMain;
class Grid;

/// The running program with real windows and real boxes, on a file with this in it:
///   1 Buyers   1 First home: 1 Ann Lee with a property, 2 Bob M Ray, 3 Cy Day
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

    /// The windows that Open knows.
    [[nodiscard]] static QStringList WindowNames();
    /// Opens a window as a person does, has `look` work it, and takes it away.
    void Open(const QString& window, const std::function<void(QWidget& window)>& look);

    /// Clicks a node of the tree.
    void Click(const QString& key);
    /// Opens the contact list of First home.
    Grid& OpenList();

    [[nodiscard]] frmMain& Main();
    [[nodiscard]] CategoryTreeView& Tree();
    [[nodiscard]] static Form& List();

private:
    void Start();
    void OpenBox(const QString& window, const std::function<void(QWidget& window)>& look);
    // OfficeProperties.cpp
    static void OpenProperty(const QString& window, const std::function<void(QWidget& window)>& look);

    FreshDatabase m_database;
    UserWindows m_user;
    frmSplash m_splash;
};
