// Builds a document of one row with two cells: hello FILE

#include <quorvane/quorvane.h>

#include <iostream>

int main(int argc, char** argv) {
    using namespace quorvane;
    if (argc != 2) {
        std::cerr << "usage: hello FILE\n";
        return 2;
    }
    try {
        Document document;
        document.setStyleSheet("{ name: normal; style-def: s; format: \\f0\\fs24 }");
        document.setColumns({30, 70});
        document.addRow({"", "Good morning."}, "normal").setBottomBorder(eThin);
        document.save(argv[1]);
    } catch (const Error& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
