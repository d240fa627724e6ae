// Stands in for an emulator: notes, beside itself, in which folder and with which arguments it was started.
#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char** argv) {
    const std::filesystem::path self = argv[0];
    std::ofstream note(self.parent_path() / "wywolanie", std::ios::binary);
    const auto folder = std::filesystem::current_path().u8string();
    note << std::string(folder.begin(), folder.end()) << '\n';
    for (int i = 1; i < argc; ++i)
        note << argv[i] << (i + 1 < argc ? ' ' : '\n');
}
