#include "platform/process.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <cstdlib>

#include "platform/system_text.h"
#endif

namespace zolv {

#ifdef _WIN32

namespace {

UINT consoleBefore = 0;

bool SayOnConsole(const std::wstring& text) {
    if (!AttachConsole(ATTACH_PARENT_PROCESS)) return false;
    const HANDLE console =
        CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool said = WriteConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
    CloseHandle(console);
    return said;
}

}  // namespace

std::vector<std::string> ArgumentsOf(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(Utf8Of(words[i]));
    LocalFree(words);
    return arguments;
}

void PassBytesThrough() {
    for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    // The console belongs to whoever typed the command, and keeps what is set.
    consoleBefore = GetConsoleOutputCP();
    if (consoleBefore == 0 || !SetConsoleOutputCP(CP_UTF8)) return;
    std::atexit([] { SetConsoleOutputCP(consoleBefore); });
}

bool Say(std::FILE* stream, const std::string& text) {
    if (_fileno(stream) >= 0) return std::fputs(text.c_str(), stream) >= 0;
    const std::wstring wide = WideOf(text);
    return SayOnConsole(wide) || MessageBoxW(nullptr, wide.c_str(), L"Tarmaq Zolv", MB_OK) != 0;
}

#else

std::vector<std::string> ArgumentsOf(int argc, char** argv) { return {argv + 1, argv + argc}; }

void PassBytesThrough() {}

bool Say(std::FILE* stream, const std::string& text) { return std::fputs(text.c_str(), stream) >= 0; }

#endif

}  // namespace zolv
