#include "tests/com/host/ScarceMemory.h"

#include <oleauto.h>

#include <climits>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "tests/com/host/imports.h"

namespace quorvane::host {

namespace {

// How many allocations succeed until one fails, and how many fail then.
int succeeding = 0;
int failing = 0;
bool hasFailed = false;

bool fails() {
    if (failing == 0) {
        return false;
    }
    if (succeeding > 0) {
        --succeeding;
        return false;
    }
    --failing;
    hasFailed = true;
    return true;
}

int failuresOf(Shortage shortage) {
    switch (shortage) {
        case Shortage::Once:
            return 1;
        case Shortage::Twice:
            return 2;
        default:
            return INT_MAX;
    }
}

void* scarceMalloc(std::size_t size) {
    return fails() ? nullptr : std::malloc(size);
}

void* scarceCalloc(std::size_t count, std::size_t size) {
    return fails() ? nullptr : std::calloc(count, size);
}

void* scarceRealloc(void* block, std::size_t size) {
    return fails() ? nullptr : std::realloc(block, size);
}

BSTR WINAPI scarceText(const OLECHAR* text, UINT length) {
    return fails() ? nullptr : SysAllocStringLen(text, length);
}

struct Replacement {
    const char* name;
    void* usual;
    void* scarce;
};

template <class Function>
void* address(Function* function) {
    return reinterpret_cast<void*>(function);
}

const Replacement replacements[] = {
    {"malloc", address(&std::malloc), address(&scarceMalloc)},
    {"calloc", address(&std::calloc), address(&scarceCalloc)},
    {"realloc", address(&std::realloc), address(&scarceRealloc)},
    {"SysAllocStringLen", address(&SysAllocStringLen), address(&scarceText)},
};

}  // namespace

ScarceMemory::ScarceMemory(HMODULE module) : module_(module) {
    for (const Replacement& each : replacements) {
        if (!redirectImport(module, each.name, each.scarce)) {
            throw std::runtime_error(std::string("the module does not use ") + each.name);
        }
    }
}

ScarceMemory::~ScarceMemory() {
    for (const Replacement& each : replacements) {
        redirectImport(module_, each.name, each.usual);
    }
}

void ScarceMemory::begin(int number, Shortage shortage) {
    succeeding = number - 1;
    failing = failuresOf(shortage);
    hasFailed = false;
}

bool ScarceMemory::end() {
    failing = 0;
    return hasFailed;
}

}  // namespace quorvane::host
