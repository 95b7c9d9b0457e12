#include "model/PropDescribe.h"

#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"

using namespace Qt::StringLiterals;

const std::shared_ptr<PropDetail>& CurProperty()
{
    if (!curContact)
        throw RunTimeError(ErrorNumber::ObjectNotSet);
    const std::shared_ptr<PropDetail>& property = curContact->Properties.Item(curPropertyID);
    if (!property)
        throw RunTimeError(ErrorNumber::ObjectRequired);
    return property;
}

QString PropDescribe(const PropDetail& property)
{
    return property.MLS.isEmpty() ? u"the property located at "_s + property.Addr1 : property.MLS;
}

QString PropDescribe()
{
    return Trap(u"PropDescribe Error #"_s, Icon::Information, [] { return PropDescribe(*CurProperty()); });
}
