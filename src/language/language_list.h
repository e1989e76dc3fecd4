#pragma once

namespace zolv {

/// Reads the list of languages, "languages.lst", and picks the stored one, or the first where none is stored: the pick
/// loads that language. A number beyond the list shows a message and picks none; one below 0 picks none. A list that is
/// missing, cannot be read, or has neither a name nor a number is refused with a message: nothing changes, and the
/// window goes out of the way.
/// Reads:  the file
/// Writes: language.LanguageIndex, LanguageList
void LoadLanguageList();

/// Stores the language picked in LanguageList as the number in line 0 of the file. Equal names cannot be told apart:
/// the last of them is stored. A list that cannot be read or written is left as it is, with a message.
void SaveLanguageChoice();

}  // namespace zolv
