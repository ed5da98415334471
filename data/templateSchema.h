#pragma once

#include <string>

#include "data/Template.h"

namespace quorvane::data {

/// The JSON Schema (draft 7) of the data that a template without errors asks for, as a text of
/// several lines. It accepts no data in which a tag would miss its name. It knows nothing of what a
/// value means where it stands, such as the name of a style.
///
/// A section is for a list, an object or a condition, whichever the data has: for an object and for
/// the objects of a list, its names are asked of them, otherwise of the object around it. What is
/// asked within `{{#@first}}` and the like, and within a section that looks outward and in which
/// others look outward too, is asked whether they are shown or not.
///
/// For sections or names in names that are nested too deep, the text is empty and `error` is a
/// sentence about it.
std::string schemaOfTemplate(const Template& source, std::string& error);

}  // namespace quorvane::data
