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

    // What a pack makes of a valid image.
    static Bajty normalised(Bajty image) {
        std::fill_n(image.begin(), 16, Bajt{0});
        std::fill_n(image.begin() + 28, 4, Bajt{0});
        for (int i = 0; i < PLANSZA_CELLS; ++i) {
            Bajt& code = image[32 + i];
            if (isEdge(i) && code != 0 && code != 5 && code != 6)
                code = 5;
            else if (code == 191)
                code = 63;
        }
        const std::string capitals = "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF";
        for (std::size_t i = 835; i < image.size(); ++i) { // these codes never come out of a text
            const auto capital = capitals.find(static_cast<char>(image[i]));
            if (image[i] >= 64 && image[i] < 96)
                image[i] = static_cast<Bajt>(image[i] + 32);
            else if (capital != std::string::npos)
                image[i] = static_cast<Bajt>("acelnosxz"[capital]);
        }
        return image;
    }

    // Goes to the damaged stage 2 and back.
    void visit(const Bajty& damaged) {
        pamiec.nazwy.erase(at("praca/ETAPY/DETAP.2.kopia"));
        pamiec.put(at("praca/ETAPY/DETAP.2"), damaged);
        SelectEtapNR(e, 1);
        ASSERT_EQ(e.NumerEtapu, 2);
        ASSERT_EQ(stored("ETAPY/DETAP.1"), first);
        ASSERT_EQ(e.image == Bajty(ETAP_SIZE_BYTES, 0), damaged.size() < ETAP_SIZE_BYTES);
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
    int refused = 0;
    for (std::size_t bit = 0; bit < 8 * ETAP_SIZE_BYTES; ++bit) {
        Bajty damaged = sampleEtap(2);
        damaged[bit / 8] ^= static_cast<Bajt>(1U << bit % 8);
        ASSERT_NO_FATAL_FAILURE(visit(damaged)) << bit;
        if (isValid(damaged))
            ASSERT_EQ(stored("ETAPY/DETAP.2"), normalised(damaged)) << bit;
        else
            ASSERT_EQ(kopia(), damaged) << bit;

        pamiec.put(at("obcy"), damaged);
        cmdLoad_Click(e);
        PackEtap(e);
        ASSERT_EQ(e.image == normalised(damaged), isValid(damaged)) << bit;
        refused += isValid(damaged) ? 0 : 1;
        pamiec.put(at("obcy"), first);
        cmdLoad_Click(e);
    }
    EXPECT_EQ(refused, 15);
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
