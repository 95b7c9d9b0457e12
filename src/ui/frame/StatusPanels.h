#pragma once

#include <QStatusBar>
#include <array>

class QLabel;

/// StatusBar1: five panels. 1 the outcome of the last action, 2 the count of contacts, 3 the count of selected ones, 4
/// the date, 5 the clock or the stop-watch.
class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    static constexpr int PanelCount = 5;

    explicit StatusPanels(QWidget* parent);

    /// `panel` from 1 to 5.
    void SetText(int panel, const QString& text);
    [[nodiscard]] QString Text(int panel) const;
    /// Where a panel's menu pops up, in global coordinates.
    [[nodiscard]] QPoint PopupPosition(int panel) const;

Q_SIGNALS:
    void PanelClick(int panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Shows as much of the outcome as there is room for; the whole of it is the tooltip then.
    void ShortenFirst();

    std::array<QLabel*, PanelCount> m_panels{};
    std::array<QString, PanelCount> m_texts;
};
