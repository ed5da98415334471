#pragma once

#include <string>
#include <vector>

namespace quorvane::host {

// What the examples make, made by the library itself.

/// The stylesheet of both documents, a style to a line.
extern const char* const styleSheetText;
/// The description of the reminder.
extern const char* const descriptionText;

/// The bytes that the library writes for the invoice, which the examples make through the object
/// model.
std::string libraryInvoice();
/// The bytes that the library writes for the reminder, which the examples make from a description.
std::string libraryReminder();

/// Every text that stands in the invoice as the examples have it.
std::vector<std::string> textsOfInvoice();

}  // namespace quorvane::host
