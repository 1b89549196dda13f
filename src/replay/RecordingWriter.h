#pragma once

#include <recording.pb.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

/// Writes a recording, message by message; whole messages reach the file once a second of wall time, so that a game
/// that is killed leaves one that can be told up to there. What cannot be written ends it, with one log line.
class RecordingWriter {
public:
    /// Begin the file anew.
    RecordingWriter(std::filesystem::path file, const recording::Header& header);
    ~RecordingWriter() { flush(); }
    RecordingWriter(const RecordingWriter&) = delete;
    RecordingWriter& operator=(const RecordingWriter&) = delete;

    void write(const recording::Pass& pass);

private:
    void append(const google::protobuf::MessageLite& message);
    void flush();
    void end(const char* reason);

    const std::filesystem::path path;
    std::ofstream file;
    std::string waiting; // for the next second
    std::chrono::steady_clock::time_point flushed = std::chrono::steady_clock::now();
    int passes = 0;
};

/// Return where the next recording among the user's own goes, with room made for it: the oldest are removed until nine
/// are left. Empty, with a log line, when there is no place for it.
std::filesystem::path nextOwnRecording();
