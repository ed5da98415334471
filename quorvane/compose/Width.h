#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The width of a column: a share of the text area, a length, or what the other columns leave.
///
///     document.setColumns({"2cm", 30, "auto"});
class Width {
public:
    /// So many percent of the text area. Error "wrong-value" for a number that is not above 0.
    Width(double percent);
    /// The width that a text gives, as `columns` of the extended language has it: percent ("20" or
    /// "20%") or a length with a unit ("3cm"); "auto" for `automatic`. Error "wrong-value" for any
    /// other text.
    Width(std::string_view text);
    Width(const std::string& text) : Width(std::string_view(text)) {}
    Width(const char* text) : Width(std::string_view(text ? text : "")) {}

    /// Returns a width of so many twips. Error "wrong-value" for a number below 1, and for one
    /// above the 22 inches that a page can have.
    static Width twips(int twips);
    /// Returns the width of columns that share what the others leave of the text area.
    static Width automatic() { return Width(); }

private:
    friend class PageLayout;

    enum class Kind { Automatic, Percent, Twips };

    Width() = default;
    void set(std::string_view text);

    Kind kind_ = Kind::Automatic;
    double amount_ = 0;
};

}  // namespace quorvane
