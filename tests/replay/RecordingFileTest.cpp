#include "platform/DataFolder.h"
#include "replay/HeadlessPlay.h"
#include "replay/RecordingLimits.h"
#include "replay/RecordingWriter.h"
#include "replay/Source.h"
#include "testing/CapturedLog.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>

namespace fs = std::filesystem;

namespace {

constexpr int kPasses = 600;

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A match among computer players, recorded once for all, and what becomes of its file.
class RecordingFileTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        const TemporaryFolder folder;
        const fs::path file = folder.path() / "match";
        ASSERT_TRUE(enterDataFolder());
        const CapturedLog quiet;
        StartOptions start;
        start.computerPlayers = 6;
        ASSERT_EQ(playHeadless(start, 5, kPasses, file), EXIT_SUCCESS);
        recorded = contents(file);
    }

    /// Tell a file of these bytes again, with the program's exit status. `output` is what it says.
    int tell(const std::string& bytes)
    {
        const std::string file = folder.write("match", bytes);
        CapturedLog log;
        testing::internal::CaptureStderr();
        Source source(file);
        const int status = openForTelling(source, file) ? replayHeadless(source) : 2;
        errors = testing::internal::GetCapturedStderr();
        output = log.text();
        return status;
    }

    /// Return the recording with its header and passes changed.
    std::string changed(
        const std::function<void(recording::Header&)>& changeHeader,
        const std::function<void(int number, recording::Pass&)>& changePass = [](int, recording::Pass&) {})
    {
        RecordingReader reader(folder.write("original", recorded));
        EXPECT_EQ(reader.open(), "");
        recording::Header header = reader.getHeader();
        changeHeader(header);
        const fs::path file = folder.path() / "changed";
        {
            RecordingWriter writer(file, header);
            recording::Pass pass;
            for (int number = 1; reader.next(pass); ++number) {
                changePass(number, pass);
                writer.write(pass);
            }
        }
        return contents(file);
    }

    /// Return how many bytes come before the first pass.
    static std::size_t headerEnd()
    {
        std::size_t at = sizeof kRecordingTitle - 1, size = 0;
        for (int shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(recorded[at++]);
            size |= static_cast<std::size_t>(byte & 0x7f) << shift;
            if (byte < 0x80) return at + size;
        }
    }

    static inline std::string recorded;
    TemporaryFolder folder;
    std::string output, errors;
};

TEST_F(RecordingFileTest, IsToldAgainWithoutADifferenceAndNamesOneThatThereIs)
{
    ASSERT_EQ(tell(recorded), EXIT_SUCCESS) << output;
    EXPECT_NE(output.find("600 passes, 5 s; 5 of 5 checks agree\n"), std::string::npos) << output;
    EXPECT_EQ(output.find("WARNING"), std::string::npos) << output;

    const auto nothing = [](recording::Header&) {};
    const struct {
        const char* said;
        std::function<void(recording::Sample&)> falsify;
    } rows[] = {
        {"pass 240: hash, of shots or places", [](recording::Sample& sample) { sample.set_hash(1); }},
        {"pass 240: Player 3: position by 1.5 m",
            [](recording::Sample& sample) {
                recording::Participant& third = *sample.mutable_participants(3);
                third.set_figures(0, third.figures(0) + 1.5f);
            }},
        {"pass 240: Player 2: score by -7",
            [](recording::Sample& sample) {
                recording::Participant& second = *sample.mutable_participants(2);
                second.set_score(second.score() + 7);
            }},
        {"pass 240: participants by 1", [](recording::Sample& sample) { sample.mutable_participants()->RemoveLast(); }},
    };
    for (const auto& row : rows) {
        const auto falsify = [&row](int number, recording::Pass& pass) {
            if (number >= 240 && pass.has_sample()) row.falsify(*pass.mutable_sample());
        };
        EXPECT_EQ(tell(changed(nothing, falsify)), EXIT_FAILURE) << output;
        EXPECT_NE(output.find("Differs first in " + std::string(row.said)), std::string::npos) << output;
        EXPECT_NE(output.find("; 1 of 5 checks agree\n"), std::string::npos) << output;
    }

    // Another build can't be held to it.
    const auto other = [](recording::Header& header) { header.set_program(1); };
    const auto later = [](int number, recording::Pass& pass) { // everything goes another way
        if (number == 100) pass.set_length_ms(60);
    };
    EXPECT_EQ(tell(changed(other, later)), EXIT_SUCCESS) << output;
    EXPECT_NE(output.find("another build"), std::string::npos) << output;
    EXPECT_TRUE(output.find("at most ") < output.find(" m from where they were\n")) << output;
    EXPECT_EQ(tell(changed(nothing, later)), EXIT_FAILURE) << output;
}

