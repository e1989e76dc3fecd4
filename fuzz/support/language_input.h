#pragma once

#include <string>
#include <string_view>

namespace zolv {

/// The language file that an input of a fuzzer stands for. Only a file with just as many lines as there are texts is
/// accepted, which chance hardly finds; so an input that begins with "@" holds lines that replace those of English, and
/// the two bytes behind tell from which on. Any other is the file itself.
std::string LanguageFileFrom(std::string_view input);

}  // namespace zolv
