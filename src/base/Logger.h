#pragma once

#include <ostream>
#include <sstream>
#include <string>

/// Reports progress, warnings and failures, one line of text each, on standard output. There is one, which lives until
/// the process ends; main thread only.
///
/// A message is one statement: set the level, insert the parts, end with std::endl:
///     logLine(2) << "Enter " << name << std::endl;
class Logger {
public:
    static Logger* getInstance();

    /// Set the severity of the lines from the next one on: 0 "ERROR", 1 "WARNING", 2 "DEBUG". Others count as 2.
    void setLogLevel(int newLevel);

    /// Append a value, in the default format of streams, to the line that is being built.
    template <class T>
    Logger& operator<<(const T& value)
    {
        line << value;
        return *this;
    }

    /// Write the line: the level's name, " | ", the text so far, then the manipulator (std::endl: newline and flush).
    Logger& operator<<(std::ostream& (*manipulator)(std::ostream&));

private:
    Logger();

    std::ostream console;
    std::stringstream line;
    int level = 2;
    static const char* const l2s[3];
};

/// Set the severity of the next line and return the logger.
Logger& logLine(int level);
