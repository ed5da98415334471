// Times of the object model, of rendering and of the driver at growing sizes, beside a hand-written
// emitter of the same document. Ends with the table that docs/performance.md shows.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/SizeTable.h"
#include "bench/benchFiles.h"
#include "bench/bothLanguages.h"
#include "bench/standardJob.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane::bench {
namespace {

std::filesystem::path outputFile() {
    return std::filesystem::temp_directory_path() /
           ("quorvane-bench-" + std::to_string(::getpid()) + ".rtf");
}

std::int32_t rowsFor(const benchmark::State& state) {
    return static_cast<std::int32_t>(state.range(0)) / cellsPerRow;
}

void setElements(benchmark::State& state, std::int64_t elements) {
    state.counters["elements"] = static_cast<double>(elements);
}

void buildRowsCellsParagraphs(benchmark::State& state) {
    for (auto _ : state) {
        Ref<CRtfDoc> document = standardDocument(rowsFor(state));
        benchmark::DoNotOptimize(document.get());
        state.PauseTiming();
        document = nullptr;
        state.ResumeTiming();
    }
    setElements(state, state.range(0));
}

void releaseDocument(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Ref<CRtfDoc> document = standardDocument(rowsFor(state));
        state.ResumeTiming();
        document = nullptr;
    }
    setElements(state, state.range(0));
}

void contentsFirst(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Ref<CRtfDoc> document = standardDocument(rowsFor(state));
        state.ResumeTiming();
        benchmark::DoNotOptimize(document->Contents().data());
        state.PauseTiming();
        document = nullptr;
        state.ResumeTiming();
    }
    setElements(state, state.range(0));
}

void refreshAfterOneChange(benchmark::State& state) {
    const Ref<CRtfDoc> document = standardDocument(rowsFor(state));
    document->Refresh();
    const Ref<CRtfParagraph> paragraph =
        document->TableRows()->PeekHead()->TableCells()->PeekHead()->Paragraphs()->PeekHead();
    for (auto _ : state) {
        paragraph->setForeColor(eRed);
        benchmark::DoNotOptimize(document->Contents().data());
    }
    setElements(state, state.range(0));
}

void commitRendered(benchmark::State& state) {
    const Ref<CRtfDoc> document = standardDocument(rowsFor(state));
    document->Refresh();
    const std::string path = outputFile();
    for (auto _ : state) {
        document->Commit(path);
    }
    std::filesystem::remove(path);
    setElements(state, state.range(0));
}

/// A file in memory where there is one, so that writing it does not hide the rest.
std::filesystem::path fastOutputFile() {
    std::filesystem::path memory = memoryFolder();
    return memory.empty() ? outputFile() : memory.replace_extension(".rtf");
}

void commitFirst(benchmark::State& state) {
    const std::string path = fastOutputFile();
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(path);
        Ref<CRtfDoc> document = standardDocument(rowsFor(state));
        state.ResumeTiming();
        document->Commit(path);
        state.PauseTiming();
        document = nullptr;
        state.ResumeTiming();
    }
    std::filesystem::remove(path);
    setElements(state, state.range(0));
}

void writeNewFile(benchmark::State& state, const std::string& path, std::string_view rtf) {
    std::filesystem::remove(path);
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file || std::fwrite(rtf.data(), 1, rtf.size(), file) != rtf.size()) {
        state.SkipWithError("cannot write");
    }
    if (file && std::fclose(file) != 0) {
        state.SkipWithError("cannot write");
    }
}

void plainWrite(benchmark::State& state) {
    const std::string rtf = emitStandardJob(rowsFor(state));
    const std::string path = outputFile();
    for (auto _ : state) {
        writeNewFile(state, path, rtf);
    }
    std::filesystem::remove(path);
    setElements(state, state.range(0));
}

void emitterIntoOneBufferAndFile(benchmark::State& state) {
    const std::string path = fastOutputFile();
    for (auto _ : state) {
        writeNewFile(state, path, emitStandardJob(rowsFor(state)));
    }
    std::filesystem::remove(path);
    setElements(state, state.range(0));
}

void emitterIntoOneBuffer(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(emitStandardJob(rowsFor(state)).data());
    }
    setElements(state, state.range(0));
}

void emitterStreaming(benchmark::State& state) {
    for (auto _ : state) {
        std::size_t written = 0;
        streamStandardJob(rowsFor(state), [&written](std::string_view bytes) {
            benchmark::DoNotOptimize(bytes.data());
            written += bytes.size();
        });
        benchmark::DoNotOptimize(written);
    }
    setElements(state, state.range(0));
}

