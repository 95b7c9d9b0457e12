#include "ui/widgets/ResizeScaler.h"

#include <QComboBox>
#include <QFontInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

ResizeScaler::ResizeScaler(QWidget& form, std::vector<const QWidget*> leftOut)
    : m_form(form), m_leftOut(std::move(leftOut))
{}

void ResizeScaler::FormResized()
{
    if (m_scale.isEmpty())
        SaveSizes();
    else if (!m_form.isMinimized())
        ResizeControls();
}

void ResizeScaler::SaveSizes()
{
    m_scale = m_form.size();
    m_saved.clear();
    const QList<QWidget*> all = m_form.findChildren<QWidget*>();
    for (QWidget* control : all) {
        // Only controls of our own have a name; the parts that Qt makes inside them have none, or one with "qt_".
        const bool ours = !control->objectName().isEmpty() && !control->objectName().startsWith("qt_"_L1);
        if (ours && !control->isWindow() && std::find(m_leftOut.begin(), m_leftOut.end(), control) == m_leftOut.end())
            m_saved.push_back({control, control->geometry(), QFontInfo(control->font()).pointSizeF()});
    }
}

void ResizeScaler::ResizeControls()
{
    const qreal across = qreal(m_form.width()) / m_scale.width();
    const qreal down = qreal(m_form.height()) / m_scale.height();
    for (const Saved& saved : m_saved) {
        if (saved.Control.isNull())
            continue;
        QFont font = saved.Control->font();
        font.setPointSizeF(saved.FontSize * std::min(across, down));
        saved.Control->setFont(font);
        const bool combo = qobject_cast<QComboBox*>(saved.Control.data()) != nullptr;
        const int height = combo ? saved.Place.height() : qRound(saved.Place.height() * down);
        saved.Control->setGeometry(qRound(saved.Place.x() * across), qRound(saved.Place.y() * down),
                                   qRound(saved.Place.width() * across), height);
    }
}
