#pragma once

#include "testing/Picture.h"

#include <string>

/// Read a PNG file. Throw std::runtime_error, naming the file, when it cannot be read.
Picture readPng(const std::string& path);

/// Write a picture as a PNG file. Throw std::runtime_error, naming the file, when it cannot be written.
void writePng(const std::string& path, const Picture& picture);
