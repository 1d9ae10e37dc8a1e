// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user waits for at the trustee table: a keystroke in the search field, a click on the header, the
// display of a fresh list, a page of scrolling; each up to the painted window, over as many rows as the
// argument says. The baseline is one pass that folds each name and looks for the text in it.
#include "Benchmarks/Measure.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/Toolkit/SearchField.h"
#include "Tests/Support/Fakes.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include <array>
#include <cstdlib>
#include <malloc.h>
#include <optional>

namespace quorvan {
namespace {

/// The trustee rights tab in a window, with rows that no server had to be asked for.
class TabWithRows {
public:
    explicit TabWithRows(std::int64_t rows) {
        world_.defaults->values = {{"serverIP", "server"},
                                   {"selectedPath", "/Volumes/VOL1/folder"},
                                   {"mappedPath", "VOL1:\\"},
                                   {"loggedUserType", "Morvane"}};
        ServerDetails::forget();
        tab_.emplace();
        tab_->loadViewIfNeeded();
        constexpr std::array given = {"Anna", "Jörg", "Émile", "Łucja", "peter", "Miriam", "Ole", "Ute"};
        for (std::int64_t row = 0; row < rows; ++row) {
            const auto number = static_cast<std::size_t>(row) * 7919U % 1'000'003U;
            tab_->trusteeList.push_back(
                std::make_shared<Trustees>(given[number % given.size()] + std::string(".surname") +
                                               std::to_string(number) + ".Verlag.Meridal",
                                           "7c1e5a40-93d2-4b6f-8e21-" + std::to_string(100'000'000'000 + row),
                                           0x01FB, "", "inetOrgPerson", "Morvane"));
        }
        tab_->resize(800, 600);
        tab_->show();
        showList();
    }

    void type(const char* text) {
        tab_->searchField->setText(QString::fromUtf8(text));
        QCoreApplication::processEvents();
    }
    void clickHeader() {
        emit tab_->rightsTable->horizontalHeader()->sectionClicked(0);
        QCoreApplication::processEvents();
    }
    void showList() {
        tab_->onRevertClick(nullptr);
        QCoreApplication::processEvents();
    }
    void scrollOnePage() {
        auto* bar = tab_->rightsTable->verticalScrollBar();
        bar->setValue((bar->value() + bar->pageStep()) % bar->maximum());
        QCoreApplication::processEvents();
    }
    std::size_t nameBytes() const {
        std::size_t bytes = 0;
        for (const auto& trustee : tab_->trusteeList)
            bytes += trustee->trusteeName.size();
        return bytes;
    }
    std::size_t rowCount() const { return tab_->editedTrusteeList.size(); }

    /// How often `text` is in the names of the loaded list.
    std::size_t foldAndFind(const char* text) const {
        const std::string wanted = foldedForSearch(text);
        std::size_t found = 0;
        for (const auto& trustee : tab_->trusteeList)
            found += foldedForSearch(trustee->trusteeName.str()).find(wanted) != std::string::npos ? 1 : 0;
        return found;
    }

private:
    benchmarks::QuietLog quiet_;
    test::FakeWorld world_;
    std::optional<RightsTabViewController> tab_;
};

template <class Work>
void compareOnTab(benchmark::State& state, TabWithRows& tab, Work&& work) {
    benchmarks::compare(
        state, tab.nameBytes(), [&tab] { benchmark::DoNotOptimize(tab.foldAndFind("ame1")); },
        std::forward<Work>(work));
    state.SetComplexityN(state.range(0));
}

/// Begins and ends a search: the names are folded, and the whole list comes back.
void FirstKeystroke(benchmark::State& state) {
    TabWithRows tab(state.range(0));
    compareOnTab(state, tab, [&tab] {
        tab.type("e");
        tab.type("");
    });
}

void NextKeystroke(benchmark::State& state) {
    TabWithRows tab(state.range(0));
    tab.type("a");
    bool longer = false;
    compareOnTab(state, tab, [&] { tab.type((longer = !longer) ? "ame1" : "ame"); });
    tab.type("ame1");
    if (tab.rowCount() != tab.foldAndFind("ame1"))
        std::abort();
}

void PatternKeystroke(benchmark::State& state) {
    TabWithRows tab(state.range(0));
    tab.type("*");
    bool longer = false;
    compareOnTab(state, tab, [&] { tab.type((longer = !longer) ? "*e*1?*al" : "*e*1?*a"); });
}

void Sort(benchmark::State& state) {
    TabWithRows tab(state.range(0));
    compareOnTab(state, tab, [&tab] { tab.clickHeader(); });
}

void ShowList(benchmark::State& state) {
    TabWithRows tab(state.range(0));
    compareOnTab(state, tab, [&tab] { tab.showList(); });
}

void ScrollOnePage(benchmark::State& state) {
    TabWithRows tab(state.range(0));
    compareOnTab(state, tab, [&tab] { tab.scrollOnePage(); });
}

/// What the open tab holds for each row while a search runs: two records, list entries, search key, table.
void Memory(benchmark::State& state) {
    const auto allocated = [] {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    const TabWithRows warmUp(1);
    for ([[maybe_unused]] auto _ : state) {
        const double before = allocated();
        TabWithRows tab(state.range(0));
        tab.type("e");
        state.counters["bytes_per_row"] = (allocated() - before) / static_cast<double>(state.range(0));
    }
}

void growing(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseManualTime()->Complexity();
}
BENCHMARK(FirstKeystroke)->Apply(growing);
BENCHMARK(NextKeystroke)->Apply(growing);
BENCHMARK(PatternKeystroke)->Apply(growing);
BENCHMARK(Sort)->Apply(growing);
BENCHMARK(ShowList)->Apply(growing);
BENCHMARK(ScrollOnePage)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(Memory)->Arg(100'000)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quorvan

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
