#include "ui/widgets/Form.h"

#include "ui/widgets/Forms.h"
#include "ui/widgets/NormalCursor.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// A window as a screen reader announces it: by its title, and as a dialog where it waits for an answer.
class FormAccess final : public QAccessibleWidget
{
public:
    explicit FormAccess(Form* form) : QAccessibleWidget(form) {}

    QAccessible::Role role() const override { return widget()->isModal() ? QAccessible::Dialog : QAccessible::Window; }
};

QAccessibleInterface* NewFormAccess(const QString& className, QObject* object)
{
    auto* form = className == "Form"_L1 ? qobject_cast<Form*>(object) : nullptr;
    return form != nullptr ? new FormAccess(form) : nullptr;
}

} // namespace

Form::Form(const QString& name, Qt::WindowFlags flags) : QWidget(nullptr, flags)
{
    // A factory that is there already is not installed twice.
    QAccessible::installFactory(NewFormAccess);
    setObjectName(name);
    Forms::Add(this);
}

Form::~Form()
{
    Forms::Remove(this);
    Forms::Leave(this);
    if (m_loop != nullptr)
        m_loop->quit();
}

void Form::Show(QWidget* owner)
{
    if (m_unloaded)
        return;
    m_modeless = true;
    Reveal(owner);
}

void Form::ShowModal(QWidget* owner)
{
    if (m_unloaded)
        return;
    const NormalCursor cursor;
    setWindowModality(Qt::ApplicationModal);
    QEventLoop loop;
    m_loop = &loop;
    Reveal(owner);
    const QPointer<Form> alive(this);
    loop.exec(QEventLoop::DialogExec);
    if (!alive.isNull())
        m_loop = nullptr;
}

void Form::Reveal(QWidget* owner)
{
    if (owner != nullptr && owner != this) {
        m_owner = owner->window();
        static_cast<void>(winId());
        windowHandle()->setTransientParent(m_owner->windowHandle());
    }
    show();
    raise();
    activateWindow();
    Forms::Enter(this);
}

bool Form::Unload(UnloadMode mode)
{
    if (m_unloading || m_unloaded)
        return m_unloaded;
    {
        const QScopedValueRollback<bool> unloading(m_unloading, true);
        bool cancel = false;
        Form_QueryUnload(cancel, mode);
        if (!cancel)
            Form_Unload(cancel);
        if (cancel)
            return false;
    }
    m_unloaded = true;
    Forms::Remove(this);
    for (const QPointer<Form>& owned : Forms::OwnedBy(this))
        if (!owned.isNull())
            owned->Unload(UnloadMode::OwnerClosed);
    if (isVisible() && !m_closing)
        close();
    if (m_loop != nullptr)
        m_loop->quit();
    if (m_modeless && m_deleteOnUnload)
        deleteLater();
    return true;
}

void Form::Form_QueryUnload(bool&, UnloadMode) {}

void Form::Form_Unload(bool&) {}

bool Form::KeyPreview(QKeyEvent*)
{
    return false;
}

bool Form::EnterIsOk(const QKeyEvent& event, const std::function<void()>& ok)
{
    if (event.type() != QEvent::KeyPress || (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter))
        return false;
    if (!event.isAutoRepeat())
        ok();
    return true;
}

int Form::TitleWidth() const
{
    constexpr int barRoom = 140; // what a title bar needs beside its text
    constexpr int screenEdge = 40;
    return std::min(fontMetrics().horizontalAdvance(windowTitle()) + barRoom,
                    screen()->availableSize().width() - screenEdge);
}

bool Form::event(QEvent* event)
{
    // Asked again when the events have settled: of two windows shown at once the first is active for a moment only.
    if (event->type() == QEvent::WindowActivate)
        QTimer::singleShot(0, this, [this] {
            if (isVisible() && isActiveWindow())
                Forms::Enter(this);
        });
    return QWidget::event(event);
}

bool Form::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && watched == windowHandle() && KeyPreview(static_cast<QKeyEvent*>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void Form::closeEvent(QCloseEvent* event)
{
    const QScopedValueRollback<bool> closing(m_closing, true);
    event->setAccepted(m_unloaded || Unload(UnloadMode::CloseBox));
}

void Form::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    Forms::Leave(this);
    if (m_loop != nullptr)
        m_loop->quit();
}

void Form::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous() && windowHandle() != nullptr)
        windowHandle()->installEventFilter(this);
}

void Form::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        EscapePressed();
    else
        QWidget::keyPressEvent(event);
}

void Form::QueueActivate()
{
    if (std::exchange(m_activatePending, true))
        return;
    QMetaObject::invokeMethod(this, &Form::RunActivate, Qt::QueuedConnection);
}

void Form::RunActivate()
{
    m_activatePending = false;
    if (!m_unloaded && isVisible())
        Form_Activate();
}

void CenterForm(QWidget& form)
{
    form.ensurePolished();
    if (form.layout() != nullptr)
        form.layout()->activate();
    if (!form.testAttribute(Qt::WA_Resized))
        form.adjustSize();
    const QScreen* screen = form.screen();
    // The frame comes only with the showing: a form as high as the screen would have its last row below it.
    constexpr int titleHeight = 40;
    const QSize room = screen->availableSize() - QSize(0, titleHeight);
    if (form.width() > room.width() || form.height() > room.height())
        form.resize(form.size().boundedTo(room));
    const QRect whole = screen->geometry();
    const int top = std::min((whole.height() - form.height()) / 2, whole.height() - titleHeight - form.height());
    form.move(whole.x() + (whole.width() - form.width()) / 2, whole.y() + std::max(0, top));
}
