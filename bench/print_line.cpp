// A yardstick: a program that does nothing but print a line.

#include <cstdio>

int main() {
    std::puts("A line.");
    return 0;
}
