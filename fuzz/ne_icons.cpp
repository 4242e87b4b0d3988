#include "fuzz/SourceFuzzer.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::ReadAs(formats::SourceKind::Ne, {data, size});
    return 0;
}
