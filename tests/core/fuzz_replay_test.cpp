// Replays every seed and kept crash input of the fuzz targets through the same harnesses, in the
// normal build: a harness aborts when a property breaks, so a fault that comes back fails here.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/line_file.h"
#include "harnesses.h"

namespace fs = std::filesystem;

TEST(FuzzReplay, EverySeedAndRegressionPasses) {
    int replayed = 0;
    for (const auto& target : wm::fuzz::Targets()) {
        for (const char* kind : {"corpus", "regressions"}) {
            const fs::path folder = fs::path(WM_FUZZ_DIR) / kind / target.name;
            ASSERT_TRUE(fs::is_directory(folder)) << folder;
            for (const auto& entry : fs::directory_iterator(folder)) {
                const std::string data = wm::ReadBytes(entry.path().string());
                SCOPED_TRACE(entry.path().string());
                target.run(reinterpret_cast<const std::uint8_t*>(data.data()), data.size());
                ++replayed;
            }
        }
    }
    EXPECT_GE(replayed, 20);
}
