#include "base/Logger.h"

#include <iostream>

const char* const Logger::l2s[3] = {"ERROR", "WARNING", "DEBUG"};

Logger::Logger() : console(std::cout.rdbuf()) {}

Logger* Logger::getInstance()
{
    static Logger* instance = new Logger();
    return instance;
}

void Logger::setLogLevel(int newLevel)
{
    level = newLevel >= 0 && newLevel <= 2 ? newLevel : 2;
}

Logger& Logger::operator<<(std::ostream& (*manipulator)(std::ostream&))
{
    console << l2s[level] << " | " << line.str();
    line.str("");
    console << manipulator;
    return *this;
}

Logger& logLine(int level)
{
    Logger* logger = Logger::getInstance();
    logger->setLogLevel(level);
    return *logger;
}
