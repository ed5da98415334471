#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/values/Value.h"

namespace quorvane::host {

using Arguments = std::vector<Value>;

/// One way of working with the system: its C++ classes, the component early bound, or the component
/// late bound. The same operations must return the same texts on each.
///
/// A member is named "_CRtfDoc.set TopMargin": interface, kind (get, set, call) and name. Objects
/// are numbered as they are first answered; 0 is a document and 1 a driver.
class Face {
public:
    virtual ~Face() = default;

    /// Performs an operation; what it returns is a value, an error with number, description and
    /// source, or "ok", followed by the events that it raised.
    std::string perform(int object, const std::string& member, const Arguments& arguments);

    /// Interface of an object, such as "_CRtfDoc"; empty when it is not held any more.
    const std::string& interfaceOf(int object) const {
        return objects_.at(static_cast<std::size_t>(object)).interfaceName;
    }
    int objectCount() const { return static_cast<int>(objects_.size()); }
    /// Releases an object. It gets another number when it is met again.
    void releaseObject(int object);

protected:
    /// Performs an operation on an object that is held.
    virtual std::string resultOf(int object, const std::string& member,
                                 const Arguments& arguments) = 0;
    /// Releases what is held under the number.
    virtual void release(int object) = 0;

    /// The number of an object that was answered before, or a new one.
    struct Numbered {
        int number;
        bool isNew;
    };
    Numbered number(const void* identity, const std::string& interfaceName);

    /// Adds what an event's handler saw to the result of the current operation.
    void addEvent(const std::string& error) { events_ += " event: " + error; }

private:
    struct Object {
        const void* identity;
        std::string interfaceName;
    };

    std::vector<Object> objects_;
    // By address and interface: a row and its cells may stand at one address in the library.
    std::map<std::pair<const void*, std::string>, int> numbers_;
    std::string events_;
};

std::unique_ptr<Face> nativeFace();
std::unique_ptr<Face> earlyBoundFace();
std::unique_ptr<Face> lateBoundFace();

/// The members that a face has functions of its own for.
std::vector<std::string> nativeMembers();
std::vector<std::string> earlyBoundMembers();

// How results are written.
std::string answerText(bool value);
std::string answerText(std::int32_t value);
std::string answerText(const std::string& text);
std::string answerText(int objectNumber, const std::string& interfaceName);
std::string errorText(std::uint32_t number, const std::string& description,
                      const std::string& source);
inline constexpr const char* nothingText = "Nothing";
inline constexpr const char* okText = "ok";

}  // namespace quorvane::host
