#pragma once

#include "app/Composition.h"
#include "model/Categories.h"
#include "model/faces.h"
#include "model/LoadContacts.h"
#include "organise/CategoryTree.h"
#include "support/FreshDatabase.h"
#include "support/ScriptedUser.h"

#include <QTest>

/// The whole program on a file of its own, started in the order of the splash window. A fixture fills the file first
/// and then calls Start; it calls End before its own members go.
class RunningProgram
{
public:
    RunningProgram() = default;
    virtual ~RunningProgram() { End(); }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    void Start()
    {
        LoadCategories();
        m_program = std::make_unique<Composition>();
        m_program->Tree().FillTree();
        LoadContacts([](int) {});
        auto& panels = *Face<AlertPanelsFace>::Get();
        panels.FillAlertGrid(false);
        panels.FillAlertGrid(true);
        Main().Show();
        Started();
        QTest::qWait(0);
        static_cast<void>(Database.TakeStatements());
        Person.Forget();
    }
    void End()
    {
        if (m_program == nullptr)
            return;
        Main().Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_program.reset();
    }
    void StartAnew()
    {
        End();
        Database.StartAnew();
        Start();
    }

    [[nodiscard]] frmMain& Main() const { return m_program->Main(); }
    [[nodiscard]] CategoryTree& Tree() const { return m_program->Tree(); }

    FreshDatabase Database;
    ScriptedUser Person;

protected:
    /// What a fixture does after each start.
    virtual void Started() {}

private:
    std::unique_ptr<Composition> m_program;
};
