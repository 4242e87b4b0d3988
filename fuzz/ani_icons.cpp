#include "fuzz/SourceFuzzer.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::ReadAs(formats::SourceKind::Ani, {data, size});
    return 0;
}