void plainCopy(benchmark::State& state) {
    const std::string rtf = emitStandardJob(rowsFor(state));
    for (auto _ : state) {
        std::string copy = rtf;
        benchmark::DoNotOptimize(copy);
    }
    setElements(state, state.range(0));
}

void rowsByPosition(benchmark::State& state) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    const auto count = static_cast<std::int32_t>(state.range(0));
    for (std::int32_t i = 0; i < count; ++i) {
        rows->AddTail();
    }
    for (auto _ : state) {
        for (std::int32_t i = 1; i <= count; ++i) {
            benchmark::DoNotOptimize(rows->Item(i).get());
        }
    }
    setElements(state, count);
}

void rowsByKey(benchmark::State& state) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    const Ref<CRtfTableRows> rows = document->TableRows();
    const auto count = static_cast<std::int32_t>(state.range(0));
    for (std::int32_t i = 0; i < count; ++i) {
        rows->AddTail("key" + std::to_string(i));
    }
    for (auto _ : state) {
        for (std::int32_t i = 0; i < count; ++i) {
            benchmark::DoNotOptimize(rows->Item("key" + std::to_string(i)).get());
        }
    }
    setElements(state, count);
}

void addAndRemoveRows(benchmark::State& state, void (*change)(CRtfTableRows&)) {
    const auto count = static_cast<std::int32_t>(state.range(0));
    for (auto _ : state) {
        const Ref<CRtfDoc> document = CRtfDoc::create();
        const Ref<CRtfTableRows> rows = document->TableRows();
        for (std::int32_t i = 0; i < count; ++i) {
            change(*rows);
        }
        while (rows->Count() > 0) {
            rows->RemoveHead();
        }
    }
    setElements(state, count);
}

void tailAddsHeadRemoves(benchmark::State& state) {
    addAndRemoveRows(state, [](CRtfTableRows& rows) { rows.AddTail(); });
}

void headAddsHeadRemoves(benchmark::State& state) {
    addAndRemoveRows(state, [](CRtfTableRows& rows) { rows.AddHead(); });
}

void cellsInOneRow(benchmark::State& state) {
    const auto count = static_cast<std::int32_t>(state.range(0));
    for (auto _ : state) {
        const Ref<CRtfDoc> document = CRtfDoc::create();
        document->TableRows()->AddTail();
        const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
        for (std::int32_t i = 0; i < count; ++i) {
            cells->AddTail();
        }
        benchmark::DoNotOptimize(cells->PeekTail()->Width(eTwips));
    }
    setElements(state, count);
}

Ref<CRtfParagraphs> onlyCellsParagraphs(CRtfDoc& document) {
    document.TableRows()->AddTail();
    const Ref<CRtfTableCells> cells = document.TableRows()->PeekTail()->TableCells();
    cells->AddTail();
    return cells->PeekTail()->Paragraphs();
}

void paragraphsInOneCell(benchmark::State& state) {
    const auto count = static_cast<std::int32_t>(state.range(0));
    for (auto _ : state) {
        const Ref<CRtfDoc> document = CRtfDoc::create();
        const Ref<CRtfParagraphs> paragraphs = onlyCellsParagraphs(*document);
        for (std::int32_t i = 0; i < count; ++i) {
            paragraphs->AddTail();
            paragraphs->PeekTail()->setText("Article 0012345 in box 3");
        }
        benchmark::DoNotOptimize(document->Contents().data());
    }
    setElements(state, count);
}

void inlineTokensInOneText(benchmark::State& state) {
    const Ref<CRtfDoc> document = CRtfDoc::create();
    document->LoadStyleSheetFromMemmory(standardStyleSheet());
    const Ref<CRtfParagraphs> paragraphs = onlyCellsParagraphs(*document);
    paragraphs->AddTail();
    std::string text;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        text += "<bold=" + std::to_string(i) + "> and ";
    }
    paragraphs->PeekTail()->setText(text);
    for (auto _ : state) {
        document->Refresh();
        benchmark::DoNotOptimize(document->Contents().data());
    }
    setElements(state, state.range(0));
}

void parseFullDescription(benchmark::State& state, bool check) {
    const std::string text = fullDescription();
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->LoadStyleSheetFromMemmory(standardStyleSheet());
    driver->setErroneousInput(check);
    for (auto _ : state) {
        driver->ParseFromMemmory(text);
    }
    if (driver->RtfObject()->TableRows()->Count() != 999) {
        state.SkipWithError("the description was not built");
    }
    setElements(state, std::int64_t{3} * 999);
}

void parseDescription(benchmark::State& state) {
    parseFullDescription(state, false);
}

void parseAndCheckDescription(benchmark::State& state) {
    parseFullDescription(state, true);
}

