#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"
#include "tests/com/host/typeLibraryText.h"

namespace quorvane::host {
namespace {

std::wstring typeLibraryFile() {
    const std::wstring component = componentFile();
    return component.substr(0, component.rfind(L'.')) + L".tlb";
}

ComPtr<ITypeLib> loaded(const std::wstring& file) {
    ComPtr<ITypeLib> library;
    if (FAILED(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.out()))) {
        throw std::runtime_error("cannot load " + utf8Text(file));
    }
    return library;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> agreedLines() {
    return linesOf(bytesOfFile(testSource(L"typeLibrary.txt")));
}

void expectAgreedLibrary(const std::wstring& file) {
    const ComPtr<ITypeLib> library = loaded(file);
    const std::vector<std::string> agreed = agreedLines();
    const std::vector<std::string> lines = linesOf(typeLibraryText(*library.get()));
    ASSERT_EQ(lines.size(), agreed.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i], agreed[i]) << "in line " << i + 1;
    }
}

TEST(TypeLibrary, PublishesWhatWasAgreed) {
    expectAgreedLibrary(typeLibraryFile());
}

TEST(TypeLibrary, IsPartOfTheComponent) {
    expectAgreedLibrary(componentFile());
}

TEST(TypeLibrary, HasAHelpTextForEverything) {
    const ComPtr<ITypeLib> library = loaded(componentFile());

    for (const std::string& line : linesOf(typeLibraryText(*library.get()))) {
        EXPECT_FALSE(line.ends_with(" \"\"")) << line;
    }
}

TEST(TypeLibrary, DescribesColorsAsDocumentsShowThem) {
    const ComPtr<ITypeLib> library = loaded(componentFile());
    const Component component;
    const auto document = component.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    Bstr contents;
    ASSERT_EQ(document->Refresh(), S_OK);
    ASSERT_EQ(document->get_Contents(contents.out()), S_OK);
    const std::string rtf = contents.utf8();
    const std::regex tableEntry("\\\\red([0-9]+)\\\\green([0-9]+)\\\\blue([0-9]+);");
    std::vector<std::string> shown;
    for (std::sregex_iterator entry(rtf.begin(), rtf.end(), tableEntry), end; entry != end;
         ++entry) {
        char color[8];
        std::snprintf(color, sizeof color, "#%02X%02X%02X", std::stoi(entry->str(1)),
                      std::stoi(entry->str(2)), std::stoi(entry->str(3)));
        shown.emplace_back(color);
    }

    const std::regex described("  e\\w+ = ([0-9]+) \"[A-Z][a-z ]+, (#[0-9A-F]{6})\"");
    std::size_t count = 0;
    for (const std::string& line : linesOf(typeLibraryText(*library.get()))) {
        std::smatch found;
        if (std::regex_match(line, found, described)) {
            ++count;
            EXPECT_EQ(found.str(1), std::to_string(count));
            EXPECT_EQ(found.str(2), shown.at(count - 1)) << line;
        }
    }
    EXPECT_EQ(count, shown.size());
    EXPECT_EQ(count, 57U);
}

TEST(TypeLibrary, BeginsEveryVtableAfterThatOfIDispatch) {
    const ComPtr<ITypeLib> library = loaded(typeLibraryFile());
    ComPtr<ITypeInfo> document;
    ComPtr<ITypeInfo> vtable;
    HREFTYPE reference = 0;
    FUNCDESC* first = nullptr;
    ASSERT_EQ(library->GetTypeInfoOfGuid(__uuidof(_CRtfDoc), document.out()), S_OK);
    ASSERT_EQ(document->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
    ASSERT_EQ(document->GetRefTypeInfo(reference, vtable.out()), S_OK);
    ASSERT_EQ(vtable->GetFuncDesc(0, &first), S_OK);

    EXPECT_EQ(static_cast<std::size_t>(first->oVft), 7 * sizeof(void*));

    vtable->ReleaseFuncDesc(first);
}

}  // namespace
}  // namespace quorvane::host
