#include <gmock/gmock.h>
#include <windows.h>

// All tests run in one single-threaded apartment, as hosts of scripts do.
int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 1;
    }
    const int status = RUN_ALL_TESTS();
    CoUninitialize();
    return status;
}
