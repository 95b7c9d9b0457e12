#include "alerts/AlertLook.h"
#include "alerts/AlertPanels.h"
#include "Benches.h"
#include "core/Clock.h"
#include "core/Dates.h"
#include "Figures.h"
#include "model/Main.h"
#include "Program.h"
#include "Samples.h"
#include "ui/frame/frmMain.h"

#include <QApplication>
#include <QDateTime>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/// The loaded program and its panels, on the day that the sample was made for.
class Panels
{
public:
    explicit Panels(int contacts)
    {
        Clock::SetSource([] { return QDateTime(QDate(2026, 1, 15), QTime(9, 0)); });
        OpenProgram(SampleFolder(contacts));
        LoadProgram();
        m_window.SetDeleteOnUnload(false);
        m_panels = new AlertPanels(m_window);
        m_window.AddContactsPanel(m_panels, 1);
        m_window.Show();
        Fill();
    }
    ~Panels()
    {
        m_window.Unload();
        CloseProgram();
        Clock::SetSource({});
    }
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;

    void Fill()
    {
        m_panels->FillAlertGrid(false);
        m_panels->FillAlertGrid(true);
        QCoreApplication::processEvents();
    }
    void Insert(const Alert& alert) { m_panels->InsertAlertToGrid(alert, false); }

private:
    frmMain m_window;
    AlertPanels* m_panels;
};

void FillAlerts(benchmark::State& state)
{
    Panels panels(static_cast<int>(state.range()));
    for ([[maybe_unused]] auto _ : state)
        panels.Fill();
}

void InsertAlert(benchmark::State& state)
{
    Panels panels(static_cast<int>(state.range()));
    Alert alert;
    alert.Key = u"A999999999"_s;
    alert.AlertDate = TodayDate();
    alert.AlertNote = u"Call about the house on Elm Street"_s;
    for ([[maybe_unused]] auto _ : state)
        panels.Insert(alert);
}

/// One pass over all alerts that formats the cells of both panels.
void FormatAlerts(benchmark::State& state)
{
    const Panels panels(static_cast<int>(state.range()));
    for ([[maybe_unused]] auto _ : state) {
        std::vector<std::pair<QString, QString>> rows;
        rows.reserve(static_cast<size_t>(gAlerts.Count()));
        for (const std::shared_ptr<Alert>& alert : gAlerts)
            rows.emplace_back(AlertDateText(alert->AlertDate), AlertNoteText(alert->AlertNote));
        benchmark::DoNotOptimize(rows);
    }
}

} // namespace

void RegisterAlerts(int contacts)
{
    // The limits are for 50,000 alerts.
    AddFigure({"FillAlerts", "Filling both alert panels", 3, 1.3, 100'000});
    AddFigure({"InsertAlert", "One more alert, to a filling", 0.01, 0, 100'000});
    const auto add = [contacts](const char* name, void (*run)(benchmark::State&), int times) {
        benchmark::RegisterBenchmark(name, run)->Arg(contacts)->Iterations(times);
    };
    add("FillAlerts/program", FillAlerts, 10);
    add("FillAlerts/yardstick", FormatAlerts, 10);
    add("InsertAlert/program", InsertAlert, 50);
    add("InsertAlert/yardstick", FillAlerts, 10);
}
