#include "make_window_pictures/Stage.h"

#include "ui/widgets/Form.h"
#include "ui/widgets/Forms.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <exception>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Takes a window away by its gentlest way out.
void Close(QWidget& window)
{
    if (auto* form = qobject_cast<Form*>(&window)) {
        form->Unload();
        return;
    }
    auto* box = qobject_cast<QMessageBox*>(&window);
    if (box != nullptr && box->button(QMessageBox::No) != nullptr)
        box->button(QMessageBox::No)->click();
    else
        window.close();
}

} // namespace

QWidget& Window(const QString& name)
{
    QWidget* form = Forms::Find(name);
    if (form == nullptr)
        throw std::runtime_error(qPrintable(name + u" is not open"_s));
    return *form;
}

void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

void Type(QWidget& window, const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, window.windowHandle(), Qt::Key_unknown, QString(letter), {});
}

void Settle()
{
    QEventLoop loop;
    QTimer::singleShot(40ms, &loop, &QEventLoop::quit);
    loop.exec();
}

void InModal(const std::function<void()>& open, const std::function<void(QWidget& window)>& look)
{
    const QWidget* before = QApplication::activeModalWidget();
    QTimer looking;
    std::exception_ptr trouble;
    QObject::connect(&looking, &QTimer::timeout, &looking, [&] {
        const QPointer<QWidget> window(QApplication::activeModalWidget());
        if (window.isNull() || window == before || !window->isVisible())
            return;
        looking.stop();
        Settle();
        // No exception may pass through the event loop.
        try {
            look(*window);
        } catch (...) {
            trouble = std::current_exception();
        }
        if (!window.isNull() && window->isVisible())
            Close(*window);
    });
    looking.start(5ms);
    open();
    if (trouble)
        std::rethrow_exception(trouble);
    if (looking.isActive())
        throw std::runtime_error("a window that was to be drawn did not open");
}
