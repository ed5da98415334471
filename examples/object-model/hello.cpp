// Builds a document of one row with two cells: hello FILE

#include <iostream>

#include "quorvane/docmodel/CRtfDoc.h"

int main(int argc, char** argv) {
    using namespace quorvane;
    if (argc != 2) {
        std::cerr << "usage: hello FILE\n";
        return 2;
    }
    try {
        const auto document = CRtfDoc::create();
        document->LoadStyleSheetFromMemmory("{ name: normal; style-def: s; format: \\f0\\fs24 }");

        document->TableRows()->AddTail();
        const auto row = document->TableRows()->PeekTail();
        row->TableCells()->AddTail();
        row->TableCells()->AddTail();
        row->TableCells()->Item(1)->setWidth(ePercent, 30);
        row->setBottomBorder(eThin);

        const auto cell = row->TableCells()->Item(2);
        cell->Paragraphs()->AddTail();
        cell->Paragraphs()->PeekTail()->setText("Good morning.");
        cell->Paragraphs()->PeekTail()->setStyle("normal");

        document->Commit(argv[1]);
    } catch (const RtfError& error) {
        std::cerr << error.description << '\n';
        return 1;
    }
}
