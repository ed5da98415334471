#include "bench/invoices.h"

#include <string_view>

#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/Dialect.h"

namespace quorvane::bench {

namespace {

constexpr std::size_t lineCountOfInvoice = 20;

std::string cellOf(std::string_view lines) {
    return "(cell\n(para\n" + std::string(lines) + "\npara)\ncell)\n";
}

std::string invoiceLine(std::size_t invoice, std::size_t line) {
    return R"({"position":)" + std::to_string(line + 1) + R"(,"article":"Article )" +
           std::to_string(invoice + line) + R"( in oak, oiled","quantity":)" +
           std::to_string(line + 1) + R"(,"price":)" + std::to_string(line * 17) + ".5}";
}

}  // namespace

std::string invoiceTemplate() {
    return "; quorvane 2\n(doc\n(page=a4)\n(columns=10 50 20 20)\n(footer=Invoice {{number}})\n"
           "(row\n(cell\n(span=4)\n(para\n(pt=Invoice {{number}} for {{customer.name}}, "
           "{{customer.city}})\npara)\ncell)\nrow)\n{{#lines}}\n(row\n(row-keep=yes)\n" +
           cellOf("(pt={{position}})") + cellOf("(pt={{article}})") +
           cellOf("(pa=right)\n(pt={{quantity}})") + cellOf("(pa=right)\n(pt={{price|money}})") +
           "row)\n{{/lines}}\ndoc)\n";
}

std::string invoiceData(std::size_t number) {
    std::string lines;
    for (std::size_t line = 0; line < lineCountOfInvoice; ++line) {
        lines += (line == 0 ? "" : ",") + invoiceLine(number, line);
    }
    return R"({"number":)" + std::to_string(number) +
           R"(,"customer":{"name":"Novak & Sons","city":"Praha"},"lines":[)" + lines + "]}";
}

std::string invoicePattern() {
    return R"({"number":"@number@","customer":{"name":"@customer.name@","city":"@customer.city@"},)"
           R"("lines":[{"position":"@position@","article":"@article@","quantity":"@quantity@",)"
           R"("price":987.65}]})";
}

std::string descriptionOf(const std::vector<SourceLine>& lines) {
    std::string text = "; quorvane 2\n";
    for (const SourceLine& line : lines) {
        const DescriptionLine parts = descriptionLine(line, extendedDialect());
        text += line.filled ? "(" + std::string(parts.key) + "=" + std::string(parts.value) + ")"
                            : std::string(line.text);
        text += '\n';
    }
    return text;
}

}  // namespace quorvane::bench
