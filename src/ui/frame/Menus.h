#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <functional>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

/// The menus of the main window, all of them in their order from the start. An entry that no feature has plugged in
/// stands there disabled. Entries are known by their names ("mnuCatCreate"), which are also the names of their actions.
class Menus : public QObject
{
    Q_OBJECT

public:
    /// Fills `bar` with the top menus and their entries.
    explicit Menus(QMenuBar& bar);

    /// The entry of this name; a programming error where there is none.
    [[nodiscard]] QAction& Entry(const QString& name) const;
    /// The menu of this name.
    [[nodiscard]] QMenu& Menu(const QString& name) const;

    /// Enables an entry and gives it its work. `owner` limits the life of the connection.
    void Plug(const QString& name, QObject* owner, std::function<void()> work);
    /// The same where there is work to do; an entry whose opener is empty stays disabled.
    void PlugOpener(const QString& name, QObject* owner, const std::function<void()>& opener);

private:
    QHash<QString, QAction*> m_entries;
    QHash<QString, QMenu*> m_menus;
};

/// The text of a menu entry that shows `caption` as it stands: an ampersand in a name is a letter, not a mark.
[[nodiscard]] QString MenuText(const QString& caption);
