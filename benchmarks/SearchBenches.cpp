#include "BareStore.h"
#include "Benches.h"
#include "Figures.h"
#include "model/Contact.h"
#include "model/Main.h"
#include "model/PropDetail.h"
#include "Program.h"
#include "Samples.h"
#include "search/FoundColumns.h"
#include "search/SearchPage.h"
#include "search/SearchWalk.h"
#include "SqliteShell.h"
#include "ui/frame/frmMain.h"
#include "ui/widgets/Grid.h"
#include "ui/widgets/HoverButton.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QRadioButton>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <functional>
#include <malloc.h>
#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// One question, as the criteria grid holds it and as the shell is asked it.
struct Question
{
    SearchMode Mode;
    QList<std::pair<int, QString>> Rows;
    QString Table;
    QString Condition;
};

const Question& ThreeTexts()
{
    static const Question question{SearchMode::Contacts,
                                   {{3, u"MAN"_s}, {4, u"a"_s}, {15, u"7"_s}},
                                   u"Contacts"_s,
                                   u"LastName like '%MAN%' and MailAddr1 like '%a%' and HomePhone like '%7%'"_s};
    return question;
}

const Question& FiveKinds()
{
    static const Question question{
        SearchMode::Properties,
        {{3, u"OAK"_s}, {12, u"Single Family"_s}, {20, u"No"_s}, {28, u"Yes"_s}, {32, u"More Than $250000"_s}},
        u"PropDetail"_s,
        u"Addr1 like '%OAK%' and PropType = 3 and Waterfront = 2 and ListingDate <> '' and "
        "substr(ListingDate,7,4)||substr(ListingDate,1,2)||substr(ListingDate,4,2) <= strftime('%Y%m%d','now') "
        "and AskingPrice > 250000"_s};
    return question;
}

SearchCriteria CriteriaOf(const Question& question)
{
    SearchCriteria criteria;
    criteria.And = true;
    criteria.Values.resize(std::ssize(CriteriaRows(question.Mode)));
    for (const auto& [row, text] : question.Rows)
        criteria.Values[row - 1] = text;
    return criteria;
}

long long Found(const Question& question)
{
    long long found = 0;
    const SearchCriteria criteria = CriteriaOf(question);
    if (question.Mode == SearchMode::Contacts)
        FindContacts(criteria, [&found](const Contact&) { ++found; });
    else
        FindProperties(criteria, [&found](const PropDetail&) { ++found; });
    return found;
}

/// Both sides must have found the same.
void CheckFound(benchmark::State& state, const Question& question, long long found)
{
    static std::map<std::pair<QString, int64_t>, long long> before;
    const auto [place, isFirst] = before.emplace(std::pair(question.Table, state.range()), found);
    if (found == 0 || place->second != found)
        state.SkipWithError("the two sides do not find the same");
}

void Search(benchmark::State& state, const Question& question)
{
    OpenProgram(SampleFolder(static_cast<int>(state.range())));
    LoadProgram();
    long long found = Found(question);
    for ([[maybe_unused]] auto _ : state)
        found = Found(question);
    CloseProgram();
    CheckFound(state, question, found);
}

void SearchShell(benchmark::State& state, const Question& question)
{
    const QTemporaryDir folder;
    const SqliteShell shell(folder.filePath(u"plain.db"_s),
                            BareStore(DatabaseIn(SampleFolder(static_cast<int>(state.range()))).toStdString()).Load());
    SqliteShell::Answer answer;
    for ([[maybe_unused]] auto _ : state) {
        answer = shell.Count(question.Table, question.Condition);
        state.SetIterationTime(answer.Seconds);
    }
    CheckFound(state, question, answer.Count);
}

/// The search tab over the loaded sample, in one of its modes.
class SearchTab
{
public:
    SearchTab(int contacts, SearchMode mode) : m_copy(contacts)
    {
        OpenProgram(m_copy.Folder());
        LoadProgram();
        m_main = std::make_unique<frmMain>();
        m_main->SetDeleteOnUnload(false);
        auto* page = new SearchPage(*m_main);
        m_main->SetPage(frmMain::Tab::Search, page);
        m_main->Show();
        m_main->ShowTab(1);
        if (mode == SearchMode::Properties)
            page->findChild<QRadioButton*>(u"optSearch_1"_s)->click();
        m_search = page->findChild<HoverButton*>(u"cmdbutton_2"_s);
        m_found = page->findChild<Grid*>(u"GridFound"_s);
        QCoreApplication::processEvents();
    }
    ~SearchTab()
    {
        m_main->Unload();
        m_main.reset();
        CloseProgram();
    }
    SearchTab(const SearchTab&) = delete;
    SearchTab& operator=(const SearchTab&) = delete;

