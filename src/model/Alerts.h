#pragma once

#include "model/Alert.h"

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

/// All alerts of all contacts, by position from 1. Positions shift when one is removed.
class Alerts
{
public:
    using List = std::vector<std::shared_ptr<Alert>>;

    /// Adds an alert at the end and gives it. Several may bear one key.
    std::shared_ptr<Alert> Add(const QString& key, Long contactID, Date alertDate, const QString& alertNote);
    /// Puts an alert in the place of the one at a position. Raises 9 outside of 1 to Count.
    void Replace(qsizetype position, std::shared_ptr<Alert> alert);

    /// The alert at a position. Raises 9 outside of 1 to Count.
    [[nodiscard]] const std::shared_ptr<Alert>& Item(qsizetype position) const;
    [[nodiscard]] qsizetype Count() const { return std::ssize(m_list); }
    /// Raises 9 outside of 1 to Count.
    void Remove(qsizetype position);
    /// Removes all alerts that `unwanted` names, in one pass.
    void RemoveIf(const std::function<bool(const Alert&)>& unwanted);
    void RemoveAll();

    /// The first position whose ID is this one; 0 where there is none. A loaded alert has no ID.
    [[nodiscard]] qsizetype LocateAlert(Long id) const;

    /// The alerts of one contact, in their order.
    [[nodiscard]] const std::vector<Alert*>& OfContact(Long contactID) const;

    [[nodiscard]] List::const_iterator begin() const { return m_list.begin(); }
    [[nodiscard]] List::const_iterator end() const { return m_list.end(); }

private:
    List m_list;
    std::unordered_map<Long, std::vector<Alert*>> m_byContact;
};

/// The first position in gAlerts whose key is "A" and this ID; 0 where there is none.
[[nodiscard]] qsizetype FindAlert(Long id);

/// The table's ID of the current alert. Raises 9 where there is no current alert.
[[nodiscard]] Long curAlertKey();

/// The state of curContact's alerts, as the list windows show it.
enum class AlertState
{
    None = -1,
    Future = 0, ///< future ones only
    Today = 1,  ///< at least one today
    Past = 2    ///< past ones, none today
};

/// The worst state of curContact's alerts: today outranks past, and past outranks future.
[[nodiscard]] AlertState AlertColor();
