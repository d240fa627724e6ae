// Damaged stage files: each bit flipped, and lengths up to twice the right one.
#include "desk_in_memory.h"
#include "stage/etap.h"
#include "stage/zbior_etapow.h"

namespace dorva::test {
namespace {

class Damage : public DeskInMemory {
protected:
    void SetUp() override {
        DeskInMemory::SetUp();
        start();
    }

    // Goes to a damaged stage 2 and back. Stage 1 must not have changed, and the damaged bytes must still exist.
    void visit(const Bajty& damaged) {
        const std::string file = at("praca/ETAPY/DETAP.2");
        disk.put(file, damaged);
        SelectEtapNR(e, 1);
        ASSERT_EQ(e.NumerEtapu, 2);
        SelectEtapNR(e, 0);
        ASSERT_EQ(e.image, sampleEtap(1));
        const auto holds = [&](const auto& entry) { return entry.second == damaged; };
        ASSERT_TRUE(damaged.empty() || disk.find(file)->bytes == damaged ||
                    std::ranges::any_of(disk.files(at("praca/ETAPY/KOPIE/DETAP.2/")), holds));
    }
};

TEST_F(Damage, EveryFlippedBitIsTakenOverOrKept) {
    int refused = 0;
    for (std::size_t bit = 0; bit < 8 * ETAP_SIZE_BYTES; ++bit) {
        Bajty damaged = sampleEtap(2);
        damaged[bit / 8] ^= static_cast<Bajt>(1U << bit % 8);
        if (bit % 8 == 0) {
            ASSERT_NO_FATAL_FAILURE(visit(damaged)) << bit;
        }

        e.image = damaged;
        const bool taken = UnpackEtap(e);
        refused += taken ? 0 : 1;
        PackEtap(e);
        Bajty stored = e.image;
        if (taken) {
            ASSERT_TRUE(UnpackEtap(e)) << bit;
            PackEtap(e);
            ASSERT_EQ(e.image, stored) << "what was stored once stays " << bit;
            stored[bit / 8] = damaged[bit / 8];
            ASSERT_EQ(stored, damaged) << "no other byte changes " << bit;
        }
        e.image = sampleEtap(1);
        ASSERT_TRUE(UnpackEtap(e));
    }
    EXPECT_EQ(refused, 15);
    EXPECT_TRUE(shown.empty());
}

TEST_F(Damage, EveryOtherLengthIsKept) {
    chosen = at("obcy");
    for (std::size_t length = 0; length <= 2 * ETAP_SIZE_BYTES; length += length < 900 || length > 960 ? 31 : 1) {
        Bajty damaged = sampleEtap(2);
        damaged.resize(length, 9);
        ASSERT_NO_FATAL_FAILURE(visit(damaged)) << length;
        const Bajty stored = disk.find(at("praca/ETAPY/DETAP.2"))->bytes;
        ASSERT_EQ(stored, length < ETAP_SIZE_BYTES ? sampleEtap(1) : sampleEtap(2)) << length;

        disk.put(at("obcy"), damaged);
        shown.clear();
        cmdLoad_Click(e);
        ASSERT_EQ(shown.size(), length == ETAP_SIZE_BYTES ? 0U : 1U) << length;
        ASSERT_EQ(disk.files().at(at("obcy")), damaged);
        e.image = sampleEtap(1);
        ASSERT_TRUE(UnpackEtap(e));
    }
}

} // namespace
} // namespace dorva::test