    void Search()
    {
        m_search->click();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] const Grid& List() const { return *m_found; }

private:
    const SampleCopy m_copy;
    std::unique_ptr<frmMain> m_main;
    HoverButton* m_search = nullptr;
    Grid* m_found = nullptr;
};

void List(benchmark::State& state, SearchMode mode)
{
    SearchTab tab(static_cast<int>(state.range()), mode);
    tab.Search();
    for ([[maybe_unused]] auto _ : state)
        tab.Search();
    if (tab.List().Rows() <= state.range())
        state.SkipWithError("the list is not full");
}

/// What a listing adds, without the texts that the records hold already: those are shared.
void ListMemory(benchmark::State& state, SearchMode mode)
{
    SearchTab tab(static_cast<int>(state.range()), mode);
    const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    for ([[maybe_unused]] auto _ : state)
        tab.Search();
    const size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
    const double cells = static_cast<double>(tab.List().Rows()) * tab.List().Columns();
    state.counters["bytes"] = static_cast<double>(after - before) / cells;
}

void BareList(benchmark::State& state, SearchMode mode)
{
    OpenProgram(SampleFolder(static_cast<int>(state.range())));
    LoadProgram();
    const QFontMetrics metrics{QFont()};
    for ([[maybe_unused]] auto _ : state) {
        std::vector<std::vector<QString>> rows;
        std::vector<int> widths(64);
        const auto add = [&](int column, const QString& text) {
            widths[static_cast<size_t>(column)] =
                std::max(widths[static_cast<size_t>(column)], metrics.horizontalAdvance(text));
            rows.back()[static_cast<size_t>(column)] = text;
        };
        if (mode == SearchMode::Contacts) {
            const int columns = static_cast<int>(FoundContactColumns().size());
            FindContacts({}, [&](const Contact& contact) {
                rows.emplace_back(columns + 1);
                for (int column = 1; column <= columns; ++column)
                    add(column, FoundContactText(contact, column));
            });
        } else {
            FoundPropertyTexts texts;
            FindProperties({}, [&](const PropDetail& property) {
                rows.emplace_back(FoundPropertyColumns().size() + 1);
                for (const int column : FoundPropertyFilling())
                    add(column, texts.Text(property, column));
            });
        }
        benchmark::DoNotOptimize(widths.data());
        if (std::ssize(rows) < state.range())
            state.SkipWithError("the rows are not complete");
    }
    CloseProgram();
}

} // namespace

void RegisterSearch(int contacts)
{
    AddFigure({"SearchContacts", "Searching contacts", 1, 1.3, 10'000});
    AddFigure({"SearchProperties", "Searching properties", 1, 1.3, 10'000});
    AddFigure({"ListContacts", "Listing contacts", 2, 1.3, 10'000});
    AddFigure({"ListProperties", "Listing properties", 2, 1.3, 10'000});
    const auto add = [contacts](const std::string& name, const std::function<void(benchmark::State&)>& run, int times) {
        return benchmark::RegisterBenchmark(name.c_str(), run)->Arg(contacts)->Iterations(times);
    };
    const std::pair<const char*, const Question&> questions[]{{"Contacts", ThreeTexts()}, {"Properties", FiveKinds()}};
    for (const auto& [name, question] : questions) {
        const SearchMode mode = question.Mode;
        add(
            std::string("Search") + name + "/program", [&question](benchmark::State& s) { Search(s, question); }, 20);
        add(
            std::string("Search") + name + "/yardstick", [&question](benchmark::State& s) { SearchShell(s, question); },
            1)
            ->UseManualTime();
        add(
            std::string("List") + name + "/program", [mode](benchmark::State& s) { List(s, mode); }, 3);
        add(
            std::string("List") + name + "/yardstick", [mode](benchmark::State& s) { BareList(s, mode); }, 3);
        add(
            std::string("ListMemory") + name + "/program", [mode](benchmark::State& s) { ListMemory(s, mode); }, 1);
    }
}
