#include "dziecko.h"
#include "system/proces.h"

#include <string>
#include <windows.h>

namespace dorva::test {

Dziecko::Dziecko(unsigned seed) {
    std::wstring command =
        L'"' + ownExecutable().native() + L"\" " + std::filesystem::path(PISZ).native() + L' ' + std::to_wstring(seed);
    ::STARTUPINFOW start{};
    start.cb = sizeof start;
    ::PROCESS_INFORMATION started{};
    ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &started);
    ::CloseHandle(started.hThread);
    process_ = reinterpret_cast<std::intptr_t>(started.hProcess);
}

Dziecko::~Dziecko() {
    const auto process = reinterpret_cast<::HANDLE>(process_);
    ::TerminateProcess(process, 1);
    ::WaitForSingleObject(process, INFINITE);
    ::CloseHandle(process);
}

} // namespace dorva::test
