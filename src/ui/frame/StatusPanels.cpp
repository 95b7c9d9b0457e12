#include "ui/frame/StatusPanels.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

/// What a screen reader calls the panels.
constexpr std::array names{"Status"_L1, "Contacts"_L1, "Selected contacts"_L1, "Date"_L1, "Clock"_L1};

} // namespace

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent)
{
    setObjectName(u"StatusBar1"_s);
    for (int i = 0; i < PanelCount; ++i) {
        auto* panel = new QLabel(this);
        panel->setObjectName(u"Panel%1"_s.arg(i + 1));
        panel->setAccessibleName(QString(names[static_cast<size_t>(i)]));
        panel->setTextFormat(Qt::PlainText);
        panel->setContentsMargins(8, 2, 8, 2);
        panel->installEventFilter(this);
        m_panels[static_cast<size_t>(i)] = panel;
        addWidget(panel, i == 0 ? 1 : 0);
    }
    // The first panel gives way: a long outcome must not widen the window.
    m_panels[0]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_panels[4]->setCursor(Qt::PointingHandCursor);
    m_panels[4]->setToolTip(u"Clock Settings"_s);
}

void StatusPanels::SetText(int panel, const QString& text)
{
    const auto index = static_cast<size_t>(panel - 1);
    m_panels.at(index)->setText(text);
    // A label with a name of its own is read by that alone.
    m_panels[index]->setAccessibleName(u"%1: %2"_s.arg(QString(names[index]), text));
}

QString StatusPanels::Text(int panel) const
{
    return m_panels.at(static_cast<size_t>(panel - 1))->text();
}

QPoint StatusPanels::PopupPosition(int panel) const
{
    const QLabel* label = m_panels.at(static_cast<size_t>(panel - 1));
    return label->mapToGlobal(QPoint(0, 0));
}

bool StatusPanels::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto found = std::find(m_panels.begin(), m_panels.end(), watched);
        if (found != m_panels.end())
            Q_EMIT PanelClick(static_cast<int>(found - m_panels.begin()) + 1);
    }
    return QStatusBar::eventFilter(watched, event);
}
