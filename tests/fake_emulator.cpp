// Stands in for an emulator: writes, into a file beside itself, in which folder and with which arguments it was
// started.
#include <filesystem>
#include <fstream>
#include <string>
#include <windows.h>

int main(int argc, char** argv) {
    std::wstring self(32768, L'\0');
    self.resize(::GetModuleFileNameW(nullptr, self.data(), static_cast<::DWORD>(self.size())));
    std::ofstream note(std::filesystem::path(self).parent_path() / "call", std::ios::binary);
    const auto folder = std::filesystem::current_path().u8string();
    note << std::string(folder.begin(), folder.end()) << '\n';
    for (int i = 1; i < argc; ++i)
        note << argv[i] << (i + 1 < argc ? ' ' : '\n');
}
