#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/PictureSource.h"
#include "quorvane/support/GError.h"

namespace quorvane {

class CRtfDriver;
void retain(CRtfDriver* driver) noexcept;
void release(CRtfDriver* driver) noexcept;
struct SourceLine;
void parseFilled(CRtfDriver& driver, const std::vector<SourceLine>& lines);

/// Makes a document from a description and a stylesheet.
///
/// An analysis goes through all its steps (look at the text, read, repair, check, build) whatever
/// happens. An error ends its step, is reported through the event, and the next step works on what
/// there is. `ParseFile` and `ParseFromMemmory` do not raise it.
class CRtfDriver {
public:
    /// The event `notifyError`. The handler is called with the driver and every error of an
    /// analysis, which is also the thread's current error (see `currentError`). Its `line` is the
    /// line of the description. The handler may use the driver and its document in any way,
    /// release the driver, or run another analysis; the current analysis goes on with what is left.
    /// An exception that the handler throws ends the analysis and reaches its caller.
    using NotifyErrorHandler = std::function<void(CRtfDriver& Sender, const RtfError& error)>;

    /// Returns a new driver with an empty document. The platform must outlive it.
    static Ref<CRtfDriver> create(Platform& platform = systemPlatform());

    /// Reads a description from a file (Windows-1252) and analyzes it. Error `eWrongPath` if the
    /// path is empty, and if the file does not exist or cannot be read.
    void ParseFile(const std::string& sPath);

    /// Analyzes a description (UTF-8). The rows and the page of the document are built from it; the
    /// stylesheet stays. Raises no error. The text must not change before the call returns.
    void ParseFromMemmory(std::string_view sBuffer);

    /// Loads a stylesheet from a text in place of the current styles. Errors for a wrong
    /// stylesheet: 445 (keyword or value), 31037 (braces).
    void LoadStyleSheetFromMemmory(std::string_view sBuffer);

    /// Writes the document to a file; see `CRtfDoc::Commit`.
    void Commit(const std::string& sPath) { document_->Commit(sPath); }

    /// Whether an analysis repairs unclosed rows, and checks keys and values before it builds.
    /// Initially false.
    bool ErroneousInput() const { return erroneousInput_; }
    void setErroneousInput(bool check) { erroneousInput_ = check; }

    /// Whether an analysis takes descriptions with any characters. Then those that Windows-1252
    /// lacks become control words in the texts of paragraphs (`{\uc1\u345?}` for ř); in keys, names
    /// of styles and data of marked fields they are errors `eWrongValue`. Initially false: they are
    /// kept, and written as "?". Bytes that are not UTF-8 are written as "?" in any case.
    bool UnicodeTexts() const { return unicodeTexts_; }
    void setUnicodeTexts(bool accept) { unicodeTexts_ = accept; }

    /// Whether descriptions whose first line is `; quorvane 2` are read in the extended language:
    /// see docs/extended-language.md. They are UTF-8, in files as well, and always checked. After
    /// an error the document has no rows. Initially false: that line is a comment as any other.
    bool ReadsExtended() const { return readsExtended_; }
    void setReadsExtended(bool accept) { readsExtended_ = accept; }

    /// Sets where the pictures of extended descriptions come from. The source is called with the
    /// name as it is written. Without one, `ParseFile` reads them from the folder of the
    /// description and those in it, and for `ParseFromMemmory` a picture is an error. An empty
    /// function goes back to that.
    void setPictureSource(PictureSource source);

    /// Whether errors of an analysis are reported through the event. Initially true.
    bool notifyError() const { return notifyError_; }
    void setNotifyError(bool notify) { notifyError_ = notify; }

    /// Sets the handler of the event; an empty function removes it.
    void setNotifyErrorHandler(NotifyErrorHandler handler);

    /// Returns the text of the document; see `CRtfDoc::Contents`.
    const std::string& Contents() { return document_->Contents(); }

    /// Returns the document; the same object as long as the driver lives.
    Ref<CRtfDoc> RtfObject() const { return document_; }

    /// Returns the name of the document's stylesheet file.
    const std::string& StyleSheetFile() const { return document_->StyleSheetFile(); }
    /// Loads a stylesheet file. Ignores a name without the extension "rtfss" (in upper or lower
    /// case) and the name that is already set. A missing file leaves the document without styles.
    /// Error `eWrongFileType` for a wrong stylesheet, with the stylesheet's error as its cause.
    void setStyleSheetFile(const std::string& sName);

    /// Sets a function that is called with every error that ends a procedure without being raised;
    /// see `CRtfDoc::setAbsorbedErrorObserver`.
    void setAbsorbedErrorObserver(GError::Observer observer);

private:
    friend void retain(CRtfDriver* driver) noexcept;
    friend void release(CRtfDriver* driver) noexcept;
    friend void parseFilled(CRtfDriver& driver, const std::vector<SourceLine>& lines);

    explicit CRtfDriver(Platform& platform);
    ~CRtfDriver() = default;

    void AnalyseData(std::string_view text, const PictureSource& pictures);
    template <class Build>
    void analyzeExtended(Build build);
    void buildExtended(std::string_view text, const PictureSource& pictures);
    void buildLines(const std::vector<SourceLine>& lines, const PictureSource& pictures);
    template <class Body>
    void step(Body&& body);
    void report(const RtfError& error);

    std::uint32_t references_ = 0;
    Platform& platform_;
    Ref<CRtfDoc> document_;
    NotifyErrorHandler handler_;
    bool erroneousInput_ = false;
    bool unicodeTexts_ = false;
    bool readsExtended_ = false;
    PictureSource pictures_;
    bool notifyError_ = true;
};

}  // namespace quorvane
