#include "model/Main.h"

#include "model/Category.h"
#include "model/Contact.h"

#include <QDir>

Dictionary<Long, std::shared_ptr<Category>> gCategories;
Dictionary<Long, std::shared_ptr<Contact>> gContacts;
Alerts gAlerts;
SelectedSet gSelected;
std::vector<Long> gHilited;
QString gHilitedList;
Settings gSettings;

Long gEditMode = EditMode::ModifyContact;
Long gAlertMode = 0;
QString gFocusField;

std::shared_ptr<Contact> curContact;
Long curCategoryID = 0;
qsizetype curSubIndex = 0;
Long curContactCount = 0;
qsizetype curAlertIndex = 0;
Long curPropertyID = 0;
Long savedPropertyID = 0;

Long gAlertsCurrent = 0;
Long gAlertsFuture = 0;

QString gAppPath;

QString AppFile(const QString& path)
{
    return gAppPath + QString(path).replace(u'\\', QDir::separator());
}
