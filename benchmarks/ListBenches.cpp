#include "BareStore.h"
#include "Benches.h"
#include "Figures.h"
#include "LoadedProgram.h"
#include "model/Contact.h"
#include "model/DeleteContacts.h"
#include "model/Main.h"
#include "organise/frmList.h"
#include "Samples.h"
#include "ui/widgets/Grid.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A subcategory of "a twentieth" is 5,000 of 100,000 contacts.
constexpr int part = 20;

void ShowAndFill(frmList& list)
{
    list.Show();
    list.FillContactList();
    QCoreApplication::processEvents();
}

void Unload(frmList* list)
{
    list->UnloadList();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void FillList(benchmark::State& state)
{
    const LoadedProgram program(static_cast<int>(state.range()), 1);
    auto* list = new frmList; // deletes itself when it is unloaded
    ShowAndFill(*list);
    for ([[maybe_unused]] auto _ : state) {
        list->FillContactList();
        QCoreApplication::processEvents();
    }
    if (list->Rows() != state.range())
        state.SkipWithError("the list is not full");
    Unload(list);
}

void OpenSubcategory(benchmark::State& state)
{
    const LoadedProgram program(static_cast<int>(state.range()), part);
    for ([[maybe_unused]] auto _ : state) {
        auto* list = new frmList;
        ShowAndFill(*list);
        state.PauseTiming();
        if (list->Rows() != state.range() / part)
            state.SkipWithError("the list is not full");
        Unload(list);
        state.ResumeTiming();
    }
}

void DeleteHighlighted(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        std::optional<LoadedProgram> program(std::in_place, static_cast<int>(state.range()), 1);
        auto* list = new frmList;
        ShowAndFill(*list);
        auto* grid = list->findChild<Grid*>();
        grid->ClearHighlight();
        for (int row = part; row <= grid->Rows(); row += part)
            grid->SetRowSelected(row, true);
        state.ResumeTiming();
        DeleteContacts(DeleteMode::Hilited);
        QCoreApplication::processEvents();
        state.PauseTiming();
        if (gContacts.Count() != state.range() - state.range() / part)
            state.SkipWithError("not all were deleted");
        Unload(list);
        program.reset();
        state.ResumeTiming();
    }
}

using Row = std::vector<std::string>;

/// The texts of the contacts that `wanted` names, copied into rows.
std::vector<Row> BareRows(const BareContents& contents, const std::function<bool(const BareContact&)>& wanted)
{
    std::vector<Row> rows;
    for (const BareContact& c : contents.contacts) {
        if (wanted(c))
            rows.push_back({c.firstName, c.mi, c.lastName, c.mailAddr1, c.mailAddr2, c.mailCity, c.mailZip, c.mailZip4,
                            c.salutation, c.spouse, c.referredBy, c.company, c.email, c.homePhone, c.workPhone, c.ext,
                            c.cell, c.fax});
    }
    return rows;
}

void BareFill(benchmark::State& state, int every)
{
    const BareContents contents =
        BareStore(DatabaseIn(SampleFolder(static_cast<int>(state.range()))).toStdString()).Load();
    for ([[maybe_unused]] auto _ : state) {
        const std::vector<Row> rows = BareRows(contents, [every](const BareContact& c) { return c.id % every == 0; });
        if (std::ssize(rows) != state.range() / every)
            state.SkipWithError("the rows are not complete");
    }
}

void BareDelete(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        const SampleCopy copy(static_cast<int>(state.range()));
        const BareStore store(DatabaseIn(copy.Folder()).toStdString());
        std::vector<long long> ids;
        for (long long id = part; id <= state.range(); id += part)
            ids.push_back(id);
        state.ResumeTiming();
        store.Delete(ids);
    }
}

} // namespace

void RegisterLists(int contacts)
{
    // The processor's time: both sides of the deletion wait for the same disk.
    const auto add = [contacts](const char* name, const std::function<void(benchmark::State&)>& run, int times) {
        return benchmark::RegisterBenchmark(name, run)->Arg(contacts)->Iterations(times);
    };
    const auto bareFill = [](int every) { return [every](benchmark::State& state) { BareFill(state, every); }; };
    AddFigure({"FillList", "Filling the list"});
    AddFigure({"OpenSubcategory", "Opening a 20th"});
    AddFigure({"DeleteHighlighted", "Deleting a 20th"});
    add("FillList/program", FillList, 3);
    add("FillList/yardstick", bareFill(1), 3);
    add("OpenSubcategory/program", OpenSubcategory, 3);
    add("OpenSubcategory/yardstick", bareFill(part), 20);
    add("DeleteHighlighted/program", DeleteHighlighted, 1);
    add("DeleteHighlighted/yardstick", BareDelete, 1);
}
