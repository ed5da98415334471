#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "quorvane/base/platform/HostServices.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/LostCharacter.h"

namespace quorvane {

/// An error that ended a procedure without reaching the host, and the procedure that it ended.
struct AbsorbedError {
    RtfError error;
    /// File name of the module, such as "CRtfDoc.cls".
    std::string moduleName;
    /// Name of the procedure, such as "Commit".
    std::string procedureName;
};

/// The error module of one document: where an error goes that no procedure could handle. It is
/// absorbed there; only error 429 (an automation object that cannot be created) is shown, in a
/// message box. With the reporter switch on, every error goes to the external error collection.
class GError {
public:
    /// Called with every error that is absorbed. What it throws is swallowed. It may call into the
    /// library and may replace itself by another, but must not destroy the error module.
    using Observer = std::function<void(const AbsorbedError&)>;

    /// The host must outlive the error module.
    explicit GError(HostServices& host) : host_(host) {}
    GError(const GError&) = delete;
    GError& operator=(const GError&) = delete;

    /// Takes the error that ended the procedure: passes it to the observer, then to the external
    /// error collection when the reporter switch is on. With the switch off, error 429 is shown in
    /// a message box and any other error leaves no trace. When the delivery fails, the error is
    /// shown in a message box if it or the failure is error 429. `extraInfo` goes to the error
    /// collection; null for none. Never raises, whatever observer, reporter and message box do.
    /// Afterwards the error is the thread's current error.
    void handleError(const RtfError& error, const std::string& moduleName,
                     const std::string& procedureName,
                     const ExtraInfo& extraInfo = nullptr) noexcept;

    /// The report of an error: five lines, broken by CR LF, with number, description, module,
    /// procedure and the source of the thread's current error. "Funtion: " is spelled so.
    static std::string formatError(std::int32_t number, const std::string& description,
                                   const std::string& moduleName, const std::string& procedureName);

    /// Shows the report of an error in a message box with an information icon, titled with the
    /// string resource 8700. Raises what the host raises.
    void showError(std::int32_t number, const std::string& description,
                   const std::string& moduleName, const std::string& procedureName) const;

    /// Delivers an error to the external error collection "Vantrel.CVantrel". Error 429 when it
    /// cannot be created; otherwise raises what it raises.
    void sendToReporter(std::int32_t number, const std::string& description,
                        const std::string& moduleName, const std::string& procedureName,
                        const ExtraInfo& extraInfo) const;

    /// True when errors go to the external error collection. Initially false.
    bool ReporterSwitch() const noexcept { return reporterSwitch_; }
    void setReporterSwitch(bool on) noexcept { reporterSwitch_ = on; }

    /// Sets the observer; an empty function removes it.
    void setObserver(Observer observer) { observer_ = std::move(observer); }

    /// Passes each character of a UTF-8 text that becomes "?" in Windows-1252 to the observer of
    /// lost characters. The text begins at that byte offset of a file; none for a text that does
    /// not go into a file by itself. Never raises, whatever the observer does.
    void reportLostCharacters(std::string_view text,
                              std::optional<std::int64_t> offset) const noexcept;

    /// Sets the observer of lost characters; an empty function removes it. What it throws is
    /// swallowed.
    void setLostCharacterObserver(LostCharacterObserver observer) {
        lostCharacterObserver_ = std::move(observer);
    }

    /// Runs the body. An `RtfError` that it raises goes to `handleError` with the two names, and is
    /// returned. Any other exception, such as `std::bad_alloc`, passes.
    template <class Body>
    std::optional<RtfError> absorbing(const char* moduleName, const char* procedureName,
                                      Body&& body) {
        try {
            std::forward<Body>(body)();
            return std::nullopt;
        } catch (const RtfError& error) {
            handleError(error, moduleName, procedureName);
            return error;
        }
    }

private:
    HostServices& host_;
    Observer observer_;
    LostCharacterObserver lostCharacterObserver_;
    bool reporterSwitch_ = false;
};

}  // namespace quorvane
