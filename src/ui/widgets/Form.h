#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

class QEventLoop;

/// Why a window goes.
enum class UnloadMode
{
    CloseBox = 0,
    Code = 1,
    OwnerClosed = 5
};

/// Base of all windows. Its life: loaded by its constructor (which enters it in Forms), shown, activated, unloaded.
/// - A modal window is a local object: `frmX form; form.ShowModal(owner);` returns once it is unloaded or hidden.
/// - A modeless window is made with new and deletes itself after Unload; whoever keeps it holds a QPointer.
/// An owner only stands behind its windows and takes them along when it is unloaded; it is no QObject parent.
class Form : public QWidget
{
    Q_OBJECT

public:
    /// `name` is the window's name in Forms.
    explicit Form(const QString& name, Qt::WindowFlags flags = Qt::Window);
    ~Form() override;

    [[nodiscard]] QString Name() const { return objectName(); }
    /// Shows the window beside the others; a second time only brings it to the front. `owner` may be null.
    void Show(QWidget* owner = nullptr);
    /// Shows the window and waits until it is unloaded or hidden; no other window can be worked meanwhile.
    void ShowModal(QWidget* owner = nullptr);
    /// Asks Form_QueryUnload and Form_Unload, then takes the window away; false when one of them cancelled. Does
    /// nothing while the window is already on its way out.
    bool Unload(UnloadMode mode = UnloadMode::Code);
    [[nodiscard]] bool IsUnloaded() const { return m_unloaded; }
    /// Whether a modeless window deletes itself after Unload; it does at first.
    void SetDeleteOnUnload(bool deletes) { m_deleteOnUnload = deletes; }

protected:
    /// Runs, queued, after the first show and whenever the focus comes back from another window of the program; not
    /// when it comes from another program or a message box. When a modal window goes, the one beneath gets it.
    virtual void Form_Activate() {}
    /// May set `cancel` to keep the window.
    virtual void Form_QueryUnload(bool& cancel, UnloadMode mode);
    virtual void Form_Unload(bool& cancel);
    /// Esc that no control used. A window with a Cancel runs it here.
    virtual void EscapePressed() {}
    /// Sees each key press and release of the window before its controls do; true swallows the key.
    virtual bool KeyPreview(QKeyEvent* event);
    /// For the KeyPreview of a window in which Enter is Ok: true for a press of Enter, which runs `ok` unless the key
    /// was still held down when the window came and has answered what was there before.
    [[nodiscard]] static bool EnterIsOk(const QKeyEvent& event, const std::function<void()>& ok);

    /// The width in which the title is not cut, or as much of it as the screen has.
    [[nodiscard]] int TitleWidth() const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    friend class Forms;
    void Reveal(QWidget* owner);
    void QueueActivate();
    void RunActivate();

    QPointer<QWidget> m_owner;
    QEventLoop* m_loop = nullptr;
    bool m_unloading = false;
    bool m_unloaded = false;
    bool m_closing = false;
    bool m_modeless = false;
    bool m_deleteOnUnload = true;
    bool m_activatePending = false;
};

/// Moves a window to the middle of its screen; one that is too large for the screen is made to fit first.
void CenterForm(QWidget& form);
