#include "make_window_pictures/Run.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "ui/widgets/Grid.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void Click(Grid& grid, int row, QStringView key)
{
    Run::ClickCell(grid, row, grid.ColumnIndex(key));
}

/// Chooses an entry that the opening of its menu brings up to date.
void Choose(QWidget& window, const QString& menu, const QString& entry)
{
    Q_EMIT Find<QMenu>(window, menu).aboutToShow();
    Run::Trigger(window, entry);
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

void TabTo(QWidget& form, const QString& control)
{
    const auto& field = Find<QWidget>(form, control);
    while (QApplication::focusWidget() != &field)
        Key(form, Qt::Key_Tab);
}

void TakeEditor(Run& run, QWidget& form)
{
    run.Take(form, u"property"_s);
    TabTo(form, u"cboConstruction"_s);
    run.Take(form, u"property-combo"_s);
    TabTo(form, u"txtListingDate"_s);
    run.Take(form, u"property-date"_s);
    run.TakeModal([&form] { Key(form, Qt::Key_D, Qt::AltModifier); }, u"property-calendar"_s);
    Key(form, Qt::Key_Escape);
}

void TakeList(Run& run, QWidget& form)
{
    auto& rows = Find<Grid>(form, u"GridPropList"_s);
    Click(rows, 1, u"City");
    QTest::qWait(120);
    run.Take(form, u"property-list"_s);
    run.TakeCellMenu(form, rows, 1, rows.ColumnIndex(u"City"), u"property-list-menu"_s);
    Click(rows, 2, u"Address1");
    run.Take(form, u"property-list-no-photo"_s);
    rows.EnsureVisible(1, rows.Columns());
    run.Take(form, u"property-list-end"_s);
    rows.EnsureVisible(1, 1);
    Click(rows, 1, u"Address1");
    InModal([&form] { Choose(form, u"mnuProperty"_s, u"mnuModify"_s); },
            [&run](QWidget& editor) { TakeEditor(run, editor); });
    InModal([&form] { Choose(form, u"mnuProperty"_s, u"mnuNew"_s); },
            [&run](QWidget& editor) {
                run.Take(editor, u"property-new"_s);
                Key(editor, Qt::Key_Escape);
            });
}

} // namespace

void TakeProperties(Run& run)
{
    const QTemporaryDir folder;
    run.Click(u"S2"_s);
    run.OpenList();
    Grid& contacts = Run::List();
    const int row = RowWithProperties(contacts);
    contacts.EnsureVisible(row, 1);
    const std::shared_ptr<Contact> contact = ContactAt(contacts.RowItemData(row));
    const std::shared_ptr<PropDetail> first = contact->Properties.Items().front();
    first->Picture = PaintPhoto(folder.path());
    contact->DefaultProperty = first->RecID;
    curPropertyID = first->RecID;
    Click(contacts, row, u"City");
    InModal([] { Choose(Run::ListWindow(), u"mnuContacts"_s, u"mnuProperties"_s); },
            [&run](QWidget& form) { TakeList(run, form); });
}
