// What only Windows does with files: programs that hold them, the read-only flag, device names, long paths, wide names.
#include "desk.h"
#include "system/proces.h"

#include <array>
#include <thread>
#include <windows.h>

namespace dorva::test {
namespace {

// What a program that holds a file lets others do with it.
constexpr std::array<::DWORD, 3> SHARES{0, FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE};

class Windows : public Desk {
protected:
    static ::HANDLE hold(const fs::path& path, ::DWORD share) {
        return ::CreateFileW(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr);
    }
    void expectUntouched() {
        EXPECT_EQ(readFile(etap(1)), sampleEtap(1));
        EXPECT_EQ(namesIn("ETAPY").size(), 32U);
    }
};

TEST_F(Windows, AHolderOfAMomentIsWaitedFor) {
    const auto whileHeld = [&](::DWORD share, auto call) {
        ::HANDLE held = hold(etap(1), share);
        std::thread holder([held] {
            ::Sleep(60);
            ::CloseHandle(held);
        });
        EXPECT_TRUE(call()) << share;
        holder.join();
    };
    for (::DWORD share : SHARES) {
        whileHeld(share, [&] { return writeWhole(SYSTEM_CALLS, etap(1), Bajty{9}); });
        EXPECT_EQ(readFile(etap(1)), Bajty{9});
        whileHeld(share, [&] { return SYSTEM_CALLS.remove(etap(1)) == Result::Ok; });
        writeFile(etap(1), {1});
    }
}

TEST_F(Windows, AHolderForGoodAndAReadOnlyFileAreRefusals) {
    for (::DWORD share : SHARES) {
        ::HANDLE held = hold(etap(1), share);
        EXPECT_FALSE(writeWhole(SYSTEM_CALLS, etap(1), Bajty{9})) << share;
        ::CloseHandle(held);
        expectUntouched();
    }
    ::SetFileAttributesW(etap(1).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(writeWhole(SYSTEM_CALLS, etap(1), Bajty{9}));
    ::SetFileAttributesW(etap(1).c_str(), FILE_ATTRIBUTE_NORMAL);
    expectUntouched();
}

TEST_F(Windows, DevicesFoldersAndImpossibleNamesAreRefused) {
    for (const wchar_t* name : {L"NUL", L"CON", L"ETAPY", L"brak\\plik", L"a?b", L"a:b:c"}) {
        EXPECT_FALSE(writeWhole(SYSTEM_CALLS, base / name, Bajty{1})) << fs::path(name);
        EXPECT_FALSE(readFirst(SYSTEM_CALLS, base / name, 1)) << fs::path(name);
    }
    EXPECT_EQ(listNames(SYSTEM_CALLS, base, "").size(), 3U);
}

TEST_F(Windows, LongPathsWorkOrFailAsAWhole) {
    fs::path folder = base;
    while (folder.native().size() < 400)
        folder /= L"łódź i jeszcze kawałek drogi";
    const fs::path file = folder / L"DETAP.1";
    EXPECT_FALSE(readOrCreate(SYSTEM_CALLS, file, 1));
    EXPECT_FALSE(writeWhole(SYSTEM_CALLS, file, Bajty{1})) << "its folder is missing";
    EXPECT_FALSE(fileExists(SYSTEM_CALLS, file));
    EXPECT_TRUE(listNames(SYSTEM_CALLS, folder, "").empty());
}

TEST_F(Windows, TheProgramKnowsItsOwnFile) {
    EXPECT_EQ(ownExecutable().filename(), "dorva_tests.exe");
}

} // namespace
} // namespace dorva::test
