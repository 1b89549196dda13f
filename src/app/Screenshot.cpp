#include "app/Screenshot.h"

#include "base/Logger.h"
#include "platform/Image.h"
#include "platform/UserFolders.h"
#include "render/Renderer.h"

#include <ctime>
#include <string_view>

namespace fs = std::filesystem;

namespace {

/// Return the local date and time as a file's name has it.
std::string timeStamp()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[] = "2000-01-01 00-00-00";
    std::strftime(text, sizeof text, "%Y-%m-%d %H-%M-%S", &local);
    return text;
}

void save(const Image& picture)
{
    std::error_code error;
    const fs::path folder = picturesFolder() / "Quackdash";
    fs::create_directories(folder, error);
    const std::string stamp = timeStamp();
    fs::path file = folder / (stamp + ".png");
    error = writeNewPng(picture, file);
    for (int number = 2; error == std::errc::file_exists; ++number) { // of the same second
        file = folder / (stamp + " " + std::to_string(number) + ".png");
        error = writeNewPng(picture, file);
    }
    if (error) logLine(1) << "Cannot save the picture " << file.string() << ": " << error.message() << std::endl;
    else logLine(2) << "Picture saved: " << file.string() << std::endl;
}

} // namespace

void Screenshot::takeNext()
{
    renderer.setFrameProbe(this);
}

void Screenshot::stepDone(const char* step)
{
    if (step != std::string_view("picture")) return;
    renderer.setFrameProbe(nullptr);
    save(renderer.readPicture());
}
