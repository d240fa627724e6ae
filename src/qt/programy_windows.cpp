#include "qt/programy.h"

#include "system/pliki.h"
#include "system/system_calls.h"

#include <array>
#include <filesystem>
#include <windows.h>

namespace dorva {
namespace {

namespace fs = std::filesystem;

fs::path commandProcessor() {
    std::array<wchar_t, MAX_PATH> folder{};
    ::GetSystemDirectoryW(folder.data(), folder.size());
    return fs::path(folder.data()) / L"cmd.exe";
}

std::wstring quoted(const fs::path& path) {
    return L'"' + path.native() + L'"';
}

} // namespace

void startProgram(const fs::path& path, OknoProgramu okno) {
    if (!lengthOf(SYSTEM_CALLS, path))
        return;
    fs::path program = path;
    program.make_preferred();
    // The command processor takes away the outermost quotes. /d: nothing that others put before every command.
    std::wstring command = program.extension() == L".BAT"
                               ? quoted(commandProcessor()) + L" /d /c \"" + quoted(program) + L'"'
                               : quoted(program);
    // Only the console is hidden: what the launcher starts shall be seen.
    const ::DWORD flags = okno == OknoProgramu::Hidden ? CREATE_NO_WINDOW : 0;
    ::STARTUPINFOW start{};
    start.cb = sizeof start;
    ::PROCESS_INFORMATION started{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, flags, nullptr, nullptr, &start, &started))
        return;
    ::CloseHandle(started.hThread);
    ::CloseHandle(started.hProcess);
}

} // namespace dorva
