// Holds a file open so that nobody else can open it: fileHolder FILE EVENT. The event is set once
// the file is held; the program goes on until it is ended.

#include <windows.h>

int main(int argc, char** argv) {
    if (argc != 3) {
        return 1;
    }
    const HANDLE file = CreateFileA(argv[1], GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    const HANDLE event = OpenEventA(EVENT_MODIFY_STATE, FALSE, argv[2]);
    if (file == INVALID_HANDLE_VALUE || !event) {
        return 1;
    }
    SetEvent(event);
    Sleep(INFINITE);
}
