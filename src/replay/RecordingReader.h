#pragma once

#include <recording.pb.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// Reads a recording. open() once; when that finds no fault, what is known of the whole, and next() pass by pass. Holds
/// one message at a time, however long the file.
class RecordingReader {
public:
    explicit RecordingReader(std::filesystem::path recorded) : path(std::move(recorded)) {}

    /// Look through the whole file. Return what is wrong with it, in a few words; empty when it can be told. A last
    /// message that lacks its end is not wrong: a game that is killed leaves one.
    [[nodiscard]] std::string open();

    const recording::Header& getHeader() const { return header; }
    int getPassCount() const { return passCount; }
    int getLength() const { return length; }                   ///< milliseconds
    const std::vector<int>& getMarks() const { return marks; } ///< milliseconds before them, ascending
    bool isCut() const { return cut; }                         ///< the end lacks a part

    /// Take in the next pass. Return false at the end.
    bool next(recording::Pass& pass);

    /// Go back to before the first pass.
    void rewind();

private:
    enum class Found { Message, End, Cut, Fault };

    bool readTitle();
    Found read(google::protobuf::MessageLite& message);
    std::string survey();

    const std::filesystem::path path;
    std::ifstream file;
    std::string message; // being read; keeps its room
    recording::Header header;
    std::streamoff firstPass = 0; // where it lies
    int passCount = 0, passesRead = 0;
    int length = 0;
    std::vector<int> marks;
    bool cut = false;
};
