#include "model/Alerts.h"

#include "core/Convert.h"
#include "core/Dates.h"
#include "core/Trap.h"
#include "model/Contact.h"
#include "model/Main.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

template <typename Predicate>
qsizetype FirstPosition(const Alerts& alerts, Predicate matches)
{
    const auto found = std::find_if(alerts.begin(), alerts.end(), matches);
    return found == alerts.end() ? 0 : found - alerts.begin() + 1;
}

/// The rank of an alert among a contact's: past 2, today 3, future 1.
int Rank(const Alert& alert, Date today)
{
    if (alert.AlertDate > today)
        return 1;
    return alert.AlertDate == today ? 3 : 2;
}

} // namespace

std::shared_ptr<Alert> Alerts::Add(const QString& key, Long contactID, Date alertDate, const QString& alertNote)
{
    auto alert = std::make_shared<Alert>();
    alert->Key = key;
    alert->ContactID = contactID;
    alert->AlertDate = alertDate;
    alert->AlertNote = alertNote;
    m_list.push_back(alert);
    m_byContact[contactID].push_back(alert.get());
    return alert;
}

void Alerts::Replace(qsizetype position, std::shared_ptr<Alert> alert)
{
    const Alert& old = *Item(position);
    std::erase(m_byContact[old.ContactID], &old);
    m_byContact[alert->ContactID].push_back(alert.get());
    m_list[static_cast<size_t>(position - 1)] = std::move(alert);
}

const std::shared_ptr<Alert>& Alerts::Item(qsizetype position) const
{
    if (position < 1 || position > Count())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return m_list[static_cast<size_t>(position - 1)];
}

void Alerts::Remove(qsizetype position)
{
    const Alert& alert = *Item(position);
    std::erase(m_byContact[alert.ContactID], &alert);
    m_list.erase(m_list.begin() + (position - 1));
}

void Alerts::RemoveIf(const std::function<bool(const Alert&)>& unwanted)
{
    for (auto& [contactID, alerts] : m_byContact)
        std::erase_if(alerts, [&](const Alert* alert) { return unwanted(*alert); });
    std::erase_if(m_list, [&](const std::shared_ptr<Alert>& alert) { return unwanted(*alert); });
}

void Alerts::RemoveAll()
{
    m_byContact.clear();
    m_list.clear();
}

const std::vector<Alert*>& Alerts::OfContact(Long contactID) const
{
    static const std::vector<Alert*> none;
    const auto found = m_byContact.find(contactID);
    return found != m_byContact.end() ? found->second : none;
}

qsizetype Alerts::LocateAlert(Long id) const
{
    return FirstPosition(*this, [id](const std::shared_ptr<Alert>& alert) { return alert->ID == id; });
}

qsizetype FindAlert(Long id)
{
    const QString key = u"A"_s + CStr(id);
    return FirstPosition(gAlerts, [&](const std::shared_ptr<Alert>& alert) { return alert->Key == key; });
}

Long curAlertKey()
{
    return gAlerts.Item(curAlertIndex)->KeyID();
}

AlertState AlertColor()
{
    return Trap(u"AlertColor Error #"_s, Icon::Information, [] {
        if (!curContact)
            throw RunTimeError(ErrorNumber::ObjectNotSet);
        const Date today = TodayDate();
        int worst = -1;
        for (const Alert* alert : gAlerts.OfContact(curContact->RecID))
            worst = std::max(worst, Rank(*alert, today));
        switch (worst) {
        case 1:
            return AlertState::Future;
        case 2:
            return AlertState::Past;
        case 3:
            return AlertState::Today;
        default:
            return AlertState::None;
        }
    });
}
