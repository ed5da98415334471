#include "cli/sourceFile.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <memory>
#include <string_view>
#include <system_error>
#include <utility>

#include "quorvane/base/platform/throwUnlessAbsent.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/formatting/languageToFormat.h"

namespace quorvane::cli {

namespace {

constexpr std::size_t enough = std::size_t{64} * 1024;
constexpr std::string_view rtfSignature = "{\\rtf";

std::error_code lastFailure() {
    return {errno, std::generic_category()};
}

std::string beginningOf(const std::string& path) {
    std::ifstream file(pathFromUtf8(path), std::ios::binary);
    if (!file.is_open()) {
        throwUnlessAbsent(lastFailure());
        return {};
    }
    std::string bytes;
    const auto read = [&](std::size_t start, std::size_t length) {
        bytes.resize(start + length);
        file.read(bytes.data() + start, static_cast<std::streamsize>(length));
        bytes.resize(start + static_cast<std::size_t>(file.gcount()));
    };
    read(0, rtfSignature.size());
    if (bytes.size() == rtfSignature.size() && bytes != rtfSignature) {
        read(rtfSignature.size(), enough - rtfSignature.size());
    }
    if (file.bad()) {
        RtfError error(RunTimeError::DeviceIoError);
        error.cause = std::make_shared<RtfError>(lastFailure().value(), lastFailure().message());
        raise(std::move(error));
    }
    return bytes;
}

}  // namespace

std::optional<CheckedLanguage> languageOfSourceFile(const std::string& path) {
    std::string bytes = beginningOf(path);
    if (isUtf16(bytes)) {
        // Its letters are enough: what follows the byte order mark, without the zeros between.
        std::erase(bytes, '\0');
        bytes.erase(0, bytes.find_first_of("({;"));
    }
    const std::string text = utf8FromCodePage1252(afterByteOrderMark(bytes));
    // A stylesheet is recognized under any name; if the content is unclear, the name decides.
    const std::optional<CheckedLanguage> language = languageOfStreamToFormat(text);
    return language ? language : languageToFormat(text, path);
}

}  // namespace quorvane::cli
