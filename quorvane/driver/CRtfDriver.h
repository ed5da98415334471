#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/support/GError.h"

namespace quorvane {

class CRtfDriver;
void retain(CRtfDriver* driver) noexcept;
void release(CRtfDriver* driver) noexcept;

/// Turns a textual description of a document, with a stylesheet, into the document.
///
/// An analysis goes through its steps (look at the text, read, repair, check, build) whatever
/// happens: an error ends the step in which it arises, is reported through the event, and the next
/// step goes on with what there is. The caller of `ParseFile` or `ParseFromMemmory` does not get
/// it.
class CRtfDriver {
public:
    /// The event `notifyError`: called with the driver for every error of an analysis. The error is
    /// the thread's current one (see `currentError`), its `line` the line of the description that
    /// it concerns. The handler may use the driver and its document in any way: the analysis goes
    /// on with what it leaves, also when it releases the driver or ran an analysis of its own. An
    /// exception that it throws ends the analysis and reaches its caller.
    using NotifyErrorHandler = std::function<void(CRtfDriver& Sender)>;

    /// A new driver with an empty document. The platform must outlive it.
    static Ref<CRtfDriver> create(Platform& platform = systemPlatform());

    /// Reads a description file (Windows-1252) and analyses it. Errors: `eWrongPath` for an empty
    /// path, and for a file that does not exist or cannot be read.
    void ParseFile(const std::string& sPath);

    /// Analyses a description (UTF-8): the document's rows and page are made anew from it, the
    /// stylesheet stays. Raises nothing. The text must stay as it is until the call ends.
    void ParseFromMemmory(std::string_view sBuffer);

    /// Reads the styles of a text in place of those loaded before. Errors 445 (bad keyword or
    /// value) and 31037 (braces) for a bad stylesheet.
    void LoadStyleSheetFromMemmory(std::string_view sBuffer);

    /// Writes the document to a file; see `CRtfDoc::Commit`.
    void Commit(const std::string& sPath) { document_->Commit(sPath); }

    /// True when an analysis repairs unclosed rows and checks keys and values before it builds.
    /// Initially false.
    bool ErroneousInput() const { return erroneousInput_; }
    void setErroneousInput(bool check) { erroneousInput_ = check; }

    /// True when errors of an analysis are reported through the event. Initially true.
    bool notifyError() const { return notifyError_; }
    void setNotifyError(bool notify) { notifyError_ = notify; }

    /// Sets the handler of the event; an empty function removes it.
    void setNotifyErrorHandler(NotifyErrorHandler handler);

    /// The document's text; see `CRtfDoc::Contents`.
    const std::string& Contents() { return document_->Contents(); }

    /// The driver's document: the same one as long as the driver lives.
    Ref<CRtfDoc> RtfObject() const { return document_; }

    /// Name of the document's stylesheet file.
    const std::string& StyleSheetFile() const { return document_->StyleSheetFile(); }
    /// Reads a stylesheet file. A name whose extension is not "rtfss" (in any case), and the name
    /// that is set already, are ignored; a missing file leaves the document without styles. Error
    /// `eWrongFileType` for a bad stylesheet; its cause is the error of the stylesheet.
    void setStyleSheetFile(const std::string& sName);

    /// Shows the host every error that ends a procedure without reaching it; see
    /// `CRtfDoc::setAbsorbedErrorObserver`.
    void setAbsorbedErrorObserver(GError::Observer observer);

private:
    friend void retain(CRtfDriver* driver) noexcept;
    friend void release(CRtfDriver* driver) noexcept;

    explicit CRtfDriver(Platform& platform);
    ~CRtfDriver() = default;

    void AnalyseData(std::string_view text);
    template <class Body>
    void step(Body&& body);
    void report(const RtfError& error);

    Counted counts_;
    Platform& platform_;
    Ref<CRtfDoc> document_;
    const Dialect& dialect_ = originalDialect();
    NotifyErrorHandler handler_;
    bool erroneousInput_ = false;
    bool notifyError_ = true;
};

}  // namespace quorvane
