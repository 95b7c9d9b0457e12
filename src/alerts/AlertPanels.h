#pragma once

#include "model/faces.h"

#include <QWidget>

class frmMain;
class Grid;
class QLabel;

/// The alerts of all contacts on the first tab: GridAlerts with what is due today or overdue, GridFutureAlerts with all
/// that comes later, and the popup mnuAlertGrid of both.
///
///   Current Alerts   12
///   GridAlerts
///   Future Alerts    31
///   GridFutureAlerts
///
/// Nothing refreshes the panels by itself, not even midnight.
class AlertPanels : public QWidget, public AlertPanelsFace
{
    Q_OBJECT

public:
    explicit AlertPanels(frmMain& window);
    ~AlertPanels() override;

    // AlertPanelsFace
    void FillAlertGrid(bool futureOnly) override;
    void ClearPanels() override;
    void InsertAlertToGrid(const Alert& alert, bool isFuture) override;
    void RemoveAlertFromGrid(Long alertID, bool isFuture) override;
    void RemoveAlerts(const std::vector<Long>& alertIDs) override;

private:
    void AddSection(const QString& heading, const QString& name, QLabel& count, Grid& grid);
    void ConnectGrid(Grid& grid);
    void PlugMenu();
    void AddColumns();
    [[nodiscard]] Grid& Panel(bool future) const { return future ? *m_future : *m_current; }
    void Refill(bool future);
    void AddCurrentAlert(const Alert& alert, Date today);
    void AddAlert(int row, const Alert& alert, bool future);
    void ShowCounts();

    void GridAlerts_SelectionChange();
    void Grid_KeyDown(Grid& panel, int code);
    void Grid_MouseUp(Grid& panel, Qt::MouseButton button, QPoint position);
    void PopUpMenu(Grid& panel, QPoint position);
    void ShowRowEntries(bool shown);
    /// Makes the alert of the panel's selected row current, and its contact; false where the panel has no such row.
    bool TakeRow(const Grid& panel);

    void mnuShowAlert_Click(const Grid& panel);
    void mnuShowContact_Click(const Grid& panel);
    void mnuDeleteAlert_Click(const Grid& panel);

    Face<AlertPanelsFace>::Registration m_face{*this};
    frmMain& m_window;
    Grid* m_current;
    Grid* m_future;
    QLabel* m_currentCount;
    QLabel* m_futureCount;
    /// Where the popup came up last.
    Grid* m_popupPanel;
    bool m_showRowEntriesLater = false;
};
