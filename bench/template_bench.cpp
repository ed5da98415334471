// Fills an invoice of 20 lines with data, and renders the same invoice from a description that is
// ready, in turns: template_bench N does each N times. The time for the data includes reading its
// JSON. Prints both times for an invoice and their ratio.

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/invoices.h"
#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "data/json.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/parseFilled.h"

namespace {

using namespace quorvane;
using namespace quorvane::bench;
using Clock = std::chrono::steady_clock;

data::DataValue recordOf(const std::string& json) {
    data::JsonError error;
    std::optional<data::DataValue> record = data::readJson(json, error);
    if (!record) {
        throw std::runtime_error(error.message);
    }
    return *std::move(record);
}

/// Adds the time that the work takes.
void measure(Clock::duration& all, const std::function<void()>& work) {
    const Clock::time_point begin = Clock::now();
    work();
    all += Clock::now() - begin;
}

double microsecondsEach(Clock::duration all, std::size_t count) {
    return std::chrono::duration<double, std::micro>(all).count() / static_cast<double>(count);
}

void run(std::size_t count) {
    std::vector<data::TemplateError> errors;
    const data::Template source =
        data::compileTemplate(invoiceTemplate(), TextEncoding::Utf8, {}, errors);
    data::TemplateFilling filling(source, {});
    const Ref<CRtfDriver> filled = CRtfDriver::create();
    const Ref<CRtfDriver> ready = CRtfDriver::create();
    ready->setReadsExtended(true);
    Clock::duration timeFilled{};
    Clock::duration timeReady{};
    for (std::size_t i = 0; i < count; ++i) {
        const std::string json = invoiceData(i);
        const std::string* document = nullptr;
        measure(timeFilled, [&] {
            const data::DataValue record = recordOf(json);
            parseFilled(*filled, filling.fill(record, errors));
            document = &filled->Contents();
        });
        const data::DataValue record = recordOf(json);
        const std::string description = descriptionOf(filling.fill(record, errors));
        measure(timeReady, [&] {
            ready->ParseFromMemmory(description);
            static_cast<void>(ready->Contents());
        });
        if (!errors.empty() || *document != ready->Contents()) {
            throw std::runtime_error("The documents differ.");
        }
    }
    static_cast<void>(std::printf(
        "filled %.1f us, ready %.1f us, ratio %.2f\n", microsecondsEach(timeFilled, count),
        microsecondsEach(timeReady, count),
        static_cast<double>(timeFilled.count()) / static_cast<double>(timeReady.count())));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        static_cast<void>(std::fprintf(stderr, "usage: %s INVOICES\n", argv[0]));
        return 2;
    }
    try {
        run(std::strtoul(argv[1], nullptr, 10));
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 1;
    }
    return 0;
}
