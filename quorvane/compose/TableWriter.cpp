#include "quorvane/compose/TableWriter.h"

#include <array>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/RowForm.h"
#include "quorvane/compose/SinkOutput.h"
#include "quorvane/compose/TableDescription.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/layout/TableLayout.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

namespace {

TableWriter::Sink intoStream(std::ostream& stream) {
    return [&stream](std::string_view bytes) {
        if (!stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
            raise(RunTimeError::DeviceIoError);
        }
    };
}

TableWriter::Sink intoFile(OutputFile& file) {
    return [&file](std::string_view bytes) { file.write(bytes); };
}

std::string_view styleSheetOf(const TableSetup& setup) {
    return setup.styleSheet.empty() ? standardTableStyles() : std::string_view(setup.styleSheet);
}

/// The document of a setup, with one row of each kind at its end.
Ref<CRtfDoc> documentOf(const TableDescription& description) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    const TableSetup& setup = description.setup();
    Ref<CRtfDoc> document = driver->RtfObject();
    document->setExtendedStyleSheets(true);
    driver->LoadStyleSheetFromMemmory(styleSheetOf(setup));
    std::string text = description.beginning();
    const std::vector<std::string_view> noTexts;
    for (std::size_t kind = 0; kind < tableRowKinds; ++kind) {
        text += description.row(static_cast<TableRowKind>(kind), noTexts);
    }
    text += TableDescription::end();
    driver->setReadsExtended(true);
    std::optional<RtfError> failure;
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError& error) {
        if (!failure) {
            failure = error;
        }
    });
    driver->ParseFromMemmory(text);
    if (failure) {
        raise(RunTimeError::InvalidProcedureCall, failure->description);
    }
    return document;
}

}  // namespace

class TableWriter::Inner {
public:
    Inner(const TableSetup& setup, Sink sink, std::unique_ptr<OutputFile> file)
        : description_(setup),
          document_(documentOf(description_)),
          file_(std::move(file)),
          output_(file_ ? intoFile(*file_) : std::move(sink)),
          rendering_(inner(*document_), output_),
          layout_(inner(*document_)) {
        const Ref<CRtfTableRows> rows = document_->TableRows();
        const std::int32_t before = rows->Count() - static_cast<std::int32_t>(tableRowKinds);
        for (std::size_t kind = 0; kind < tableRowKinds; ++kind) {
            forms_.emplace_back(rows->Item(before + static_cast<std::int32_t>(kind) + 1));
        }
        inner(*document_).renderBeginning(rendering_);
    }

    void addRow(TableCells cells) {
        TableStripes stripes = stripes_;
        add(stripes.next(), cells);
        stripes_ = stripes;
    }

    void addGroup(std::string_view heading) {
        add(TableRowKind::Group, {&heading, 1});
        stripes_.beginGroup();
    }

    void addGroup(std::string_view heading, TableCells cells) {
        TableStripes stripes;
        const RowForm& group = filled(TableRowKind::Group, {&heading, 1});
        const RowForm& row = filled(stripes.next(), cells);
        render(group);
        render(row);
        stripes_ = stripes;
    }

    void add(TableRowKind kind, TableCells cells) { render(filled(kind, cells)); }

    void finish() {
        requireOpen();
        isOpen_ = false;
        inner(*document_).renderEnd(output_);
        output_.flush();
        if (file_) {
            file_->close();
        }
    }

private:
    void requireOpen() const {
        if (!isOpen_) {
            raise(RunTimeError::InvalidProcedureCall,
                  "The document has ended, or could not be written.");
        }
    }

    const RowForm& filled(TableRowKind kind, TableCells cells) {
        requireOpen();
        requireCells(description_.setup(), kind, cells.size());
        RowForm& form = forms_[static_cast<std::size_t>(kind)];
        for (std::size_t i = 0; i < form.size(); ++i) {
            const bool isEmpty = i >= cells.size() || cells[i].empty();
            form.setText(i, isEmpty ? std::string(emptyText) : textOf(i, cells[i]));
        }
        return form;
    }

    void render(const RowForm& form) {
        // What fails from here on leaves a row in part.
        isOpen_ = false;
        form.render(rendering_, layout_, !hasRows_);
        isOpen_ = hasRows_ = true;
    }

    static std::string textOf(std::size_t index, std::string_view text) {
        try {
            return rtfText(text);
        } catch (RtfError& error) {
            error.description = "Cell " + std::to_string(index + 1) + ": " + error.description;
            throw;
        }
    }

    TableDescription description_;
    Ref<CRtfDoc> document_;
    std::unique_ptr<OutputFile> file_;
    SinkOutput output_;
    TableRendering rendering_;
    TableLayout layout_;
    std::vector<RowForm> forms_;
    TableStripes stripes_;
    bool hasRows_ = false;
    bool isOpen_ = true;
};

TableWriter::TableWriter(const TableSetup& setup, Sink sink)
    : inner_(std::make_unique<Inner>(setup, std::move(sink), nullptr)) {}

TableWriter::TableWriter(const TableSetup& setup, std::ostream& stream)
    : TableWriter(setup, intoStream(stream)) {}

TableWriter::TableWriter(const TableSetup& setup, std::unique_ptr<OutputFile> file)
    : inner_(std::make_unique<Inner>(setup, Sink(), std::move(file))) {}

TableWriter::~TableWriter() = default;

void TableWriter::addRow(std::span<const std::string_view> cells) {
    inner_->addRow(cells);
}

void TableWriter::addGroup(std::string_view heading) {
    inner_->addGroup(heading);
}

void TableWriter::addGroup(std::string_view heading, std::span<const std::string_view> cells) {
    inner_->addGroup(heading, cells);
}

void TableWriter::addTotal(std::span<const std::string_view> cells) {
    inner_->add(TableRowKind::Total, cells);
}

void TableWriter::finish() {
    inner_->finish();
}

}  // namespace quorvane
