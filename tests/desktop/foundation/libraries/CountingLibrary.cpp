// A library for DynamicLibraryTest: it says which one it is, and counts its own unloading.

namespace {

int* unloadings = nullptr;

struct Unloading {
    ~Unloading() {
        if (unloadings != nullptr)
            ++*unloadings;
    }
};

const Unloading unloading;

} // namespace

extern "C" int libraryNumber() {
    return LIBRARY_NUMBER;
}

extern "C" void countUnloadingsIn(int* counter) {
    unloadings = counter;
}
