#include "make_window_pictures/PropertyPictures.h"

#include "make_window_pictures/Album.h"
#include "make_window_pictures/Stage.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

void Click(Grid& grid, int row, QStringView key, Qt::MouseButton button = Qt::LeftButton)
{
    const QModelIndex cell = grid.model()->index(row - 1, grid.ColumnIndex(key) - 1);
    QTest::mouseClick(grid.viewport(), button, {}, grid.visualRect(cell).center());
    Settle();
}

Grid& GridOf(QWidget& window)
{
    return *window.findChild<Grid*>();
}

void Choose(QWidget& window, const QString& menu, const QString& entry)
{
    Q_EMIT window.findChild<QMenu*>(menu)->aboutToShow();
    window.findChild<QAction*>(entry)->trigger();
}

/// A house on a summer day, as a file.
QString PaintPhoto(const QString& folder)
{
    QImage photo(1200, 900, QImage::Format_RGB32);
    QPainter painter(&photo);
    QLinearGradient sky(0, 0, 0, 600);
    sky.setColorAt(0, QColor(0x7FB4E6));
    sky.setColorAt(1, QColor(0xDCEBF7));
    painter.fillRect(photo.rect(), sky);
    painter.fillRect(0, 600, 1200, 300, QColor(0x6F9F58));
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(320, 380, 560, 300, QColor(0xF3E9D8));
    painter.setBrush(QColor(0xA6523C));
    painter.drawPolygon(QPolygon({{260, 390}, {600, 190}, {940, 390}}));
    painter.fillRect(560, 500, 90, 180, QColor(0x5B4636));
    for (const int x : {390, 720})
        painter.fillRect(x, 450, 100, 90, QColor(0x9CC3DC));
    painter.setBrush(QColor(0x4E7F43));
    painter.drawEllipse(930, 420, 200, 200);
    painter.end();
    const QString file = folder + u"/house.jpg"_s;
    if (!photo.save(file))
        throw std::runtime_error("the photo cannot be saved");
    return file;
}

/// The first row whose contact has several properties.
int RowWithProperties(const Grid& contacts)
{
    for (int row = 1; row <= contacts.Rows(); ++row) {
        if (ContactAt(contacts.RowItemData(row))->Properties.Count() > 1)
            return row;
    }
    throw std::runtime_error("no contact of the list has several properties");
}

void TakeEditor(Album& album, QWidget& form)
{
    const auto key = [&form](Qt::Key code) { QTest::keyClick(form.windowHandle(), code); };
    album.Take(form, u"property"_s);
    auto* combo = form.findChild<QComboBox*>(u"cboConstruction"_s);
    while (QApplication::focusWidget() != combo)
        key(Qt::Key_Tab);
    album.Take(form, u"property-combo"_s);
    auto* date = form.findChild<QLineEdit*>(u"txtListingDate"_s);
    while (QApplication::focusWidget() != date)
        key(Qt::Key_Tab);
    album.Take(form, u"property-date"_s);
    InModal([&form] { QTest::keyClick(form.windowHandle(), Qt::Key_D, Qt::AltModifier); },
            [&album](QWidget& calendar) { album.Take(calendar, u"property-calendar"_s); });
    key(Qt::Key_Escape);
}

void TakeList(Album& album, QWidget& form)
{
    Grid& rows = GridOf(form);
    Click(rows, 1, u"City");
    QTest::qWait(120);
    album.Take(form, u"property-list"_s);
    Click(rows, 1, u"City", Qt::RightButton);
    album.TakeWithPopup(form, *QApplication::activePopupWidget(), u"property-list-menu"_s);
    QApplication::activePopupWidget()->close();
    Click(rows, 2, u"Address1");
    album.Take(form, u"property-list-no-photo"_s);
    rows.EnsureVisible(1, rows.Columns());
    album.Take(form, u"property-list-end"_s);
    rows.EnsureVisible(1, 1);
    Click(rows, 1, u"Address1");
    InModal([&form] { Choose(form, u"mnuProperty"_s, u"mnuModify"_s); },
            [&album](QWidget& editor) { TakeEditor(album, editor); });
    InModal([&form] { Choose(form, u"mnuProperty"_s, u"mnuNew"_s); },
            [&album](QWidget& editor) {
                album.Take(editor, u"property-new"_s);
                QTest::keyClick(editor.windowHandle(), Qt::Key_Escape);
            });
}

} // namespace

void TakeProperties(Album& album, QWidget& contactList)
{
    const QTemporaryDir folder;
    Grid& contacts = GridOf(contactList);
    const int row = RowWithProperties(contacts);
    contacts.EnsureVisible(row, 1);
    const std::shared_ptr<Contact> contact = ContactAt(contacts.RowItemData(row));
    const std::shared_ptr<PropDetail> first = contact->Properties.Items().front();
    first->Picture = PaintPhoto(folder.path());
    contact->DefaultProperty = first->RecID;
    curPropertyID = first->RecID;
    Click(contacts, row, u"City");
    InModal([&contactList] { Choose(contactList, u"mnuContacts"_s, u"mnuProperties"_s); },
            [&album](QWidget& form) { TakeList(album, form); });
}
