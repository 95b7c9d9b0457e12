#pragma once

#include <QObject>
#include <functional>

class QAction;
class QMenu;
class QWidget;

/// The menus of the contact list: what stands in them, and how they speak of one contact or of many. What works on
/// curContact alone is done here; the list plugs the rest in.
class ListMenus : public QObject
{
    Q_OBJECT

public:
    explicit ListMenus(QWidget& window);

    [[nodiscard]] QMenu& Contacts() const { return *m_contacts; }
    [[nodiscard]] QMenu& Properties() const { return *m_properties; }
    /// Has an entry do this when it is chosen.
    void Plug(const char* entry, std::function<void()> work);

    /// Fits captions and entries to so many highlighted contacts; one of them is curContact.
    void ShowFor(qsizetype count);
    /// Names curContact, where there is one, on the menu of its properties.
    void ShowPropertyCaption();
    void EnableProperties();

    static void mnuModify_Click();
    static void mnuManageAlerts_Click();
    static void mnuNewAlert_Click();
    static void mnuWord_Click();
    static void mnuNotes_Click();
    static void mnuProperties_Click();
    static void mnuNewProperty_Click();

private:
    void Add(QMenu& menu, const char* name, const QString& caption, std::function<void()> work = {});
    [[nodiscard]] QAction& Entry(const char* name) const;
    void ShowForOne();
    void ShowForMany(qsizetype count);

    QMenu* m_contacts;
    QMenu* m_properties;
};
