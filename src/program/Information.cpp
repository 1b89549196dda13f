#include "program/Information.h"

#include "audio/SoundDevice.h"
#include "input/GamePads.h"
#include "platform/DataFolder.h"
#include "platform/Monitors.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>
#include <PxPhysicsVersion.h>
#include <SDL.h>
#include <assimp/version.h>
#include <glib.h>
#include <sndfile.h>

#include <iostream>
#include <string>

namespace {

std::string dotted(unsigned major, unsigned minor, unsigned patch)
{
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
}

std::string sdlVersion()
{
    SDL_version version;
    SDL_GetVersion(&version);
    return dotted(version.major, version.minor, version.patch);
}

void printList(const char* heading, const std::vector<std::string>& lines, const char* ifNone)
{
    std::cout << heading << ":\n";
    for (const std::string& line : lines) std::cout << "  " << line << '\n';
    if (lines.empty()) std::cout << "  " << ifNone << '\n';
}

} // namespace

void printVersions(const std::filesystem::path& givenData)
{
    const std::filesystem::path data = findDataFolder(givenData);
    std::cout << "Quackdash " QUACKDASH_VERSION "\n"
              << "PhysX SDK " << dotted(PX_PHYSICS_VERSION_MAJOR, PX_PHYSICS_VERSION_MINOR, PX_PHYSICS_VERSION_BUGFIX)
              << "\nGLFW " << glfwGetVersionString() << "\nGLEW "
              << reinterpret_cast<const char*>(glewGetString(GLEW_VERSION)) << "\nOpenAL " << soundLibraryVersion()
              << '\n'
              << sf_version_string() << "\nSDL " << sdlVersion() << "\nAssimp "
              << dotted(aiGetVersionMajor(), aiGetVersionMinor(), aiGetVersionPatch()) << "\nGLib "
              << dotted(glib_major_version, glib_minor_version, glib_micro_version) << '\n'
              << "Data: " << (data.empty() ? "none found" : data.string()) << '\n';
}

void printDevices()
{
    const auto monitors = monitorNames();
    printList("Monitors", monitors.value_or(std::vector<std::string>()), monitors ? "none" : "no display");
    printList("Sound devices", soundDeviceNames(), "none");
    std::vector<std::string> pads = gamePadNames();
    for (std::size_t i = 0; i < pads.size(); ++i) pads[i].insert(0, "pad" + std::to_string(i + 1) + ": ");
    printList("Game-pads", pads, "none");
}
