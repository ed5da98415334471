#include "com/document/DocumentObject.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "com/document/scriptValues.h"
#include "com/hostText.h"
#include "data/renderTable.h"
#include "data/renderTemplate.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/compose/render.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/driver/extendedValues.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane::com {

namespace {

Ref<ReportedDiagnostics> reported(const std::string& file,
                                  const std::vector<Diagnostic>& diagnostics) {
    return Ref<ReportedDiagnostics>(new ReportedDiagnostics(file, diagnostics));
}

/// Adds all rows, or none after an error.
void addRows(Document& document, const std::vector<std::vector<std::string>>& rows,
             const std::string& style) {
    const std::size_t before = document.size();
    try {
        for (const std::vector<std::string>& row : rows) {
            document.addRow(row, style);
        }
    } catch (...) {
        while (document.size() > before) {
            document[document.size() - 1].remove();
        }
        throw;
    }
}

PageText pageText(const std::string& text) {
    const auto [left, center, right] = pageLineParts(text);
    return {left, center, right};
}

}  // namespace

std::span<const Member> DocumentObject::members() {
    static constexpr Member all[] = {
        getter<&::_Document::get_Rows>(1),
        procedure<&::_Document::AddRow>(2),
        procedure<&::_Document::AddHeading>(3),
        procedure<&::_Document::AddRows>(4),
        setter<&::_Document::put_Columns>(5),
        setter<&::_Document::put_Page>(6),
        procedure<&::_Document::SetPageSize>(7),
        procedure<&::_Document::SetMargins>(8),
        setter<&::_Document::put_PageNumberStart>(9),
        setter<&::_Document::put_Header>(10),
        setter<&::_Document::put_Footer>(11),
        setter<&::_Document::put_StyleSheet>(12),
        procedure<&::_Document::LoadStyleSheet>(13),
        getter<&::_Document::get_PictureFolder>(14),
        setter<&::_Document::put_PictureFolder>(14),
        getter<&::_Document::get_Locale>(15),
        setter<&::_Document::put_Locale>(15),
        procedure<&::_Document::Render>(16),
        procedure<&::_Document::RenderFile>(17),
        procedure<&::_Document::RenderData>(18),
        procedure<&::_Document::Check>(19),
        procedure<&::_Document::CheckStyleSheet>(20),
        getter<&::_Document::get_Diagnostics>(21),
        getter<&::_Document::get_Rtf>(22),
        procedure<&::_Document::Save>(23),
        procedure<&::_Document::Clear>(24),
        procedure<&::_Document::Table>(25),
    };
    return all;
}

template <class Make>
void DocumentObject::replaceBy(Make&& make, const std::string& file) {
    reporting([&] {
        Rendering rendering = std::forward<Make>(make)();
        native().diagnostics = reported(file, rendering.diagnostics);
        native().document = std::move(rendering.document);
    });
}

template <class Body>
void DocumentObject::reporting(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (const Error& error) {
        native().diagnostics = reported(error.file(), error.diagnostics());
        throw;
    }
}

template <class Set>
void DocumentObject::setStyles(Set&& set) {
    auto none = reported({}, {});
    reporting(std::forward<Set>(set));
    native().diagnostics = std::move(none);
}

RenderOptions DocumentObject::options(std::string styleSheet) const {
    const std::string& folder = native().pictureFolder;
    return {.styleSheet = std::move(styleSheet),
            .pictures = folder.empty() ? PictureSource() : picturesBeside(folder + "\\.")};
}

STDMETHODIMP DocumentObject::get_Rows(::_DocumentRows** result) {
    return fetch(result, [&] { return RowsOf{Ref<DocumentState>(&native())}; });
}

STDMETHODIMP DocumentObject::AddRow(VARIANT* texts, VARIANT* style, ::_DocumentRow** result) {
    return fetch(result, [&] { return native().document.addRow(textsOf(texts), textOf(style)); });
}

STDMETHODIMP DocumentObject::AddHeading(VARIANT* texts, VARIANT* style, ::_DocumentRow** result) {
    return fetch(result, [&] {
        return native().document.addRow(textsOf(texts), textOf(style)).setHeading();
    });
}

STDMETHODIMP DocumentObject::AddRows(VARIANT texts, VARIANT* style) {
    return perform([&] {
        const std::vector<std::vector<std::string>> rows = textRowsOf(texts);
        addRows(native().document, rows, textOf(style));
    });
}

STDMETHODIMP DocumentObject::put_Columns(VARIANT widths) {
    return perform([&] { native().document.setColumns(widthsOf(widths)); });
}

STDMETHODIMP DocumentObject::put_Page(BSTR name) {
    return perform([&] { native().document.setPage(textOf(name)); });
}

STDMETHODIMP DocumentObject::SetPageSize(VARIANT width, VARIANT height) {
    return perform([&] { native().document.setPage(lengthOf(width), lengthOf(height)); });
}

