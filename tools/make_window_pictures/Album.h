#pragma once

#include <QDir>
#include <QPixmap>

class QWidget;

/// Where the pictures go. Each window stands under a drawn title bar, as a person sees it on a desk; the picture's name
/// is that of the window and of the colour scheme.
class Album
{
public:
    /// `smallest` has each window drawn in the smallest size that it allows.
    Album(const QDir& folder, QString scheme, bool smallest);

    [[nodiscard]] const QDir& Folder() const { return m_folder; }

    /// The window alone.
    void Take(QWidget& window, const QString& name);
    /// The window with a menu or list popped up over it.
    void TakeWithPopup(QWidget& window, QWidget& popup, const QString& name);
    /// The windows as they stand on the desk, the last one in front, each at its place.
    void TakeDesk(const QList<std::pair<QWidget*, QPoint>>& windows, QSize desk, const QString& name);

private:
    void Save(const QPixmap& picture, const QString& name) const;

    QDir m_folder;
    QString m_scheme;
    bool m_smallest;
};
