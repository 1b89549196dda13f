#include "base/Logger.h"

#include <iostream>

const char* const Logger::l2s[3] = {"ERROR", "WARNING", "DEBUG"};

Logger::Logger() : console(std::cout.rdbuf()) {}

Logger* Logger::getInstance()
{
    static Logger* instance = new Logger();
    return instance;
}

bool Logger::openFile(const std::string& path)
{
    file.close();
    file.open(path);
    return file.is_open();
}

void Logger::setLogLevel(int newLevel)
{
    level = newLevel >= 0 && newLevel <= 2 ? newLevel : 2;
}

Logger& Logger::operator<<(std::ostream& (*manipulator)(std::ostream&))
{
    console << l2s[level] << " | " << line.str() << manipulator;
    if (file.is_open()) file << l2s[level] << " | " << line.str() << manipulator;
    line.str("");
    return *this;
}

Logger& logLine(int level)
{
    Logger* logger = Logger::getInstance();
    logger->setLogLevel(level);
    return *logger;
}
