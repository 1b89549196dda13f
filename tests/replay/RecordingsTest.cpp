#include "platform/DataFolder.h"
#include "testing/CapturedLog.h"
#include "testing/TemporaryFolder.h"
#include "testing/ToldMatch.h"

#include <gtest/gtest.h>

#include <fstream>

namespace fs = std::filesystem;

namespace {

const fs::path kFolder = QUACKDASH_RECORDINGS;

struct Row {
    const char* name;
    int people, participants;
    int hits, deaths; // at least, where it goes as it was recorded
};

class Recordings : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(OfPeople, Recordings,
    testing::Values(Row{"duel", 2, 2, 3, 0}, Row{"four-pads", 4, 4, 7, 1}, Row{"sixteen", 6, 16, 100, 20}),
    [](const auto& row) { return std::string(row.param.name).substr(0, 4); });

TEST_P(Recordings, GoAsTheyDidInAKnownBuildAndKeepTheirBooksInAny)
{
    const Row& row = GetParam();
    ASSERT_TRUE(enterDataFolder());
    const fs::path recording = kFolder / (std::string(row.name) + ".quackdash");
    const CapturedLog quiet;
    const ToldMatch told = tellAgain(recording);
    EXPECT_EQ(told.fault, "");
    EXPECT_EQ(told.people, row.people);
    EXPECT_EQ(told.participants, row.participants);
    const std::string known = findHashes(recording, told.line);
    RecordProperty("metres", std::to_string(told.distance));
    if (known.empty()) {
        std::cerr << "no hashes of this kind of build (" << told.line << "); at most " << told.distance << " m\n";
        return;
    }
    EXPECT_EQ(compareHashes(known, told.line), "") << "of the recording by " << told.distance << " m\n" << told.line;
    EXPECT_TRUE(told.hits >= row.hits && told.deaths >= row.deaths) << told.hits << " hits, " << told.deaths;
}

TEST(RecordingHashes, OneOfWhichIsFalseAreToldFromTheOthersAndRenewed)
{
    const TemporaryFolder folder;
    const fs::path recording = folder.path() / "duel.quackdash";
    ASSERT_TRUE(enterDataFolder());
    fs::copy_file(kFolder / "duel.quackdash", recording);
    const CapturedLog quiet;
    const std::string line = tellAgain(recording).line;
    EXPECT_EQ(findHashes(recording, line), "");
    ASSERT_TRUE(renewHashes(recording, "another build: 12345678"));
    ASSERT_TRUE(renewHashes(recording, line));
    EXPECT_EQ(compareHashes(findHashes(recording, line), line), "");

    std::string falsified = line;
    falsified.back() = line.back() == '0' ? '1' : '0';
    ASSERT_TRUE(renewHashes(recording, falsified));
    EXPECT_NE(compareHashes(findHashes(recording, line), line).find("another hash between samples"), std::string::npos);
    EXPECT_EQ(findHashes(recording, "another build: "), "") << "of other rules, it may be";
    EXPECT_EQ(compareHashes(line + " 00000000", line).find("another hash"), 0U);
    EXPECT_EQ(compareHashes(line, line + " 00000000"), "more hashes than there should be");
}

} // namespace
