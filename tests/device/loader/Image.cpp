#include "Image.h"

#include "Failure.h"
#include "Kernel.h"

namespace {

constexpr size_t pageSize = 0x4000;
constexpr unsigned plainFormat = 2;
constexpr unsigned signedFormat = 12;

uint8_t* allocatePages(size_t size) {
    auto* const memory = Kernel::allocate(size + pageSize);
    if (memory == nullptr)
        fail("no memory is left");
    return memory + (pageSize - reinterpret_cast<uint64_t>(memory) % pageSize) % pageSize;
}

} // namespace

Image::Image(const char* path, Architecture architecture, Binder bind, Disturbance disturbance)
    : file_(path, architecture),
      disturbance_(disturbance),
      fixups_(file_.chainedFixups()),
      size_(file_.memorySize()),
      memory_(allocatePages(size_)) {
    if (!file_.hasRightSignature())
        fail("the code is not as it was signed in ", path);
    if (fixups_ == nullptr)
        fail("nothing says where the pointers are in ", path);
    placeSegments();
    bindImports(bind);
    const auto* const starts = fixups_ + readNumber<uint32_t>(fixups_ + 4);
    for (uint32_t i = 0; i < readNumber<uint32_t>(starts); ++i) {
        if (const auto offset = readNumber<uint32_t>(starts + 4 + 4ULL * i); offset != 0)
            fillSegment(starts + offset);
    }
    protectSegments();
}

void Image::runInitialisers() const {
    constexpr uint8_t initialiserOffsets = 0x16;
    const auto offsets = file_.sectionOfKind(initialiserOffsets);
    for (uint64_t i = 0; i < offsets.size / 4; ++i)
        reinterpret_cast<void (*)()>(memory_ + readNumber<uint32_t>(memory_ + offsets.address + 4 * i))();
}

void* Image::exported(const char* symbol) const {
    uint64_t address = 0;
    if (!file_.exported(symbol, address))
        fail("the bundle does not export ", symbol);
    return memory_ + address;
}

const void* const* Image::classRecords() const {
    return reinterpret_cast<const void* const*>(memory_ + file_.sectionNamed("__objc_classlist").address);
}

size_t Image::classRecordCount() const {
    return file_.sectionNamed("__objc_classlist").size / sizeof(void*);
}

bool Image::contains(const void* address) const {
    return address >= memory_ && address < memory_ + size_;
}

void Image::placeSegments() {
    ImageFile::Segment segment{};
    for (unsigned i = 0; file_.segment(i, segment); ++i)
        __builtin_memcpy(memory_ + segment.address, segment.content, segment.contentSize);
}

void Image::protectSegments() const {
    constexpr uint32_t writable = 2;
    ImageFile::Segment segment{};
    for (unsigned i = 0; file_.segment(i, segment); ++i) {
        const auto protection = segment.isFixed ? segment.protection & ~writable : segment.protection;
        if (!Kernel::protect(memory_ + segment.address, segment.size, protection))
            fail("a segment cannot be protected");
    }
}

void Image::bindImports(Binder bind) {
    constexpr uint32_t withoutAddends = 1;
    constexpr uint32_t withAddends = 2;
    const auto format = readNumber<uint32_t>(fixups_ + 20);
    if (format != withoutAddends && format != withAddends)
        fail("the imports are of a format that is not known");
    importCount_ = readNumber<uint32_t>(fixups_ + 16);
    imports_ = reinterpret_cast<uint64_t*>(allocatePages(importCount_ * sizeof(uint64_t)));
    const auto* const names = reinterpret_cast<const char*>(fixups_ + readNumber<uint32_t>(fixups_ + 12));
    const auto* import = fixups_ + readNumber<uint32_t>(fixups_ + 8);
    for (unsigned long i = 0; i < importCount_; ++i) {
        imports_[i] = bind(names + bitsOf(readNumber<uint32_t>(import), 9, 23));
        if (format == withAddends)
            imports_[i] += static_cast<uint64_t>(static_cast<int64_t>(readNumber<int32_t>(import + 4)));
        import += format == withAddends ? 8 : 4;
    }
}

void Image::fillSegment(const uint8_t* starts) {
    const unsigned format = readNumber<uint16_t>(starts + 6);
    if (format != (file_.architecture() == Architecture::Arm64e ? signedFormat : plainFormat))
        fail("the pointers are not of the architecture's format");
    for (uint16_t page = 0; page < readNumber<uint16_t>(starts + 20); ++page) {
        if (const auto first = readNumber<uint16_t>(starts + 22 + 2ULL * page); first != 0xFFFF)
            fillChain(memory_ + readNumber<uint64_t>(starts + 8) + page * pageSize + first, format);
    }
}

void Image::fillChain(uint8_t* place, unsigned format) {
    for (uint64_t distance = 1; distance != 0; place += distance) {
        const auto content = readNumber<uint64_t>(place);
        const auto isPlain = format == plainFormat;
        const auto pointer =
            isPlain ? filledPlain(content) : filledSigned(content, reinterpret_cast<uint64_t>(place));
        __builtin_memcpy(place, &pointer, sizeof pointer);
        distance = isPlain ? 4 * bitsOf(content, 51, 12) : 8 * bitsOf(content, 51, 11);
    }
}

uint64_t Image::filledPlain(uint64_t content) const {
    if (bitsOf(content, 63, 1) != 0)
        return import(bitsOf(content, 0, 24)) + bitsOf(content, 24, 8);
    return (reinterpret_cast<uint64_t>(memory_) + bitsOf(content, 0, 36)) | bitsOf(content, 36, 8) << 56U;
}

uint64_t Image::filledSigned(uint64_t content, uint64_t place) {
    const auto isSigned = bitsOf(content, 63, 1) != 0;
    const auto isBound = bitsOf(content, 62, 1) != 0;
    const auto pointer = isBound
                             ? import(bitsOf(content, 0, 24))
                             : reinterpret_cast<uint64_t>(memory_) + bitsOf(content, 0, isSigned ? 32 : 43);
    if (!isSigned)
        return isBound ? pointer + bitsOf(content, 32, 19) : pointer | bitsOf(content, 43, 8) << 56U;
    const auto key = static_cast<unsigned>(bitsOf(content, 49, 2));
    const auto isDisturbed = key == disturbance_.key || signedSlotCount_ == disturbance_.slot;
    ++signedSlotCount_;
    const auto diversity = static_cast<uint16_t>(bitsOf(content, 32, 16) ^ (isDisturbed ? 1U : 0U));
    const auto usesAddress = bitsOf(content, 48, 1) != 0;
    return PointerSignature::add(pointer, static_cast<SigningKey>(key),
                                 usesAddress ? PointerSignature::modifier(place, diversity) : diversity);
}

uint64_t Image::import(uint64_t index) const {
    if (index >= importCount_)
        fail("a pointer is bound to an import that there is not");
    return imports_[index];
}
