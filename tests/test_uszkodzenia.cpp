// Every damage of a stage file: each bit of it flipped, each length up to twice its own.
#include "pulpit.h"

namespace dorva::test {
namespace {

class Uszkodzenia : public PulpitWPamieci {
protected:
    void SetUp() override {
        PulpitWPamieci::SetUp();
        start();
        chosen = at("obcy");
        first = sampleEtap(1);
    }

    static bool isValid(const Bajty& image) {
        return image[832] >= 1 && image[832] <= 99 && image[833] <= 2 && image[834] <= 2;
    }

    // Goes to the damaged stage 2 and back.
    void visit(const Bajty& damaged) {
        pamiec.nazwy.erase(at("praca/ETAPY/DETAP.2.kopia"));
        pamiec.put(at("praca/ETAPY/DETAP.2"), damaged);
        SelectEtapNR(e, 1);
        ASSERT_EQ(e.NumerEtapu, 2);
        ASSERT_EQ(stored("ETAPY/DETAP.1"), first);
        SelectEtapNR(e, 0);
        ASSERT_EQ(e.image, first);
    }

    static Bajty stored(const std::string& name) {
        const auto plik = pamiec.find(at("praca/" + name));
        return plik ? plik->bytes : Bajty();
    }
    static Bajty kopia() { return stored("ETAPY/DETAP.2.kopia"); }

    Bajty first;
};

TEST_F(Uszkodzenia, EveryFlippedBitIsTakenOverOrKept) {
    int refused = 0, taken = 0;
    for (std::size_t bit = 0; bit < 8 * ETAP_SIZE_BYTES; ++bit) {
        Bajty damaged = sampleEtap(2);
        damaged[bit / 8] ^= static_cast<Bajt>(1U << bit % 8);
        ASSERT_NO_FATAL_FAILURE(visit(damaged)) << bit;
        Bajty now = stored("ETAPY/DETAP.2");
        pamiec.put(at("obcy"), damaged);
        cmdLoad_Click(e);
        PackEtap(e);
        if (isValid(damaged)) {
            ASSERT_EQ(e.image, now) << bit;
            taken += now[bit / 8] == damaged[bit / 8];
            now[bit / 8] = sampleEtap(2)[bit / 8];
            ASSERT_EQ(now, sampleEtap(2)) << bit;
        } else {
            ASSERT_EQ(kopia(), damaged) << bit;
            ++refused;
        }
        pamiec.put(at("obcy"), first);
        cmdLoad_Click(e);
    }
    EXPECT_EQ(refused, 15);
    EXPECT_EQ(taken, 6249) << "the rest is brought back to its form";
    EXPECT_TRUE(shown.empty());
}

TEST_F(Uszkodzenia, EveryOtherLengthIsKept) {
    for (std::size_t length = 0; length <= 2 * ETAP_SIZE_BYTES; ++length) {
        Bajty damaged = sampleEtap(2);
        damaged.resize(length, 9);
        ASSERT_NO_FATAL_FAILURE(visit(damaged)) << length;
        ASSERT_EQ(kopia(), length == ETAP_SIZE_BYTES ? Bajty() : damaged) << length;
        ASSERT_EQ(stored("ETAPY/DETAP.2"), length < ETAP_SIZE_BYTES ? first : sampleEtap(2)) << length;

        pamiec.put(at("obcy"), damaged);
        shown.clear();
        cmdLoad_Click(e);
        ASSERT_EQ(shown.size(), length == ETAP_SIZE_BYTES ? 0U : 1U) << length;
        ASSERT_EQ(pamiec.files().at(at("obcy")), damaged);
        pamiec.put(at("obcy"), first);
        cmdLoad_Click(e);
    }
}

} // namespace
} // namespace dorva::test
