#include "replay/RecordingWriter.h"

#include "base/Logger.h"
#include "platform/UserFolders.h"
#include "replay/RecordingLimits.h"

#include <google/protobuf/io/coded_stream.h>
#include <google/protobuf/io/zero_copy_stream_impl_lite.h>

#include <algorithm>
#include <array>
#include <ctime>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

RecordingWriter::RecordingWriter(fs::path ownFile, const recording::Header& header)
    : path(std::move(ownFile)), file(path, std::ios::binary | std::ios::trunc)
{
    if (!file.is_open()) {
        end("the file cannot be written");
        return;
    }
    waiting = kRecordingTitle;
    append(header);
    flush();
}

void RecordingWriter::write(const recording::Pass& pass)
{
    if (!file.is_open()) return;
    if (++passes > kMostPasses) {
        end("it has become too long");
        return;
    }
    append(pass);
    if (std::chrono::steady_clock::now() - flushed >= std::chrono::seconds(1)) flush();
}

void RecordingWriter::append(const google::protobuf::MessageLite& message)
{
    std::array<std::uint8_t, 5> length; // what a varint of 32 bits takes
    const auto size = static_cast<std::uint32_t>(message.ByteSizeLong());
    const std::uint8_t* const stop = google::protobuf::io::CodedOutputStream::WriteVarint32ToArray(size, length.data());
    waiting.append(reinterpret_cast<const char*>(length.data()), static_cast<std::size_t>(stop - length.data()));
    message.AppendToString(&waiting);
}

void RecordingWriter::flush()
{
    flushed = std::chrono::steady_clock::now();
    if (!file.is_open()) return;
    file.write(waiting.data(), static_cast<std::streamsize>(waiting.size()));
    waiting.clear();
    if (!file.flush()) end("the file cannot be written");
}

void RecordingWriter::end(const char* reason)
{
    logLine(1) << "No more of this match is recorded in " << path.string() << ": " << reason << std::endl;
    file.close();
}

fs::path nextOwnRecording()
{
    constexpr std::size_t kKept = 9; // beside the one to come
    constexpr char kEnding[] = ".quackdash";
    std::error_code error;
    std::array<char, 32> name;
    const std::time_t now = std::time(nullptr);
    std::strftime(name.data(), name.size(), "%Y-%m-%d-%H%M%S", std::localtime(&now));
    fs::path next = userFile(UserFolder::Data, std::string(name.data()) + kEnding);
    if (next.empty()) {
        logLine(1) << "Nothing is recorded: neither XDG_DATA_HOME nor HOME is set" << std::endl;
        return next;
    }
    fs::create_directories(next.parent_path(), error);

    std::vector<fs::path> own;
    for (fs::directory_iterator entry(next.parent_path(), error), end; !error && entry != end; entry.increment(error))
        if (entry->path().extension() == kEnding) own.push_back(entry->path());
    std::ranges::sort(own, std::greater());
    for (std::size_t i = kKept; i < own.size(); ++i) fs::remove(own[i], error);
    return next;
}