STDMETHODIMP DocumentObject::SetMargins(VARIANT* left, VARIANT* right, VARIANT* top,
                                        VARIANT* bottom) {
    return perform([&] {
        const Margins usual;
        native().document.setMargins({.left = lengthOf(left, usual.left),
                                      .right = lengthOf(right, usual.right),
                                      .top = lengthOf(top, usual.top),
                                      .bottom = lengthOf(bottom, usual.bottom)});
    });
}

STDMETHODIMP DocumentObject::put_PageNumberStart(LONG number) {
    return perform(
        [&] { native().document.setPageNumberStart(static_cast<std::int32_t>(number)); });
}

STDMETHODIMP DocumentObject::put_Header(BSTR text) {
    return perform([&] { native().document.setHeader(pageText(textOf(text))); });
}

STDMETHODIMP DocumentObject::put_Footer(BSTR text) {
    return perform([&] { native().document.setFooter(pageText(textOf(text))); });
}

STDMETHODIMP DocumentObject::put_StyleSheet(BSTR text) {
    return perform([&] { setStyles([&] { native().document.setStyleSheet(textOf(text)); }); });
}

STDMETHODIMP DocumentObject::LoadStyleSheet(BSTR path) {
    return perform([&] { setStyles([&] { native().document.setStyleSheetFile(textOf(path)); }); });
}

STDMETHODIMP DocumentObject::get_PictureFolder(BSTR* result) {
    return fetch(result, [&] { return std::string_view(native().pictureFolder); });
}

STDMETHODIMP DocumentObject::put_PictureFolder(BSTR value) {
    return perform([&] { native().pictureFolder = textOf(value); });
}

STDMETHODIMP DocumentObject::get_Locale(BSTR* result) {
    return fetch(result, [&] { return std::string_view(native().localeName); });
}

STDMETHODIMP DocumentObject::put_Locale(BSTR value) {
    return perform([&] {
        std::string name = textOf(value);
        std::string error;
        data::Locale locale = name.empty() ? data::Locale() : data::localeNamed(name, error);
        if (!error.empty()) {
            refuseValue(error);
        }
        native().locale = std::move(locale);
        native().localeName = std::move(name);
    });
}

STDMETHODIMP DocumentObject::Render(BSTR description, VARIANT* styleSheet) {
    return perform([&] {
        replaceBy([&] { return render(textOf(description), options(textOf(styleSheet))); });
    });
}

STDMETHODIMP DocumentObject::RenderFile(BSTR path, VARIANT* styleSheetPath) {
    return perform([&] {
        std::string file = textOf(path);
        replaceBy([&] { return renderFile(file, {.styleSheetFile = textOf(styleSheetPath)}); },
                  file);
    });
}

STDMETHODIMP DocumentObject::RenderData(BSTR description, BSTR styleSheet, BSTR json) {
    return perform([&] {
        replaceBy([&] {
            return data::renderTemplate(textOf(description), textOf(json), native().locale,
                                        options(textOf(styleSheet)));
        });
    });
}

STDMETHODIMP DocumentObject::Check(BSTR description, VARIANT* styleSheet,
                                   ::_DocumentDiagnostics** result) {
    return fetch(result, [&] {
        return reported({}, check(textOf(description), options(textOf(styleSheet))));
    });
}

STDMETHODIMP DocumentObject::CheckStyleSheet(BSTR text, ::_DocumentDiagnostics** result) {
    return fetch(result, [&] {
        const std::string sheet = textOf(text);
        return reported({}, withoutIgnored(checkStyleSheet(sheet, TextEncoding::Utf8), sheet,
                                           CheckedLanguage::StyleSheet));
    });
}

STDMETHODIMP DocumentObject::get_Diagnostics(::_DocumentDiagnostics** result) {
    return fetch(result, [&] { return native().diagnostics; });
}

STDMETHODIMP DocumentObject::get_Rtf(BSTR* result) {
    return fetch(result,
                 [&] { return decodedText(native().document.rtf(), TextEncoding::Windows1252); });
}

STDMETHODIMP DocumentObject::Save(BSTR path) {
    return perform([&] { native().document.save(textOf(path)); });
}

STDMETHODIMP DocumentObject::Clear() {
    return perform([&] {
        Document empty;
        native().diagnostics = reported({}, {});
        native().document = std::move(empty);
    });
}

STDMETHODIMP DocumentObject::Table(VARIANT data, VARIANT* columns, VARIANT* title,
                                   VARIANT* styleSheet) {
    return perform([&] {
        replaceBy([&] {
            return data::renderTable(textTableOf(data), {.columns = textOf(columns),
                                                         .title = textOf(title),
                                                         .styleSheet = textOf(styleSheet)});
        });
    });
}

}  // namespace quorvane::com
