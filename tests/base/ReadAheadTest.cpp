#include "base/ReadAhead.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>

namespace {

std::atomic<int> reads, slowReads;

std::unique_ptr<std::string> readAny(const std::string& path)
{
    ++reads;
    if (path == "slow") {
        ++slowReads;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return std::make_unique<std::string>(path + std::to_string(reads));
}

TEST(ReadAheadTest, HandsOutEachFileOnceReadsTheRestOnDemandAndLeavesUnreadWhatNobodyWaitsFor)
{
    {
        ReadAhead<std::unique_ptr<std::string>> ahead(readAny);
        EXPECT_EQ(*ahead.take("early"), "early1") << "not started";
        ahead.start({"slow", "b", "c"});
        EXPECT_EQ(*ahead.take("c"), "c4") << "waits for its turn";
        EXPECT_EQ(*ahead.take("b"), "b3");
        EXPECT_EQ(*ahead.take("b"), "b5") << "may have changed by now";
        EXPECT_EQ(*ahead.take("other"), "other6");
    }
    slowReads = 0;
    { // as when no window opens
        ReadAhead<std::unique_ptr<std::string>> ahead(readAny);
        ahead.start(std::vector<std::string>(100, "slow"));
    }
    EXPECT_LT(slowReads, 3);
}

} // namespace
