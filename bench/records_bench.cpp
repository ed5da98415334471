// Many documents from one file of data, beside other ways to make them:
// records_bench PROGRAMS PEERS, the folders of the built programs and of the programs of
// bench/peers with what they need. 10,000 invoices of 20 lines are made into a file system in
// memory.

#include <cstddef>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/Turns.h"
#include "bench/benchFiles.h"
#include "bench/invoices.h"
#include "data/DataValue.h"
#include "data/Template.h"
#include "data/TemplateError.h"
#include "data/TemplateFilling.h"
#include "data/json.h"

namespace quorvane::bench {
namespace {

namespace fs = std::filesystem;

/// docxtemplater is so slow that fewer invoices are enough to see it.
constexpr std::size_t manyInvoices = 10000;
constexpr std::size_t fewInvoices = 500;

std::string contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string invoicesUpTo(std::size_t count) {
    std::string lines;
    for (std::size_t number = 0; number < count; ++number) {
        lines += invoiceData(number) + "\n";
    }
    return lines;
}

std::string name(std::size_t number, const char* extension) {
    return std::to_string(number) + extension;
}

/// The same invoices as descriptions that need no data.
std::vector<std::string> readyDescriptions(const fs::path& folder) {
    fs::create_directory(folder);
    std::vector<data::TemplateError> errors;
    const data::Template source =
        data::compileTemplate(invoiceTemplate(), TextEncoding::Utf8, {}, errors);
    data::TemplateFilling filling(source, {});
    std::vector<std::string> files;
    for (std::size_t number = 0; number < manyInvoices; ++number) {
        data::JsonError error;
        const std::optional<data::DataValue> invoice = data::readJson(invoiceData(number), error);
        files.push_back(writtenFile(folder / name(number, ".rtfspec"),
                                    descriptionOf(filling.fill(invoice.value(), errors))));
    }
    return files;
}

class RecordsBench {
public:
    RecordsBench(const fs::path& programs, fs::path peers, const fs::path& folder)
        : quorvane_((programs / "quorvane").string()),
          peers_(std::move(peers)),
          folder_(folder),
          template_(writtenFile(folder / "invoice.rtfspec", invoiceTemplate())),
          many_(writtenFile(folder / "many.jsonl", invoicesUpTo(manyInvoices))),
          few_(writtenFile(folder / "few.jsonl", invoicesUpTo(fewInvoices))),
          pattern_((folder / "pattern.rtf").string()) {
        const std::string data = writtenFile(folder / "pattern.json", invoicePattern());
        timedRun({quorvane_, "render", "--data", data, template_, "-o", pattern_});
    }

    void compareToReady() {
        const std::vector<std::string> ready = readyDescriptions(folder_ / "ready");
        const auto render = [&](const std::string& out) {
            return withFiles({quorvane_, "render", "--output-dir", out}, ready);
        };
        requireSameDocuments(render);
        compare("to render of 10,000 ready descriptions", 5, many_, render);
    }

    void compareToHandlebars() {
        const auto handlebars = [&](const std::string& out) {
            return Command{"node", peer("handlebars.js"), many_, pattern_, out};
        };
        requireSameDocuments(handlebars);
        compare("to Handlebars on Node, which writes the same bytes", 5, many_, handlebars);
    }

    void compareToDocxtemplater() {
        compare("500 of them, to docxtemplater on Node with this document as DOCX", 3, few_,
                [&](const std::string& out) {
                    return Command{"node", peer("docxtemplater.js"), few_,
                                   (folder_ / "pattern.docx").string(), out};
                });
    }

    bool hasPatternAsDocx() const {
        const std::string profile = "-env:UserInstallation=file://" + (folder_ / "office").string();
        return succeeds({"soffice", profile, "--headless", "--convert-to", "docx", "--outdir",
                         folder_.string(), pattern_});
    }

private:
    std::string peer(const char* program) const { return (peers_ / program).string(); }

    Command each(const std::string& data, const std::string& out) const {
        return {quorvane_, "render", "--data", data, "--each", "-o", out + "/{{number}}.rtf",
                template_};
    }

    void requireSameDocuments(const MakeCommand& theirs) {
        const TemporaryFolder byEach(folder_ / "byEach");
        const TemporaryFolder byThem(folder_ / "byThem");
        timedRun(each(many_, byEach.path().string()));
        timedRun(theirs(byThem.path().string()));
        for (std::size_t number = 0; number < manyInvoices; number += 999) {
            const std::string document = name(number, ".rtf");
            if (contents(byEach.path() / document) != contents(byThem.path() / document)) {
                throw std::runtime_error("The documents differ.");
            }
        }
    }

    void compare(const char* what, int times, const std::string& data, const MakeCommand& theirs) {
        const TemporaryFolder turns(folder_ / "turns");
        const Turns result(
            turns.path(), times, [&](const std::string& out) { return each(data, out); }, theirs);
        std::printf("- 10,000 invoices of 20 lines by --each, %s: %s\n", what,
                    result.text().c_str());
        static_cast<void>(std::fflush(stdout));
    }

    std::string quorvane_;
    fs::path peers_;
    fs::path folder_;
    std::string template_;
    std::string many_;
    std::string few_;
    std::string pattern_;
};

void compareAll(const fs::path& programs, const fs::path& peers) {
    const fs::path memory = memoryFolder();
    const TemporaryFolder folder(memory.empty() ? diskFolder() : memory);
    RecordsBench bench(programs, peers, folder.path());
    bench.compareToReady();
    if (!succeeds({"node", "--version"})) {
        std::puts("(not measured: the programs of bench/peers need Node)");
        return;
    }
    bench.compareToHandlebars();
    if (!bench.hasPatternAsDocx()) {
        std::puts("(not measured: docxtemplater needs a DOCX file that LibreOffice makes)");
        return;
    }
    bench.compareToDocxtemplater();
}

}  // namespace
}  // namespace quorvane::bench

int main(int argc, char** argv) {
    if (argc != 3) {
        static_cast<void>(std::fprintf(stderr, "usage: %s PROGRAMS PEERS\n", argv[0]));
        return 2;
    }
    try {
        quorvane::bench::compareAll(argv[1], argv[2]);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 1;
    }
    return 0;
}
