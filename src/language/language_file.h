#pragma once

#include <string>

namespace zolv {

/// Loads the language picked in LanguageList: takes its words from "words_NAME.txt" beside its file, assigns every line
/// of its file to its targets, in order, and rebuilds each list whose rows come from a group of lines, at the end of
/// the group; a list keeps the row that it had. Ends with the follow-up languageFollowUps.LanguageChanged. A file that
/// is missing, or that has not exactly the lines of the caption table, is refused with a message before anything
/// changes.
/// Reads:  LanguageList, the file
/// Writes: words, every target of the caption table, the lists of tyre types, graphs and units
void ChangeLanguage();

/// Writes the built-in texts as a complete language file, where a translator starts.
/// @return the reason as words for a message, empty when the file was written
[[nodiscard]] std::string WriteBuiltInLanguage(const std::string& path);

}  // namespace zolv
