#pragma once

#include <QObject>
#include <functional>

struct PropertyFile;
class QAction;
class QMenu;
class QWidget;

/// The menu of the property list: what stands in it, and how it speaks of one property or of many. The list plugs in
/// what the entries do.
class PropertyMenu : public QObject
{
    Q_OBJECT

public:
    explicit PropertyMenu(QWidget& window);

    [[nodiscard]] QMenu& Menu() const { return *m_menu; }
    /// The menu of the photo or the video.
    [[nodiscard]] QMenu& FileMenu(const PropertyFile& file) const;
    /// Has an entry do this when it is chosen.
    void Plug(const QString& entry, std::function<void()> work);

    /// Fits captions and entries to so many highlighted rows; `some`: the selected row has a property; `described`: the
    /// one that would be deleted.
    void ShowFor(qsizetype count, bool some, const QString& described);
    /// The entries of a file of curProperty, where there is `some`.
    void EnableFile(const PropertyFile& file, bool some);

private:
    static void Add(QMenu& menu, const QString& name, const QString& caption);
    static void AddFileMenu(QMenu& menu, const PropertyFile& file);
    [[nodiscard]] QAction& Entry(const QString& name) const;

    QMenu* m_menu;
};
