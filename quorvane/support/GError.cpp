#include "quorvane/support/GError.h"

#include <memory>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/support/currentError.h"

namespace quorvane {

namespace {

constexpr int productNameResource = 8700;
constexpr int informationStyle = 64;

std::string productName(HostServices& host) {
    return host.resourceString(productNameResource).value_or("");
}

std::string joined(const ProgramVersion& version, const char* separator) {
    return std::to_string(version.major) + separator + std::to_string(version.minor) + separator +
           std::to_string(version.revision);
}

std::string sourceOfCurrentError() {
    const RtfError* error = currentError();
    return error ? error->source : std::string();
}

/// Calls the function with each character that becomes "?" in Windows-1252, and how many bytes come
/// before that.
template <class Function>
void forEachLostCharacter(std::string_view text, Function&& function) {
    std::size_t index = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = asciiRunEnd(text, at);
        index += end - at;
        at = end;
        if (at < text.size()) {
            const std::string_view character = text.substr(at, utf8CharacterAt(text, at).length);
            if (codePage1252FromUtf8(character) == "?") {
                function(character, index);
            }
            at += character.size();
            ++index;
        }
    }
}

enum class Outcome { Success, CannotCreateObject, Failure };

/// Runs the action with the error as the thread's current one, and makes it the current one again
/// whatever was raised meanwhile.
template <class Action>
Outcome runUnder(const RtfError& error, Action&& action) {
    Outcome outcome = Outcome::Success;
    setCurrentError(error);
    try {
        action();
    } catch (const RtfError& failure) {
        outcome = failure.is(RunTimeError::CannotCreateObject) ? Outcome::CannotCreateObject
                                                               : Outcome::Failure;
    } catch (...) {
        outcome = Outcome::Failure;
    }
    setCurrentError(error);
    return outcome;
}

}  // namespace

void GError::handleError(const RtfError& error, const std::string& moduleName,
                         const std::string& procedureName, const ExtraInfo& extraInfo) noexcept {
    try {
        // A copy: the error may be the thread's current one, which the steps below replace.
        const AbsorbedError absorbed{error, moduleName, procedureName};
        const RtfError& reported = absorbed.error;

        const auto notifyObserver = [&] {
            const Observer observer = observer_;  // a copy: it may replace itself while it runs
            if (observer) {
                observer(absorbed);
            }
        };
        const auto notifyReporter = [&] {
            sendToReporter(reported.number, reported.description, moduleName, procedureName,
                           extraInfo);
        };
        const auto show = [&] {
            showError(reported.number, reported.description, moduleName, procedureName);
        };

        runUnder(reported, notifyObserver);
        const Outcome delivery =
            reporterSwitch_ ? runUnder(reported, notifyReporter) : Outcome::Failure;
        if (delivery == Outcome::CannotCreateObject ||
            (delivery == Outcome::Failure && reported.is(RunTimeError::CannotCreateObject))) {
            runUnder(reported, show);
        }
    } catch (...) {
        // Not even memory for a copy of the error: nothing is left that could report it.
    }
}

void GError::reportLostCharacters(std::string_view text,
                                  std::optional<std::int64_t> offset) const noexcept {
    if (!lostCharacterObserver_) {
        return;
    }
    try {
        const LostCharacterObserver observer = lostCharacterObserver_;
        forEachLostCharacter(text, [&](std::string_view character, std::size_t index) {
            LostCharacter lost{std::string(character), offset};
            if (offset) {
                *lost.offset += static_cast<std::int64_t>(index);
            }
            observer(lost);
        });
    } catch (...) {
        // The loss is as it would be without an observer.
    }
}

std::string GError::formatError(std::int32_t number, const std::string& description,
                                const std::string& moduleName, const std::string& procedureName) {
    return "Number: " + std::to_string(number) + "\r\nDescription: " + description +
           "\r\nModule: " + moduleName + "\r\nFuntion: " + procedureName +
           "\r\nSource: " + sourceOfCurrentError();
}

void GError::showError(std::int32_t number, const std::string& description,
                       const std::string& moduleName, const std::string& procedureName) const {
    host_.showMessageBox(formatError(number, description, moduleName, procedureName),
                         informationStyle, productName(host_));
}

void GError::sendToReporter(std::int32_t number, const std::string& description,
                            const std::string& moduleName, const std::string& procedureName,
                            const ExtraInfo& extraInfo) const {
    const std::unique_ptr<ErrorReporter> reporter = host_.createReporter("Vantrel.CVantrel");
    const ProgramVersion version = host_.programVersion();
    std::string applicationId =
        host_.programFolder() + "\\" + host_.programFileName() + joined(version, "-");
    reporter->Create(productName(host_), applicationId);
    reporter->sendError({.number = number,
                         .description = description,
                         .moduleName = moduleName,
                         .procedureName = procedureName,
                         .version = joined(version, "."),
                         .source = sourceOfCurrentError(),
                         .extraInfo = extraInfo});
}

}  // namespace quorvane
