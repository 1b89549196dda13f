#pragma once

#include <string>
#include <vector>

// Words for keys: "k", "7", "up", "leftshift", "f10". They name places on the keyboard, by what a US one has there.

constexpr int kNoKey = -1;

/// Return the GLFW 3 key code of a word in small letters; kNoKey when there is no such word.
int keyOf(const std::string& word);

/// Return every word that names a key.
std::vector<std::string> keyWords();
