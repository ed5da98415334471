// Makes a document from a description and a stylesheet, and works on it:
// fromDescription DESCRIPTION STYLESHEET FILE

#include <quorvane/quorvane.h>

#include <iostream>

int main(int argc, char** argv) {
    using namespace quorvane;
    if (argc != 4) {
        std::cerr << "usage: fromDescription DESCRIPTION STYLESHEET FILE\n";
        return 2;
    }
    try {
        Document document = renderFile(argv[1], {.styleSheetFile = argv[2]}).document;
        // The first row has the key 1001.
        document.row("1001")[0][0].setColor("steel-blue");
        document.save(argv[3]);
    } catch (const Error& error) {
        std::cerr << error.what() << '\n';
        for (const Diagnostic& diagnostic : error.diagnostics()) {
            std::cerr << diagnostic.place.line << ": " << diagnostic.message << '\n';
        }
        return 1;
    }
}
