#pragma once

#include <ostream>
#include <sstream>
#include <string>

/// The one channel through which the program reports progress, warnings and failures: one text line a message, on
/// standard output.
///
/// A message is one statement: take the instance, set the level, insert the parts, end with std::endl:
///     Logger::getInstance()->setLogLevel(2); *Logger::getInstance() << "Enter " << name << std::endl;
/// or, shorter, logLine(2) << "Enter " << name << std::endl. Main thread only. Lives until the process ends.
class Logger {
public:
    static Logger* getInstance();

    /// Severity of the next emitted line: 0 "ERROR", 1 "WARNING", 2 "DEBUG"; kept until the next call. Anything else
    /// counts as 2.
    void setLogLevel(int newLevel);

    /// Appends a value, in the default stream format, to the line being built.
    template <class T>
    Logger& operator<<(const T& value)
    {
        line << value;
        return *this;
    }

    /// Emits the line: level name, " | ", the text collected so far, then the manipulator (std::endl: a newline and a
    /// flush).
    Logger& operator<<(std::ostream& (*manipulator)(std::ostream&));

private:
    Logger();

    std::ostream console;
    std::stringstream line;
    int level = 2;
    static const char* const l2s[3];
};

/// The logger, with the severity of the next line set.
Logger& logLine(int level);
