#include "support/Windows.h"

#include "ui/widgets/Forms.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto LookEvery = 2ms;
constexpr auto Patience = 10s;

void Fail(const QString& why)
{
    QTest::qFail(qUtf8Printable(why), __FILE__, __LINE__);
}

} // namespace

void NoSuchControl(const QWidget& window, const QString& name)
{
    qFatal("%s has no control %s of that kind", qUtf8Printable(window.objectName()), qUtf8Printable(name));
}

void ClickOn(const QWidget& window, const QString& name)
{
    auto& control = Control<QWidget>(window, name);
    if (control.isVisible() && control.isEnabled())
        QTest::mouseClick(&control, Qt::LeftButton);
    else
        Fail(name + u" cannot be clicked now"_s);
}

void TypeText(const QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, window.window()->windowHandle(), Qt::Key_unknown, QString(letter), {});
}

void TypeKey(const QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window.window()->windowHandle(), key, modifiers);
}

void HoldKey(const QWidget& window, Qt::Key key)
{
    const QString text = key == Qt::Key_Return ? QStringLiteral("\r") : QString();
    QKeyEvent press(QEvent::KeyPress, key, {}, text, true);
    QCoreApplication::sendEvent(window.window()->windowHandle(), &press);
}

WhenWindowOpens::WhenWindowOpens(QString what, Match match, Script script)
    : m_what(std::move(what)), m_match(std::move(match)), m_script(std::move(script))
{
    QObject::connect(&m_looking, &QTimer::timeout, &m_looking, [this] { Look(); });
    QObject::connect(&m_watchdog, &QTimer::timeout, &m_watchdog, [this] {
        Fail(m_what + (m_state == State::Waiting ? u" did not come in time"_s : u" hangs"_s));
        m_looking.stop();
        while (QWidget* modal = QApplication::activeModalWidget())
            modal->hide();
    });
    m_watchdog.setSingleShot(true);
    m_looking.start(LookEvery);
    m_watchdog.start(Patience);
}

WhenWindowOpens::~WhenWindowOpens()
{
    if (m_state == State::Waiting && m_watchdog.isActive())
        Fail(m_what + u" never opened"_s);
}

void WhenWindowOpens::Look()
{
    QWidget* window = m_match();
    if (window == nullptr || !window->isVisible())
        return;
    // Seen twice: what the window queued for after its showing has run by then.
    if (m_seen != window) {
        m_seen = window;
        return;
    }
    m_looking.stop();
    m_state = State::Running;
    m_script(*window);
    m_state = State::Done;
    m_watchdog.stop();
    End(m_seen);
}

void WhenWindowOpens::End(const QPointer<QWidget>& window)
{
    if (window.isNull() || !window->isVisible())
        return;
    if (auto* form = qobject_cast<Form*>(window.data()))
        form->Unload();
    if (!window.isNull())
        window->hide();
}

WhenFormOpens::WhenFormOpens(const QString& name, std::function<void(Form& form)> script)
    : WhenWindowOpens(
          name, [name] { return Forms::Find(name); },
          [script = std::move(script)](QWidget& window) { script(static_cast<Form&>(window)); })
{}

WhenBoxOpens::WhenBoxOpens(std::function<void(QMessageBox& box)> script)
    : WhenWindowOpens(
          u"A message box"_s, [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); },
          [script = std::move(script)](QWidget& window) { script(static_cast<QMessageBox&>(window)); })
{}
