// Pictures of tiles, prepared for painting when they are first shown.
#pragma once

#include "tiles/magazyn.h"

#include <QImage>

#include <array>
#include <memory>

namespace dorva {

inline constexpr int KRATKA_SIDE = 16; // a board cell or an icon, in logical pixels

// The grey behind boards and pictures.
inline constexpr unsigned SZARY = 0xFF808080;

// A picture at its two sizes.
struct Obrazek {
    QImage duzy; // 32 x 32
    QImage maly; // scaled once, to 16 x 16 in the editor
};

// Two pictures are the same if their pointers are.
using ObrazekPtr = std::shared_ptr<const Obrazek>;

class Obrazki {
public:
    explicit Obrazki(const Magazyn& frmZestawy, int maly = KRATKA_SIDE) : frmZestawy_(frmZestawy), maly_(maly) {}

    // Forgets the pictures if a strip was loaded since they were made.
    void followMagazyn();

    // Transparent for a tile whose strip wasn't loaded; a placeholder for a code that is no tile, and before a tile set
    // is shown.
    const ObrazekPtr& operator[](ObrazRef ref) {
        ObrazekPtr& gotowy = gotowe_[(ref.swiat + 1) * CODES + kod(ref.znak)];
        if (!gotowy)
            gotowy = prepare(ref);
        return gotowy;
    }

private:
    static constexpr int CODES = 256;

    [[nodiscard]] ObrazekPtr prepare(ObrazRef) const;

    const Magazyn& frmZestawy_;
    int maly_; // side of the small pictures
    unsigned wersja_ = 0;
    std::array<ObrazekPtr, (SWIATY_COUNT + 1) * CODES> gotowe_; // the default state comes first
};

} // namespace dorva
