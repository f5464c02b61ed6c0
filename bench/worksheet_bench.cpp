// A 20-word worksheet of each kind made whole: the puzzle drawn, the pages laid out with the
// printed face's widths, and the PDF written (to memory). The target is under 200 ms a sheet.
#include <QBuffer>
#include <QPdfWriter>

#include "core/rng.h"
#include "core/shared_state.h"
#include "qt_bench.h"
#include "teacher/worksheets/worksheet_paint.h"

using namespace wm;
using namespace wm::sheets;

namespace {

WordList TwentyWords() {
    const char* words[] = {"volcano", "glacier", "canyon",  "delta",     "plateau",
                           "tundra",  "savanna", "estuary", "peninsula", "archipelago",
                           "lagoon",  "fjord",   "oasis",   "prairie",   "reef",
                           "summit",  "valley",  "marsh",   "geyser",    "mountain range"};
    WordList list{"Landforms", {}, false};
    for (const char* w : words)
        list.pairs.emplace_back(w, std::string("A place on the Earth called ") + w +
                                       ", described in a sentence of a usual length");
    return list;
}

void BM_Worksheet(benchmark::State& state) {
    const WordList list = TwentyWords();
    Options o;
    o.kind = static_cast<Kind>(state.range(0));
    o.size = 20;  // the word search hides all twenty
    o.words = 20;
    SystemRng rng;
    for (auto _ : state) {
        const SheetContent content = makeContent(list, o, rng);
        const std::vector<Page> pages = layOutPages(content, o, printWidth);
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&out);
            writer.setPageSize(qtPageSize(o.paper));
            writer.setPageMargins(QMarginsF(0, 0, 0, 0));
            paintPages(pages, writer);
        }
        benchmark::DoNotOptimize(out.size());
    }
    state.SetLabel(kindName(o.kind));
}
BENCHMARK(BM_Worksheet)
    ->DenseRange(0, kKindCount - 1)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();

}  // namespace

int main(int argc, char** argv) {
    return wm::bench::RunInQt(argc, argv, [] { Shared().AppPath = WM_BENCH_APP_DIR; });
}
