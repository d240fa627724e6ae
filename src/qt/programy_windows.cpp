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
    // The command processor removes the outermost quotes; /d keeps it from running the AutoRun commands.
    std::wstring command = program.extension() == L".BAT"
                               ? quoted(commandProcessor()) + L" /d /c \"" + quoted(program) + L'"'
                               : quoted(program);
    // Hides the console only, not what the launcher starts.
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
