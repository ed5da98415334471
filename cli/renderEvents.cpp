#include "cli/renderEvents.h"

namespace quorvane::cli {

namespace {

/// Hands each kind of event on.
class Reporting {
public:
    Reporting(RenderReport& report, const RenderReceivers& receivers)
        : report_(report), receivers_(receivers) {}

    void operator()(const ReportedError& error) const { receivers_.report(error); }
    void operator()(const LocatedDiagnostic& located) const {
        receivers_.locate(located.file, located.diagnostic, located.excerpt);
    }
    void operator()(const StyleSheetRefusal& refusal) const {
        report_.refuseStyleSheet(refusal.error);
    }
    void operator()(const RenderNote& note) const { report_.note(note.text); }

private:
    RenderReport& report_;
    const RenderReceivers& receivers_;
};

}  // namespace

RenderReceivers receiversInto(RenderEvents& events, bool locate) {
    RenderReceivers receivers;
    receivers.report = [&events](const ReportedError& error) { events.emplace_back(error); };
    receivers.refuseStyleSheet = [&events](const RtfError& error) {
        events.emplace_back(StyleSheetRefusal{error});
    };
    receivers.note = [&events](const std::string& text) { events.emplace_back(RenderNote{text}); };
    if (locate) {
        receivers.locate = [&events](const std::string& file, const Diagnostic& diagnostic,
                                     const DiagnosticExcerpt& excerpt) {
            events.emplace_back(LocatedDiagnostic{file, diagnostic, excerpt});
        };
    }
    return receivers;
}

void report(const RenderEvents& events, RenderReport& report, const RenderReceivers& receivers) {
    const Reporting reporting(report, receivers);
    for (const auto& event : events) {
        std::visit(reporting, event);
    }
}

}  // namespace quorvane::cli