TEST_F(RecordingFileTest, IsToldUpToItsLastWholePassWhereverItIsCut)
{
    constexpr int kPlaces = 50;
    int told = 0;
    for (int place = 0; place < kPlaces; ++place) {
        const std::size_t size = recorded.size() * static_cast<std::size_t>(place) / kPlaces;
        RecordingReader reader(folder.write("cut", recorded.substr(0, size)));
        const std::string fault = reader.open();
        recording::Pass pass;
        int passes = 0;
        while (fault.empty() && reader.next(pass)) ++passes;
        EXPECT_EQ(passes, reader.getPassCount());
        EXPECT_GE(passes, told);
        EXPECT_EQ(fault.empty(), passes > 0) << fault;
        told = passes;
    }
    EXPECT_GT(told, kPasses / 2);
    EXPECT_LT(told, kPasses);

    EXPECT_EQ(tell(recorded.substr(0, recorded.size() - 1)), EXIT_SUCCESS);
    EXPECT_NE(output.find(" lacks its end, after pass 599\n"), std::string::npos) << output;
}

TEST_F(RecordingFileTest, ThatCannotBeToldHasOneLineThatSaysWhy)
{
    const std::string title = kRecordingTitle;
    const std::string begin = recorded.substr(0, headerEnd()), onePass("\x02\x08\x08", 3);
    std::string endless = begin;
    for (int i = 0; i < 1'000'000; ++i) endless += onePass;
    const auto withPass = [&](const std::function<void(recording::Pass&)>& change) {
        return changed([](recording::Header&) {},
            [&change](int number, recording::Pass& pass) {
                if (number == 200) change(pass);
            });
    };
    const auto withDevice = [&](const std::function<void(recording::Device&)>& change) {
        return withPass([&change](recording::Pass& pass) { change(*pass.add_devices()); });
    };
    const struct {
        std::string bytes;
        const char* reason;
    } rows[] = {
        {"", "is no recording of this game"},
        {"Quackdash recording 2\n" + recorded.substr(title.size()), "is no recording of this game, or one of another"},
        {std::string(100'000, '\xff'), "is no recording of this game"},
        {title, "is damaged at its begin"},
        {title + std::string(1000, '\xff'), "is damaged at its begin"},
        {begin, "holds no pass"},
        {begin + std::string("\xff\xff\x7f", 3), "is damaged after pass 0"},     // a message of 2 MB
        {begin + std::string("\xff\xff\xff\x0f", 4), "is damaged after pass 0"}, // and of 32
        {begin + onePass + std::string(1000, '\x7f'), "is damaged after pass 1"},
        {endless, "is longer than 999999 passes"},
        {changed([](recording::Header& header) { header.set_game("9.9\n"); }), "is damaged at its begin"},
        {changed([](recording::Header& header) { header.set_game("9.9"); }), "recorded by version 9.9 of the game"},
        {changed([](recording::Header& header) { header.set_data(1); }), "recorded with other data"},
        {changed([](recording::Header& header) { header.set_computer_players(11); }), "is damaged at its begin"},
        {changed([](recording::Header& header) { header.add_join(6); }), "is damaged at its begin"},
        {changed([](recording::Header& header) { header.add_controls("k"); }), "is damaged at its begin"},
        {withPass([](recording::Pass& pass) { pass.set_length_ms(4'000'000'000); }), "is damaged after pass 199"},
        {withPass([](recording::Pass& pass) { pass.set_state(recording::State(7)); }), "is damaged after pass 199"},
        {withDevice([](recording::Device& device) { device.set_number(6); }), "is damaged after pass 199"},
        {withDevice([](recording::Device& device) { device.set_axis_2(std::nanf("")); }), "is damaged after pass 199"},
        {withDevice([](recording::Device& device) { device.set_name(std::string(65, 'x')); }), "after pass 199"},
        {changed([](recording::Header&) {}, [](int, recording::Pass& pass) { pass.set_length_ms(3'600'000); }),
            "lasts longer than a clock goes"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(tell(row.bytes), 2) << row.reason;
        EXPECT_NE(errors.find(row.reason), std::string::npos) << errors << row.reason;
        EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
        EXPECT_EQ(output, "");
    }
    for (const char* path : {"/nowhere/match", "/tmp"}) EXPECT_EQ(RecordingReader(path).open(), "cannot be read");
}

} // namespace
