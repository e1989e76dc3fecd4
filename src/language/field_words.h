#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// Whether the row of that name goes to a field: its caption, its tool tip, or the tool tip of one tab of a strip. A
/// row of another name is a word that code uses.
bool GoesToField(std::string_view name);

/// Puts the words in force into the captions and tool tips that have theirs from them.
void AssignFieldWords();

/// Takes the words of that language, from "words_NAME.txt" in the program's folder, and puts them into the fields.
/// Without such a file they are English; one that cannot be read counts as none, with a message.
void LoadWords(const std::string& language);

}  // namespace zolv
