#pragma once

/// What the text on the screen is written in.
enum class Language {
    De,   ///< as the sources have it
    En,   ///< by its catalogue
    Auto, ///< the user's, as the environment names it; for one without a catalogue English, where none is named German
};

/// Have translated() speak that language in the whole process. Once, before anything is written; with a log line, and
/// German, where the catalogues are missing.
void chooseLanguage(Language language);
