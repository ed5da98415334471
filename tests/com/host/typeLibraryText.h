#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace quorvane::host {

/// A type library as a text: every type with its kind, identifier and flags; of interfaces every
/// member with its identifier, place in the vtable, parameters, flags and help; of enumerations
/// every value; of classes their interfaces.
std::string typeLibraryText(ITypeLib& library);

/// The members of all interfaces as "Interface.kind Name", such as "_CRtfDoc.get Contents"; kinds
/// are get, set and call.
std::vector<std::string> publishedMembers(ITypeLib& library);

}  // namespace quorvane::host
