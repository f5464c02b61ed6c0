// One libFuzzer target; WM_FUZZ_TARGET names the harness it runs.
#include "harnesses.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    wm::fuzz::WM_FUZZ_TARGET(data, size);
    return 0;
}
