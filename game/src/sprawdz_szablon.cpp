// Checks a finished game template: its length, its chain of segments from the first byte to the
// last, and every place that the builder lays stages and title lines over. Prints what is wrong
// and ends with 1, so that a build with a displaced byte fails.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kFileBytes = 118433;
constexpr std::size_t kStageBytes = 931;
constexpr std::size_t kStagePitch = 4 + kStageBytes;
constexpr std::size_t kTitleAt = 116180;
constexpr std::size_t kTitleBytes = 22;
constexpr std::size_t kTitleLines = 3;
constexpr std::size_t kSwitchAt = 44680;
constexpr std::uint8_t kTitleEnd = 155;

constexpr std::uint16_t kPortB = 0xD301;
constexpr std::uint16_t kRunAddress = 0x02E0;
constexpr std::uint16_t kWindow = 0x4000;
constexpr std::uint16_t kWindowEnd = 0x8000;
constexpr std::uint16_t kRomStart = 0xC000;
constexpr std::uint16_t kStageSpacing = 0x400;
constexpr std::uint8_t kMainMemory = 0xFF;

struct Block {
    std::size_t firstRecord; // file offset of the first stage's first byte
    std::uint8_t bank;       // PORTB while the block's segments load
};
constexpr std::array<Block, 2> kBlocks{{{29724, 0xE3}, {44689, 0xE7}}};
constexpr std::size_t kStagesPerBlock = 16;

static_assert(kBlocks[0].firstRecord + kStagesPerBlock * kStagePitch - 4 == kSwitchAt);
static_assert(kSwitchAt + 5 + 4 == kBlocks[1].firstRecord);

struct Segment {
    std::uint16_t start = 0;
    std::size_t bytes = 0;
    std::uint8_t bank = kMainMemory; // PORTB when it is loaded
};

int faults = 0;

void expect(bool ok, const char* what, std::size_t at) {
    if (ok)
        return;
    std::fprintf(stderr, "szablon: %s (offset %zu)\n", what, at);
    ++faults;
}

std::uint16_t word(const Bytes& file, std::size_t at) {
    return static_cast<std::uint16_t>(file[at] | file[at + 1] << 8);
}

// Walks the file as a loader does. The key is the file offset of a segment's first data byte.
std::map<std::size_t, Segment> walk(const Bytes& file) {
    std::map<std::size_t, Segment> segments;
    std::uint8_t bank = kMainMemory;
    expect(file.size() > 2 && word(file, 0) == 0xFFFF, "no $FFFF marker at the start", 0);
    std::size_t at = 2;
    while (at < file.size()) {
        if (at + 4 > file.size()) {
            expect(false, "half a segment header at the end", at);
            break;
        }
        const std::uint16_t start = word(file, at);
        const std::uint16_t end = word(file, at + 2);
        at += 4;
        const std::size_t bytes = static_cast<std::size_t>(end) + 1 - start;
        if (end < start || at + bytes > file.size()) {
            expect(false, "a segment runs over the end of the file or backwards", at - 4);
            break;
        }
        segments[at] = {start, bytes, bank};
        if (start == kPortB) {
            expect(bytes == 1, "a bank switch is longer than one byte", at);
            bank = file[at];
        } else {
            expect(end < kRomStart, "a segment lies in ROM or among the hardware registers", at);
            expect(end < kWindow || start >= kWindowEnd || bank != kMainMemory,
                   "main memory under the bank window is loaded", at);
        }
        at += bytes;
    }
    expect(bank == kMainMemory, "the last bank switch doesn't bring main memory back", at);
    return segments;
}

void checkStages(const std::map<std::size_t, Segment>& segments) {
    for (const Block& block : kBlocks) {
        for (std::size_t i = 0; i < kStagesPerBlock; ++i) {
            const std::size_t at = block.firstRecord + i * kStagePitch;
            const auto found = segments.find(at);
            if (found == segments.end()) {
                expect(false, "a stage record isn't a segment of its own", at);
                continue;
            }
            const Segment& s = found->second;
            expect(s.bytes == kStageBytes, "a stage record doesn't have 931 bytes", at);
            expect(s.bank == block.bank, "a stage loads into the wrong bank", at);
            expect(s.start == kWindow + i * kStageSpacing, "a stage loads to the wrong place", at);
        }
    }
    const auto change = segments.find(kSwitchAt + 4);
    expect(change != segments.end() && change->second.start == kPortB,
           "no bank switch between the two blocks of stages", kSwitchAt);
}

void checkTitle(const Bytes& file, const std::map<std::size_t, Segment>& segments) {
    const auto found = segments.find(kTitleAt);
    expect(found != segments.end() && found->second.bytes == kTitleLines * kTitleBytes &&
               found->second.bank == kMainMemory,
           "the title lines aren't one segment in main memory", kTitleAt);
    for (std::size_t i = 0; i < kTitleLines; ++i) {
        const std::size_t at = kTitleAt + i * kTitleBytes;
        const std::size_t column = file[at];
        std::size_t length = 0;
        while (length < kTitleBytes - 1 && file[at + 1 + length] != kTitleEnd)
            ++length;
        expect(length <= 20 && column == (20 - length) / 2 + 2, "a title line isn't centred", at);
        for (std::size_t k = 1 + length; k < kTitleBytes; ++k)
            expect(file[at + k] == kTitleEnd, "a title line isn't filled up with 155", at + k);
    }
}

void checkRun(const Bytes& file, const std::map<std::size_t, Segment>& segments) {
    const auto& [at, last] = *segments.rbegin();
    expect(last.start == kRunAddress && last.bytes == 2, "the file doesn't end with its run address", at);
    const std::uint16_t run = word(file, kFileBytes - 2);
    bool loaded = false;
    for (const auto& [offset, s] : segments)
        loaded |= s.bank == kMainMemory && run >= s.start && run < s.start + s.bytes;
    expect(loaded, "the run address points to memory that isn't loaded", at);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: sprawdz_szablon FILE\n");
        return 2;
    }
    std::ifstream in(argv[1], std::ios::binary);
    const Bytes file{std::istreambuf_iterator<char>(in), {}};
    expect(file.size() == kFileBytes, "the file doesn't have 118433 bytes", file.size());
    if (faults)
        return 1;
    const auto segments = walk(file);
    if (!segments.empty()) {
        checkStages(segments);
        checkTitle(file, segments);
        checkRun(file, segments);
    }
    if (faults)
        return 1;
    std::printf("szablon: %zu segments, %zu bytes, all in place\n", segments.size(), file.size());
    return 0;
}
