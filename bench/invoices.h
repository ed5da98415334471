#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "quorvane/support/SourceLine.h"

namespace quorvane::bench {

/// A template in the extended language: an invoice with a row for each of its lines.
std::string invoiceTemplate();

/// The data of an invoice of 20 lines, as JSON on one line. Invoices of other numbers have other
/// texts.
std::string invoiceData(std::size_t number);

/// The data of an invoice of one line, whose values show where they stand: each is its name between
/// "@", but the price, which is 987.65.
std::string invoicePattern();

/// The description that the filled lines of a template mean.
std::string descriptionOf(const std::vector<SourceLine>& lines);

}  // namespace quorvane::bench
