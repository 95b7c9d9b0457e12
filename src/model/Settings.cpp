#include "model/Settings.h"

#include "core/adodb/Connection.h"
#include "core/adodb/Recordset.h"
#include "core/Convert.h"
#include "core/Trap.h"
#include "model/Main.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct PictureColumn
{
    QLatin1StringView Column;
    QString Settings::*Member;
    QLatin1StringView Title;
    QLatin1StringView Text;
};

const PictureColumn& ColumnOf(PictureOf window)
{
    static const PictureColumn contactList{
        "DefaultPicture"_L1, &Settings::Picture, "Default Contact List Picture File is Missing"_L1,
        "I couldn't locate the default image file associated with the contact list:"_L1};
    static const PictureColumn propertyList{
        "DefaultPropPicture"_L1, &Settings::PropPicture, "Default Property List Picture File is Missing"_L1,
        "I couldn't locate the default image file associated with the property list:"_L1};
    return window == PictureOf::ContactList ? contactList : propertyList;
}

QString ImageFile(const QString& image)
{
    return AppFile(u"\\Resource\\Images\\"_s + image);
}

void OpenSettings(Recordset& row, CursorType cursor)
{
    row.CursorLocation = CursorLocation::UseClient;
    row.LockType = LockType::Pessimistic;
    row.CursorType = cursor;
    row.Open(u"Select * from Settings"_s, gConn);
}

void WriteColumn(QLatin1StringView column, const QString& text)
{
    Recordset row;
    OpenSettings(row, CursorType::ForwardOnly);
    row.Fields(column).Set(text);
    row.Update();
}

void InsertFirstRow()
{
    gConn.Execute(
        u"Insert into Settings (LabelProduct,LabelNumber,DefaultPicture,DefaultPropPicture,ClientName) values "
        "(0,'','"_s +
        ImageFile(u"Impressionist1.jpg"_s) + u"','"_s + ImageFile(u"Impressionist2.jpg"_s) + u"','')"_s);
}

/// A Null becomes the picture of the contact list for either window, which is meant. The path of a file that is not
/// there is reported, once, and the column cleared.
QString LoadPicture(Recordset& row, PictureOf window)
{
    const PictureColumn& column = ColumnOf(window);
    const Recordset::Field field = row.Fields(column.Column);
    if (field.Get().IsNull())
        field.Set(ImageFile(u"Impressionist1.jpg"_s));
    const QString path = field.Get().Text();
    if (path.isEmpty() || QFileInfo(path).isFile())
        return path;
    MsgBox(QString(column.Text) + u"\r\n"_s + path, Buttons::Ok, Icon::Information, QString(column.Title));
    field.Set(QString(u""_s));
    return {};
}

void ReadRow(Recordset& row)
{
    const Recordset::Field labelNumber = row.Fields("LabelNumber"_L1);
    if (labelNumber.Get().IsNull())
        labelNumber.Set(QString(u""_s));
    const Recordset::Field labelProduct = row.Fields("LabelProduct"_L1);
    if (labelProduct.Get().IsNull())
        labelProduct.Set(Long{0});
    gSettings.LabelNumber = labelNumber.Get().Text();
    gSettings.LabelProduct = labelProduct.Get().ToInteger();
    gSettings.Picture = LoadPicture(row, PictureOf::ContactList);
    gSettings.PropPicture = LoadPicture(row, PictureOf::PropertyList);
    const Recordset::Field clientName = row.Fields("ClientName"_L1);
    if (clientName.Get().IsNull())
        clientName.Set(u"Orvantine by Pelmar"_s);
    const QString name = clientName.Get().Text();
    gSettings.ClientName = name == u"Orvantine by Pelmar"_s ? OwnTitle() : name;
    gSettings.Clock = row.Fields("Clock"_L1).Get().LongOrZero();
    row.Update();
}

} // namespace

QString OwnTitle()
{
    return u"Orvantine 1.0 "_s;
}

void LoadSettings()
{
    Trap(u"LoadSettings Error#"_s, Icon::Information, [] {
        Recordset row;
        OpenSettings(row, CursorType::Dynamic);
        if (row.RecordCount() == 0) {
            InsertFirstRow();
            row.Requery();
        }
        ReadRow(row);
    });
}

void UpdateSettings()
{
    Trap(u"UpdateSettings Error #"_s, Icon::Information, [] {
        gConn.Execute(u"Update Settings set LabelProduct="_s + CStr(gSettings.LabelProduct) + u", LabelNumber='"_s +
                      gSettings.LabelNumber + u"', Clock="_s + CStr(gSettings.Clock));
    });
}

void SetBackImage(PictureOf window, const QString& image)
{
    Trap(u"SetBackImage Error #"_s, Icon::Information, [&] {
        const PictureColumn& column = ColumnOf(window);
        const QString file = ImageFile(image);
        if (file == gSettings.*column.Member)
            return;
        WriteColumn(column.Column, file);
        gSettings.*column.Member = file;
    });
}

void ClearBackImage(PictureOf window)
{
    const PictureColumn& column = ColumnOf(window);
    if ((gSettings.*column.Member).isEmpty())
        return;
    WriteColumn(column.Column, u""_s);
    (gSettings.*column.Member).clear();
}

void SetContactListPicture(const QString& file)
{
    // The name goes into the statement as it is: an apostrophe in it is refused with the report.
    gConn.Execute(u"Update Settings set DefaultPicture='"_s + file + u"'"_s);
    gSettings.Picture = file;
}

void SetClientName(const QString& name)
{
    WriteColumn("ClientName"_L1, name);
    gSettings.ClientName = name;
}
