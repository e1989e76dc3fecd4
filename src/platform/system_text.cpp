#include "platform/system_text.h"

#ifdef _WIN32
#include <windows.h>

#include <iterator>
#endif

namespace zolv {

#ifdef _WIN32

// The standard library's own conversions throw where a text is not well formed.
std::wstring WideOf(std::string_view utf8) {
    const int size = static_cast<int>(utf8.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Utf8Of(std::wstring_view wide) {
    const int size = static_cast<int>(wide.size());
    const int room = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(room), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), room, nullptr, nullptr);
    return utf8;
}

std::filesystem::path PathOf(const std::string& utf8) { return WideOf(utf8.c_str()); }
std::string TextOf(const std::filesystem::path& path) { return Utf8Of(path.native()); }

std::string ReasonOf(std::error_code error) {
    const std::error_condition known = error.default_error_condition();
    if (known.category() == std::generic_category()) return known.message();
    wchar_t text[512];
    DWORD size =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                       static_cast<DWORD>(error.value()), 0, text, static_cast<DWORD>(std::size(text)), nullptr);
    while (size > 0 && (text[size - 1] <= L' ' || text[size - 1] == L'.')) --size;
    return size > 0 ? Utf8Of({text, size}) : "Error " + std::to_string(error.value());
}

#else

std::filesystem::path PathOf(const std::string& utf8) { return utf8.c_str(); }
std::string TextOf(const std::filesystem::path& path) { return path.native(); }
std::string ReasonOf(std::error_code error) { return error.message(); }

#endif

}  // namespace zolv
