#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace zolv {

/// Paths are UTF-8 wherever they are text, also on Windows, whatever its code page. There, what is not well formed
/// becomes a replacement character and thus the name of nothing; elsewhere every byte stands.
[[nodiscard]] std::filesystem::path PathOf(const std::string& utf8);
[[nodiscard]] std::string TextOf(const std::filesystem::path& path);

/// Why the system refused something, as words for a message: those that every platform has, where it has such.
[[nodiscard]] std::string ReasonOf(std::error_code error);

#ifdef _WIN32
[[nodiscard]] std::wstring WideOf(std::string_view utf8);
[[nodiscard]] std::string Utf8Of(std::wstring_view wide);
#endif

}  // namespace zolv
