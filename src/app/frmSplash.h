#pragma once

#include "app/SingleInstance.h"
#include "ui/widgets/Form.h"

#include <memory>

class Composition;
class QElapsedTimer;
class QProgressBar;
class UserWindows;

/// The first window. In its first activation it brings the program up; where that fails, it stays, and closing it ends
/// the program.
class frmSplash : public Form
{
    Q_OBJECT

public:
    explicit frmSplash(UserWindows& user);
    ~frmSplash() override;

    /// The main window with its features; null until start-up has come to it.
    [[nodiscard]] Composition* Program() const { return m_program.get(); }

protected:
    void Form_Activate() override;
    void EscapePressed() override;

private:
    void BuildWindow();
    /// The start-up order.
    void Start();
    static void OpenDatabase();
    void EndWherePrevInstance();
    /// Runs after each row that is loaded.
    static void DoEvents(QElapsedTimer& sincePaint);

    UserWindows& m_user;
    QProgressBar* m_bar = nullptr;
    bool m_activated = false;
    SingleInstance m_instance;
    std::unique_ptr<Composition> m_program;
};
