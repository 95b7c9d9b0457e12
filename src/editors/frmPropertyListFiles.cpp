#include "core/Trap.h"
#include "editors/frmPropertyList.h"
#include "editors/PhotoPreview.h"
#include "editors/PropertyFile.h"
#include "model/Main.h"
#include "model/PropDescribe.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/OpenFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

// The photo and the video of the current property. Only the path of a file is kept.

namespace {

QString TagOf(QLatin1StringView entry)
{
    return u"frmPropertyList "_s + entry + u"_Click Error #"_s;
}

} // namespace

void frmPropertyList::SelectFile(const PropertyFile& file)
{
    Trap(TagOf(file.SelectEntry), Icon::Information, [&] {
        m_dialog.FileName.clear();
        m_dialog.ShowOpen(this);
        if (m_dialog.FileName.isEmpty())
            return;
        CurProperty().get()->*file.Path = m_dialog.FileName;
        StoreFile(file, curPropertyID, m_dialog.FileName);
        ShowIcon(m_grid->SelectedRow(), file.IconColumn, true);
        ShowPhoto();
    });
}

void frmPropertyList::ViewFile(const PropertyFile& file)
{
    Trap(TagOf(file.ViewEntry), Icon::Information, [&] {
        const QString path = CurProperty().get()->*file.Path;
        const QString word(file.Word);
        if (!QFileInfo::exists(path))
            MsgBox(u"I could not find the "_s + word + u" file:\r\n"_s + path, Buttons::Ok, Icon::Information,
                   QString(file.Menu) + u" File is Missing"_s);
        else if (!OpenFile(path))
            MsgBox(u"I found no program that opens the "_s + word + u" file:\r\n"_s + path, Buttons::Ok,
                   Icon::Information, QString(file.Menu) + u" could not be Opened"_s);
    });
}

void frmPropertyList::ClearFile(const PropertyFile& file)
{
    Trap(TagOf(file.ClearEntry), Icon::Information, [&] {
        const QString word(file.Word);
        if (!Confirmed(u"Do you want me to clear the "_s + word + u" selection for "_s + PropDescribe() + u"?"_s))
            return;
        const QString path = std::exchange(CurProperty().get()->*file.Path, QString());
        StoreFile(file, curPropertyID, {});
        ShowIcon(m_grid->SelectedRow(), file.IconColumn, false);
        ShowPhoto();
        // The title speaks of a video for the photo too, which is meant.
        const Answer answer = MsgBox(u"The "_s + word + u" selection has been cleared. Do you want to delete the "_s +
                                         word + u" file:\r\n"_s + path + u"\r\nfrom the hard disk?"_s,
                                     Buttons::YesNo, Icon::Question, u"Video Selection has been Cleared"_s);
        if (answer != Answer::Yes)
            return;
        DeleteFileFromDisk(path);
        MsgBox(u"The "_s + word + u" file has been deleted from your disk"_s, Buttons::Ok, Icon::Information,
               u"Delete Successful"_s);
    });
}

void frmPropertyList::ShowPhoto()
{
    m_photo->SetFile(HasProperty(m_grid->SelectedRow()) ? CurProperty()->Picture : QString());
}
