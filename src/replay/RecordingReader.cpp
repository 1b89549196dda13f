#include "replay/RecordingReader.h"

#include "match/PlayerRegistration.h"
#include "replay/Identity.h"
#include "replay/RecordingLimits.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <tuple>

namespace {

constexpr int kDevices = static_cast<int>(std::tuple_size_v<InputDevices>);
constexpr unsigned kAllButtons = 0x1ff;
constexpr std::size_t kVersionLength = 200; // bytes, more than any version or compiler has
constexpr int kFigures = 13;

bool isAxis(float value)
{
    return std::abs(value) <= 1; // and so a number
}

bool isSound(const recording::Device& device)
{
    return device.number() < kDevices && device.buttons() <= kAllButtons && isAxis(device.axis_0()) &&
        isAxis(device.axis_1()) && isAxis(device.axis_2()) && isAxis(device.axis_3()) &&
        device.name().size() <= kLongestDeviceName;
}

bool isSound(const recording::Sample& sample)
{
    return sample.participants_size() <= PlayerRegistration::kMaxParticipants &&
        std::ranges::all_of(sample.participants(),
            [](const recording::Participant& participant) { return participant.figures_size() == kFigures; });
}

bool isSound(const recording::Pass& pass)
{
    return pass.length_ms() <= kLongestPass && recording::State_IsValid(pass.state()) &&
        std::ranges::all_of(pass.devices(), [](const recording::Device& device) { return isSound(device); }) &&
        isSound(pass.sample());
}

bool isLine(const std::string& text)
{
    return text.size() <= kVersionLength && std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

bool isSound(const recording::Header& header)
{
    const auto isDevice = [](int device) { return device >= 0 && device < kDevices; };
    const auto isName = [](const std::string& name) { return isLine(name) && name.size() <= kLongestName; };
    std::vector<int> join(header.join().begin(), header.join().end());
    std::ranges::sort(join);
    return std::ranges::all_of(join, isDevice) && std::ranges::adjacent_find(join) == join.end() &&
        header.computer_players() >= 0 && header.computer_players() <= PlayerRegistration::kMaxComputerPlayers &&
        header.start_ms() >= 0 && isLine(header.game()) && isLine(header.sdk()) && isLine(header.compiler()) &&
        header.controls_size() == kControlWords && std::ranges::all_of(header.controls(), isLine) &&
        header.names_size() == kDevices && std::ranges::all_of(header.names(), isName);
}

} // namespace

std::string RecordingReader::open()
{
    file.open(path, std::ios::binary);
    std::error_code error;
    if (!file || std::filesystem::is_directory(path, error)) return "cannot be read";
    if (!readTitle()) return "is no recording of this game, or one of another format";
    if (read(header) != Found::Message || !isSound(header)) return "is damaged at its begin";
    firstPass = file.tellg();
    std::string fault = survey();
    if (fault.empty()) rewind();
    return fault;
}

bool RecordingReader::readTitle()
{
    std::string title(sizeof kRecordingTitle - 1, '\0');
    file.read(title.data(), static_cast<std::streamsize>(title.size()));
    return file && title == kRecordingTitle;
}

/// Room is made for what is there and allowed, whatever the length says.
RecordingReader::Found RecordingReader::read(google::protobuf::MessageLite& result)
{
    constexpr int kVarintBits = 7;
    std::uint32_t size = 0;
    for (int shift = 0;; shift += kVarintBits) {
        const int byte = file.get();
        if (byte == std::char_traits<char>::eof()) return shift == 0 ? Found::End : Found::Cut;
        size |= static_cast<std::uint32_t>(byte & 0x7f) << shift;
        if (size > kLongestMessage || shift > 2 * kVarintBits) return Found::Fault;
        if ((byte & 0x80) == 0) break;
    }
    message.resize(size);
    file.read(message.data(), static_cast<std::streamsize>(size));
    if (file.gcount() != static_cast<std::streamsize>(size)) return Found::Cut;
    return result.ParseFromString(message) ? Found::Message : Found::Fault;
}

std::string RecordingReader::survey()
{
    recording::Pass pass;
    std::int64_t milliseconds = header.start_ms();
    for (;; ++passCount) {
        const Found found = read(pass);
        cut = found == Found::Cut;
        if (found == Found::End || cut) break;
        if (found == Found::Fault || !isSound(pass)) return "is damaged after pass " + std::to_string(passCount);
        if (passCount == kMostPasses) return "is longer than " + std::to_string(kMostPasses) + " passes";
        milliseconds += pass.length_ms();
        if (milliseconds > std::numeric_limits<int>::max()) return "lasts longer than a clock goes";
        if (pass.mark()) marks.push_back(static_cast<int>(milliseconds) - header.start_ms());
    }
    length = static_cast<int>(milliseconds) - header.start_ms();
    if (passCount == 0) return "holds no pass";
    return "";
}

bool RecordingReader::next(recording::Pass& pass)
{
    if (passesRead == passCount || read(pass) != Found::Message || !isSound(pass)) return false;
    ++passesRead;
    return true;
}

void RecordingReader::rewind()
{
    file.clear();
    file.seekg(firstPass);
    passesRead = 0;
}