std::int64_t linesOfFullDescription() {
    const std::string text = fullDescription();
    return std::count(text.begin(), text.end(), '\n');
}

void descriptionToDocument(benchmark::State& state) {
    const std::string text = fullDescription();
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->LoadStyleSheetFromMemmory(standardStyleSheet());
    for (auto _ : state) {
        driver->ParseFromMemmory(text);
        benchmark::DoNotOptimize(driver->Contents().data());
    }
    setElements(state, state.range(0));
}

void findLineEnds(benchmark::State& state) {
    const std::string text = fullDescription();
    for (auto _ : state) {
        std::size_t sum = 0;
        for (std::size_t end = text.find('\n'); end != std::string::npos;
             end = text.find('\n', end + 1)) {
            sum += end;
        }
        benchmark::DoNotOptimize(sum);
    }
    setElements(state, state.range(0));
}

void loadStyleSheet(benchmark::State& state) {
    std::string sheet;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        sheet += "{ name: style" + std::to_string(i) +
                 "; style-def: s; format: \\f9\\fs20\\b; based-on: style0; next: style1 }\r\n";
    }
    const Ref<CRtfDoc> document = CRtfDoc::create();
    for (auto _ : state) {
        document->LoadStyleSheetFromMemmory(sheet);
    }
    setElements(state, state.range(0));
}

void renderDescriptions(benchmark::State& state, Language language,
                        const std::vector<std::string>& descriptions, std::int64_t elements) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->LoadStyleSheetFromMemmory(standardStyleSheet());
    driver->setReadsExtended(language == Language::Extended);
    for (auto _ : state) {
        for (const std::string& description : descriptions) {
            driver->ParseFromMemmory(description);
            benchmark::DoNotOptimize(driver->Contents().data());
        }
    }
    if (driver->RtfObject()->TableRows()->Count() == 0) {
        state.SkipWithError("the description was not built");
    }
    setElements(state, elements);
}

/// As many cells as the original language takes.
constexpr std::int64_t cellsInBothLanguages = 999;
constexpr std::int64_t manyInvoices = 100;

template <Language language, Widths widths, Letters letters = Letters::Ascii>
void tableOf(benchmark::State& state) {
    const auto rows = static_cast<std::int32_t>(state.range(0) / columnsOfTable);
    renderDescriptions(state, language, {tableDescription(language, widths, letters, rows)},
                       state.range(0));
}

template <Language language>
void invoices(benchmark::State& state) {
    std::vector<std::string> descriptions;
    descriptions.reserve(static_cast<std::size_t>(state.range(0)));
    for (std::int32_t number = 0; number < state.range(0); ++number) {
        descriptions.push_back(invoiceDescription(language, number));
    }
    renderDescriptions(state, language, descriptions, state.range(0) * linesOfInvoice());
}

void registerLanguages() {
    using enum Widths;
    constexpr Language original = Language::Original;
    constexpr Language extended = Language::Extended;
    const auto add = [](const char* name, void (*run)(benchmark::State&), std::int64_t size) {
        benchmark::RegisterBenchmark(name, run)->Arg(size)->Unit(benchmark::kMillisecond);
    };
    add("evenTableOriginal", tableOf<original, Even>, cellsInBothLanguages);
    add("evenTableExtended", tableOf<extended, Even>, cellsInBothLanguages);
    add("widthsTableOriginal", tableOf<original, OfCells>, cellsInBothLanguages);
    add("widthsTableExtended", tableOf<extended, OfCells>, cellsInBothLanguages);
    add("columnsTableExtended", tableOf<extended, OfColumns>, cellsInBothLanguages);
    add("accentsTableOriginal", tableOf<original, OfCells, Letters::Accented>,
        cellsInBothLanguages);
    add("accentsTableExtended", tableOf<extended, OfCells, Letters::Accented>,
        cellsInBothLanguages);
    add("invoicesOriginal", invoices<original>, manyInvoices);
    add("invoicesExtended", invoices<extended>, manyInvoices);
}

void cellSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(buildRowsCellsParagraphs)->Apply(cellSizes);
BENCHMARK(releaseDocument)->Apply(cellSizes);
BENCHMARK(contentsFirst)->Apply(cellSizes);
BENCHMARK(refreshAfterOneChange)->Apply(cellSizes);
BENCHMARK(commitFirst)->Apply(cellSizes);
BENCHMARK(commitRendered)->Apply(cellSizes);
BENCHMARK(plainWrite)->Apply(cellSizes);
BENCHMARK(emitterIntoOneBuffer)->Apply(cellSizes);
BENCHMARK(emitterIntoOneBufferAndFile)->Apply(cellSizes);
BENCHMARK(emitterStreaming)->Apply(cellSizes);
BENCHMARK(plainCopy)->Apply(cellSizes);
BENCHMARK(rowsByPosition)->Apply(cellSizes);
BENCHMARK(rowsByKey)->Apply(cellSizes);
BENCHMARK(tailAddsHeadRemoves)->Apply(cellSizes);
BENCHMARK(headAddsHeadRemoves)->Apply(cellSizes);
BENCHMARK(cellsInOneRow)->Apply(cellSizes);
BENCHMARK(paragraphsInOneCell)->Apply(cellSizes);
BENCHMARK(inlineTokensInOneText)->Arg(500)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(parseDescription)->Arg(999)->Unit(benchmark::kMillisecond);
BENCHMARK(parseAndCheckDescription)->Arg(999)->Unit(benchmark::kMillisecond);
BENCHMARK(descriptionToDocument)->Arg(linesOfFullDescription())->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(tableOf, Language::Extended, Widths::OfColumns)
    ->Name("extendedToDocument")
    ->Apply(cellSizes);
BENCHMARK_TEMPLATE(tableOf, Language::Extended, Widths::OfCells)
    ->Name("extendedWidthsToDocument")
    ->Apply(cellSizes);
BENCHMARK(findLineEnds)->Arg(linesOfFullDescription())->Unit(benchmark::kMillisecond);
BENCHMARK(loadStyleSheet)->Arg(50)->Arg(500)->Unit(benchmark::kMillisecond);

bool bytesAreEqual() {
    constexpr std::int32_t rows = 1000;
    std::string streamed;
    streamStandardJob(rows, [&streamed](std::string_view bytes) { streamed += bytes; });
    return standardDocument(rows)->Contents() == emitStandardJob(rows) &&
           streamed == emitStandardJob(rows);
}

void printRatio(const char* what, double value, double yardstick) {
    if (value > 0 && yardstick > 0) {
        std::printf("- %s: %.2f\n", what, value / yardstick);
    }
}

/// What the extended language costs, to the original one without checks.
void printLanguageRatios(const SizeTable& table) {
    const auto print = [&](const char* what, const char* extended, const char* original,
                           std::int64_t size = cellsInBothLanguages) {
        printRatio(what, table.nanoseconds(extended, size), table.nanoseconds(original, size));
    };
    print("A table of 999 cells in the extended language, to the original language",
          "evenTableExtended", "evenTableOriginal");
    print("The same with a width in each cell", "widthsTableExtended", "widthsTableOriginal");
    print("The same with columns, to a width in each cell", "columnsTableExtended",
          "widthsTableOriginal");
    print("The same with a width in each cell and text beyond ASCII", "accentsTableExtended",
          "accentsTableOriginal");
    print("100 invoices in the extended language, to the original language", "invoicesExtended",
          "invoicesOriginal", manyInvoices);
}

}  // namespace

int run(int argc, char** argv) {
    if (!bytesAreEqual()) {
        static_cast<void>(std::fprintf(stderr, "the bytes of library and emitters differ\n"));
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    registerLanguages();
    SizeTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    constexpr std::int64_t million = 1000000;
    std::printf("\n%s\n", table.text().c_str());
    printRatio("Refresh of a changed document of 1,000,000 cells, to the one-buffer emitter",
               table.nanoseconds("refreshAfterOneChange", million),
               table.nanoseconds("emitterIntoOneBuffer", million));
    printRatio("First rendering of 1,000,000 cells, to the one-buffer emitter",
               table.nanoseconds("contentsFirst", million),
               table.nanoseconds("emitterIntoOneBuffer", million));
    printRatio("First Commit of 1,000,000 cells to a file in memory, to the one-buffer emitter",
               table.nanoseconds("commitFirst", million),
               table.nanoseconds("emitterIntoOneBuffer", million));
    printRatio("The same, to the one-buffer emitter that writes such a file",
               table.nanoseconds("commitFirst", million),
               table.nanoseconds("emitterIntoOneBufferAndFile", million));
    printRatio("Commit of the rendered text, to a plain write of its bytes",
               table.nanoseconds("commitRendered", million),
               table.nanoseconds("plainWrite", million));
    printRatio("Description to document text through the driver, per line, to finding line ends",
               table.nanoseconds("descriptionToDocument", linesOfFullDescription()),
               table.nanoseconds("findLineEnds", linesOfFullDescription()));
    printLanguageRatios(table);
    return 0;
}

}  // namespace quorvane::bench

int main(int argc, char** argv) {
    return quorvane::bench::run(argc, argv);
}
