#include "BareStore.h"
#include "Benches.h"
#include "editors/frmProperty.h"
#include "Figures.h"
#include "LoadedProgram.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "organise/frmList.h"
#include "organise/Rolodex.h"
#include "ui/widgets/Grid.h"

#include <QAction>
#include <QCoreApplication>
#include <QListWidget>
#include <benchmark/benchmark.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

void SaveProperty(benchmark::State& state)
{
    const LoadedProgram program(static_cast<int>(state.range()), 1);
    curContact = gContacts.Items().front();
    gEditMode = EditMode::NewProperty;
    frmProperty editor;
    PropDetail values;
    values.City = u"Miami"_s;
    int i = 0;
    for ([[maybe_unused]] auto _ : state) {
        values.Addr1 = QString::number(++i) + u" Benchmark Road"_s;
        if (values.LocateProperty(curContact->RecID) != 0 || !editor.AddNewProperty(values))
            state.SkipWithError("the property was not added");
    }
    editor.Unload();
}

void BareSaveProperty(benchmark::State& state)
{
    const SampleCopy copy(static_cast<int>(state.range()));
    const BareStore store(DatabaseIn(copy.Folder()).toStdString());
    int i = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (store.AddProperty(1, std::to_string(++i) + " Benchmark Road") == 0)
            state.SkipWithError("the property was not added");
    }
}

void RolodexLetter(benchmark::State& state)
{
    const LoadedProgram program(static_cast<int>(state.range()), 1);
    Rolodex rolodex;
    rolodex.show();
    auto* letters = rolodex.findChild<QListWidget*>();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        letters->setCurrentRow('X' - 'A');
        QCoreApplication::processEvents();
        state.ResumeTiming();
        letters->setCurrentRow('M' - 'A');
        QCoreApplication::processEvents();
    }
    if (rolodex.findChild<Grid*>()->Rows() == 0)
        state.SkipWithError("the letter is empty");
}

void BareLetter(benchmark::State& state)
{
    const BareContents contents =
        BareStore(DatabaseIn(SampleFolder(static_cast<int>(state.range()))).toStdString()).Load();
    for ([[maybe_unused]] auto _ : state) {
        std::vector<std::string> cards;
        for (const BareContact& c : contents.contacts) {
            if (c.lastName.starts_with('M'))
                cards.push_back(c.homePhone + " " + c.firstName + " " + c.mi + " " + c.lastName);
        }
        benchmark::DoNotOptimize(cards.data());
        if (cards.empty())
            state.SkipWithError("the letter is empty");
    }
}

void SelectAll(benchmark::State& state)
{
    const LoadedProgram program(static_cast<int>(state.range()), 1);
    auto* list = new frmList; // deletes itself when it is unloaded
    list->Show();
    list->FillContactList();
    list->findChild<Grid*>()->selectAll();
    auto* select = list->findChild<QAction*>(u"mnuSelect"_s);
    auto* unselect = list->findChild<QAction*>(u"mnuUnselect"_s);
    for ([[maybe_unused]] auto _ : state) {
        select->trigger();
        state.PauseTiming();
        if (gSelected.Count() != state.range())
            state.SkipWithError("not all were selected");
        unselect->trigger();
        state.ResumeTiming();
    }
    list->UnloadList();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void BareSelect(benchmark::State& state)
{
    const BareContents contents =
        BareStore(DatabaseIn(SampleFolder(static_cast<int>(state.range()))).toStdString()).Load();
    for ([[maybe_unused]] auto _ : state) {
        std::vector<long long> selected;
        for (const BareContact& c : contents.contacts)
            selected.push_back(c.id);
        benchmark::DoNotOptimize(selected.data());
    }
}

} // namespace

void RegisterProperties(int contacts)
{
    AddFigure({"SaveProperty", "One new property", 1.5, 0});
    AddFigure({"RolodexLetter", "A letter of the Rolodex"});
    AddFigure({"SelectAll", "Selecting all"});
    const auto add = [contacts](const char* name, void (*run)(benchmark::State&), int times) {
        benchmark::RegisterBenchmark(name, run)->Arg(contacts)->Iterations(times);
    };
    // The processor's time: both sides wait for the same disk.
    add("SaveProperty/program", SaveProperty, 51);
    add("SaveProperty/yardstick", BareSaveProperty, 51);
    add("RolodexLetter/program", RolodexLetter, 5);
    add("RolodexLetter/yardstick", BareLetter, 20);
    add("SelectAll/program", SelectAll, 3);
    add("SelectAll/yardstick", BareSelect, 20);
}
